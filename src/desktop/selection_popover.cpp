#include "desktop/selection_popover.h"

#include "core/localized.h"
#include "desktop/measures.h"
#include "desktop/search_line.h"
#include "desktop/theme.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

SelectionPopover::SelectionPopover(Popover& outlet, QWidget* host)
    : PopoverPanel(outlet, host), m_popover(outlet), m_page(host)
{
    host->installEventFilter(this);
    const QPointer<SelectionPopover> self(this);
    outlet.onChange([self, &outlet] {
        if (self && outlet.isOpen())
            self->startAfresh();
    });
}

void SelectionPopover::setTree(TreeList* tree)
{
    tree->setDragDropMode(QAbstractItemView::NoDragDrop);
    m_list = tree;
    m_filter = [tree](const QString& text) { tree->setFilter(text); };
}

void SelectionPopover::setTable(TableList* table)
{
    m_list = table;
    m_filter = [table](const QString& text) { table->tableModel()->setFilter(text); };
}

void SelectionPopover::finish(const QString& title, Button& okButton)
{
    m_title.setText(title);
    setTitle(m_title);
    m_search = new SearchLine(m_list, this);
    connect(m_search, &QLineEdit::textChanged, this, [this](const QString& text) { m_filter(text); });
    addWide(m_search);
    m_list->setObjectName(u"selectionList"_s);
    m_list->setAccessibleName(title);
    m_list->setMinimumSize(380, 300);
    m_list->setFrameShape(QFrame::StyledPanel);
    m_list->installEventFilter(this);
    addWide(m_list);

    auto* const tools = new QWidget(this);
    auto* const row = new QHBoxLayout(tools);
    row->setContentsMargins({});
    row->setSpacing(measures::rowGap);
    row->addWidget(tickButton(u"tickAllButton"_s, localized("Tick all"), true));
    row->addWidget(tickButton(u"tickNoneButton"_s, localized("Tick none"), false));
    auto* const note = new QLabel(localized("Nothing ticked counts as all."), tools);
    note->setFont(noteFont(font()));
    note->setForegroundRole(QPalette::PlaceholderText);
    row->addWidget(note, 1, Qt::AlignRight);
    addWide(tools);
    m_okButton = addOk(okButton, localized("OK"));
    setFirstField(m_search);
}

QPushButton* SelectionPopover::tickButton(const QString& objectName, const QString& text, bool on)
{
    auto* const button = new QPushButton(text, this);
    button->setObjectName(objectName);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, on] { m_tickAll(on); });
    return button;
}

void SelectionPopover::startSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

// The search of the last time is gone, and the groups of the top level stand open.
void SelectionPopover::startAfresh()
{
    m_search->clear();
    if (auto* const tree = qobject_cast<TreeList*>(m_list))
        tree->expandToDepth(0);
}

// The keys of the window wait while a popover is open; this one has its own search.
void SelectionPopover::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Find))
        startSearch();
    else
        PopoverPanel::keyPressEvent(event);
}

// Return in the list is OK: its rows have nothing to open.
bool SelectionPopover::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_list && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            m_okButton->click();
            return true;
        }
    }
    // It does not stay behind on another page.
    if (watched == m_page && event->type() == QEvent::Hide && !event->spontaneous())
        m_popover.close();
    return PopoverPanel::eventFilter(watched, event);
}

} // namespace zelvor
