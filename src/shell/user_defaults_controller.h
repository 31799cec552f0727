#pragma once

#include "core/outlets.h"
#include "store/model_controller.h"

#include <functional>
#include <vector>

namespace zelvor {

// "Parameters for <project>": the window that edits the settings row. A new project is set up here: with
// `initial` set the window goes only when a default currency was chosen and applied, or back to the
// project window. Rates are percent, maxDeferment is days.
class UserDefaultsController : public ModelController {
public:
    explicit UserDefaultsController(AppDelegate& owner);

    bool initial = false; // opened to set up a new project
    bool changed = false; // edited and not yet applied
    QString projectName;
    qint64 currencyUpdated = 0; // as setParams read them; applying writes them back
    qint64 periodSaved = 0;

    Popover window{QStringLiteral("preferencesWindow")};
    Label windowTitle{QStringLiteral("windowTitle")};
    Button applyButton{QStringLiteral("applyButton")};
    RadioGroup reportPeriod{QStringLiteral("reportPeriod")}; // 1 month, 2 quarter, 3 year
    CheckBox showCurrentBalanceCheck{QStringLiteral("showCurrentBalanceCheck")};
    PopUpButton currencySelect{QStringLiteral("currencySelect")}; // tags are raw values, 0 for none
    Label defaultCurrencyWarning{QStringLiteral("defaultCurrencyWarning")};
    Label readOnlyWarning{QStringLiteral("readOnlyWarning")}; // shown when nothing can be edited or applied
    NumberField maxDeferment{QStringLiteral("maxDeferment")};
    CheckBox printCompanyLogoCheck{QStringLiteral("printCompanyLogoCheck")};
    Label logoImageView{QStringLiteral("logoImageView")}; // a file's path, or "logo.png" for the resource
    Label logoPath{QStringLiteral("logoPath")};
    Button openLogoButton{QStringLiteral("openLogoFile")};
    Button deleteLogoButton{QStringLiteral("deletePathToImage")};
    CheckBox useVATCheck{QStringLiteral("useVATCheck")};
    NumberField vatRate{QStringLiteral("vatRate")};
    CheckBox useGSTCheck{QStringLiteral("useGSTCheck")};
    NumberField gstRate{QStringLiteral("gstRate")};
    CheckBox useVATNoCheck{QStringLiteral("useVATNoCheck")};
    TextField vatNo{QStringLiteral("vatNo")};
    DatePicker lastPeriodSaved{QStringLiteral("lastPeriodSaved")}; // shown only
    CheckBox printBankDetailsCheck{QStringLiteral("printBankDetailsCheck")};
    TextField companyName{QStringLiteral("companyName")};
    TextField companyAddress{QStringLiteral("companyAddress")};
    TextField companyCity{QStringLiteral("companyCity")};
    TextField companyPhone{QStringLiteral("companyPhone")};
    TextField companyMail{QStringLiteral("companyMail")};
    TextField companyDomain{QStringLiteral("companyDomain")};
    TextField bankAccountName{QStringLiteral("bankAccountName")};
    TextField bankAccountNumber{QStringLiteral("bankAccountNumber")};
    TextField bankName{QStringLiteral("bankName")};
    TextField bankAddress{QStringLiteral("bankAddress")};
    TextField bankIBAN{QStringLiteral("bankIBAN")};
    TextField bankSWIFT{QStringLiteral("bankSWIFT")};

    // Set by the application: the window is left for the main window, for the default currency gate, or for
    // the project window.
    std::function<void()> onShowMainWindow;
    std::function<void()> onCheckDefaultCurrency;
    std::function<void()> onLeaveProject;

    void showWindow();
    void initCurrencies();
    void setParams();
    // The 28th of a period number's month, local midnight; second 0 for a number below 1.
    qint64 dateFromInt(qint64 period) const;
    void changeButtonState();
    void defaultsChanged();
    void selectVATUseChanged();
    void selectGSTUseChanged();
    void openLogoFile();
    void deletePathToImage();
    void applyChanges();
    void closeWindow();
    void showProjectSelectWindow();
    // The project is closed: the window goes, whatever stood in it.
    void projectWasLeft();

private:
    void bindOutlets();
    std::vector<Outlet*> editedOutlets();
    void lockWhenReadOnly();
    void showTaxes(const Params& params);
    void showCompany(const Params& params);
    void showLogo();
    bool hasStorableNumbers(); // shows an alert when not
    void takeTaxes(Params& params) const;
    void takeCompany(Params& params) const;
};

} // namespace zelvor
