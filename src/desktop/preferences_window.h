#pragma once

#include "core/outlets.h"

#include <QtWidgets/QDialog>

class QBoxLayout;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;

namespace zelvor {

class ApplicationShell;
class DesktopSettings;
class ElidedLabel;
class UserDefaultsController;

// "Parameters for <project>": every field of the settings row. A new project is set up here.
class PreferencesWindow : public QDialog {
    Q_OBJECT

public:
    PreferencesWindow(ApplicationShell& shell, DesktopSettings& settings);

    // Escape and the close button of the window: the controller decides whether it goes.
    void reject() override;

Q_SIGNALS:
    // It was closed.
    void left();

protected:
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void layOut();
    QLabel* makeReadOnlyNote();
    QBoxLayout* makeButtons();
    void addGroup(QGridLayout* rows, const QString& title);
    QLineEdit* addText(QGridLayout* rows, TextField& field, const QString& label, const QString& name);
    QLineEdit* addNumber(QGridLayout* rows, NumberField& field, const QString& label, int decimals);
    void addCheck(QGridLayout* rows, CheckBox& box, const QString& label);
    void addCurrency(QGridLayout* rows);
    void addCompany(QGridLayout* rows);
    void addLogo(QGridLayout* rows);
    void addTaxes(QGridLayout* rows);
    void addDocuments(QGridLayout* rows);
    void addBank(QGridLayout* rows);
    void addReportPeriod(QGridLayout* rows);
    void addLastPeriod(QGridLayout* rows);
    void showOrHide();
    void showLogo();

    ApplicationShell& m_shell;
    UserDefaultsController& m_controller;
    DesktopSettings& m_settings;
    QComboBox* m_currency = nullptr;
    QLineEdit* m_companyName = nullptr;
    QLabel* m_logo = nullptr;
};

} // namespace zelvor
