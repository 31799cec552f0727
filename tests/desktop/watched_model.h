#pragma once

#include "desktop/outline_view_model.h"
#include "desktop/table_view_model.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QHeaderView>

namespace zelvor {

// Has Qt's own checker look at every signal and answer of the models of views below the widget from now on;
// it ends the test at the first broken rule. The number of models that it looks at.
inline int watchModels(const QWidget& widget)
{
    int watched = 0;
    for (const auto* const list : widget.findChildren<QAbstractItemView*>()) {
        QAbstractItemModel* const model = list->model();
        if (qobject_cast<const QHeaderView*>(list)) // shares the model of its list
            continue;
        if (!qobject_cast<TableViewModel*>(model) && !qobject_cast<OutlineViewModel*>(model))
            continue;
        new QAbstractItemModelTester(model, QAbstractItemModelTester::FailureReportingMode::Fatal, model);
        ++watched;
    }
    return watched;
}

} // namespace zelvor
