#include "core/doc_type.h"
#include "desktop/page.h"
#include "support/desktop_program.h"

#include <gtest/gtest.h>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

TEST(MainWindow, anOpenedProjectBringsUpTheMainWindowWithItsName)
{
    DesktopProgram program;
    program.openNewProject(u"my_shop.pdb"_s);
    EXPECT_TRUE(program.window().isVisible());
    EXPECT_EQ(program.window().windowTitle(), u"my shop"_s);
}

TEST(MainWindow, aCatalogChosenTwiceHasOneTab)
{
    DesktopProgram program;
    program.openNewProject();
    program.workspace().topMenuAction(DocType::ProductCatalog);
    program.workspace().topMenuAction(DocType::StockCatalog);
    program.workspace().topMenuAction(DocType::ProductCatalog);
    EXPECT_EQ(program.workspace().tabView.header.tabs().size(), 2u);
    ASSERT_NE(program.window().activePage(), nullptr);
    EXPECT_EQ(program.window().activePage()->view().name(), u"Products Catalog"_s);
}

} // namespace zelvor
