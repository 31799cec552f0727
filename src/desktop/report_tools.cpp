#include "desktop/report_tools.h"

#include "core/localized.h"
#include "desktop/icons.h"

#include <QtWidgets/QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

QPushButton* makeRefreshButton(QWidget* parent)
{
    auto* const button = new QPushButton(lineIcon(u"refresh"_s), localized("Refresh"), parent);
    button->setObjectName(u"refreshButton"_s);
    button->setAutoDefault(false);
    button->setToolTip(localized("Read again (F5)"));
    return button;
}

void chainTabs(std::initializer_list<QWidget*> widgets)
{
    QWidget* last = nullptr;
    for (QWidget* const widget : widgets) {
        if (last)
            QWidget::setTabOrder(last, widget);
        last = widget;
    }
}

} // namespace zelvor
