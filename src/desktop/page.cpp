#include "desktop/page.h"

#include "desktop/measures.h"
#include "desktop/theme.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

Page::Page(BaseView& view, QWidget* parent)
    : QWidget(parent), m_view(view), m_rows(new QVBoxLayout(this)), m_tools(new QHBoxLayout),
      m_heading(new QLabel(this))
{
    m_rows->setContentsMargins(measures::pageMargin, measures::pageMargin, measures::pageMargin,
                               measures::pageMargin);
    m_rows->setSpacing(measures::rowGap);
    m_tools->setSpacing(measures::rowGap);
    m_heading->setObjectName(u"pageHeading"_s);
    m_heading->setTextFormat(Qt::PlainText);
    m_heading->setFont(titleFont(font()));
    m_heading->setText(view.name());
    m_heading->setMinimumWidth(1); // a long title gives way to the tools
    m_tools->addWidget(m_heading, 1);
    m_rows->addLayout(m_tools);
    setAccessibleName(view.name());
}

void Page::setHeading(const QString& text)
{
    m_heading->setText(text);
    setAccessibleName(text);
}

bool Page::can(PageCommand) const
{
    return false;
}

void Page::perform(PageCommand) {}

} // namespace zelvor
