#include "core/formats.h"
#include "core/localized.h"
#include "documents/money_document_view_controller.h"
#include "store/user_write.h"

#include <algorithm>
#include <array>

// The confirmation of a money document: what is done and told for each type stands in the two tables below.
// Against a product document the counterparty's balance moves before its open documents are settled.

namespace zelvor {

using enum DocType;
using enum NotificationName;

struct MoneyDocumentViewController::Confirmation {
    using Form = MoneyDocumentViewController;
    using Step = bool (Form::*)();
    struct Steps {
        DocType type;
        std::array<Step, 6> steps; // run in order until one refuses or none is left
    };

    static constexpr std::array<Steps, 7> byType{{
        {MoneyFromContragent,
         {&Form::checkDate, &Form::setDocumentNumber, &Form::plusMoneyToAccount,
          &Form::changeContragentBalance, &Form::checkProductDocs}},
        {MoneyToContragent,
         {&Form::checkDate, &Form::checkAccountBalance, &Form::setDocumentNumber,
          &Form::minusMoneyFromAccount, &Form::changeContragentBalance, &Form::checkProductDocs}},
        {MoneyToExpend,
         {&Form::checkDate, &Form::checkAccountBalance, &Form::setDocumentNumber,
          &Form::minusMoneyFromAccount}},
        {MoneyFromEmployee,
         {&Form::checkDate, &Form::setDocumentNumber, &Form::plusMoneyToAccount,
          &Form::changeEmployeeBalance}},
        {MoneyToEmployee,
         {&Form::checkDate, &Form::checkAccountBalance, &Form::setDocumentNumber,
          &Form::minusMoneyFromAccount, &Form::changeEmployeeBalance}},
        {InnerTransaction,
         {&Form::checkDate, &Form::checkAccountBalance, &Form::setDocumentNumber,
          &Form::minusMoneyFromAccount, &Form::plusMoneyToAccount}},
        {MoneyAdd, {&Form::checkDate, &Form::setDocumentNumber, &Form::plusMoneyToAccount}},
    }};

    static constexpr std::array toldForAll{MoneyDocChangedNotification, AccountBalanceChangedNotification,
                                           BalanceChangedNotification};
    struct Told {
        DocType type;
        NotificationName name;
    };
    static constexpr std::array toldByType{
        Told{MoneyFromContragent, ContragentBalanceChangedNotification},
        Told{MoneyFromContragent, DocWithContragentChangedNotification},
        Told{MoneyToContragent, ContragentBalanceChangedNotification},
        Told{MoneyToContragent, DocWithContragentChangedNotification},
        Told{MoneyFromEmployee, ManagerBalanceChangedNotification},
        Told{MoneyToEmployee, ManagerBalanceChangedNotification},
        Told{MoneyToExpend, ExpendDocChangedNotification},
    };
};

bool MoneyDocumentViewController::confirmDoc()
{
    if (!mayWrite())
        return false;
    progress.start();
    justConfirmed = true;
    const MoneyDocument before = *document;
    UserWrite write(appDelegate.connector);
    if (!checkStoredDraft<MoneyDocument>() || !runSteps() || !storeConfirmed(write))
        write.fail();
    const bool refused = write.failed();
    const bool confirmed = write.finish([this] {
        updateInterface();
        postConfirmed();
    });
    if (!confirmed) {
        *document = before;
        updateInterface();
        announceTakenBack();
        // Of a commit that failed the application has told already.
        if (refused)
            showAlert();
    }
    progress.stop();
    alertMessage.clear();
    return confirmed;
}

bool MoneyDocumentViewController::runSteps()
{
    const auto entry =
        std::ranges::find(Confirmation::byType, document->docType(), &Confirmation::Steps::type);
    if (entry == Confirmation::byType.end())
        return false;
    return std::ranges::all_of(
        entry->steps, [this](Confirmation::Step step) { return step == nullptr || (this->*step)(); });
}

bool MoneyDocumentViewController::storeConfirmed(UserWrite& write)
{
    document->confirmed = true;
    return write.step(document->id == 0 ? appDelegate.connector.insert(*document)
                                        : appDelegate.connector.update(*document));
}

void MoneyDocumentViewController::postConfirmed()
{
    for (const NotificationName name : Confirmation::toldForAll)
        appDelegate.notifications.post(name, this);
    for (const Confirmation::Told& told : Confirmation::toldByType) {
        if (told.type == document->docType())
            appDelegate.notifications.post(told.name, this);
    }
}

bool MoneyDocumentViewController::checkDate()
{
    return checkDateStep(
        localized("Last report period must be closed before we can proceed document with date from later "
                  "period. But we can't now close it for unknown reason!\n"));
}

// Puts the account as it stands in the file into the document, for the step that takes the money.
bool MoneyDocumentViewController::checkAccountBalance()
{
    const auto account = appDelegate.connector.select<Account>(document->accountFromID, Fill::Nothing);
    if (!account) {
        fail(localized("Failed to check account balance.\n"));
        fail(localized("Can't confirm document.\n"));
        return false;
    }
    document->settAccountFrom(account);
    if (account->balance() >= document->docSum())
        return true;
    alertMessage += localized("Have not enough money on account '") + account->name + localized("'. Need: ") +
                    realText(document->docSum()) + localized(" Have: ") + realText(account->balance()) +
                    u'\n';
    return false;
}

bool MoneyDocumentViewController::minusMoneyFromAccount()
{
    Account& account = document->accountFrom.edit();
    const Decimal balance = account.innerBalance;
    document->innerAccountFromBalance = balance;
    account.innerBalance = balance.minus(document->innerDocSum, MoneyDocument::decimalHandler);
    if (appDelegate.connector.update(account) == 1)
        return true;
    account.innerBalance = balance;
    fail(localized("Failed to subtract doc sum from account balance.\n"));
    fail(localized("Can't confirm document.\n"));
    return false;
}

bool MoneyDocumentViewController::plusMoneyToAccount()
{
    const auto account = appDelegate.connector.select<Account>(document->accountToID, Fill::Nothing);
    if (account) {
        document->settAccountTo(account);
        document->innerAccountToBalance = account->innerBalance;
        if (document->docType() == InnerTransaction)
            document->innerConvertedSum = mainView.docSumTo.value().rounded(MoneyDocument::decimalHandler);
        const Decimal& sum =
            document->docType() == InnerTransaction ? document->innerConvertedSum : document->innerDocSum;
        account->innerBalance = account->innerBalance.plus(sum, MoneyDocument::decimalHandler);
        if (appDelegate.connector.update(*account) == 1)
            return true;
        account->innerBalance = document->innerAccountToBalance;
    }
    fail(localized("Failed to add doc sum to account balance.\n"));
    fail(localized("Can't confirm document.\n"));
    return false;
}

bool MoneyDocumentViewController::changeContragentBalance()
{
    const auto contragent = appDelegate.connector.select<Contragent>(document->contragentID, Fill::Nothing);
    if (contragent) {
        document->insertContragent(contragent);
        document->innerContragentBalance = contragent->innerBalance;
        if (document->docType() == MoneyFromContragent)
            contragent->addToBalance(document->innerDocSum);
        else
            contragent->subtractFromBalance(document->innerDocSum);
        if (appDelegate.connector.update(*contragent) == 1)
            return true;
        contragent->innerBalance = document->innerContragentBalance;
    }
    fail(localized("Failed to update contragent balance.\n"));
    fail(localized("Can't confirm document.\n"));
    return false;
}

bool MoneyDocumentViewController::changeEmployeeBalance()
{
    if (document->divident)
        return true;
    const auto employee = appDelegate.connector.select<Manager>(document->employeeID, Fill::Nothing);
    if (employee) {
        document->settEmployee(employee);
        document->innerManagerBalance = employee->innerBalance;
        const Decimal sum = document->docType() == MoneyFromEmployee ? document->innerDocSum
                                                                     : document->innerDocSum.negated();
        employee->innerBalance = employee->innerBalance.plus(sum, MoneyDocument::decimalHandler);
        if (appDelegate.connector.update(*employee) == 1)
            return true;
        employee->innerBalance = document->innerManagerBalance;
    }
    fail(localized("Failed to update employee balance.\n"));
    fail(localized("Can't confirm document.\n"));
    return false;
}

// Allots the money to what the counterparty, or we, still have to pay, whatever the balance says. What is
// left stays in the balance.
bool MoneyDocumentViewController::checkProductDocs()
{
    const bool received = document->docType() == MoneyFromContragent;
    const auto open = received ? openDocuments(SellProduct, SellIntangibles, SellProperty)
                               : openDocuments(BuyProduct, Return, BuyProperty);
    return settle(open, document->innerDocSum);
}

} // namespace zelvor
