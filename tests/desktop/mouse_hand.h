#pragma once

#include "hand.h"

#include <QtCore/QPoint>

class QTableView;

namespace zelvor {

// Does everything with the mouse. Keys are for texts and figures only.
class MouseHand final : public Hand {
public:
    MouseHand();
    ~MouseHand() override;

    void press(const QString& button) override;
    void tick(const QString& checkBox) override { press(checkBox); }
    void fill(const QString& field, const QString& text) override;
    void choose(const QString& chooser, const QString& entry) override;
    void answer(QMessageBox& question, const QString& button) override;
    void openEntry(const QString& title) override;
    void addRecord(const QString& button) override;
    void accept(const QString& okButton) override { press(okButton); }
    void chooseContragent(const QString& name) override;
    void enterRow(const QString& product, const QString& amount, const QString& price) override;
    void changeAmount(const QString& product, const QString& amount) override;
    void save() override;
    void confirm() override;
    void refresh() override;
    void quit() override;

private:
    // Fails when something else stands at that place.
    static void click(QWidget* widget, const QPoint& place);
    static void doubleClick(QWidget* widget, const QPoint& place);
    static void clickRow(QAbstractItemView* list, const QString& text);
    static void doubleClickRow(QAbstractItemView* list, const QString& text);
    static void editNumber(QTableView* rows, const QString& product, const QString& column,
                           const QString& number);

    int m_doubleClickInterval;
};

} // namespace zelvor
