#pragma once

#include "store/connector.h"

#include <QtCore/QString>

#include <vector>

namespace zelvor {

// Small classes with every kind of column, link and row list that the books have.
class Unit : public TableModel {
public:
    QString name;
    static const TableInfo& table()
    {
        static constexpr ColumnInfo columns[] = {textColumn<&Unit::name>("name")};
        static constexpr TableInfo info{"unit", columns, {}, {}, nullptr, makeRecord<Unit>};
        return info;
    }
};

class Goods : public TableModel {
public:
    QString name;
    double price = 0;
    qint64 amount = 5;
    bool isHidden = false;
    qint64 unitID = 0;
    qint64 packID = 0;
    Link<Unit> unit;
    Link<Unit> pack;
    static const TableInfo& table()
    {
        static constexpr ColumnInfo columns[] = {
            textColumn<&Goods::name>("name"),         plainRealColumn<&Goods::price>("price"),
            integerColumn<&Goods::amount>("amount"),  booleanColumn<&Goods::isHidden>("is_hidden"),
            integerColumn<&Goods::unitID>("unit_id"), integerColumn<&Goods::packID>("pack_id"),
        };
        static constexpr LinkInfo links[] = {linkOf<&Goods::unitID, &Goods::unit>(),
                                             linkOf<&Goods::packID, &Goods::pack>()};
        static constexpr TableInfo info{"goods", columns, links, {}, nullptr, makeRecord<Goods>};
        return info;
    }
};

class PaperRow : public TableModel {
public:
    qint64 docID = 0;
    qint64 goodsID = 0;
    double count = 0;
    Link<Goods> goods;
    static const TableInfo& table()
    {
        static constexpr ColumnInfo columns[] = {integerColumn<&PaperRow::docID>("doc_id"),
                                                 integerColumn<&PaperRow::goodsID>("goods_id"),
                                                 plainRealColumn<&PaperRow::count>("count")};
        static constexpr LinkInfo links[] = {linkOf<&PaperRow::goodsID, &PaperRow::goods>()};
        static constexpr IndexInfo indexes[] = {{"ix_paper_row_doc_id", "paper_row(doc_id)"}};
        static constexpr TableInfo info{"paper_row", columns, links, indexes, nullptr, makeRecord<PaperRow>};
        return info;
    }
};

class Paper : public TableModel {
public:
    qint64 date = 0;
    qint64 mainGoodsID = 0;
    Link<Goods> mainGoods;
    std::vector<std::shared_ptr<PaperRow>> rows;
    static const TableInfo& table()
    {
        static constexpr ColumnInfo columns[] = {integerColumn<&Paper::date>("date"),
                                                 integerColumn<&Paper::mainGoodsID>("main_goods_id")};
        static constexpr LinkInfo links[] = {linkOf<&Paper::mainGoodsID, &Paper::mainGoods>()};
        static constexpr RowListInfo rowList = rowsOf<&Paper::rows, &PaperRow::docID>("doc_id");
        static constexpr TableInfo info{"paper", columns, links, {}, &rowList, makeRecord<Paper>};
        return info;
    }
};

// Links to its own class.
class Person : public TableModel {
public:
    QString name;
    qint64 chiefID = 0;
    Link<Person> chief;
    static const TableInfo& table()
    {
        static constexpr ColumnInfo columns[] = {textColumn<&Person::name>("name"),
                                                 integerColumn<&Person::chiefID>("chief_id")};
        static constexpr LinkInfo links[] = {linkOf<&Person::chiefID, &Person::chief>()};
        static constexpr TableInfo info{"person", columns, links, {}, nullptr, makeRecord<Person>};
        return info;
    }
};

} // namespace zelvor
