#pragma once

#include "hand.h"

namespace zelvor {

// Does everything with the keyboard, and fails when a mouse event comes along all the same. A widget is
// reached by Tab from wherever the cursor is.
class KeyboardHand final : public QObject, public Hand {
public:
    KeyboardHand();
    ~KeyboardHand() override;

    void press(const QString& button) override;
    void tick(const QString& checkBox) override { press(checkBox); }
    void fill(const QString& field, const QString& text) override;
    void choose(const QString& chooser, const QString& entry) override;
    void answer(QMessageBox& question, const QString& button) override;
    void openEntry(const QString& title) override;
    void addRecord(const QString& button) override;
    void accept(const QString& okButton) override;
    void chooseContragent(const QString& name) override;
    void enterRow(const QString& product, const QString& amount, const QString& price) override;
    void changeAmount(const QString& product, const QString& amount) override;
    void save() override;
    void confirm() override;
    void refresh() override;
    void quit() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static void goTo(const QString& name);
};

} // namespace zelvor
