#include "desktop/tool_button.h"

#include "catalogs/add_menu_button.h"
#include "desktop/binding.h"
#include "desktop/icons.h"
#include "desktop/measures.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStyleOptionToolButton>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr int menuArrow = 16;

} // namespace

ToolButton::ToolButton(const QString& icon, const QString& text, const QString& tip, QWidget* parent)
    : QToolButton(parent)
{
    setIcon(lineIcon(icon));
    setIconSize({measures::toolIcon, measures::toolIcon});
    setText(text);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setToolTip(tip);
    setAccessibleName(text);
    setFocusPolicy(Qt::TabFocus);
    setAutoRaise(true);
}

QSize ToolButton::sizeHint() const
{
    const QSize size = QToolButton::sizeHint();
    return menu() ? size + QSize(menuArrow, 0) : size;
}

void ToolButton::initStyleOption(QStyleOptionToolButton* option) const
{
    QToolButton::initStyleOption(option);
    if (!menu())
        return;
    option->features &= ~QStyleOptionToolButton::HasMenu;
    option->rect.adjust(0, 0, -menuArrow, 0);
}

void ToolButton::paintEvent(QPaintEvent* event)
{
    QToolButton::paintEvent(event);
    if (!menu())
        return;
    QPainter painter(this);
    const QRect arrow(width() - menuArrow, (height() - menuArrow) / 2, menuArrow, menuArrow);
    lineIcon(u"down"_s).paint(&painter, arrow.adjusted(0, 0, -4, 0), Qt::AlignCenter,
                              isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

void ToolButton::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool altDown = event->key() == Qt::Key_Down && (event->modifiers() & Qt::AltModifier);
    if (menu() && (enter || altDown || event->key() == Qt::Key_Space)) {
        showMenu();
        return;
    }
    if (enter) {
        click();
        return;
    }
    QToolButton::keyPressEvent(event);
}

void bindAddMenu(AddMenuButton& outlet, ToolButton* button)
{
    auto* const menu = new QMenu(outlet.menuTitle(), button);
    menu->setAccessibleName(outlet.menuTitle());
    for (std::size_t i = 0; i < outlet.entries().size(); ++i) {
        QAction* const entry = menu->addAction(outlet.entries()[i].title);
        QObject::connect(entry, &QAction::triggered, button, [&outlet, i] { outlet.choose(i); });
    }
    button->setMenu(menu);
    button->setPopupMode(QToolButton::InstantPopup);
    bind(outlet, button);
}

} // namespace zelvor
