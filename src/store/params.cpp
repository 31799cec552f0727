#include "store/params.h"

namespace zelvor {

const TableInfo& Params::table()
{
    static constexpr ColumnInfo columns[] = {
        textColumn<&Params::version>("version"),
        booleanColumn<&Params::showCurrentBalance>("is_show_current_balance"),
        integerColumn<&Params::reportPeriod>("report_period"),
        integerColumn<&Params::defaultCurrency>("default_currency"),
        integerColumn<&Params::lastCurrencyUpdate>("last_currency_update"),
        integerColumn<&Params::maxDeferment>("max_deferment"),
        booleanColumn<&Params::printCompanyLogo>("is_print_company_logo"),
        textColumn<&Params::pathToLogo>("path_to_logo"),
        booleanColumn<&Params::useVAT>("is_use_vat"),
        booleanColumn<&Params::useGST>("is_use_gst"),
        plainRealColumn<&Params::vatRate>("vat_rate"),
        plainRealColumn<&Params::gstRate>("gst_rate"),
        textColumn<&Params::vatNumber>("vat_number"),
        booleanColumn<&Params::useVATNo>("is_use_vat_no"),
        textColumn<&Params::companyName>("company_name"),
        textColumn<&Params::companyAddress>("company_address"),
        textColumn<&Params::companyCity>("company_city"),
        textColumn<&Params::companyPhone>("company_phone"),
        textColumn<&Params::companyMail>("company_mail"),
        textColumn<&Params::companyDomain>("company_domain"),
        textColumn<&Params::bankAccountName>("bank_account_name"),
        textColumn<&Params::bankAccountNumber>("bank_account_number"),
        textColumn<&Params::bankName>("bank_name"),
        textColumn<&Params::bankAddress>("bank_address"),
        textColumn<&Params::bankIBAN>("bank_iban"),
        textColumn<&Params::bankSWIFT>("bank_swift"),
        booleanColumn<&Params::printBankDetails>("is_print_bank_details"),
        integerColumn<&Params::lastPeriodSaved>("last_period_saved"),
    };
    static constexpr TableInfo info{"params", columns, {}, {}, nullptr, makeRecord<Params>};
    return info;
}

} // namespace zelvor
