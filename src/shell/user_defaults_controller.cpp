#include "shell/user_defaults_controller.h"

#include "core/currency_struct.h"
#include "core/localized.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr qint64 longestDeferment = 36'500; // days, as the documents take it

const QString& logoResource()
{
    static const QString name = u"logo.png"_s;
    return name;
}

bool isPercentage(const NumberField& field)
{
    const Decimal& value = field.value();
    return !value.isNaN() && !value.isNegative() && !(value > Decimal(100));
}

} // namespace

UserDefaultsController::UserDefaultsController(AppDelegate& owner) : ModelController(owner)
{
    defaultCurrencyWarning.setText(localized("Please select default currency for project"));
    defaultCurrencyWarning.setHidden(true);
    readOnlyWarning.setText(localized("The project is open for reading only. Nothing can be changed."));
    readOnlyWarning.setHidden(true);
    lastPeriodSaved.setEnabled(false);
    bindOutlets();
    changeButtonState();
}

std::vector<Outlet*> UserDefaultsController::editedOutlets()
{
    return {&reportPeriod,
            &showCurrentBalanceCheck,
            &currencySelect,
            &maxDeferment,
            &printCompanyLogoCheck,
            &openLogoButton,
            &deleteLogoButton,
            &useVATCheck,
            &vatRate,
            &useGSTCheck,
            &gstRate,
            &useVATNoCheck,
            &vatNo,
            &companyName,
            &companyAddress,
            &companyCity,
            &companyPhone,
            &companyMail,
            &companyDomain,
            &printBankDetailsCheck,
            &bankAccountName,
            &bankAccountNumber,
            &bankName,
            &bankAddress,
            &bankIBAN,
            &bankSWIFT};
}

void UserDefaultsController::bindOutlets()
{
    for (Outlet* outlet : editedOutlets())
        outlet->onUserChange = [this] { defaultsChanged(); };
    openLogoButton.onUserChange = [this] { openLogoFile(); };
    deleteLogoButton.onUserChange = [this] { deletePathToImage(); };
    applyButton.onUserChange = [this] { applyChanges(); };
    useVATCheck.onUserChange = [this] { selectVATUseChanged(); };
    useGSTCheck.onUserChange = [this] { selectGSTUseChanged(); };
    maxDeferment.onUserChange = [this] {
        maxDeferment.setValue(Decimal(maxDeferment.integer())); // whole days
        defaultsChanged();
    };
    for (NumberField* field : {&vatRate, &gstRate}) {
        field->onUserChange = [this, field] {
            if (field->isEmpty() || field->value().isNaN())
                field->setValue(0);
            defaultsChanged();
        };
    }
}

void UserDefaultsController::showWindow()
{
    initCurrencies();
    setParams();
    windowTitle.setText(localized("Parameters for ") + projectName);
    defaultCurrencyWarning.setHidden(!initial);
    if (initial) {
        currencySelect.setEnabled(true);
        currencySelect.selectTag(0);
    }
    lockWhenReadOnly();
    window.open();
}

// Nothing is to be typed that could never be applied.
void UserDefaultsController::lockWhenReadOnly()
{
    const bool editable = !appDelegate.connector.isReadOnly();
    const bool currencyEditable = editable && currencySelect.enabled();
    for (Outlet* outlet : editedOutlets())
        outlet->setEnabled(editable);
    currencySelect.setEnabled(currencyEditable);
    readOnlyWarning.setHidden(editable);
    changeButtonState();
}

void UserDefaultsController::initCurrencies()
{
    std::vector<PopUpButton::Item> items{{.title = u"-----"_s, .tag = 0}};
    for (const CurrencyStruct currency : allCurrencies)
        items.push_back(
            {.title = currencyShort(currency), .tag = rawValue(currency), .image = currencyImage(currency)});
    currencySelect.setItems(std::move(items));
}

// Leaves `changed` as it stands: what was typed and never applied is gone, yet Apply stays enabled.
void UserDefaultsController::setParams()
{
    projectName = appDelegate.defaults.defaultBusiness().value_or(QString()).replace(u'_', u' ');
    const std::shared_ptr<Params> params = appDelegate.params();
    if (!params)
        return;
    reportPeriod.selectTag(params->reportPeriod);
    showCurrentBalanceCheck.setOn(params->showCurrentBalance);
    maxDeferment.setValue(Decimal(params->maxDeferment));
    printCompanyLogoCheck.setOn(params->printCompanyLogo);
    logoPath.setText(params->pathToLogo);
    showLogo();
    currencySelect.selectTag(params->defaultCurrency == 0 ? -1 : params->defaultCurrency);
    // A currency that was applied stands: all amounts in the file are in it.
    currencySelect.setEnabled(params->defaultCurrency == 0);
    lastPeriodSaved.setMoment(dateFromInt(params->lastPeriodSaved));
    currencyUpdated = params->lastCurrencyUpdate;
    periodSaved = params->lastPeriodSaved;
    showTaxes(*params);
    showCompany(*params);
}

void UserDefaultsController::showTaxes(const Params& params)
{
    useVATCheck.setOn(params.useVAT);
    useGSTCheck.setOn(params.useGST);
    vatRate.setReal(params.vatRate);
    gstRate.setReal(params.gstRate);
    vatNo.setText(params.vatNumber);
    useVATNoCheck.setOn(params.useVATNo);
}

void UserDefaultsController::showCompany(const Params& params)
{
    companyName.setText(params.companyName);
    companyAddress.setText(params.companyAddress);
    companyCity.setText(params.companyCity);
    companyPhone.setText(params.companyPhone);
    companyMail.setText(params.companyMail);
    companyDomain.setText(params.companyDomain);
    bankAccountName.setText(params.bankAccountName);
    bankAccountNumber.setText(params.bankAccountNumber);
    bankName.setText(params.bankName);
    bankAddress.setText(params.bankAddress);
    bankIBAN.setText(params.bankIBAN);
    bankSWIFT.setText(params.bankSWIFT);
    printBankDetailsCheck.setOn(params.printBankDetails);
}

void UserDefaultsController::showLogo()
{
    logoImageView.setText(logoPath.text().isEmpty() ? logoResource() : logoPath.text());
}

qint64 UserDefaultsController::dateFromInt(qint64 period) const
{
    if (period < 1)
        return 0;
    const auto [year, month] = splitPeriodNumber(period);
    return appDelegate.calendar.startOfDay({year, month, 28});
}

void UserDefaultsController::changeButtonState()
{
    applyButton.setEnabled(changed && !appDelegate.connector.isReadOnly());
}

void UserDefaultsController::defaultsChanged()
{
    changed = true;
    changeButtonState();
}

void UserDefaultsController::selectVATUseChanged()
{
    if (useVATCheck.isOn())
        useGSTCheck.setOn(false);
    defaultsChanged();
}

void UserDefaultsController::selectGSTUseChanged()
{
    if (useGSTCheck.isOn()) {
        useVATCheck.setOn(false);
        useVATNoCheck.setOn(false);
    }
    defaultsChanged();
}

void UserDefaultsController::openLogoFile()
{
    const std::optional<QString> path =
        appDelegate.dialogs.openPath({localized("Open Logo File"),
                                      localized("Name"),
                                      localized("Open Logo File"),
                                      {u"png"_s, u"jpg"_s, u"tiff"_s, u"pdf"_s}});
    if (!path)
        return;
    logoPath.setText(*path);
    showLogo();
    defaultsChanged();
}

void UserDefaultsController::deletePathToImage()
{
    logoPath.setText({});
    showLogo();
    defaultsChanged();
}

void UserDefaultsController::applyChanges()
{
    if (!hasStorableNumbers())
        return;
    // Not read from the file first: the layout version falls back to the class's own, which nothing reads,
    // and what a month's closing or a rate update stored since the window was filled is taken back.
    Params params;
    params.id = 1;
    params.lastCurrencyUpdate = currencyUpdated;
    params.lastPeriodSaved = periodSaved;
    params.showCurrentBalance = showCurrentBalanceCheck.isOn();
    params.reportPeriod = reportPeriod.selectedTag();
    params.defaultCurrency = currencySelect.selectedTag();
    params.maxDeferment = maxDeferment.integer();
    params.printCompanyLogo = printCompanyLogoCheck.isOn();
    params.pathToLogo = logoPath.text();
    showLogo();
    takeTaxes(params);
    takeCompany(params);
    if (appDelegate.connector.update(params) != 1)
        return;
    changed = false;
    changeButtonState();
    appDelegate.notifications.post(NotificationName::DefaultsChangedNotification);
}

bool UserDefaultsController::hasStorableNumbers()
{
    QString refusal;
    const qint64 days = maxDeferment.integer();
    if (days < 0 || days > longestDeferment)
        refusal = localized("The longest deferment must lie between 0 and 36500 days.");
    else if (!isPercentage(vatRate))
        refusal = localized("The VAT rate must lie between 0 and 100 percent.");
    else if (!isPercentage(gstRate))
        refusal = localized("The GST rate must lie between 0 and 100 percent.");
    if (refusal.isEmpty())
        return true;
    appDelegate.dialogs.showAlert(
        {localized("The changes were not applied."), refusal, {localized("Close")}, 0});
    return false;
}

void UserDefaultsController::takeTaxes(Params& params) const
{
    params.useVAT = useVATCheck.isOn();
    params.useGST = useGSTCheck.isOn();
    params.useVATNo = useVATNoCheck.isOn();
    params.vatNumber = vatNo.text();
    params.vatRate = vatRate.real();
    params.gstRate = gstRate.real();
}

void UserDefaultsController::takeCompany(Params& params) const
{
    params.printBankDetails = printBankDetailsCheck.isOn();
    params.companyName = companyName.text();
    params.companyAddress = companyAddress.text();
    params.companyCity = companyCity.text();
    params.companyPhone = companyPhone.text();
    params.companyMail = companyMail.text();
    params.companyDomain = companyDomain.text();
    params.bankAccountName = bankAccountName.text();
    params.bankAccountNumber = bankAccountNumber.text();
    params.bankName = bankName.text();
    params.bankAddress = bankAddress.text();
    params.bankIBAN = bankIBAN.text();
    params.bankSWIFT = bankSWIFT.text();
}

void UserDefaultsController::closeWindow()
{
    if (!initial) {
        window.close();
        if (onShowMainWindow)
            onShowMainWindow();
        return;
    }
    if (currencySelect.selectedTag() == 0 || changed) {
        appDelegate.dialogs.showAlert(
            {localized("Default currency doesn't set"),
             localized("Please select default currency for project and confirm changes!"),
             {localized("Close")},
             0});
        return;
    }
    initial = false;
    defaultCurrencyWarning.setHidden(true);
    currencySelect.setEnabled(false);
    if (onCheckDefaultCurrency)
        onCheckDefaultCurrency();
    window.close();
}

void UserDefaultsController::showProjectSelectWindow()
{
    if (onLeaveProject)
        onLeaveProject();
}

void UserDefaultsController::projectWasLeft()
{
    window.close();
    initial = false;
}

} // namespace zelvor
