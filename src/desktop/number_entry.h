#pragma once

#include "core/decimal.h"

#include <QtCore/QObject>

#include <functional>
#include <optional>

class QLineEdit;
class QWidget;

namespace zelvor {

// Makes a line edit take numbers: "12,5", "12.5" and "1 234,50" in every locale. A text that is no number
// turns red and says so below the field; neither Tab nor Return leaves the field then, and Escape brings the
// old number back. Until the text is right, the old number stands for it.
class NumberEntry : public QObject {
    Q_OBJECT

public:
    // No number stands for an empty field.
    using Number = std::optional<Decimal>;

    // At least so many decimals are shown. Belongs to the line edit.
    NumberEntry(QLineEdit* edit, int decimals);
    static NumberEntry* of(const QWidget* edit); // null for a widget that takes no numbers

    // Shows a number that comes from elsewhere. What is being typed is not rewritten by what it gave.
    void show(const Number& number);
    bool isWrong() const { return m_wrong; }
    // The number that counts: the one typed, or the old one while the text is wrong.
    Number number() const;

    // Runs at each key with the number that counts.
    std::function<void(const Number&)> onTyped;
    // Runs when the user leaves the field or presses Return after a change.
    std::function<void()> onDone;

    // Ends what is being typed. False when it is no number: then the field has the focus and says so.
    bool finish();
    // Brings back the number of before.
    void restore();
    // Lets what is being typed stand as it is, without telling of it.
    void settle();
    // Gives the wrong field the focus and says what is wrong with it.
    void complain();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void typed(const QString& text);
    void showWrong();
    void paint();
    void showTip() const;
    bool keyPressed(int key);

    QLineEdit* m_edit;
    int m_decimals;
    Number m_before;       // as last shown
    bool m_typing = false; // changed by the user since then
    bool m_wrong = false;
    bool m_showing = false; // the field gets its text from here
    bool m_painted = false; // red
    QString m_ownTip;       // the tool tip while nothing is wrong
};

// Ends what is being typed anywhere in the form, as if its field were left. False when a field that the user
// sees holds what is no number: it has the focus then, and what would store the form must not go on.
bool endEditing(QWidget& form);
// The form closes: fields with wrong texts get their old numbers back, and no field goes on about what was
// typed last.
void dropTyping(QWidget& form);

} // namespace zelvor
