#pragma once

#include "catalogs/contragent.h"
#include "catalogs/expend.h"
#include "catalogs/flat_catalog_fixture.h"
#include "catalogs/product.h"

namespace zelvor {

// A project with the tables of the tree catalogs, and what a user does with an outline.
class TreeCatalogFixture : public FlatCatalogFixture {
protected:
    void SetUp() override
    {
        const bool created =
            program.createProject<Params, Function, Manager, Stock, StockRow, Measurement, ContragentGroup,
                                  Contragent, ProductGroup, Product, ExpendType, Expend>();
        ASSERT_TRUE(created);
    }

    template <class Record>
    qint64 storeUnder(const QString& name, qint64 parentID = 0)
    {
        Record record;
        record.name = name;
        record.parentID = parentID;
        return store(record);
    }

    // "Group(Leaf,Other) Top": the names as the outline shows them.
    static QString shape(const OutlineView& view, const OutlineView::Node& node = nullptr)
    {
        QStringList rows;
        for (int i = 0; i < view.numberOfChildren(node); ++i) {
            const OutlineView::Node child = view.child(node, i);
            QString row = view.value(child, QStringLiteral("name")).toString();
            if (view.isItemExpandable(child))
                row += u'(' + shape(view, child) + u')';
            rows.append(row);
        }
        return rows.join(node ? u',' : u' ');
    }
    // The row of that name, wherever it stands.
    static OutlineView::Node row(const OutlineView& view, const QString& name,
                                 const OutlineView::Node& below = nullptr)
    {
        for (int i = 0; i < view.numberOfChildren(below); ++i) {
            const OutlineView::Node child = view.child(below, i);
            if (view.value(child, QStringLiteral("name")).toString() == name)
                return child;
            if (const OutlineView::Node found = row(view, name, child))
                return found;
        }
        return nullptr;
    }
    // Null stands for the top level.
    static bool mayDrop(const OutlineView& view, const QString& dragged, const QString& target)
    {
        return view.validateDrop(view.pasteboardText(row(view, dragged)), row(view, target));
    }
    static bool drop(OutlineView& view, const QString& dragged, const QString& target)
    {
        return view.acceptDrop(view.pasteboardText(row(view, dragged)), row(view, target));
    }
    static QStringList identifiers(const OutlineView& view)
    {
        QStringList result;
        for (const ViewColumn& column : view.columns())
            result.append(column.identifier);
        return result;
    }
    static QStringList titles(const PopUpButton& select)
    {
        QStringList result;
        for (const PopUpButton::Item& item : select.items())
            result.append(item.title);
        return result;
    }
    static QStringList disabledTitles(const PopUpButton& select)
    {
        QStringList result;
        for (const PopUpButton::Item& item : select.items()) {
            if (!item.enabled)
                result.append(item.title);
        }
        return result;
    }
};

} // namespace zelvor
