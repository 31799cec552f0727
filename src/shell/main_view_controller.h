#pragma once

#include "core/notification_center.h"
#include "core/outlets.h"
#include "period/balance_view_controller.h"
#include "period/period_closing.h"
#include "store/model_controller.h"

namespace zelvor {

// The main window's side of an opened project: the foot line with the state text and the balance, the
// permanent catalogs' controllers as far as the foot line needs them, and the closing of months. While it
// lives it is the application's workspace.
class MainViewController final : public ModelController, public Workspace {
public:
    explicit MainViewController(AppDelegate& owner);
    ~MainViewController() override;

    BalanceViewController balanceController;
    Label stateField{QStringLiteral("stateField")};
    NumberField balance{QStringLiteral("balance")}; // debit less credit, currency of the project
    Label balanceLabel{QStringLiteral("balanceLabel")};

    // Shows the balance when the settings ask for it.
    void checkParams();
    void updateDefaults() { checkParams(); }
    // Loads what stands in the window from the start.
    void prepareAllData();
    // The sheet was computed.
    void updateBalance();
    void setStateString(const QString& text) override { stateField.setText(text); }

    // The closing of months; see PeriodClosing.
    void checkPeriod() { m_period.checkPeriod(); }
    bool closePeriod(qint64 date, Params& params) { return m_period.closePeriod(date, params); }
    qint64 getStartPeriodDateFromDate(qint64 date, const Params& params) const
    {
        return m_period.getStartPeriodDateFromDate(date, params);
    }
    double clearDate(qint64 date) const { return m_period.clearDate(date); }
    qint64 getPeriodToSave() const { return m_period.getPeriodToSave(); }
    DayComponents getLastComponents() const { return m_period.getLastComponents(); }
    qint64 timeIntervalFromInt(qint64 period) const { return m_period.timeIntervalFromInt(period); }
    bool isPeriodSaved(qint64 saved, std::optional<int>* months = nullptr) const
    {
        return m_period.isPeriodSaved(saved, months);
    }

private:
    PeriodClosing m_period;
    std::vector<NotificationCenter::Observation> m_observations;
};

} // namespace zelvor
