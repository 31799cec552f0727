#pragma once

#include "catalogs/account.h"
#include "catalogs/manager.h"
#include "reports/employee_account_report_view.h"
#include "reports/report_view_controller.h"

namespace zelvor {

class MoneyDocument;

// The statement of money of one employee, or of one account: each confirmed money document of a period. Both
// bounds are inside the period.
class EmployeeAccountReportViewController final : public ReportViewController {
public:
    // reportType is "employee"; any other text stands for an account.
    EmployeeAccountReportViewController(AppDelegate& owner, QString reportType);

    const QString reportType;
    // The records of `select`, by name: the employees that are not hidden, or all accounts.
    std::vector<std::shared_ptr<Manager>> employees;
    std::vector<std::shared_ptr<Account>> accounts;

    EmployeeAccountReportView mainView;
    PopUpButton select{QStringLiteral("select")}; // tags are ids; 0 while nothing is chosen
    Label selectLabel{QStringLiteral("selectLabel")};

    void prepareData() override;
    // With nothing chosen nothing is computed and the old table stays.
    void updateReport() override;
    QString getNameForTabView() const override;

private:
    using MoneyDocuments = std::vector<std::shared_ptr<MoneyDocument>>;

    bool isOfEmployee() const;
    // Reads the records of `select` anew; what is chosen stays chosen.
    void changeManagers();
    MoneyDocuments readOfEmployee() const;
    MoneyDocuments readOfAccount() const;
    Decimal startBalance(const MoneyDocuments& documents) const;
    void moveOfEmployee(const MoneyDocument& document, StatementRow& row, StatementRow& end) const;
    void moveOfAccount(const MoneyDocument& document, StatementRow& row, StatementRow& end) const;

    NotificationCenter::Observation m_managersChanged;
    NotificationCenter::Observation m_accountsChanged;
    NotificationCenter::Observation m_documentsChanged;
};

} // namespace zelvor
