#include "desktop/tool_tip.h"

#include <QtGui/QTextDocument>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

// Tool tips decide by the text itself whether it is markup; escaping a plain one would show the escapes.
QString plainToolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? u"<qt>"_s + text.toHtmlEscaped() + u"</qt>"_s : text;
}

} // namespace zelvor
