#include "desktop/catalog_tools.h"

#include "core/localized.h"
#include "desktop/page.h"
#include "desktop/tool_button.h"

#include <QtGui/QShortcut>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

CatalogTools::CatalogTools(Page* page, QHBoxLayout* row, std::function<void()> edit)
    : m_page(page),
      m_add(new ToolButton(u"add"_s, localized("Add"), localized("Add (Ctrl+N or Insert)"), page)),
      m_edit(new ToolButton(u"edit"_s, localized("Edit"), localized("Edit the row (F2)"), page))
{
    m_edit->setObjectName(u"editButton"_s);
    QObject::connect(m_edit, &QToolButton::clicked, page, std::move(edit));
    row->addWidget(m_add);
    row->addWidget(m_edit);
}

void CatalogTools::setAddAction(const std::function<void()>& add)
{
    for (const QKeySequence& keys : {QKeySequence(Qt::CTRL | Qt::Key_N), QKeySequence(Qt::Key_Insert)}) {
        auto* const shortcut = new QShortcut(keys, m_page);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        QObject::connect(shortcut, &QShortcut::activated, m_page, add);
    }
}

void CatalogTools::setCanEdit(bool can)
{
    m_edit->setEnabled(can);
}

void CatalogTools::keepTabOrder(QWidget* search, QWidget* list)
{
    QWidget::setTabOrder(search, m_add);
    QWidget::setTabOrder(m_add, m_edit);
    QWidget::setTabOrder(m_edit, list);
}

QRect CatalogTools::addAnchor() const
{
    return {m_add->mapToGlobal(QPoint()), m_add->size()};
}

SortMark::SortMark(QHeaderView* header, int nameColumn, std::function<std::shared_ptr<const void>()> firstRow)
    : m_header(header), m_nameColumn(nameColumn), m_firstRow(std::move(firstRow))
{
    listReset();
}

// Reading throws all records away; sorting and ticking keeps them.
void SortMark::listReset()
{
    const bool readAnew = m_seen.expired();
    m_seen = m_firstRow();
    if (!readAnew)
        return;
    m_header->setSortIndicator(m_nameColumn, Qt::AscendingOrder);
    m_header->setSortIndicatorShown(true);
}

} // namespace zelvor
