#pragma once

#include "core/colors.h"
#include "core/decimal.h"

#include <QtCore/QString>

#include <array>
#include <functional>
#include <map>
#include <vector>

namespace zelvor {

// What the pie of the spendings shows. print/chart_painter.h draws it.
class ChartView {
public:
    struct Share {
        Decimal total;
        Decimal constant; // the part of it that is constant
    };
    static constexpr std::array<Color, 7> colors{{{0.035, 0.627, 0.718, 0.6},
                                                  {0.557, 0.106, 0.537, 0.6},
                                                  {0.992, 0.557, 0.098, 0.6},
                                                  {0.109, 0.709, 0.141, 0.6},
                                                  {0.878, 0.157, 0.251, 0.6},
                                                  {0.557, 0.557, 0.557, 0.6},
                                                  {0.98, 0.796, 0.051, 0.6}}};

    std::map<QString, Share> data;
    std::vector<QString> keys; // the order of the slices

    void clear()
    {
        data.clear();
        keys.clear();
    }
    // Two of one name are one slice.
    void add(const QString& key, const Decimal& total, const Decimal& constant)
    {
        const auto [place, isNew] = data.try_emplace(key);
        if (isNew)
            keys.push_back(key);
        place->second.total = place->second.total.plus(total, moneyHandler);
        place->second.constant = place->second.constant.plus(constant, moneyHandler);
    }

    // Heard by whoever shows the chart.
    std::function<void()> onRedraw;
    void redraw() const
    {
        if (onRedraw)
            onRedraw();
    }
};

} // namespace zelvor
