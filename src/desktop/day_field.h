#pragma once

#include <QtCore/QDate>
#include <QtCore/QLocale>
#include <QtWidgets/QLineEdit>

namespace zelvor {

// A date to type or to pick from a calendar. Takes what people write: "1.3", "1/3/26", "01032026",
// "2026-03-01", each part where the locale has it; what is left out is taken from the date that stood there.
// Up and Down go a day on. What is no date turns red, and the old date comes back when the field is left.
class DayField : public QLineEdit {
    Q_OBJECT

public:
    explicit DayField(QWidget* parent = nullptr);

    const QDate& day() const { return m_day; }
    // Shows the day; tells nobody.
    void setDay(const QDate& day);
    // What is being typed counts from now on; false when it is no date, and the old one stands there again.
    bool commit();
    void openCalendar();

Q_SIGNALS:
    // By the user.
    void dayChosen(const QDate& day);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    QSize sizeHint() const override;

private:
    void choose(const QDate& day);
    void showWrong(bool wrong);

    QDate m_day;
};

// The day that a person meant; invalid when it is none. `shown` gives what is left out.
QDate dayFromUserText(const QString& text, const QLocale& locale, const QDate& shown);

} // namespace zelvor
