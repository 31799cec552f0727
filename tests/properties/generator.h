#pragma once

#include "catalogs/account_view_controller.h"
#include "catalogs/contragent_view_controller.h"
#include "catalogs/manager_view_controller.h"
#include "catalogs/product_view_controller.h"
#include "documents/document_journal_view_controller.h"
#include "documents/product_document_view_controller.h"
#include "properties/auditor.h"
#include "support/document_forms.h"

#include <deque>
#include <functional>
#include <random>
#include <string>

namespace zelvor::audit {

// A business that does what comes to mind: random operations, right and wrong ones, through the controllers
// that a user works with, while the clock goes on over months. The same seed does the same everywhere. Every
// operation is judged at once; what does not agree is a test failure with the seed and all operations so far.
class Generator {
public:
    enum class Faults { None, Random };
    Generator(std::uint64_t seed, Faults faults);

    void run(int operations);

    int accepted = 0;
    int refused = 0;
    int broken = 0; // refused because a call to the file failed
    const Auditor& auditor() const { return m_auditor; }
    qint64 days() const;

private:
    using ProductForm = ProductDocumentViewController;

    // Chance
    int pick(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    bool chance(int percent) { return pick(100) < percent; }
    template <class Value>
    const Value& oneOf(const std::vector<Value>& values)
    {
        return values[static_cast<std::size_t>(pick(static_cast<int>(values.size())))];
    }
    qint64 someone(const std::vector<qint64>& ids) { return chance(6) ? 0 : oneOf(ids); }
    Cents someAmount(int most);
    Cents somePrice();
    qint64 someDate();

    // What is done
    void step();
    void passTime();
    void newProductDocument();
    void newMoneyDocument();
    void newPropertyDocument();
    void reopenDraft();
    void reopenProductDraft(DocKey key);
    void reopenMoneyDraft(DocKey key);
    void deleteDraftInJournal(DocKey key);
    void useCatalog();
    void changeProduct();
    void changeContragent();
    void changeAccount();
    void changeEmployee();
    void finishPopover();
    void changeSettings();
    void changeRates();
    void closeMonth();

    void fillHead(ProductForm& form, Plan& plan);
    void addRow(ProductForm& form, Plan& plan);
    void enterRow(ProductForm& form, Plan& plan, std::size_t row);
    void fillMoney(MoneyForm& form, Plan& plan);
    void saveOrConfirm(ProductForm& form, const Plan& plan, int confirmPercent);
    void saveOrConfirm(MoneyForm& form, const Plan& plan, int confirmPercent);
    void confirm(const std::function<bool()>& action, const std::function<DocKey()>& key, const Plan& plan);

    // Does it, perhaps with a failing call, and judges: `refusal` says why it must be refused, empty when it
    // must be done. Whoever does not know asks for no judgement.
    enum class Known { Outcome, Nothing };
    bool perform(const std::string& refusal, const std::function<bool()>& action,
                 Known known = Known::Outcome);
    void audit(bool all);
    void tell(const std::string& operation) { m_operations.push_back(operation); }
    void complain(const std::string& finding);

    const std::uint64_t m_seed;
    const Faults m_faults;
    std::mt19937_64 m_random;
    Books m_file;
    std::vector<qint64> m_stocks, m_products, m_contragents, m_accounts, m_employees, m_expends;
    Auditor m_auditor;
    // Open in their tabs all the time.
    ProductViewController m_productCatalog;
    ContragentViewController m_contragentCatalog;
    AccountViewController m_accountCatalog;
    ManagerViewController m_employeeCatalog;
    DocumentJournalViewController m_journal;

    std::map<DocKey, Plan> m_drafts;
    std::vector<qint64> m_assets;
    QStringList m_content;
    std::vector<std::string> m_operations;
    qint64 m_start = 0;
    bool m_hasComplained = false;
};

} // namespace zelvor::audit
