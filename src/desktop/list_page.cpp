#include "desktop/list_page.h"

#include "core/localized.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// Lies over the list's ground, where its rows would be.
QLabel* groundLabel(QAbstractScrollArea* list, const QString& name, const QString& text)
{
    auto* const label = new QLabel(text, list->viewport());
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::PlaceholderText);
    if (!list->viewport()->layout())
        new QVBoxLayout(list->viewport());
    list->viewport()->layout()->addWidget(label);
    return label;
}

bool canSearch(PageCommand command)
{
    return command == PageCommand::Find || command == PageCommand::Refresh || command == PageCommand::Edit;
}

void startSearch(SearchLine* line)
{
    line->setFocus(Qt::ShortcutFocusReason);
    line->selectAll();
}

// The page's own sentence while there is nothing at all, another one while nothing is found.
void showGroundText(QLabel* empty, QLabel* notFound, const SearchLine& search, int rows)
{
    const QString words = search.text().simplified();
    notFound->setText(localized("Nothing here holds '%1'. Escape shows everything again.").arg(words));
    notFound->setVisible(rows == 0 && !words.isEmpty());
    empty->setVisible(rows == 0 && words.isEmpty());
}

} // namespace

TablePage::TablePage(TableView& view, const Calendar& calendar, const QString& emptyText, QWidget* parent)
    : Page(view, parent), m_list(new TableList(view, calendar)), m_search(new SearchLine(m_list)),
      m_empty(groundLabel(m_list, u"emptyText"_s, emptyText)),
      m_notFound(groundLabel(m_list, u"notFoundText"_s, {}))
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
        startSearch(m_search);
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
    showGroundText(m_empty, m_notFound, *m_search, m_list->tableModel()->rowCount());
}

TreePage::TreePage(OutlineView& view, const Calendar& calendar, const QString& emptyText, QWidget* parent)
    : Page(view, parent), m_list(new TreeList(view, calendar)), m_search(new SearchLine(m_list)),
      m_empty(groundLabel(m_list, u"emptyText"_s, emptyText)),
      m_notFound(groundLabel(m_list, u"notFoundText"_s, {}))
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
        startSearch(m_search);
    else if (command == PageCommand::Refresh)
        refresh();
    else if (command == PageCommand::Edit && m_list->currentNode())
        m_list->shownView().doubleAction(m_list->currentNode());
}

void TreePage::showEmptyText()
{
    showGroundText(m_empty, m_notFound, *m_search, m_list->outlineModel()->rowCount());
}

} // namespace zelvor
