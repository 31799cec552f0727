#include "reports/sold_sums.h"

#include "reports/whole_cents.h"

#include <algorithm>
#include <cmath>

namespace zelvor {

namespace {

constexpr qint64 denseIDs = 1 << 16;

Decimal sumOf(qint64 cents, const Decimal& rest)
{
    const Decimal whole = Decimal::fromParts(cents, moneyHandler.scale);
    return rest.isZero() ? whole : whole.plus(rest, moneyHandler);
}

} // namespace

void SoldSums::add(const SoldRow& row)
{
    Cell& cell = cellOf(row.productID);
    for (std::size_t column = 0; column < row.values.size(); ++column) {
        qint64 cents = 0;
        if (wholeCents(row.values[column], cents))
            cell.cents[column] += cents;
        else if (!std::isnan(row.values[column])) // a stored nothing adds nothing
            addRest(row.productID, column, row.values[column]);
    }
}

void SoldSums::addRest(qint64 productID, std::size_t column, double value)
{
    Decimal& rest = m_rest[productID][column];
    rest = rest.plus(Decimal::fromDouble(value));
}

void SoldSums::clear()
{
    for (const qint64 productID : m_soldIDs)
        m_dense[static_cast<std::size_t>(productID)] = Cell();
    m_soldIDs.clear();
    m_sparse.clear();
    m_rest.clear();
}

SoldSums::Cell& SoldSums::cellOf(qint64 productID)
{
    if (productID < 0 || productID >= denseIDs)
        return m_sparse[productID];
    const auto index = static_cast<std::size_t>(productID);
    if (index >= m_dense.size())
        m_dense.resize(index + 1);
    Cell& cell = m_dense[index];
    if (!cell.sold)
        m_soldIDs.push_back(productID);
    cell.sold = true;
    return cell;
}

SoldProduct SoldSums::productOf(qint64 productID, const Cell& cell) const
{
    std::array<Decimal, 3> rest;
    if (const auto place = m_rest.find(productID); place != m_rest.end())
        rest = place->second;
    return {productID, sumOf(cell.cents[0], rest[0]), sumOf(cell.cents[1], rest[1]),
            sumOf(cell.cents[2], rest[2])};
}

std::vector<SoldProduct> SoldSums::products()
{
    std::vector<SoldProduct> products;
    products.reserve(m_soldIDs.size() + m_sparse.size());
    const auto firstAbove = m_sparse.lower_bound(0);
    const auto appendSparse = [&](auto from, auto to) {
        for (; from != to; ++from)
            products.push_back(productOf(from->first, from->second));
    };
    appendSparse(m_sparse.begin(), firstAbove);
    std::ranges::sort(m_soldIDs);
    for (const qint64 productID : m_soldIDs)
        products.push_back(productOf(productID, m_dense[static_cast<std::size_t>(productID)]));
    appendSparse(firstAbove, m_sparse.end());
    return products;
}

} // namespace zelvor
