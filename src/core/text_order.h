#pragma once

#include <QtCore/QStringView>

namespace zelvor {

// The plain text comparison of all lists: by code point. (QString's own operator compares UTF-16 units, which
// puts letters outside the basic plane before some inside it.)
bool textLess(QStringView a, QStringView b);

// Sorts by a name member: std::ranges::stable_sort(records, NameLess{}) for pointers to anything with `name`.
struct NameLess {
    template <class A, class B>
    bool operator()(const A& a, const B& b) const
    {
        return textLess(a->name, b->name);
    }
};

} // namespace zelvor
