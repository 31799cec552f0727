#include "catalogs/account_type_view_controller.h"
#include "catalogs/account_view_controller.h"
#include "catalogs/contragent_view_controller.h"
#include "catalogs/delete_basis_view_controller.h"
#include "catalogs/expend_view_controller.h"
#include "catalogs/function_view_controller.h"
#include "catalogs/manager_view_controller.h"
#include "catalogs/measurement_view_controller.h"
#include "catalogs/product_view_controller.h"
#include "catalogs/stock_view_controller.h"
#include "period/period_closing.h"
#include "shell/project_creation.h"
#include "support/books.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <functional>

// Writes of a user driven through the failure of each call to the file, the first, the second and so on until
// nothing fails any more. What documents and the lists of rates, assets and boxes do is shown beside them.

namespace zelvor {
namespace {

using namespace Qt::Literals::StringLiterals;

// How many calls had to fail before the write went through.
int driveThroughFailures(Books& books, const std::function<bool()>& write)
{
    const QStringList before = books.dump();
    for (int call = 1; call <= 200; ++call) {
        books.connector->failCall(call);
        const bool done = write();
        const bool failed = books.connector->hasFailed();
        books.connector->failCall(0);
        EXPECT_EQ(done, !failed) << "call " << call;
        EXPECT_FALSE(books.db.inTransaction()) << "call " << call;
        if (done) {
            EXPECT_NE(books.dump(), before);
            return call - 1;
        }
        EXPECT_EQ(books.dump(), before) << "call " << call;
    }
    ADD_FAILURE() << "was never done";
    return 200;
}

template <class T>
struct CatalogOf;
template <>
struct CatalogOf<AccountType> {
    using Controller = AccountTypeViewController;
};
template <>
struct CatalogOf<Account> {
    using Controller = AccountViewController;
};
template <>
struct CatalogOf<DeleteBasis> {
    using Controller = DeleteBasisViewController;
};
template <>
struct CatalogOf<Function> {
    using Controller = FunctionViewController;
};
template <>
struct CatalogOf<Manager> {
    using Controller = ManagerViewController;
};
template <>
struct CatalogOf<Measurement> {
    using Controller = MeasurementViewController;
};
template <>
struct CatalogOf<Stock> {
    using Controller = StockViewController;
};
template <>
struct CatalogOf<Product> {
    using Controller = ProductViewController;
};
template <>
struct CatalogOf<ProductGroup> {
    using Controller = ProductViewController;
};
template <>
struct CatalogOf<Contragent> {
    using Controller = ContragentViewController;
};
template <>
struct CatalogOf<ContragentGroup> {
    using Controller = ContragentViewController;
};
template <>
struct CatalogOf<Expend> {
    using Controller = ExpendViewController;
};
template <>
struct CatalogOf<ExpendType> {
    using Controller = ExpendViewController;
};

template <class Record>
class CatalogWrites : public testing::Test {
protected:
    Books books;
    typename CatalogOf<Record>::Controller catalog{books.appDelegate};
};

using CatalogRecords =
    testing::Types<AccountType, Account, DeleteBasis, Function, Manager, Measurement, Stock, Product,
                   ProductGroup, Contragent, ContragentGroup, Expend, ExpendType>;
TYPED_TEST_SUITE(CatalogWrites, CatalogRecords);

TYPED_TEST(CatalogWrites, leaveNothingBehindWhicheverCallFails)
{
    const auto record = std::make_shared<TypeParam>();
    record->name = u"New"_s;
    const auto write = [&] {
        const bool stored = this->catalog.writeRecord(record);
        EXPECT_EQ(record->id != 0, stored);
        return stored;
    };
    EXPECT_GE(driveThroughFailures(this->books, write), 3); // begin, insert, commit

    const auto changed = this->books.read(*record);
    changed->name = u"Other"_s;
    EXPECT_GE(driveThroughFailures(this->books, [&] { return this->catalog.writeRecord(changed); }), 3);
}

template <class Record>
class TreeWrites : public CatalogWrites<Record> {};
using TreeLeaves = testing::Types<Product, Contragent, Expend>;
TYPED_TEST_SUITE(TreeWrites, TreeLeaves);

TYPED_TEST(TreeWrites, ofAMoveOrACheckBoxLeaveNothingBehindWhicheverCallFails)
{
    TypeParam record;
    record.name = u"Leaf"_s;
    this->books.store(record);
    this->catalog.all();
    const auto leaf = this->books.read(*this->books.store(record));
    int place = 10;
    const auto move = [&] {
        leaf->parentID = ++place;
        leaf->isHidden = !leaf->isHidden;
        return this->catalog.update(leaf);
    };
    EXPECT_GE(driveThroughFailures(this->books, move), 3);
}

// A popover that was opened before a document moved what it shows: the OK button must not store the old
// value, not even when the file cannot be read at that moment.

class StalePopover : public testing::Test {
protected:
    // The file with one more write, once for each call of that write that can fail.
    void expectKept(const std::function<void()>& write, const std::function<double()>& kept, double value)
    {
        for (int call = 1; call <= 30; ++call) {
            open();
            moveBehindIt();
            books.connector->failCall(call);
            write();
            const bool failed = books.connector->hasFailed();
            books.connector->failCall(0);
            ASSERT_EQ(kept(), value) << "call " << call;
            if (!failed)
                return;
        }
        FAIL() << "was never written";
    }
    Books books;
    std::function<void()> open;
    std::function<void()> moveBehindIt;
};

TEST_F(StalePopover, ofACounterpartyKeepsTheBalanceWhicheverCallFails)
{
    const auto acme = books.contragent(u"Acme"_s, 10);
    ContragentViewController catalog(books.appDelegate);
    open = [&] {
        acme->setBalance(10);
        books.store(*acme);
        catalog.markStale();
        catalog.view.selectItem(catalog.getItemWithIdentifier(u"Contragent_"_s + QString::number(acme->id)));
        catalog.editContragent();
        ASSERT_TRUE(catalog.contragentPopover.isOpen());
    };
    moveBehindIt = [&] {
        acme->setBalance(25);
        books.store(*acme);
        books.appDelegate.notifications.post(NotificationName::ContragentBalanceChangedNotification);
    };
    expectKept([&] { catalog.writeContragent(); }, [&] { return books.read(*acme)->balance(); }, 25);
}

TEST_F(StalePopover, ofAProductKeepsTheAverageCostWhicheverCallFails)
{
    const auto tea = books.product(u"Tea"_s, 7, 4);
    ProductViewController catalog(books.appDelegate);
    open = [&] {
        tea->setBaseCost(4);
        books.store(*tea);
        catalog.markStale();
        catalog.view.selectItem(catalog.getItemWithIdentifier(u"Product_"_s + QString::number(tea->id)));
        catalog.editProduct();
        ASSERT_TRUE(catalog.productPopover.isOpen());
    };
    moveBehindIt = [&] {
        tea->setBaseCost(5);
        books.store(*tea);
        books.appDelegate.notifications.post(NotificationName::ProductBaseCostChangedNotification);
    };
    expectKept([&] { catalog.writeProduct(); }, [&] { return books.read(*tea)->baseCost(); }, 5);
}

TEST_F(StalePopover, ofAnAccountKeepsTheBalanceWhicheverCallFails)
{
    const auto cash = books.account(u"Cash"_s, 10);
    AccountViewController catalog(books.appDelegate);
    open = [&] {
        cash->setBalance(10);
        books.store(*cash);
        catalog.markStale();
        catalog.view.selectRow(catalog.view.numberOfRows() - 1);
        catalog.editAccount();
        ASSERT_TRUE(catalog.accountPopover.isOpen());
    };
    moveBehindIt = [&] {
        cash->setBalance(25);
        books.store(*cash);
        books.appDelegate.notifications.post(NotificationName::AccountBalanceChangedNotification);
    };
    expectKept([&] { catalog.writeAccount(); }, [&] { return books.read(*cash)->balance(); }, 25);
}

TEST_F(StalePopover, ofAnEmployeeKeepsTheBalanceWhicheverCallFails)
{
    const auto ann = books.employee(u"Ann"_s, 10);
    ManagerViewController catalog(books.appDelegate);
    open = [&] {
        ann->setBalance(10);
        books.store(*ann);
        catalog.markStale();
        catalog.view.selectRow(catalog.view.numberOfRows() - 1);
        catalog.editEmployee();
        ASSERT_TRUE(catalog.managerPopover.isOpen());
    };
    moveBehindIt = [&] {
        ann->setBalance(25);
        books.store(*ann);
        books.appDelegate.notifications.post(NotificationName::ManagerBalanceChangedNotification);
    };
    expectKept([&] { catalog.writeManager(); }, [&] { return books.read(*ann)->balance(); }, 25);
}

TEST(ProjectCreation, leavesNothingOnTheDiskWhicheverCallFails)
{
    TestProgram program;
    const QString path = program.file(u"new.pdb"_s);
    const QDir folder(QFileInfo(path).absolutePath());
    const QStringList before = folder.entryList(QDir::Files | QDir::Hidden);
    int call = 1;
    for (; call <= 1000; ++call) {
        program.connector->failCall(call);
        const bool created = createProject(*program.connector, path, 3);
        const bool failed = program.connector->hasFailed();
        program.connector->failCall(0);
        ASSERT_EQ(created, !failed) << "call " << call;
        if (created)
            break;
        ASSERT_FALSE(program.connector->isOpen()) << "call " << call;
        ASSERT_EQ(folder.entryList(QDir::Files | QDir::Hidden), before) << "call " << call;
    }
    EXPECT_GT(call, 60); // settings, currencies, menu, counters, the reason
    EXPECT_TRUE(QFileInfo::exists(path));
}

} // namespace
} // namespace zelvor
