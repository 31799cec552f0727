#include "desktop/search_line.h"

#include "core/localized.h"
#include "desktop/icons.h"

#include <QtGui/QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

SearchLine::SearchLine(QWidget* list, QWidget* parent) : QLineEdit(parent), m_list(list)
{
    setObjectName(u"searchLine"_s);
    setAccessibleName(localized("Search in the list"));
    setPlaceholderText(localized("Search (Ctrl+F)"));
    setClearButtonEnabled(true);
    addAction(lineIcon(u"search"_s), QLineEdit::LeadingPosition)->setText(localized("Search"));
    setMinimumWidth(fontMetrics().averageCharWidth() * 26);
}

void SearchLine::keyPressEvent(QKeyEvent* event)
{
    const bool escape = event->key() == Qt::Key_Escape;
    if (escape && !text().isEmpty()) {
        clear();
        return;
    }
    if (escape || event->key() == Qt::Key_Down || event->key() == Qt::Key_Return) {
        m_list->setFocus(Qt::ShortcutFocusReason);
        return;
    }
    QLineEdit::keyPressEvent(event);
}

} // namespace zelvor
