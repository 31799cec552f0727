#include "desktop/number_entry.h"

#include "core/formats.h"
#include "core/localized.h"
#include "desktop/cell_text.h"
#include "desktop/theme.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolTip>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

NumberEntry::Number parsed(const QString& text)
{
    if (text.trimmed().isEmpty())
        return std::nullopt;
    return amountFromUserText(text, QLocale());
}

bool isWrongNumber(const NumberEntry::Number& number)
{
    return number && number->isNaN();
}

bool areSame(const NumberEntry::Number& a, const NumberEntry::Number& b)
{
    return a.has_value() == b.has_value() && (!a || *a == *b);
}

// "-" or "1 2" on the way to "1 200": red, but nothing to be told about yet.
bool isUnfinished(const QString& text)
{
    const auto becomesNumber = [&text](const QString& more) { return !isWrongNumber(parsed(text + more)); };
    return std::ranges::any_of(QStringList{u"0"_s, u"00"_s, u"000"_s}, becomesNumber);
}

QString wrongNumberText()
{
    return localized("This is not a number. Write 1234.50 or 1234,50. Escape brings the old one back.");
}

} // namespace

NumberEntry::NumberEntry(QLineEdit* edit, int decimals) : QObject(edit), m_edit(edit), m_decimals(decimals)
{
    edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    edit->installEventFilter(this);
    connect(edit, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (!m_showing)
            typed(text);
    });
    connect(edit, &QLineEdit::editingFinished, this, [this] {
        if (!m_wrong)
            finish();
    });
}

NumberEntry* NumberEntry::of(const QWidget* edit)
{
    return edit ? edit->findChild<NumberEntry*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

NumberEntry::Number NumberEntry::number() const
{
    if (m_wrong || !m_typing)
        return m_before;
    return parsed(m_edit->text());
}

void NumberEntry::show(const Number& shown)
{
    if (m_typing && areSame(shown, number()))
        return;
    m_typing = false;
    m_before = shown;
    m_wrong = false;
    showWrong();
    const QString text = shown ? editedNumber(*shown, QLocale(), m_decimals) : QString();
    m_showing = true;
    if (m_edit->text() != text)
        m_edit->setText(text);
    m_showing = false;
}

void NumberEntry::typed(const QString& text)
{
    m_typing = true;
    m_wrong = isWrongNumber(parsed(text));
    if (onTyped)
        onTyped(number());
    showWrong();
    if (m_wrong && !isUnfinished(text))
        showTip();
    else
        QToolTip::hideText();
    // Not typed but set as a whole, by an assistive tool: nobody leaves the field behind it.
    if (!m_edit->isModified() && !m_wrong)
        finish();
}

bool NumberEntry::finish()
{
    if (m_wrong) {
        complain();
        return false;
    }
    if (!m_typing)
        return true;
    const Number last = number();
    m_typing = false;
    if (onDone)
        onDone();
    else
        show(last);
    return true;
}

void NumberEntry::restore()
{
    const Number old = m_before;
    m_typing = false;
    show(old);
    QToolTip::hideText();
    if (onTyped)
        onTyped(old);
    m_edit->selectAll();
}

void NumberEntry::settle()
{
    if (m_wrong)
        restore();
    const Number last = number();
    m_typing = false;
    show(last);
}

void NumberEntry::complain()
{
    m_edit->setFocus(Qt::OtherFocusReason);
    QApplication::beep();
    showTip();
}

void NumberEntry::showWrong()
{
    if (m_wrong != m_painted) {
        if (m_wrong)
            m_ownTip = m_edit->toolTip();
        m_edit->setToolTip(m_wrong ? wrongNumberText() : m_ownTip);
        m_edit->setAccessibleDescription(m_wrong ? wrongNumberText() : QString());
    }
    paint();
}

void NumberEntry::paint()
{
    const QColor ink = textColor(redColor, QApplication::palette());
    if (m_painted == m_wrong && (!m_wrong || m_edit->palette().color(QPalette::Text) == ink))
        return;
    m_painted = m_wrong;
    QPalette own; // only what is set here is kept from the palette of the moment
    if (m_wrong)
        own.setColor(QPalette::Text, ink);
    m_edit->setPalette(own);
}

void NumberEntry::showTip() const
{
    if (m_edit->isVisible())
        QToolTip::showText(m_edit->mapToGlobal(QPoint(0, m_edit->height() / 2)), wrongNumberText(), m_edit);
}

// Whether the key was for a wrong text.
bool NumberEntry::keyPressed(int key)
{
    if (!m_wrong)
        return false;
    switch (key) {
    case Qt::Key_Escape:
        restore();
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        complain();
        return true;
    default:
        return false;
    }
}

bool NumberEntry::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        paint();
    if (event->type() == QEvent::ShortcutOverride && m_wrong &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress && keyPressed(static_cast<QKeyEvent*>(event)->key()))
        return true;
    return QObject::eventFilter(watched, event);
}

bool endEditing(QWidget& form)
{
    for (auto* const spin : form.findChildren<QAbstractSpinBox*>()) {
        if (spin->isVisible())
            spin->interpretText();
    }
    bool right = true;
    for (NumberEntry* const entry : form.findChildren<NumberEntry*>()) {
        const auto* const edit = static_cast<QWidget*>(entry->parent());
        if (edit->isVisible() && edit->isEnabled())
            right = right && entry->finish();
    }
    return right;
}

void dropTyping(QWidget& form)
{
    for (NumberEntry* const entry : form.findChildren<NumberEntry*>())
        entry->settle();
}

} // namespace zelvor
