#include "desktop/filter_field.h"

#include "core/localized.h"
#include "desktop/binding.h"
#include "desktop/icons.h"
#include "desktop/measures.h"

#include <QtCore/QPointer>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

FilterField::FilterField(const QString& name, const QString& title, Label& display, QWidget* parent)
    : QWidget(parent), m_display(new QLineEdit(this))
{
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(measures::labelGap);
    auto* const caption = new QLabel(title, this);
    row->addWidget(caption);
    m_display->setReadOnly(true);
    m_display->setFocusPolicy(Qt::NoFocus); // the buttons beside it are the way in
    m_display->setFixedWidth(fontMetrics().averageCharWidth() * 13);
    bind(display, m_display, title);
    row->addWidget(m_display);
    m_choose = addButton(u"choose"_s + name, u"choose"_s, localized("Choose") + u": "_s + title,
                         &FilterField::chooseRequested);
    m_clear = addButton(u"clear"_s + name, u"clear"_s, localized("All again") + u": "_s + title,
                        &FilterField::clearRequested);
    caption->setBuddy(m_choose);
    // The field itself never has the cursor: the button tells what is chosen.
    const QPointer<QWidget> button(m_choose);
    const auto tell = [button, &display] {
        if (button)
            button->setAccessibleDescription(display.text());
    };
    display.onChange(tell);
    tell();
}

QRect FilterField::globalFieldRect() const
{
    return {m_display->mapToGlobal(QPoint()), m_display->size()};
}

QWidget* FilterField::addButton(const QString& objectName, const QString& icon, const QString& tip,
                                void (FilterField::*pressed)())
{
    auto* const button = new QToolButton(this);
    button->setObjectName(objectName);
    button->setIcon(lineIcon(icon));
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setFocusPolicy(Qt::StrongFocus);
    connect(button, &QToolButton::clicked, this, pressed);
    layout()->addWidget(button);
    return button;
}

} // namespace zelvor
