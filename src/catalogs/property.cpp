#include "catalogs/property.h"

namespace zelvor {

void Property::proceedAmortization()
{
    if (amortizationPeriod == 0 || !isAmortized || !innerCurrentCost.isPositive())
        return;
    const Decimal step = innerBaseCost.dividedBy(Decimal(amortizationPeriod), decimalHandler);
    if (innerCurrentCost <= step)
        innerCurrentCost = Decimal();
    else
        innerCurrentCost = innerCurrentCost.minus(step, decimalHandler);
}

QVariant Property::valueForIdentifier(QStringView key) const
{
    if (key == u"date")
        return date;
    if (key == u"name")
        return name;
    if (key == u"baseCost")
        return baseCost();
    if (key == u"currentCost")
        return currentCost();
    if (key == u"amortized")
        return isAmortized;
    if (key == u"isAmortized")
        return isAmortized;
    if (key == u"period")
        return amortizationPeriod;
    if (key == u"description")
        return descriptionString;
    if (key == u"soldDate")
        return soldDate;
    return QString();
}

const TableInfo& Property::table()
{
    static constexpr ColumnInfo columns[] = {
        textColumn<&Property::name>("name"),
        integerColumn<&Property::date>("date"),
        realColumn<Property, &Property::baseCost, &Property::setBaseCost>("base_cost"),
        realColumn<Property, &Property::currentCost, &Property::setCurrentCost>("current_cost"),
        booleanColumn<&Property::isAmortized>("is_amortized"),
        integerColumn<&Property::amortizationPeriod>("amortization_period"),
        textColumn<&Property::descriptionString>("description_string"),
        integerColumn<&Property::soldDate>("sold_date"),
    };
    static constexpr TableInfo info{"property", columns, {}, {}, nullptr, makeRecord<Property>};
    return info;
}

} // namespace zelvor
