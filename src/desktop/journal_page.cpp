#include "desktop/journal_page.h"

#include "core/dialogs.h"
#include "core/localized.h"
#include "desktop/binding.h"
#include "desktop/busy_cursor.h"
#include "desktop/icons.h"
#include "desktop/measures.h"
#include "desktop/period_bar.h"
#include "desktop/report_tools.h"
#include "desktop/sort_keeper.h"
#include "desktop/wrap_layout.h"
#include "documents/document_journal_view_controller.h"

#include <QtCore/QPointer>
#include <QtGui/QAction>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

JournalPage::JournalPage(DocumentJournalViewController& controller, QWidget* parent)
    : TablePage(controller.mainView, controller.appDelegate.calendar,
                localized("No documents in this period. Choose other dates, or press \"This period\"."),
                parent),
      m_controller(controller), m_order(new SortKeeper(list()))
{
    rows()->insertLayout(1, makeControls());
    makeMenu();
    list()->installEventFilter(this);
    showBusyCursor(controller.progress, this);
    const QPointer<JournalPage> self(this);
    controller.progress.onChange([self] {
        if (self && !self->m_controller.progress.isRunning())
            self->m_order->sortAgain();
    });
    controller.mainView.onReload([self] {
        if (self)
            self->showTitle(self->view().name());
    });
}

QLayout* JournalPage::makeControls()
{
    auto* const bar = new WrapLayout(measures::groupGap, measures::rowGap);
    m_period = new PeriodBar(
        {m_controller.dateFrom, m_controller.dateFromLabel, m_controller.dateTo, m_controller.dateToLabel},
        m_controller.appDelegate.calendar, this);
    connect(m_period, &PeriodBar::currentPeriodChosen, this, [this] { m_controller.setCurrentPeriod(); });
    bar->addWidget(m_period);

    auto* const types = new QWidget(this);
    auto* const row = new QHBoxLayout(types);
    row->setContentsMargins({});
    row->setSpacing(measures::labelGap);
    auto* const caption = new QLabel(localized("Type"), types);
    auto* const type = new QComboBox(types);
    bind(m_controller.docTypeSelect, type, localized("Type of document"));
    caption->setBuddy(type);
    row->addWidget(caption);
    row->addWidget(type);
    bar->addWidget(types);

    auto* const refreshButton = makeRefreshButton(this);
    connect(refreshButton, &QPushButton::clicked, this, [this] { perform(PageCommand::Refresh); });
    bar->addWidget(refreshButton);
    chainTabs({searchLine(), m_period->firstField()});
    chainTabs({m_period->lastField(), type, refreshButton, list()});
    return bar;
}

void JournalPage::makeMenu()
{
    m_menu = new QMenu(this);
    m_menu->setObjectName(u"journalMenu"_s);
    m_delete = m_menu->addAction(lineIcon(u"delete"_s), localized("Delete Document"));
    m_delete->setObjectName(m_controller.deleteDocumentMenuItem.name());
    m_menu->addSeparator();
    m_open = m_menu->addAction(lineIcon(u"open"_s), localized("Open Document"));
    m_open->setObjectName(u"openDocumentMenuItem"_s);
    connect(m_delete, &QAction::triggered, this, [this] { askToDelete(list()->currentRow()); });
    connect(m_open, &QAction::triggered, this, [this] { m_controller.openDocument(list()->currentRow()); });
    list()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list(), &QWidget::customContextMenuRequested, this, [this](const QPoint& place) {
        const QModelIndex cell = list()->indexAt(place);
        const int row = cell.isValid() ? list()->tableModel()->viewRow(cell.row()) : -1;
        showMenu(row, list()->viewport()->mapToGlobal(place));
    });
}

void JournalPage::showMenu(int row, const QPoint& place)
{
    if (row >= 0)
        list()->selectViewRow(row);
    m_controller.menuWillOpen(row);
    m_delete->setEnabled(m_controller.deleteDocumentMenuItem.enabled());
    m_open->setEnabled(row >= 0);
    m_menu->popup(place);
}

void JournalPage::askToDelete(int row)
{
    const std::shared_ptr<DocumentModel> document = m_controller.mainView.documentAt(row);
    if (!document || document->confirmed)
        return;
    Alert question;
    question.messageText = localized("Delete the document?");
    question.informativeText =
        document->journalName() + u'\n' + localized("A deleted document cannot be brought back.");
    question.buttons = {localized("Delete"), localized("Cancel")};
    const QPointer<JournalPage> self(this);
    m_controller.appDelegate.dialogs.ask(question, [self, document](int answer) {
        // The journal may have been read anew while the question stood there.
        if (!self || answer != firstButton)
            return;
        self->m_controller.mainView.selectDocument(document.get());
        self->deleteRow(self->m_controller.mainView.selectedRow());
    });
}

// The cursor goes on to the document that takes the place of the deleted one, also among the found ones.
void JournalPage::deleteRow(int row)
{
    const TableViewModel& model = *list()->tableModel();
    const int place = model.shownRow(row);
    m_controller.menuWillOpen(row);
    if (!m_controller.deleteDocumentMenuItem.userChanged())
        return;
    list()->selectViewRow(model.viewRow(std::min(place, model.rowCount() - 1)));
    list()->setFocus(Qt::OtherFocusReason);
}

bool JournalPage::can(PageCommand command) const
{
    if (command != PageCommand::Delete)
        return TablePage::can(command);
    const std::shared_ptr<DocumentModel> document = m_controller.mainView.documentAt(list()->currentRow());
    return document && !document->confirmed;
}

void JournalPage::perform(PageCommand command)
{
    if (command == PageCommand::Refresh) {
        m_period->commit();
        m_controller.updateJournal();
    } else if (command == PageCommand::Delete) {
        askToDelete(list()->currentRow());
    } else {
        TablePage::perform(command);
    }
}

bool JournalPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == list() && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete) {
        askToDelete(list()->currentRow());
        return true;
    }
    // The key for the menu means the row under the cursor, wherever that stands.
    if (watched == list() && event->type() == QEvent::ContextMenu &&
        static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard) {
        list()->scrollTo(list()->currentIndex());
        const QRect cell = list()->visualRect(list()->currentIndex());
        showMenu(list()->currentRow(), list()->viewport()->mapToGlobal(cell.bottomLeft()));
        return true;
    }
    return TablePage::eventFilter(watched, event);
}

} // namespace zelvor
