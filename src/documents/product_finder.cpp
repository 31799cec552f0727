#include "documents/product_finder.h"

#include "core/text_order.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

enum Rank { BeginsName, BeginsWord, Inside, rankCount };

bool holdsAll(const QString& name, const QStringList& words)
{
    return std::ranges::all_of(words, [&name](const QString& word) { return name.contains(word); });
}

Rank rankOf(const QString& name, const QString& typed)
{
    const qsizetype place = name.indexOf(typed);
    if (place == 0)
        return BeginsName;
    return place > 0 && !name.at(place - 1).isLetterOrNumber() ? BeginsWord : Inside;
}

} // namespace

ProductFinder::ProductFinder(ProductView& products) : m_products(products)
{
    products.onReload(m_stale, [stale = m_stale.get()] { *stale = true; });
}

void ProductFinder::collect(const ProductView::Nodes& nodes)
{
    for (const auto& node : nodes) {
        if (node->isGroup())
            collect(node->children);
        else if (!node->isHidden)
            m_entries.push_back({node->name.toCaseFolded(), std::static_pointer_cast<Product>(node)});
    }
}

void ProductFinder::readWhenStale()
{
    const ProductView::Nodes& nodes = m_products.topLevel(); // a stale tree reads, and tells of it
    if (!std::exchange(*m_stale, false))
        return;
    m_entries.clear();
    collect(nodes);
    std::ranges::stable_sort(m_entries, textLess, &Entry::name);
}

std::vector<std::shared_ptr<Product>> ProductFinder::find(const QString& typed, std::size_t limit)
{
    const QString text = typed.simplified().toCaseFolded();
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        return {};
    readWhenStale();
    std::array<std::vector<std::shared_ptr<Product>>, rankCount> ranked;
    for (const Entry& entry : m_entries) {
        if (!holdsAll(entry.name, words))
            continue;
        auto& found = ranked[rankOf(entry.name, text)];
        if (found.size() < limit)
            found.push_back(entry.product);
        if (ranked[BeginsName].size() == limit)
            break;
    }
    std::vector<std::shared_ptr<Product>> result;
    for (const auto& found : ranked)
        result.insert(result.end(), found.begin(), found.end());
    result.resize(std::min(result.size(), limit));
    return result;
}

} // namespace zelvor
