#include "shell/project_creation.h"

#include "catalogs/currency.h"
#include "catalogs/delete_basis.h"
#include "core/currency_struct.h"
#include "core/doc_type.h"
#include "documents/document_number.h"
#include "shell/main_menu_resource.h"
#include "shell/project_tables.h"
#include "store/menu.h"
#include "support/test_project.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

TEST(ProjectCreation, seedsSettingsCurrenciesMenuCountersAndOneReason)
{
    TestProgram program;
    Connector& db = program.appDelegate.connector;
    ASSERT_TRUE(createProject(db, program.file(u"new.pdb"_s)));
    EXPECT_TRUE(hasAllTables(db));

    const auto params = program.appDelegate.params();
    ASSERT_TRUE(params);
    EXPECT_EQ(params->version, u"1.2"_s);
    EXPECT_EQ(params->defaultCurrency, 0);
    EXPECT_EQ(params->maxDeferment, 30);
    EXPECT_TRUE(params->printCompanyLogo);
    EXPECT_EQ(params->reportPeriod, 1);

    const auto currencies = db.freeSQL<Currency>("ORDER BY id");
    ASSERT_EQ(currencies.size(), 13U);
    for (const auto& currency : currencies)
        EXPECT_EQ(currency->code, currency->id);

    const auto menu = db.freeSQL<Menu>("ORDER BY id");
    ASSERT_EQ(menu.size(), 49U);
    for (const auto& entry : menu) {
        const DocType type = typeFromInt(entry->id).value();
        EXPECT_EQ(entry->parentID, rawValue(docTypeMenuGroup(type))) << qPrintable(docTypeCase(type));
        EXPECT_FALSE(entry->name.isEmpty());
    }

    const auto numbers = db.freeSQL<DocumentNumber>("ORDER BY id");
    ASSERT_EQ(numbers.size(), 49U);
    EXPECT_EQ(numbers.back()->docTypeID, 49);
    EXPECT_EQ(numbers.back()->docNumber, 0);

    const auto reasons = db.freeSQL<DeleteBasis>();
    ASSERT_EQ(reasons.size(), 1U);
    EXPECT_EQ(reasons.front()->name, u"Selling"_s);
}

TEST(ProjectCreation, takesADefaultCurrency)
{
    TestProgram program;
    ASSERT_TRUE(createProject(program.appDelegate.connector, program.file(u"new.pdb"_s),
                              rawValue(CurrencyStruct::USD)));
    EXPECT_EQ(program.appDelegate.params()->defaultCurrency, rawValue(CurrencyStruct::USD));
}

TEST(ProjectCreation, leavesNothingWhenAnyRowCannotBeWritten)
{
    TestProgram counting;
    counting.connector->failCall(0, FaultInjectingConnector::Writes);
    ASSERT_TRUE(createProject(*counting.connector, counting.file(u"new.pdb"_s)));
    const int calls = counting.connector->calls();
    EXPECT_EQ(calls, 1 + 13 + 49 + 49 + 1);
    for (int call = 1; call <= calls; ++call) {
        TestProgram program;
        program.connector->failCall(call, FaultInjectingConnector::Writes);
        EXPECT_FALSE(createProject(*program.connector, program.file(u"new.pdb"_s))) << call;
        EXPECT_FALSE(program.connector->isOpen());
        EXPECT_TRUE(QDir(program.file(QString())).entryList(QDir::Files).isEmpty()) << call;
    }
}

TEST(ProjectCreation, theMenuSeedIsTheProgramsOwn)
{
    EXPECT_EQ(mainMenuSeed().size(), 49U);
}

} // namespace zelvor
