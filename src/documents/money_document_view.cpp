#include "documents/money_document_view.h"

#include "catalogs/currency.h"
#include "core/localized.h"
#include "core/text_order.h"
#include "documents/money_document_view_controller.h"
#include "documents/visible_record.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// All records of a pop-up: not hidden ones by name, and the chosen one even when it was hidden since.
template <class Record>
std::vector<PopUpButton::Item> itemsOf(Connector& connector, qint64 chosenID)
{
    auto records = connector.freeSQL<Record>("WHERE is_hidden=? OR id=?", {false, chosenID}, Fill::Nothing);
    std::ranges::stable_sort(records, NameLess{});
    std::vector<PopUpButton::Item> items;
    items.reserve(records.size());
    for (const std::shared_ptr<Record>& record : records)
        items.push_back({.title = record->name, .tag = record->id});
    return items;
}

// Selects the record in a pop-up, which need not have been filled yet.
template <class Record>
void selectRecord(PopUpButton& select, const Record* record)
{
    if (!record) {
        select.selectTag(0);
        return;
    }
    if (select.selectTag(record->id))
        return;
    std::vector<PopUpButton::Item> items = select.items();
    items.push_back({.title = record->name, .tag = record->id});
    select.setItems(std::move(items));
    select.selectTag(record->id);
}

} // namespace

MoneyDocumentView::MoneyDocumentView(MoneyDocumentViewController& controller)
    : BaseView(QString(), redColor), m_controller(controller)
{
    writeLabels();
    bindFields();
}

MoneyDocument& MoneyDocumentView::document() const
{
    return *m_controller.document;
}

void MoneyDocumentView::writeLabels()
{
    accountFromLabel.setText(localized("Account From"));
    accountToLabel.setText(localized("Account To"));
    contragentLabel.setText(localized("Counterparty"));
    employeeLabel.setText(localized("Employee"));
    expendLabel.setText(localized("Spending"));
    sumLabel.setText(localized("Sum"));
    sumToLabel.setText(localized("Received Sum"));
}

void MoneyDocumentView::bindFields()
{
    date.onUserChange = [this] {
        document().date = date.moment();
        checkControlls();
    };
    accountFromSelect.onUserChange = [this] { setAccountFromID(accountFromSelect.selectedTag()); };
    accountToSelect.onUserChange = [this] { setAccountToID(accountToSelect.selectedTag()); };
    employeeSelect.onUserChange = [this] { setEmployeeFromID(employeeSelect.selectedTag()); };
    docSum.onUserChange = [this] { accountFromSumEdited(); };
    docSumTo.onUserChange = [this] { accountToSumEdited(); };
    variableCheck.onUserChange = [this] {
        document().variable = variableCheck.isOn();
        checkControlls();
    };
    loansCheck.onUserChange = [this] {
        document().loans = loansCheck.isOn();
        checkControlls();
    };
    dividentCheck.onUserChange = [this] {
        document().divident = dividentCheck.isOn();
        checkControlls();
    };
    comment.onUserChange = [this] {
        document().comment = comment.text();
        checkControlls();
    };
    saveButton.onUserChange = [this] { m_controller.writeDoc(); };
    deleteDocButton.onUserChange = [this] { m_controller.deleteDoc(); };
    confirmButton.onUserChange = [this] { m_controller.confirmDoc(); };
}

void MoneyDocumentView::prepareAccountSelects()
{
    if (m_accountsPrepared)
        return;
    Connector& connector = m_controller.appDelegate.connector;
    if (m_controller.accountFromEnabled())
        accountFromSelect.setItems(itemsOf<Account>(connector, document().accountFromID));
    if (m_controller.accountToEnabled())
        accountToSelect.setItems(itemsOf<Account>(connector, document().accountToID));
    m_accountsPrepared = true;
}

void MoneyDocumentView::prepareEmployeeSelect()
{
    if (m_employeesPrepared)
        return;
    if (m_controller.employeeEnabled())
        employeeSelect.setItems(itemsOf<Manager>(m_controller.appDelegate.connector, document().employeeID));
    m_employeesPrepared = true;
}

void MoneyDocumentView::accountsChanged()
{
    m_accountsPrepared = false;
    if (isVisible())
        prepareAccountSelects();
}

void MoneyDocumentView::employeesChanged()
{
    m_employeesPrepared = false;
    if (isVisible())
        prepareEmployeeSelect();
}

void MoneyDocumentView::setDefaults()
{
    if (m_controller.accountFromEnabled())
        setDefaultAccount(accountFromSelect);
    if (m_controller.accountToEnabled())
        setDefaultAccount(accountToSelect);
}

void MoneyDocumentView::setDefaultAccount(PopUpButton& accountSelect)
{
    const auto accounts = m_controller.appDelegate.connector.freeSQL<Account>("WHERE is_default=? LIMIT 1",
                                                                              {true}, Fill::Nothing);
    if (!accounts.empty())
        takeAccount(accountSelect, accounts.front()->id);
}

bool MoneyDocumentView::setAccountFromID(qint64 accountID)
{
    return takeAccount(accountFromSelect, accountID);
}

bool MoneyDocumentView::setAccountToID(qint64 accountID)
{
    return takeAccount(accountToSelect, accountID);
}

bool MoneyDocumentView::takeAccount(PopUpButton& select, qint64 accountID)
{
    MoneyDocument& changed = document();
    const std::shared_ptr<Account> account =
        visibleRecord<Account>(m_controller.appDelegate.connector, accountID);
    if (&select == &accountFromSelect)
        changed.settAccountFrom(account);
    else
        changed.settAccountTo(account);
    selectRecord(select, account.get());
    showParties();
    if (changed.accountFromID != 0 && changed.accountToID != 0)
        calculateExchange();
    checkControlls();
    return account || accountID == 0;
}

bool MoneyDocumentView::setEmployeeFromID(qint64 employeeID)
{
    const std::shared_ptr<Manager> employee =
        visibleRecord<Manager>(m_controller.appDelegate.connector, employeeID);
    document().settEmployee(employee);
    selectRecord(employeeSelect, employee.get());
    showParties();
    checkControlls();
    return employee || employeeID == 0;
}

void MoneyDocumentView::showParties()
{
    contragentField.setText(document().contragentName());
    expendField.setText(document().expend->name);
    accountFromBalance.setValue(document().accountFrom->innerBalance);
    accountToBalance.setValue(document().accountTo->innerBalance);
    employeeBalance.setValue(document().employee->innerBalance);
    employeeBalance.setColor(document().employee->balanceFontColor());
}

void MoneyDocumentView::showDocument()
{
    const MoneyDocument& shown = document();
    date.setMoment(shown.date);
    selectRecord(accountFromSelect, shown.accountFrom.shared().get());
    selectRecord(accountToSelect, shown.accountTo.shared().get());
    selectRecord(employeeSelect, shown.employee.shared().get());
    showParties();
    docSum.setValue(shown.innerDocSum);
    docSumTo.setValue(shown.innerConvertedSum);
    currencyRate.setValue(shown.innerExchangeRate);
    variableCheck.setOn(shown.variable);
    loansCheck.setOn(shown.loans);
    dividentCheck.setOn(shown.divident);
    comment.setText(shown.comment);
    enableFields();
    checkControlls();
}

void MoneyDocumentView::enableFields()
{
    using enum DocType;
    const bool open = !document().confirmed;
    const DocType type = document().docType();
    accountFromSelect.setEnabled(open && m_controller.accountFromEnabled());
    accountToSelect.setEnabled(open && m_controller.accountToEnabled());
    employeeSelect.setEnabled(open && m_controller.employeeEnabled());
    contragentField.setEnabled(open && m_controller.contragentEnabled());
    expendField.setEnabled(open && m_controller.expendEnabled());
    docSumTo.setEnabled(open && m_controller.sumToEnabled());
    docSumTo.setHidden(!m_controller.sumToEnabled());
    currencyRate.setHidden(!m_controller.sumToEnabled());
    currencyRate.setEnabled(false);
    for (Outlet* field : std::initializer_list<Outlet*>{&date, &docSum, &comment})
        field->setEnabled(open);
    // A transfer is neither lent nor spent; only a spending varies; only employees get a dividend.
    loansCheck.setEnabled(open && type != InnerTransaction);
    variableCheck.setEnabled(open && type == MoneyToExpend);
    dividentCheck.setEnabled(open && m_controller.employeeEnabled());
}

double MoneyDocumentView::getCurrencyRateFromID(qint64 currencyID) const
{
    const auto currency = m_controller.appDelegate.connector.select<Currency>(currencyID, Fill::Nothing);
    return currency ? currency->rate() : 1.0;
}

void MoneyDocumentView::calculateExchange()
{
    MoneyDocument& changed = document();
    const qint64 currencyTo = changed.accountTo->currencyID;
    const qint64 currencyFrom = changed.accountFrom->currencyID;
    double rate = 1.0;
    if (currencyTo != currencyFrom)
        rate = getCurrencyRateFromID(currencyTo) / getCurrencyRateFromID(currencyFrom);
    currencyRate.setReal(rate);
    changed.setExchangeRate(rate);
    setReceivedSum(Decimal::fromDouble(docSum.real() * rate, MoneyDocument::decimalHandler));
}

void MoneyDocumentView::accountFromSumEdited()
{
    // What is shown and reckoned with is what will be stored. An empty field is 0.
    docSum.setValue(docSum.value().rounded(MoneyDocument::decimalHandler));
    if (m_controller.sumToEnabled() && !docSum.value().isZero())
        setReceivedSum(docSum.value().times(document().innerExchangeRate, MoneyDocument::decimalHandler));
    docSumChanged();
}

void MoneyDocumentView::accountToSumEdited()
{
    setReceivedSum(docSumTo.value());
    if (!docSum.value().isZero() && !docSumTo.value().isZero()) {
        const Decimal rate = docSumTo.value().dividedBy(docSum.value(), MoneyDocument::exchangeHandler);
        currencyRate.setValue(rate);
        document().innerExchangeRate = rate;
    }
    checkControlls();
}

// The document holds what the field shows, so that a draft keeps a received sum that was typed.
void MoneyDocumentView::setReceivedSum(const Decimal& sum)
{
    const Decimal kept = sum.rounded(MoneyDocument::decimalHandler);
    docSumTo.setValue(kept);
    document().innerConvertedSum = kept;
}

void MoneyDocumentView::docSumChanged()
{
    document().innerDocSum = docSum.value().rounded(MoneyDocument::decimalHandler);
    checkControlls();
}

std::vector<MoneyDocumentView::Required> MoneyDocumentView::required() const
{
    const MoneyDocument& checked = document();
    std::vector<Required> fields;
    if (m_controller.accountFromEnabled())
        fields.push_back({&MoneyDocumentView::accountFromLabel, !checked.accountFrom.isEmpty()});
    if (m_controller.accountToEnabled()) {
        // Money cannot be moved from an account to itself.
        const bool differs = checked.accountToID != checked.accountFromID;
        fields.push_back({&MoneyDocumentView::accountToLabel, !checked.accountTo.isEmpty() && differs});
    }
    if (m_controller.contragentEnabled())
        fields.push_back({&MoneyDocumentView::contragentLabel, !checked.contragent.isEmpty()});
    if (m_controller.employeeEnabled())
        fields.push_back({&MoneyDocumentView::employeeLabel, !checked.employee.isEmpty()});
    if (m_controller.expendEnabled())
        fields.push_back({&MoneyDocumentView::expendLabel, !checked.expend.isEmpty()});
    const auto isSum = [](const Decimal& sum) {
        return sum.isPositive() && DocumentViewController::isStorable(sum);
    };
    fields.push_back({&MoneyDocumentView::sumLabel, isSum(checked.innerDocSum)});
    if (m_controller.sumToEnabled())
        fields.push_back({&MoneyDocumentView::sumToLabel, isSum(checked.innerConvertedSum)});
    return fields;
}

QStringList MoneyDocumentView::missingInputs() const
{
    QStringList missing;
    for (const Required& field : required()) {
        if (!field.filled)
            missing.push_back((this->*field.label).text());
    }
    return missing;
}

void MoneyDocumentView::checkControlls()
{
    bool complete = true;
    for (const Required& field : required()) {
        (this->*field.label).setColor(field.filled ? inOrderColor : redColor);
        complete = complete && field.filled;
    }
    const bool open = !document().confirmed;
    saveButton.setEnabled(open && complete);
    confirmButton.setEnabled(open && complete);
    deleteDocButton.setEnabled(open && document().id != 0);
}

} // namespace zelvor
