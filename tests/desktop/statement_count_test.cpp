// How often a page asks the file: as often for thousands of records as for a few.
#include "catalogs/contragent.h"
#include "catalogs/product.h"
#include "catalogs/stock.h"
#include "catalogs/stock_row.h"
#include "core/doc_type.h"
#include "desktop/page.h"
#include "documents/product_document.h"
#include "support/desktop_program.h"

#include <gtest/gtest.h>

#include <QtGui/QPixmap>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int few = 40;
constexpr int many = 2000;
constexpr qint64 mostStatements = 20;

// As many products in groups, on hand in one warehouse, counterparties in groups, and documents of today.
class FilledShop : public DesktopProgram {
public:
    explicit FilledShop(int count)
    {
        openNewProject();
        Connector& file = program.appDelegate.connector;
        EXPECT_TRUE(file.execute("BEGIN"));
        Stock stock;
        stock.name = u"Main"_s;
        EXPECT_EQ(file.insert(stock), 1);
        for (int i = 0; i < count; ++i)
            addRecords(file, i, stock.id);
        EXPECT_TRUE(file.execute("COMMIT"));
    }

    // Opens the page and draws it; how many statements that took.
    qint64 statementsToOpen(DocType type)
    {
        const qint64 before = program.appDelegate.connector.statementCount();
        workspace().topMenuAction(type);
        QApplication::processEvents();
        EXPECT_NE(window().activePage(), nullptr);
        EXPECT_FALSE(window().grab().isNull());
        return program.appDelegate.connector.statementCount() - before;
    }

private:
    static constexpr int inGroup = 10;

    void addRecords(Connector& file, int i, qint64 stockID)
    {
        if (i % inGroup == 0) {
            ProductGroup group;
            group.name = u"Group %1"_s.arg(i);
            ContragentGroup contragents;
            contragents.name = group.name;
            ASSERT_EQ(file.insert(group) + file.insert(contragents), 2);
            m_productGroup = group.id;
            m_contragentGroup = contragents.id;
        }
        Product product;
        product.name = u"Product %1"_s.arg(i);
        product.parentID = m_productGroup;
        product.setPriceCost(i + 1);
        Contragent contragent;
        contragent.name = u"Customer %1"_s.arg(i);
        contragent.parentID = m_contragentGroup;
        contragent.setBalance(i);
        ASSERT_EQ(file.insert(product) + file.insert(contragent), 2);
        StockRow stockRow;
        stockRow.stockID = stockID;
        stockRow.productID = product.id;
        stockRow.setAmount(1);
        ProductDocument document;
        document.insertDocType(DocType::BuyProduct);
        document.date = program.clock.now() - 1;
        document.contragentID = contragent.id;
        document.stockToID = stockID;
        document.setDocSum(i + 1);
        ASSERT_EQ(file.insert(stockRow) + file.insert(document), 2);
    }

    qint64 m_productGroup = 0;
    qint64 m_contragentGroup = 0;
};

class StatementCount : public ::testing::TestWithParam<DocType> {};

TEST_P(StatementCount, openingAPageAsksNoOftenerForManyRecordsThanForAFew)
{
    const qint64 forFew = FilledShop(few).statementsToOpen(GetParam());
    const qint64 forMany = FilledShop(many).statementsToOpen(GetParam());
    EXPECT_EQ(forMany, forFew);
    EXPECT_GT(forMany, 0);
    EXPECT_LE(forMany, mostStatements);
}

INSTANTIATE_TEST_SUITE_P(Pages, StatementCount,
                         ::testing::Values(DocType::ProductCatalog, DocType::ContragentCatalog,
                                           DocType::StockCatalog, DocType::BuyProduct, DocType::SellProduct,
                                           DocType::ProductJournal, DocType::BalanceSheet),
                         [](const auto& tested) { return docTypeCase(tested.param).toStdString(); });

} // namespace
} // namespace zelvor
