#pragma once

#include "core/outlets.h"
#include "period/balance_view.h"
#include "store/model_controller.h"

#include <string_view>
#include <vector>

namespace zelvor {

// The balance sheet of this moment, from the running balances of the catalogs: money, goods at base cost,
// fixed assets, counterparties, employees. Amounts are in the project's currency.
//
// A change of the balance is computed at once only while somebody looks (the sheet is visible, or its result
// stands in the foot line); otherwise the next who asks has it computed.
class BalanceViewController final : public ModelController {
public:
    explicit BalanceViewController(AppDelegate& owner);

    BalanceView view;
    CheckBox groupCheckBox{QStringLiteral("groupCheckBox")}; // on: headings and closing lines only
    bool balanceShown = false;                               // the result stands in the foot line

    void prepareData();
    // Reads everything and posts BalanceCalculatedNotification.
    void prepareBalance();
    // Hands the view the lines that the check box lets through.
    void openRows();
    void groupButtonClicked() { openRows(); }
    // Computes a sheet that is out of date.
    void refresh();
    // Another project is coming: nothing of the one that was read stays, and nothing is read yet.
    void forget();

    // All lines, and debit minus credit.
    const std::vector<std::shared_ptr<BalanceRow>>& rows();
    double balance();

private:
    struct Sheet;

    void updateBalance();
    void addAccounts(Sheet& sheet);
    void addStocks(Sheet& sheet);
    void addProperties(Sheet& sheet);
    void addDebts(Sheet& sheet, const QString& heading, std::string_view sql);

    std::vector<std::shared_ptr<BalanceRow>> m_rows;
    double m_balance = 0;
    bool m_stale = true;
    NotificationCenter::Observation m_balanceChanged;
};

} // namespace zelvor
