#include "desktop/list_page.h"

#include "core/localized.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// Lies over the list's ground, where its rows would be.
QLabel* emptyLabel(QAbstractScrollArea* list, const QString& text)
{
    auto* const label = new QLabel(text, list->viewport());
    label->setObjectName(u"emptyText"_s);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::PlaceholderText);
    auto* const layout = new QVBoxLayout(list->viewport());
    layout->addWidget(label);
    return label;
}

bool canSearch(PageCommand command)
{
    return command == PageCommand::Find || command == PageCommand::Refresh || command == PageCommand::Edit;
}

template <class List>
void startSearch(SearchLine* line, List*)
{
    line->setFocus(Qt::ShortcutFocusReason);
    line->selectAll();
}

} // namespace

TablePage::TablePage(TableView& view, const Calendar& calendar, const QString& emptyText, QWidget* parent)
    : Page(view, parent), m_list(new TableList(view, calendar)), m_search(new SearchLine(m_list)),
      m_empty(emptyLabel(m_list, emptyText))
{
    m_list->setAccessibleName(view.name());
    tools()->addWidget(m_search);
    rows()->addWidget(m_list, 1);
    connect(m_search, &QLineEdit::textChanged, m_list->tableModel(), &TableViewModel::setFilter);
    connect(m_list->tableModel(), &TableViewModel::reloaded, this, [this] { showEmptyText(); });
    showEmptyText();
}

void TablePage::takeFocus()
{
    m_list->setFocus(Qt::OtherFocusReason);
}

bool TablePage::can(PageCommand command) const
{
    return canSearch(command);
}

void TablePage::perform(PageCommand command)
{
    if (command == PageCommand::Find)
        startSearch(m_search, m_list);
    else if (command == PageCommand::Refresh)
        refresh();
    else if (command == PageCommand::Edit && m_list->currentRow() >= 0)
        m_list->shownView().doubleAction(m_list->currentRow());
}

void TablePage::showTitle(const QString& title)
{
    if (heading()->text() == title)
        return;
    setHeading(title);
    m_list->setAccessibleName(title);
}

void TablePage::setEmptyText(const QString& text)
{
    m_empty->setText(text);
}

void TablePage::showEmptyText()
{
    m_empty->setVisible(m_list->tableModel()->rowCount() == 0 && m_search->text().trimmed().isEmpty());
}

TreePage::TreePage(OutlineView& view, const Calendar& calendar, const QString& emptyText, QWidget* parent)
    : Page(view, parent), m_list(new TreeList(view, calendar)), m_search(new SearchLine(m_list)),
      m_empty(emptyLabel(m_list, emptyText))
{
    m_list->setAccessibleName(view.name());
    tools()->addWidget(m_search);
    rows()->addWidget(m_list, 1);
    connect(m_search, &QLineEdit::textChanged, m_list, &TreeList::setFilter);
    connect(m_list->outlineModel(), &OutlineViewModel::reloaded, this, [this] { showEmptyText(); });
    showEmptyText();
}

void TreePage::takeFocus()
{
    m_list->setFocus(Qt::OtherFocusReason);
}

bool TreePage::can(PageCommand command) const
{
    return canSearch(command);
}

void TreePage::perform(PageCommand command)
{
    if (command == PageCommand::Find)
        startSearch(m_search, m_list);
    else if (command == PageCommand::Refresh)
        refresh();
    else if (command == PageCommand::Edit && m_list->currentNode())
        m_list->shownView().doubleAction(m_list->currentNode());
}

void TreePage::showEmptyText()
{
    m_empty->setVisible(m_list->outlineModel()->rowCount() == 0 && m_search->text().trimmed().isEmpty());
}

} // namespace zelvor
