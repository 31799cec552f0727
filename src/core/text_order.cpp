#include "core/text_order.h"

#include <QtCore/QChar>

#include <algorithm>

namespace zelvor {

bool textLess(QStringView a, QStringView b)
{
    const auto [inA, inB] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    if (inB == b.end())
        return false;
    if (inA == a.end())
        return true;
    // Where two texts part, a surrogate stands for a code point above every other unit; two texts that part
    // within a pair have the same lead before it, so the units themselves decide.
    const bool surrogateA = inA->isSurrogate();
    const bool surrogateB = inB->isSurrogate();
    if (surrogateA != surrogateB)
        return surrogateB;
    return inA->unicode() < inB->unicode();
}

} // namespace zelvor
