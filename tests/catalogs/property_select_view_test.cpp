#include "catalogs/property_select_view.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

TEST(AssetSelection, aDoubleClickHandsTheAssetToTheDocument)
{
    auto van = std::make_shared<Property>();
    van->name = u"Van"_s;
    van->setCurrentCost(10);
    PropertySelectView view;
    view.doubleAction(0);
    view.setProperties({van});
    EXPECT_EQ(view.numberOfRows(), 1);
    EXPECT_EQ(view.value(0, u"name"_s).toString(), u"Van"_s);
    EXPECT_EQ(view.value(0, u"currentCost"_s).toDouble(), 10);
    EXPECT_EQ(view.value(1, u"name"_s), QVariant(QString()));
    view.doubleAction(0); // nobody listens

    std::vector<std::shared_ptr<Property>> picked;
    view.addProperty = [&](const auto& property) { picked.push_back(property); };
    view.doubleAction(1);
    EXPECT_TRUE(picked.empty());
    view.doubleAction(0);
    EXPECT_EQ(picked, std::vector{van});
}

} // namespace
} // namespace zelvor
