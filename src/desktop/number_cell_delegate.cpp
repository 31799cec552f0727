#include "desktop/number_cell_delegate.h"

#include "core/formats.h"
#include "core/localized.h"
#include "desktop/theme.h"
#include "documents/document_view_controller.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolTip>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

bool endsEditing(int key)
{
    switch (key) {
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

void paintWrong(QLineEdit* editor, bool wrong)
{
    QPalette palette = QGuiApplication::palette();
    if (wrong)
        palette.setColor(QPalette::Text, textColor(redColor, palette));
    editor->setPalette(palette);
    editor->setToolTip(wrong ? localized("This is not a number. Write 1234.50 or 1234,50.") : QString());
}

} // namespace

bool NumberCellDelegate::isNumber(const QString& text)
{
    return DocumentViewController::isStorable(amountFromUserText(text, QLocale()));
}

QWidget* NumberCellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                          const QModelIndex& index) const
{
    auto* const editor = new QLineEdit(parent);
    editor->setObjectName(u"cellEditor"_s);
    editor->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    editor->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    editor->setFrame(false);
    editor->setAutoFillBackground(true);
    connect(editor, &QLineEdit::textEdited, editor,
            [editor](const QString& text) { paintWrong(editor, !isNumber(text)); });
    return editor;
}

void NumberCellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* const line = static_cast<QLineEdit*>(editor);
    line->setText(index.data(Qt::EditRole).toString());
    line->selectAll();
}

bool NumberCellDelegate::eventFilter(QObject* watched, QEvent* event)
{
    auto* const line = qobject_cast<QLineEdit*>(watched);
    if (line && event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            Q_EMIT left(line);
        return false;
    }
    if (!line || event->type() != QEvent::KeyPress)
        return ListDelegate::eventFilter(watched, event);
    const auto* const press = static_cast<QKeyEvent*>(event);
    const int key = press->key();
    if (!endsEditing(key) || (press->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)))
        return ListDelegate::eventFilter(watched, event);
    if (!isNumber(line->text())) {
        paintWrong(line, true);
        QToolTip::showText(line->mapToGlobal(QPoint(0, line->height())), line->toolTip(), line);
        return true;
    }
    Q_EMIT finished(line, key == Qt::Key_Enter ? Qt::Key_Return : key);
    return true;
}

} // namespace zelvor
