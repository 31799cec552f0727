#include "properties/generator.h"

#include "catalogs/currency_rates.h"
#include "period/period_closing.h"

#include <sstream>

using namespace Qt::Literals::StringLiterals;

namespace zelvor::audit {

namespace {

using enum DocType;
constexpr qint64 day = 86'400;

Decimal decimal(Cents cents)
{
    return Decimal::fromParts(cents, 2);
}

QString name(const char* kind, qint64 number)
{
    return QString::fromLatin1(kind) + u' ' + QString::number(number);
}

std::string amountText(Cents cents)
{
    return std::to_string(cents) + "/100";
}

std::string describe(const Plan& plan)
{
    std::ostringstream line;
    line << docTypeCase(plan.type).toStdString() << " date " << plan.date << " contragent "
         << plan.contragent;
    if (plan.kind() == Kind::Product) {
        line << " from " << plan.stockFrom << " to " << plan.stockTo << " shipment "
             << amountText(plan.shipment) << " discount " << amountText(plan.discount) << " deferment "
             << plan.deferment << (plan.vat ? " VAT" : "") << (plan.gst ? " GST" : "");
        for (const PlanRow& row : plan.rows)
            line << "\n      product " << row.product << ": " << amountText(row.amount) << " at "
                 << amountText(row.price) << (row.shipment ? " with shipment" : "");
    } else {
        line << " sum " << amountText(plan.sum) << " received " << amountText(plan.received) << " accounts "
             << plan.accountFrom << ">" << plan.accountTo << " employee " << plan.employee << " expend "
             << plan.expend << (plan.divident ? " dividend" : "") << " asset " << plan.property << " basis "
             << plan.basis;
    }
    return line.str();
}

} // namespace

Generator::Generator(std::uint64_t seed, Faults faults)
    : m_seed(seed), m_faults(faults), m_random(seed), m_auditor([this]() -> Connector& {
          UserWrite write(m_file.db);
          for (int i = 1; i <= 2; ++i)
              m_stocks.push_back(m_file.stock(name("Warehouse", i), i == 1)->id);
          for (int i = 1; i <= 7; ++i) {
              const auto made = i == 7 ? m_file.service(u"Advice"_s, 19.99)
                                       : m_file.product(name("Product", i), 3.35 * i, 1.15 * i);
              made->setVatRate(i % 2 ? 20 : 7.125);
              made->setGstRate(i % 2 ? 7.5 : 12.345);
              m_file.store(*made);
              m_products.push_back(made->id);
              if (i <= 3)
                  m_file.stockRow(*m_file.db.select<Stock>(m_stocks[0]), *made, 20.5 * i, i == 2 ? 3.25 : 0);
          }
          for (int i = 1; i <= 3; ++i)
              m_contragents.push_back(
                  m_file.contragent(name("Party", i), i == 2 ? -75.25 : 0, 2.5 * (i - 1), 7 * i)->id);
          m_accounts.push_back(m_file.account(u"Cash"_s, 500, true)->id);
          m_accounts.push_back(m_file.account(u"Bank"_s, 1000)->id);
          m_accounts.push_back(m_file.account(u"Dollars"_s, 800, false, CurrencyStruct::USD)->id);
          for (int i = 1; i <= 2; ++i)
              m_employees.push_back(m_file.employee(name("Clerk", i))->id);
          m_expends.push_back(m_file.expend(u"Rent"_s)->id);
          m_file.setRate(CurrencyStruct::USD, 1.0873);
          EXPECT_TRUE(write.finish());
          return m_file.db;
      }()),
      m_productCatalog(m_file.appDelegate), m_contragentCatalog(m_file.appDelegate),
      m_accountCatalog(m_file.appDelegate), m_employeeCatalog(m_file.appDelegate),
      m_journal(m_file.appDelegate, u"All"_s), m_start(m_file.clock.now())
{
    m_journal.prepareData();
    m_content = m_file.dump();
}

qint64 Generator::days() const
{
    return (m_file.clock.now() - m_start) / day;
}

Cents Generator::someAmount(int most)
{
    const Cents whole = 1 + pick(most);
    const int kind = pick(20);
    if (kind < 10)
        return whole * 100;
    if (kind < 14)
        return whole * 100 - 50;
    if (kind < 19)
        return whole * 100 - pick(100);
    return kind % 2 ? -whole * 25 : 0;
}

Cents Generator::somePrice()
{
    if (chance(3))
        return 0;
    return chance(40) ? 5 * (1 + pick(500)) : 1 + pick(30'000);
}

qint64 Generator::someDate()
{
    const qint64 now = m_file.clock.now();
    if (chance(5))
        return now + pick(3) * 3600;
    if (chance(6))
        return now - 1 - pick(60) * day;
    return now - 1;
}

void Generator::complain(const std::string& finding)
{
    if (std::exchange(m_hasComplained, true)) {
        ADD_FAILURE() << finding;
        return;
    }
    std::ostringstream all;
    for (std::size_t i = 0; i < m_operations.size(); ++i)
        all << "  " << i + 1 << ": " << m_operations[i] << '\n';
    ADD_FAILURE() << finding << "\nseed " << m_seed << " after these operations:\n" << all.str();
}

bool Generator::perform(const std::string& refusal, const std::function<bool()>& action, Known known)
{
    const QStringList before = m_content;
    int call = 0;
    if (m_faults == Faults::Random && chance(60)) {
        call = 1 + pick(30);
        m_operations.back() += " (call " + std::to_string(call) + " fails)";
    }
    m_file.connector->failCall(call);
    const bool done = action();
    const bool failed = m_file.connector->hasFailed();
    m_file.connector->failCall(0);
    m_content = m_file.dump();
    if (known == Known::Outcome) {
        if (!done && m_content != before)
            complain("a refused operation changed the file");
        if (!failed && done != refusal.empty())
            complain(done ? "was carried out although " + refusal
                          : "was refused: " + lastAlertText(m_file).toStdString());
        if (done && !refusal.empty())
            complain("was carried out although " + refusal);
        ++(done ? accepted : failed ? broken : refused);
    }
    if (m_file.db.inTransaction())
        complain("a transaction stayed open");
    m_operations.back() += done ? " -> done" : " -> refused";
    return done;
}

void Generator::audit(bool all)
{
    if (all)
        m_auditor.compareAll(m_drafts);
    else
        m_auditor.compareBooks();
    for (const std::string& finding : m_auditor.takeFindings())
        complain(finding);
}

void Generator::run(int operations)
{
    for (int i = 1; i <= operations && !m_hasComplained; ++i) {
        step();
        audit(i % 10 == 0 || i == operations);
    }
}

void Generator::step()
{
    passTime();
    const int kind = pick(100);
    if (kind < 42)
        newProductDocument();
    else if (kind < 66)
        newMoneyDocument();
    else if (kind < 73)
        newPropertyDocument();
    else if (kind < 87)
        reopenDraft();
    else if (kind < 94)
        useCatalog();
    else if (kind < 96)
        changeRates();
    else if (kind < 98)
        changeSettings();
    else
        closeMonth();
}

void Generator::passTime()
{
    if (chance(25))
        return;
    const qint64 seconds = chance(8) ? pick(10) * day : pick(static_cast<int>(2 * day));
    m_file.clock.set(m_file.clock.now() + seconds);
}

// Product documents

void Generator::newProductDocument()
{
    static const std::vector<DocType> types{BuyProduct,  BuyProduct,   BuyProduct,      Return,
                                            SellProduct, SellProduct,  SellIntangibles, MoveProduct,
                                            AddProduct,  DeleteProduct};
    Plan plan;
    plan.type = oneOf(types);
    auto document = std::make_shared<ProductDocument>();
    document->insertDocType(plan.type);
    document->date = plan.date = someDate();
    ProductForm form(m_file.appDelegate, document);
    form.prepareData();
    plan.vat = form.vatCheck.isOn();
    plan.gst = form.gstCheck.isOn();
    fillHead(form, plan);
    for (int rows = chance(4) ? 0 : 1 + pick(4); rows > 0; --rows)
        addRow(form, plan);
    saveOrConfirm(form, plan, 75);
}

void Generator::fillHead(ProductForm& form, Plan& plan)
{
    if (form.contragentEnabled()) {
        plan.contragent = someone(m_contragents);
        EXPECT_TRUE(form.setContragentFromID(plan.contragent));
        plan.deferment = form.deferment.integer();
        plan.discount = hundredths(form.contragentDiscount.real());
    }
    if (form.stockFromEnabled()) {
        plan.stockFrom = someone(m_stocks);
        EXPECT_TRUE(form.mainView.setStockFromID(plan.stockFrom));
    }
    if (form.stockToEnabled()) {
        plan.stockTo = someone(m_stocks);
        EXPECT_TRUE(form.mainView.setStockToID(plan.stockTo));
    }
    if (form.contragentEnabled() && chance(40)) {
        plan.deferment = pick(40);
        form.deferment.setValue(plan.deferment);
    }
    if (form.discountEnabled() && chance(40)) {
        plan.discount = pick(41) * 25;
        form.contragentDiscount.setValue(decimal(plan.discount));
        form.contragentDiscount.userChanged();
    }
    if (form.shipmentEnabled() && chance(40)) {
        plan.shipment = somePrice();
        form.shipment.setValue(decimal(plan.shipment));
        form.shipment.userChanged();
    }
}

void Generator::addRow(ProductForm& form, Plan& plan)
{
    const qint64 id = oneOf(m_products);
    const bool known = std::ranges::any_of(plan.rows, [id](const PlanRow& row) { return row.product == id; });
    const int place = form.addProductFromID(id);
    ASSERT_GE(place, 0);
    const auto row = static_cast<std::size_t>(place);
    if (known) {
        plan.rows[row].amount += 100; // dropped twice is one more
        return;
    }
    const ProductImage& product = m_auditor.books().products.at(id);
    PlanRow made{id, 100, product.baseCost, product.price, product.baseCost};
    if (plan.sells()) {
        const Cents share = halfEven(plan.discount, 100);
        made.price = halfEven(Wide(product.price) * (100 - share), 100);
        made.vatRate = halfEven(product.vatRate, 10);
        made.gstRate = halfEven(product.gstRate, 10);
    } else if (plan.type == Return) {
        made.price = product.price;
    }
    plan.rows.push_back(made);
    enterRow(form, plan, row);
}

void Generator::enterRow(ProductForm& form, Plan& plan, std::size_t row)
{
    PlanRow& target = plan.rows[row];
    const auto set = [&](const QString& column, Cents value) {
        EXPECT_TRUE(form.setRowValue(static_cast<int>(row), column, decimal(value)));
    };
    target.amount = someAmount(plan.takesFromStock() ? 20 : 60);
    set(u"amount"_s, target.amount);
    if (chance(60)) {
        target.price = somePrice();
        set(u"price"_s, target.price);
        if (plan.isAny({BuyProduct, AddProduct}))
            target.baseCost = target.price;
    }
    if (chance(15))
        set(u"vatRate"_s, target.vatRate = pick(2500));
    if (chance(15))
        set(u"gstRate"_s, target.gstRate = pick(2500));
    if (plan.receives() && chance(50)) {
        target.shipment = true;
        set(u"includeShipment"_s, 100);
    }
}

void Generator::saveOrConfirm(ProductForm& form, const Plan& plan, int confirmPercent)
{
    const auto key = [&form] { return DocKey{Kind::Product, form.document->id}; };
    // An average over nothing has no defined answer: such a document is only saved.
    if (chance(confirmPercent) && !m_auditor.averagesNothing(plan)) {
        tell("confirm " + describe(plan));
        confirm([&form] { return form.confirmDoc(); }, key, plan);
        return;
    }
    tell("save " + describe(plan));
    if (perform({}, [&form] { return form.writeDoc(); }))
        m_drafts[key()] = plan;
}

void Generator::confirm(const std::function<bool()>& action, const std::function<DocKey()>& key,
                        const Plan& plan)
{
    const qint64 now = m_file.clock.now();
    if (!perform(m_auditor.refusal(plan, now), action))
        return;
    m_drafts.erase(key());
    m_auditor.confirmed(key(), plan, now);
    if (plan.bringsProperty())
        m_assets.push_back(m_file.db.select<PropertyDocument>(key().id)->propertyID);
}

// Money

void Generator::newMoneyDocument()
{
    static const std::vector<DocType> types{MoneyAdd,          MoneyFromContragent, MoneyFromContragent,
                                            MoneyToContragent, MoneyToContragent,   MoneyFromEmployee,
                                            MoneyToEmployee,   MoneyToExpend,       InnerTransaction};
    Plan plan;
    plan.type = oneOf(types);
    plan.date = someDate();
    auto document = std::make_shared<MoneyDocument>();
    document->insertDocType(plan.type);
    document->date = plan.date;
    MoneyForm form(m_file.appDelegate, document);
    form.prepareData();
    fillMoney(form, plan);
    saveOrConfirm(form, plan, 80);
}

void Generator::fillMoney(MoneyForm& form, Plan& plan)
{
    plan.sum = chance(4) ? -pick(2) * 100 : 100 + pick(40'000);
    enter(form.mainView.docSum, static_cast<double>(plan.sum) / 100);
    if (form.accountFromEnabled()) {
        plan.accountFrom = someone(m_accounts);
        EXPECT_TRUE(form.mainView.setAccountFromID(plan.accountFrom));
    }
    if (form.accountToEnabled()) {
        plan.accountTo = someone(m_accounts);
        EXPECT_TRUE(form.mainView.setAccountToID(plan.accountTo));
    }
    if (form.contragentEnabled()) {
        plan.contragent = someone(m_contragents);
        EXPECT_TRUE(form.setContragentFromID(plan.contragent));
    }
    if (form.employeeEnabled()) {
        plan.employee = someone(m_employees);
        EXPECT_TRUE(form.mainView.setEmployeeFromID(plan.employee));
    }
    if (form.expendEnabled()) {
        plan.expend = someone(m_expends);
        EXPECT_TRUE(form.setExpendFromID(plan.expend));
    }
    plan.received = 0;
    if (form.sumToEnabled() && chance(30)) {
        plan.received = 100 + pick(40'000);
        enter(form.mainView.docSumTo, static_cast<double>(plan.received) / 100);
    }
    plan.loans = plan.type != InnerTransaction && chance(10);
    form.document->loans = plan.loans;
    plan.variable = plan.type == MoneyToExpend && chance(50);
    form.document->variable = plan.variable;
    plan.divident = plan.hasEmployee() && chance(30);
    form.document->divident = plan.divident;
}

void Generator::saveOrConfirm(MoneyForm& form, const Plan& plan, int confirmPercent)
{
    const auto key = [&form] { return DocKey{Kind::Money, form.document->id}; };
    if (chance(confirmPercent)) {
        tell("confirm " + describe(plan));
        confirm([&form] { return form.confirmDoc(); }, key, plan);
        return;
    }
    tell("save " + describe(plan));
    if (perform(m_auditor.missingMoney(plan), [&form] { return form.writeDoc(); }))
        m_drafts[key()] = plan;
}

// Fixed assets

void Generator::newPropertyDocument()
{
    static const std::vector<DocType> types{BuyProperty, AddProperty, SellProperty, DeleteProperty};
    Plan plan;
    plan.type = oneOf(types);
    plan.date = someDate();
    auto document = std::make_shared<PropertyDocument>();
    document->insertDocType(plan.type);
    document->date = plan.date;
    PropertyForm form(m_file.appDelegate, document);
    form.prepareData();
    if (form.contragentEnabled()) {
        plan.contragent = someone(m_contragents);
        EXPECT_TRUE(form.setContragentFromID(plan.contragent));
        plan.deferment = chance(50) ? pick(30) : form.deferment.integer();
        form.deferment.setValue(plan.deferment);
    }
    if (plan.bringsProperty()) {
        plan.named = chance(95);
        form.mainView.propertyName.setText(plan.named ? u"Thing"_s : u" "_s);
        form.mainView.propertyName.userChanged();
        plan.amortized = chance(80);
        form.mainView.amortizedCheck.setOn(plan.amortized);
        form.mainView.amortizedCheck.userChanged();
        plan.period = pick(14);
        form.amortizationPeriod.setValue(plan.period);
    } else if (!m_assets.empty() && chance(95)) {
        const qint64 asset = oneOf(m_assets);
        if (form.setPropertyFromID(asset)) // gone ones are not chosen
            plan.property = asset;
        plan.sum = plan.type == SellProperty ? hundredths(form.docSum.real()) : 0;
    }
    if (plan.type == DeleteProperty && chance(90)) {
        plan.basis = 1;
        EXPECT_TRUE(form.setDeleteBasisFromID(1));
    }
    if (plan.type != DeleteProperty && (plan.type != SellProperty || chance(70))) {
        plan.sum = chance(4) ? 0 : 100 + pick(90'000);
        form.docSum.setValue(decimal(plan.sum));
    }
    tell("confirm " + describe(plan));
    confirm([&form] { return form.confirmDoc(); },
            [&form] {
                return DocKey{Kind::Property, form.document->id};
            },
            plan);
}

// Drafts

void Generator::reopenDraft()
{
    if (m_drafts.empty())
        return;
    auto place = m_drafts.begin();
    std::advance(place, pick(static_cast<int>(m_drafts.size())));
    const DocKey key = place->first;
    if (chance(15))
        deleteDraftInJournal(key);
    else if (key.kind == Kind::Product)
        reopenProductDraft(key);
    else
        reopenMoneyDraft(key);
}

void Generator::reopenProductDraft(DocKey key)
{
    ProductForm form(m_file.appDelegate, m_file.db.select<ProductDocument>(key.id));
    form.prepareData();
    if (chance(12)) {
        tell("delete product draft " + std::to_string(key.id));
        if (perform({}, [&form] { return form.deleteDoc(); }))
            m_drafts.erase(key);
        return;
    }
    Plan plan = m_drafts.at(key);
    if (!plan.rows.empty() && chance(20)) {
        const auto row = static_cast<std::size_t>(pick(static_cast<int>(plan.rows.size())));
        tell("take row " + std::to_string(row) + " out of draft " + std::to_string(key.id));
        form.mainView.selectRow(static_cast<int>(row));
        if (!perform({}, [&form] { return form.deleteRow(); }))
            return;
        plan.rows.erase(plan.rows.begin() + static_cast<std::ptrdiff_t>(row));
        m_drafts[key] = plan;
    }
    for (std::size_t row = 0; row < plan.rows.size(); ++row) {
        if (chance(25))
            enterRow(form, plan, row);
    }
    if (chance(30))
        addRow(form, plan);
    if (chance(80)) {
        plan.date = someDate();
        form.mainView.date.setMoment(plan.date);
        form.mainView.date.userChanged();
    }
    saveOrConfirm(form, plan, 60);
}

void Generator::reopenMoneyDraft(DocKey key)
{
    MoneyForm form(m_file.appDelegate, m_file.db.select<MoneyDocument>(key.id));
    form.prepareData();
    if (chance(12)) {
        tell("delete money draft " + std::to_string(key.id));
        if (perform({}, [&form] { return form.deleteDoc(); }))
            m_drafts.erase(key);
        return;
    }
    Plan plan = m_drafts.at(key);
    if (chance(40))
        fillMoney(form, plan);
    if (chance(80)) {
        plan.date = someDate();
        form.mainView.date.setMoment(plan.date);
        form.mainView.date.userChanged();
    }
    saveOrConfirm(form, plan, 60);
}

void Generator::deleteDraftInJournal(DocKey key)
{
    tell("delete draft " + std::to_string(key.id) + " in the journal");
    if (key.kind == Kind::Product)
        m_journal.docToDelete = m_file.db.select<ProductDocument>(key.id);
    else
        m_journal.docToDelete = m_file.db.select<MoneyDocument>(key.id);
    if (perform({}, [this] { return m_journal.deleteDocument(); }))
        m_drafts.erase(key);
}

// Catalogs, settings, closings

void Generator::useCatalog()
{
    switch (pick(6)) {
    case 0:
    case 1:
        changeProduct();
        break;
    case 2:
        changeContragent();
        break;
    case 3:
        changeAccount();
        break;
    case 4:
        changeEmployee();
        break;
    default:
        finishPopover();
        break;
    }
    m_auditor.catalogsChanged();
}

void Generator::changeProduct()
{
    const qint64 id = oneOf(m_products);
    const auto node = m_productCatalog.getItemWithIdentifier(u"Product_"_s + QString::number(id));
    const auto item = std::dynamic_pointer_cast<Product>(node);
    ASSERT_TRUE(item);
    if (chance(40) && !m_productCatalog.productPopover.isOpen()) {
        tell("open the popover of product " + std::to_string(id));
        m_productCatalog.view.selectItem(node);
        m_productCatalog.editProduct();
        return;
    }
    tell("new price of product " + std::to_string(id));
    item->innerPriceCost = decimal(somePrice());
    item->setVatRate(pick(25'000) / 1000.0);
    perform({}, [&] { return m_productCatalog.writeRecord(item); });
}

void Generator::changeContragent()
{
    const qint64 id = oneOf(m_contragents);
    const auto node = m_contragentCatalog.getItemWithIdentifier(u"Contragent_"_s + QString::number(id));
    const auto party = std::dynamic_pointer_cast<Contragent>(node);
    ASSERT_TRUE(party);
    if (chance(50) && !m_contragentCatalog.contragentPopover.isOpen()) {
        tell("open the popover of counterparty " + std::to_string(id));
        m_contragentCatalog.view.selectItem(node);
        m_contragentCatalog.editContragent();
        return;
    }
    tell("new discount of counterparty " + std::to_string(id));
    party->innerDiscount = decimal(pick(1000));
    party->deferment = pick(30);
    perform({}, [&] { return m_contragentCatalog.writeRecord(party); });
}

void Generator::changeAccount()
{
    const int row = pick(m_accountCatalog.view.numberOfRows());
    if (chance(50) && !m_accountCatalog.accountPopover.isOpen()) {
        tell("open the popover of account " + std::to_string(row));
        m_accountCatalog.view.selectRow(row);
        m_accountCatalog.editAccount();
        return;
    }
    tell("make account " + std::to_string(row) + " the default");
    const auto account = m_accountCatalog.view.record(row);
    ASSERT_TRUE(account);
    account->isDefault = true;
    perform({}, [&] { return m_accountCatalog.writeDefaultAndHidden(account, DefaultHiddenBox::Default); });
}

void Generator::changeEmployee()
{
    if (chance(50) && !m_employeeCatalog.managerPopover.isOpen()) {
        const int row = pick(m_employeeCatalog.view.numberOfRows());
        tell("open the popover of employee " + std::to_string(row));
        m_employeeCatalog.view.selectRow(row);
        m_employeeCatalog.editEmployee();
        return;
    }
    tell("a new employee");
    auto employee = std::make_shared<Manager>();
    employee->name = name("Clerk", std::ssize(m_employees) + 1);
    if (perform({}, [&] { return m_employeeCatalog.writeRecord(employee); }))
        m_employees.push_back(employee->id);
}

// Says OK in every popover that was opened some operations ago: documents may have moved what it shows.
void Generator::finishPopover()
{
    const auto finish = [this](const Popover& popover, const std::function<void()>& write) {
        if (!popover.isOpen())
            return;
        tell("OK in " + popover.name().toStdString());
        perform(
            {},
            [&write] {
                write();
                return true;
            },
            Known::Nothing);
    };
    finish(m_productCatalog.productPopover, [this] {
        m_productCatalog.productPriceCost.setValue(decimal(somePrice()));
        m_productCatalog.writeProduct();
    });
    finish(m_contragentCatalog.contragentPopover, [this] { m_contragentCatalog.writeContragent(); });
    finish(m_accountCatalog.accountPopover, [this] { m_accountCatalog.writeAccount(); });
    finish(m_employeeCatalog.managerPopover, [this] { m_employeeCatalog.writeManager(); });
}

void Generator::changeRates()
{
    tell("new rates");
    const QMap<qint64, double> rates{{rawValue(CurrencyStruct::USD), 0.5 + pick(15'000) / 10'000.0}};
    perform({}, [&] { return applyRates(m_file.appDelegate, rates); });
}

void Generator::changeSettings()
{
    const int taxes = pick(4);
    tell("taxes are " + std::to_string(taxes));
    m_file.changeParams([taxes](Params& params) {
        params.useVAT = taxes % 2 != 0;
        params.useGST = taxes / 2 != 0;
    });
    m_content = m_file.dump();
}

void Generator::closeMonth()
{
    const qint64 now = m_file.clock.now();
    if (m_auditor.monthIsClosed(now))
        return;
    tell("close the month");
    PeriodClosing closing(m_file.appDelegate);
    const auto params = m_file.appDelegate.params();
    const qint64 start = closing.getStartPeriodDateFromDate(now, *params);
    if (perform({}, [&] { return closing.closePeriod(start, *params); }))
        m_auditor.monthClosed(start, now);
}

} // namespace zelvor::audit
