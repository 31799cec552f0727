#pragma once

#include "store/table_info.h"

namespace zelvor {

// The one settings row of a project, id 1; read afresh whenever it is needed.
class Params : public TableModel {
public:
    // What a new project is marked with; also what the program is compared with when a newer one is offered.
    static constexpr QStringView programVersion = u"1.2";

    QString version = QStringLiteral("1.0"); // written, never compared; a new project writes programVersion
    bool showCurrentBalance = false;
    qint64 reportPeriod = 1;       // 1 month, 2 quarter, 3 year
    qint64 defaultCurrency = 0;    // raw value of a CurrencyStruct; 0: the project is not set up
    qint64 lastCurrencyUpdate = 0; // seconds since 1970 UTC
    qint64 maxDeferment = 30;      // days
    bool printCompanyLogo = true;
    QString pathToLogo;
    bool useVAT = false;
    bool useGST = false;
    double vatRate = 0; // percent
    double gstRate = 0; // percent
    QString vatNumber;
    bool useVATNo = false;
    QString companyName;
    QString companyAddress;
    QString companyCity;
    QString companyPhone;
    QString companyMail;
    QString companyDomain;
    QString bankAccountName;
    QString bankAccountNumber;
    QString bankName;
    QString bankAddress;
    QString bankIBAN;
    QString bankSWIFT;
    bool printBankDetails = false;
    qint64 lastPeriodSaved = 0; // period number of the last closed month; 0: none was closed

    static const TableInfo& table();
};

} // namespace zelvor
