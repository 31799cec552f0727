#include "desktop/number_cell_delegate.h"

#include "desktop/number_entry.h"
#include "documents/document_view_controller.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

bool leadsOut(const QKeyEvent& press)
{
    if (press.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier))
        return false;
    switch (press.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return true;
    default:
        return false;
    }
}

} // namespace

bool NumberCellDelegate::canStore(const QWidget* editor)
{
    NumberEntry* const entry = NumberEntry::of(editor);
    if (!entry)
        return true;
    const bool right =
        !entry->isWrong() && DocumentViewController::isStorable(entry->number().value_or(Decimal()));
    if (!right)
        entry->complain();
    return right;
}

QWidget* NumberCellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                          const QModelIndex& index) const
{
    QWidget* const editor = ListDelegate::createEditor(parent, option, index);
    editor->setObjectName(u"cellEditor"_s);
    return editor;
}

bool NumberCellDelegate::eventFilter(QObject* watched, QEvent* event)
{
    auto* const line = qobject_cast<QLineEdit*>(watched);
    if (!line || event->type() != QEvent::KeyPress || !leadsOut(*static_cast<QKeyEvent*>(event)))
        return ListDelegate::eventFilter(watched, event);
    if (!canStore(line))
        return true;
    const int key = static_cast<QKeyEvent*>(event)->key();
    Q_EMIT commitData(line);
    Q_EMIT closeEditor(line, NoHint);
    Q_EMIT finished(key);
    return true;
}

} // namespace zelvor
