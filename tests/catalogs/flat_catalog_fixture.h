#pragma once

#include "catalogs/account.h"
#include "catalogs/currency.h"
#include "catalogs/delete_basis.h"
#include "catalogs/property.h"
#include "catalogs/stock.h"
#include "core/outlets.h"
#include "core/view.h"
#include "support/test_project.h"

#include <gtest/gtest.h>

namespace zelvor {

// A project with the tables of the flat catalogs, and what a user does with their outlets.
class FlatCatalogFixture : public ::testing::Test {
protected:
    void SetUp() override
    {
        const bool created = program.createProject<Params, Currency, Function, AccountType, Manager, Stock,
                                                   Account, DeleteBasis, Property>();
        ASSERT_TRUE(created);
    }

    Connector& connector() { return program.appDelegate.connector; }

    template <class Record>
    std::shared_ptr<Record> stored(qint64 id)
    {
        return connector().select<Record>(id);
    }
    template <class Record>
    std::size_t count()
    {
        return connector().freeSQL<Record>().size();
    }
    template <class Record>
    qint64 store(Record& record)
    {
        EXPECT_EQ(connector().insert(record), 1);
        return record.id;
    }
    template <class Record>
    qint64 storeNamed(const QString& name)
    {
        Record record;
        record.name = name;
        return store(record);
    }

    static bool type(TextField& field, const QString& text)
    {
        field.setText(text);
        return field.userChanged();
    }
    static bool type(NumberField& field, const Decimal& number)
    {
        field.setValue(number);
        return field.userChanged();
    }
    static QStringList column(const TableView& view, const QString& identifier)
    {
        QStringList cells;
        for (int row = 0; row < view.numberOfRows(); ++row)
            cells.append(view.value(row, identifier).toString());
        return cells;
    }
    static QStringList identifiers(const TableView& view)
    {
        QStringList result;
        for (const ViewColumn& column : view.columns())
            result.append(column.identifier);
        return result;
    }

    TestProgram program;
};

} // namespace zelvor
