#include "desktop/foot_line.h"

#include "desktop/binding.h"
#include "desktop/elided_label.h"
#include "desktop/measures.h"
#include "desktop/theme.h"
#include "shell/main_view_controller.h"

#include <QtGui/QPainter>
#include <QtWidgets/QHBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

FootLine::FootLine(MainViewController& workspace, QWidget* parent) : QFrame(parent)
{
    setObjectName(u"footer"_s);
    auto* const state = new ElidedLabel;
    auto* const balanceLabel = new QLabel;
    auto* const balance = new QLabel;
    bind(workspace.stateField, state);
    bind(workspace.balanceLabel, balanceLabel);
    bind(workspace.balance, balance);
    QFont figures = balance->font();
    figures.setBold(true);
    balance->setFont(figures);

    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(measures::pageMargin, measures::labelGap + 1, measures::pageMargin,
                            measures::labelGap);
    row->setSpacing(measures::rowGap);
    row->addWidget(state, 1);
    row->addWidget(balanceLabel);
    row->addWidget(balance);
}

void FootLine::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(lineColor(palette()));
    painter.drawLine(0, 0, width(), 0);
}

} // namespace zelvor
