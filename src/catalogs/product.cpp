#include "catalogs/product.h"

namespace zelvor {

QVariant ProductGroup::valueForIdentifier(QStringView key) const
{
    if (key == u"name")
        return name;
    if (key == u"parentID")
        return parentID;
    if (key == u"description")
        return descriptionString;
    if (key == u"hidden")
        return isHidden;
    if (key == u"selected")
        return selected;
    if (key == u"imageName")
        return imageName;
    return QString();
}

const TableInfo& ProductGroup::table()
{
    static constexpr ColumnInfo columns[] = {
        textColumn<&ProductGroup::name>("name"),
        integerColumn<&ProductGroup::parentID>("parent_id"),
        textColumn<&ProductGroup::descriptionString>("description_string"),
        textColumn<&ProductGroup::imageName>("image_name"),
        booleanColumn<&ProductGroup::isHidden>("is_hidden"),
    };
    static constexpr TableInfo info{"product_group", columns, {}, {}, nullptr, makeRecord<ProductGroup>};
    return info;
}

QVariant Product::valueForIdentifier(QStringView key) const
{
    if (key == u"name")
        return name;
    if (key == u"parentID")
        return parentID;
    if (key == u"description")
        return descriptionString;
    if (key == u"hidden")
        return isHidden;
    if (key == u"selected")
        return selected;
    if (key == u"imageName")
        return imageName;
    if (key == u"measurementID")
        return measurementID;
    if (key == u"measurementName")
        return measurementName();
    if (key == u"packID")
        return packID;
    if (key == u"packName")
        return packName();
    if (key == u"packAmount")
        return packAmount();
    if (key == u"intangible")
        return isIntangible;
    if (key == u"baseCost")
        return baseCost();
    if (key == u"priceCost")
        return priceCost();
    if (key == u"vatRate")
        return vatRate();
    if (key == u"gstRate")
        return gstRate();
    if (key == u"amount")
        return stockRow->amount();
    if (key == u"reserve")
        return stockRow->amountReserved();
    return QString();
}

const TableInfo& Product::table()
{
    static constexpr ColumnInfo columns[] = {
        textColumn<&Product::name>("name"),
        integerColumn<&Product::parentID>("group_id"),
        textColumn<&Product::descriptionString>("description_string"),
        textColumn<&Product::imageName>("image_name"),
        booleanColumn<&Product::isHidden>("is_hidden"),
        integerColumn<&Product::measurementID>("measurement_id"),
        integerColumn<&Product::packID>("pack_id"),
        booleanColumn<&Product::isIntangible>("is_intangible"),
        realColumn<Product, &Product::packAmount, &Product::setPackAmount>("pack_amount"),
        realColumn<Product, &Product::baseCost, &Product::setBaseCost>("base_cost"),
        realColumn<Product, &Product::priceCost, &Product::setPriceCost>("price_cost"),
        realColumn<Product, &Product::vatRate, &Product::setVatRate>("vat_rate"),
        realColumn<Product, &Product::gstRate, &Product::setGstRate>("gst_rate"),
    };
    static constexpr LinkInfo links[] = {
        linkOf<&Product::measurementID, &Product::measurement>(),
        linkOf<&Product::packID, &Product::pack>(),
    };
    static constexpr TableInfo info{"product", columns, links, {}, nullptr, makeRecord<Product>};
    return info;
}

} // namespace zelvor
