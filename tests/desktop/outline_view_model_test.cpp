#include "desktop/outline_view_model.h"

#include "desktop/sample_views.h"

#include <gtest/gtest.h>

#include <QtCore/QMimeData>
#include <QtCore/QUrl>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

// --- the model by itself

class TreeModelTest : public ::testing::Test {
protected:
    // Drinks(Hot(Green tea, Coffee) Water) Dishes(Cup) Soap
    TreeModelTest()
    {
        drinks = view.addGroup(u"Drinks"_s);
        hot = view.addGroup(u"Hot"_s, drinks);
        tea = view.add(u"Green tea"_s, hot);
        view.add(u"Coffee"_s, hot);
        view.add(u"Water"_s, drinks);
        view.add(u"Cup"_s, view.addGroup(u"Dishes"_s));
        view.add(u"Soap"_s);
        model = std::make_unique<OutlineViewModel>(view, calendar);
    }
    // The names from top to bottom, rows below others in brackets.
    QString names(const QModelIndex& below = {})
    {
        QStringList rows;
        for (int row = 0; row < model->rowCount(below); ++row) {
            const QModelIndex index = model->index(row, 0, below);
            const QString inside = names(index);
            rows << index.data().toString() + (inside.isEmpty() ? QString() : u'(' + inside + u')');
        }
        return rows.join(u' ');
    }
    QString found(const QString& filter)
    {
        model->setFilter(filter);
        return names();
    }
    bool wouldTake(const SampleTree::Sample& dragged, const SampleTree::Sample& target)
    {
        const std::unique_ptr<QMimeData> data(model->mimeData({model->indexOf(dragged)}));
        return model->canDropMimeData(data.get(), Qt::MoveAction, -1, -1, model->indexOf(target));
    }

    SampleTree view;
    SampleTree::Sample drinks;
    SampleTree::Sample hot;
    SampleTree::Sample tea;
    Calendar calendar{QTimeZone::utc()};
    std::unique_ptr<OutlineViewModel> model;
};

TEST_F(TreeModelTest, findsItsWordsInAnyOrderAndCaseAndKeepsTheGroupsAboveThem)
{
    EXPECT_EQ(found(u"TEA gre"_s), u"Drinks(Hot(Green tea))"_s);
    EXPECT_EQ(found(u"cup"_s), u"Dishes(Cup)"_s);
    EXPECT_EQ(found(u"o"_s), u"Drinks(Hot(Coffee)) Soap"_s);
    EXPECT_EQ(found(u"tea cup"_s), QString());
    EXPECT_FALSE(model->hasChildren());
    EXPECT_EQ(found({}), u"Drinks(Hot(Green tea Coffee) Water) Dishes(Cup) Soap"_s);
}

TEST_F(TreeModelTest, showsAFoundGroupClosedWhenNothingInItIsFound)
{
    EXPECT_EQ(found(u"drinks"_s), u"Drinks"_s);
    EXPECT_FALSE(model->hasChildren(model->index(0, 0)));
}

TEST_F(TreeModelTest, leavesNoListenerBehindWhenItGoes)
{
    const std::size_t before = view.listenerCount();
    for (int i = 0; i < 100; ++i)
        const OutlineViewModel passing(view, calendar);
    view.reloadData();
    EXPECT_LE(view.listenerCount(), before + 1); // the last one is counted until another comes
}

TEST_F(TreeModelTest, findsTheRowOfANodeAndTheNodeOfARow)
{
    const QModelIndex row = model->indexOf(tea);
    EXPECT_EQ(row.data().toString(), u"Green tea"_s);
    EXPECT_EQ(model->node(row), tea);
    EXPECT_EQ(model->node(row.parent()), hot);
    EXPECT_EQ(model->node(row.parent().parent()), drinks);
    EXPECT_FALSE(row.parent().parent().parent().isValid());
    model->setFilter(u"cup"_s);
    EXPECT_FALSE(model->indexOf(tea).isValid());
}

TEST_F(TreeModelTest, storesATickAndHandsARefusalBack)
{
    const QModelIndex tick = model->indexOf(tea).siblingAtColumn(1);
    EXPECT_TRUE(model->setData(tick, Qt::Checked, Qt::CheckStateRole));
    EXPECT_TRUE(tea->ticked);
    EXPECT_EQ(tick.data(Qt::CheckStateRole).toInt(), Qt::Checked);
    view.refuses = true;
    EXPECT_FALSE(model->setData(tick, Qt::Unchecked, Qt::CheckStateRole));
    EXPECT_TRUE(tea->ticked);
}

TEST_F(TreeModelTest, tellsOfChangedValuesInPlaceAndOfOtherRowsByAReset)
{
    names(); // all branches are known
    QSignalSpy resets(model.get(), &QAbstractItemModel::modelReset);
    const QPersistentModelIndex row = model->indexOf(tea);
    tea->name = u"Black tea"_s;
    view.reloadData();
    EXPECT_EQ(resets.count(), 0);
    EXPECT_EQ(row.data().toString(), u"Black tea"_s);
    view.add(u"Mate"_s, hot);
    view.reloadData();
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(names(), u"Drinks(Hot(Black tea Coffee Mate) Water) Dishes(Cup) Soap"_s);
}

TEST_F(TreeModelTest, takesADropWhereTheViewDoes)
{
    EXPECT_TRUE(wouldTake(tea, drinks));
    EXPECT_TRUE(wouldTake(tea, nullptr)); // the empty ground: the top level
    EXPECT_FALSE(wouldTake(drinks, drinks));
    EXPECT_FALSE(wouldTake(drinks, hot)); // below itself
    EXPECT_FALSE(wouldTake(drinks, tea)); // a leaf
    QMimeData stranger;
    stranger.setUrls({});
    EXPECT_FALSE(model->canDropMimeData(&stranger, Qt::MoveAction, -1, -1, {}));
    EXPECT_FALSE(model->canDropMimeData(nullptr, Qt::MoveAction, -1, -1, {}));
    const std::unique_ptr<QMimeData> refused(model->mimeData({model->indexOf(drinks)}));
    EXPECT_FALSE(model->dropMimeData(refused.get(), Qt::MoveAction, -1, -1, model->indexOf(hot)));
    EXPECT_EQ(names(), u"Drinks(Hot(Green tea Coffee) Water) Dishes(Cup) Soap"_s);
}

TEST_F(TreeModelTest, keepsQtsRulesUnderChangesFiltersAndSorting)
{
    QAbstractItemModelTester tester(model.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    view.sort(u"name"_s, true);
    EXPECT_EQ(names(), u"Dishes(Cup) Drinks(Hot(Coffee Green tea) Water) Soap"_s);
    model->sort(0, Qt::DescendingOrder);
    EXPECT_EQ(names(), u"Soap Drinks(Water Hot(Green tea Coffee)) Dishes(Cup)"_s);
    model->setFilter(u"c"_s);
    EXPECT_EQ(names(), u"Drinks(Hot(Coffee)) Dishes(Cup)"_s);
    EXPECT_TRUE(view.acceptDrop(u"Cup"_s, hot));
    EXPECT_EQ(names(), u"Drinks(Hot(Coffee Cup))"_s);
    EXPECT_TRUE(view.acceptDrop(u"Hot"_s, nullptr));
    EXPECT_EQ(names(), u"Hot(Coffee Cup)"_s);
    model->setFilter({});
    EXPECT_EQ(names(), u"Soap Drinks(Water) Dishes Hot(Green tea Coffee Cup)"_s);
    EXPECT_TRUE(model->setData(model->indexOf(tea).siblingAtColumn(1), Qt::Checked, Qt::CheckStateRole));
    view.root->children.clear();
    view.reloadData();
    EXPECT_EQ(names(), QString());
}

} // namespace
} // namespace zelvor
