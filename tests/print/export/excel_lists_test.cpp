#include "catalogs/account_view_controller.h"
#include "catalogs/contragent_view_controller.h"
#include "catalogs/expend_view_controller.h"
#include "catalogs/measurement_view_controller.h"
#include "catalogs/product_view_controller.h"
#include "catalogs/property_journal_view_controller.h"
#include "documents/document_journal_view_controller.h"
#include "print/export/export_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

using ExportOfLists = Export;

const QStringList productTitles{u"Name"_s,        u"Unit"_s,       u"Pack"_s,
                                u"Pack Amount"_s, u"Base Cost"_s,  u"Price"_s,
                                u"Description"_s, u"Intangible"_s, u"Hidden"_s};

TEST_F(ExportOfLists, aProductHasNineCellsAndAGroupLeavesSixBlank)
{
    Measurement piece;
    piece.name = u"piece"_s;
    const auto unit = books.store(piece);
    piece.name = u"crate"_s;
    const auto crate = books.store(piece);
    ProductGroup group;
    group.name = u"Wine"_s;
    group.descriptionString = u"red & white"_s;
    const auto wine = books.store(group);
    Product product;
    product.name = u"Chianti <2019>"_s;
    product.parentID = wine->id;
    product.measurementID = unit->id;
    product.packID = crate->id;
    product.setPackAmount(12);
    product.setBaseCost(1234.5);
    product.setPriceCost(2000);
    product.descriptionString = u"dry"_s;
    product.isHidden = true;
    books.store(product);

    ProductViewController controller(books.appDelegate);
    controller.prepareProducts();
    const QStringList groupCells{u"Wine"_s, {}, {}, {}, {}, {}, u"red & white"_s, {}, u"no"_s};
    EXPECT_EQ(exported(controller.view), table({productTitles, groupCells}))
        << "a closed group hides its rows";
    controller.view.setItemExpanded(controller.view.child(nullptr, 0), true);
    EXPECT_EQ(exported(controller.view),
              table({productTitles,
                     groupCells,
                     {u"Chianti <2019>"_s, u"piece"_s, u"crate"_s, u"12.00"_s, u"1 234.50"_s, u"2 000.00"_s,
                      u"dry"_s, u"no"_s, u"yes"_s}}));
}

TEST_F(ExportOfLists, aSpendingHasItsFlagsAndAGroupLeavesThreeCellsBlank)
{
    ExpendType type;
    type.name = u"House"_s;
    const auto house = books.store(type);
    Expend expend;
    expend.name = u"Rent"_s;
    expend.parentID = house->id;
    expend.isConstant = true;
    expend.descriptionString = u"monthly"_s;
    books.store(expend);

    ExpendViewController controller(books.appDelegate);
    controller.prepareExpends();
    controller.view.setItemExpanded(controller.view.child(nullptr, 0), true);
    EXPECT_EQ(exported(controller.view), table({{u"Name"_s, u"Hidden"_s, u"Constant"_s, u"Description"_s},
                                                {u"House"_s, {}, {}, {}},
                                                {u"Rent"_s, u"no"_s, u"yes"_s, u"monthly"_s}}));
}

TEST_F(ExportOfLists, aFixedAssetHasFiveCellsUnderTheirTitles)
{
    books.property(u"Van"_s, 24'000, 60);
    books.property(u"Land"_s, 1'000'000);
    PropertyJournalViewController controller(books.appDelegate);
    controller.prepareProperties();
    controller.view.sort(u"name"_s, true);
    EXPECT_EQ(exported(controller.view),
              table({{u"Name"_s, u"Date"_s, u"Cost"_s, u"Current Cost"_s, u"Amortized"_s},
                     {u"Land"_s, u"14 Nov 2023"_s, u"1 000 000.00"_s, u"1 000 000.00"_s, u"no"_s},
                     {u"Van"_s, u"14 Nov 2023"_s, u"24 000.00"_s, u"24 000.00"_s, u"yes"_s}}));
}

TEST_F(ExportOfLists, theJournalWritesItsElevenCells)
{
    const auto acme = books.contragent(u"Acme & Sons"_s);
    const auto shop = books.stock(u"Shop"_s);
    const auto ada = books.employee(u"Ada"_s);
    ProductDocument sale;
    sale.insertDocType(DocType::SellProduct);
    sale.date = books.clock.now() - 10;
    sale.docNumber = 1204;
    sale.setDocSum(12'345.6);
    sale.contragentID = acme->id;
    sale.stockFromID = shop->id;
    sale.managerID = ada->id;
    sale.comment = u"<b>urgent</b>"_s;
    sale.confirmed = true;
    sale.correction = true;
    books.store(sale);

    DocumentJournalViewController journal(books.appDelegate, u"Product"_s);
    journal.initDocTypeSelect();
    journal.setCurrentDate();
    journal.prepareJournal();
    ASSERT_TRUE(journal.mainView.canExportToExcel());
    EXPECT_EQ(exported(journal.mainView),
              table({{u"Number"_s, u"Document"_s, u"Date"_s, u"Confirmed"_s, u"Correction"_s, u"Sum"_s,
                      u"Counterparty"_s, u"From"_s, u"To"_s, u"Employee"_s, u"Comment"_s},
                     {u"1204"_s,
                      journal.mainView.value(0, u"journalName"_s).toString(),
                      u"14 Nov 2023"_s,
                      u"yes"_s,
                      u"yes"_s,
                      u"12 345.60"_s,
                      u"Acme & Sons"_s,
                      u"Shop"_s,
                      {},
                      u"Ada"_s,
                      u"<b>urgent</b>"_s}}));
}

TEST_F(ExportOfLists, anyOtherListWritesEachVisibleColumn)
{
    Measurement unit;
    unit.name = u"litre"_s;
    unit.shorthand = u"l"_s;
    books.store(unit);
    MeasurementViewController controller(books.appDelegate);
    controller.prepareMeasurements();
    EXPECT_FALSE(controller.view.canExportToExcel()) << "the desktop offers none";
    EXPECT_EQ(exported(controller.view),
              table({{u"Name"_s, u"Shorthand"_s, u"Hidden"_s}, {u"litre"_s, u"l"_s, u"no"_s}}));
}

TEST_F(ExportOfLists, aTreeWithoutAnExportHasNone)
{
    ContragentViewController controller(books.appDelegate);
    EXPECT_FALSE(excelTable(controller.view, books.appDelegate.calendar));
    books.dialogs.savePaths = {books.file(u"list"_s)};
    EXPECT_FALSE(exportToExcel(controller.view, books.appDelegate));
    EXPECT_TRUE(books.dialogs.savePanels.empty());
}

} // namespace
} // namespace zelvor
