#include "desktop/project_window.h"

#include "core/localized.h"
#include "desktop/binding.h"
#include "desktop/desktop_settings.h"
#include "desktop/icons.h"
#include "desktop/measures.h"
#include "desktop/theme.h"
#include "desktop/window_place.h"
#include "shell/application_shell.h"

#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtGui/QCloseEvent>
#include <QtGui/QShortcut>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr QSize firstSize(760, 440);
constexpr int narrowestName = 220;

const QString& placeKey()
{
    static const QString key = u"projects"_s;
    return key;
}

QPushButton* makeButton(const QString& text, const QString& icon, const QString& name = {})
{
    auto* const button = new QPushButton(lineIcon(icon), text);
    button->setAutoDefault(true);
    if (!name.isEmpty())
        button->setObjectName(name);
    return button;
}

} // namespace

ProjectWindow::ProjectWindow(ApplicationShell& shell, DesktopSettings& settings)
    : m_controller(shell.startWindowController), m_settings(settings), m_stack(new QStackedWidget),
      m_table(new QTableWidget)
{
    setObjectName(u"projectWindow"_s);
    setWindowIcon(pictureIcon(u"zelvor"_s));
    layOut();
    addKeys(shell);
    restorePlace(*this, settings, placeKey(), firstSize);
    m_controller.onReload = [this] { showList(); };
    const QPointer<ProjectWindow> self(this);
    m_controller.window.onChange([self] {
        if (self)
            self->showOrHide();
    });
    m_controller.windowTitle.onChange([self] {
        if (self)
            self->setWindowTitle(self->m_controller.windowTitle.text());
    });
    m_controller.tableView.onChange([self] {
        if (self)
            self->followSelection();
    });
}

ProjectWindow::~ProjectWindow()
{
    m_controller.onReload = {};
}

void ProjectWindow::layOut()
{
    auto* const heading = new QLabel(localized("Projects"));
    heading->setFont(titleFont(font()));
    prepareTable();
    m_stack->addWidget(m_table);
    m_stack->addWidget(makeEmptyNote());
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(measures::pageMargin, measures::pageMargin, measures::pageMargin,
                             measures::pageMargin);
    rows->setSpacing(measures::rowGap);
    rows->addWidget(heading);
    rows->addWidget(m_stack, 1);
    rows->addWidget(makeButtons());
}

void ProjectWindow::prepareTable()
{
    m_table->setObjectName(m_controller.tableView.name());
    m_table->setAccessibleName(localized("Known projects"));
    m_table->setColumnCount(2);
    m_table->setHorizontalHeaderLabels({localized("Name"), localized("File")});
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->setTextElideMode(Qt::ElideMiddle);
    m_table->setIconSize({measures::menuIcon, measures::menuIcon});
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 2 * measures::rowPadding);
    QHeaderView* const header = m_table->horizontalHeader();
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setSectionResizeMode(0, QHeaderView::Interactive);
    header->setSectionResizeMode(1, QHeaderView::Stretch);
    header->resizeSection(0, narrowestName);
    connect(m_table, &QTableWidget::itemSelectionChanged, this, &ProjectWindow::takeSelection);
    connect(m_table, &QTableWidget::cellDoubleClicked, this,
            [this] { m_controller.openButton.userChanged(); });
}

QWidget* ProjectWindow::makeButtons()
{
    QPushButton* const open = makeButton(localized("Open"), u"open"_s);
    QPushButton* const create = makeButton(localized("New…"), u"create"_s, u"createNewBusiness"_s);
    QPushButton* const existing =
        makeButton(localized("Open Existing…"), u"project"_s, u"openExistingProject"_s);
    QPushButton* const forget = makeButton(localized("Forget"), u"forget"_s);
    forget->setToolTip(localized("Takes the project off this list. Its file stays where it is."));
    bind(m_controller.openButton, open);
    bind(m_controller.deleteButton, forget);
    connect(create, &QPushButton::clicked, this, [this] { m_controller.createNewBusiness(); });
    connect(existing, &QPushButton::clicked, this, [this] { m_controller.openExistingProject(); });
    auto* const bar = new QWidget;
    auto* const row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(measures::rowGap);
    row->addWidget(open);
    row->addWidget(create);
    row->addWidget(existing);
    row->addStretch(1);
    row->addWidget(forget);
    return bar;
}

QWidget* ProjectWindow::makeEmptyNote()
{
    auto* const note =
        new QLabel(localized("No projects yet.\n\nPress New… to start the books of your "
                             "business,\nor Open Existing… for a project file that you have."));
    note->setObjectName(u"emptyNote"_s);
    note->setAlignment(Qt::AlignCenter);
    note->setWordWrap(true);
    return note;
}

void ProjectWindow::addKeys(ApplicationShell& shell)
{
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* const open = new QShortcut(QKeySequence(key), m_table);
        open->setContext(Qt::WidgetShortcut);
        connect(open, &QShortcut::activated, this, [this] { m_controller.openButton.userChanged(); });
    }
    auto* const forget = new QShortcut(QKeySequence(Qt::Key_Delete), m_table);
    forget->setContext(Qt::WidgetShortcut);
    connect(forget, &QShortcut::activated, this, [this] { m_controller.deleteButton.userChanged(); });
    connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this,
            [&shell] { shell.mainWindowController.showHelp(); });
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q), this), &QShortcut::activated, this,
            &ProjectWindow::quitRequested);
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_N), this), &QShortcut::activated, this,
            [this] { m_controller.createNewBusiness(); });
    connect(new QShortcut(QKeySequence(QKeySequence::Open), this), &QShortcut::activated, this,
            [this] { m_controller.openExistingProject(); });
}

void ProjectWindow::showOrHide()
{
    if (!m_controller.window.isOpen()) {
        hide();
        return;
    }
    setWindowTitle(m_controller.windowTitle.text());
    showList();
    show();
    m_stack->currentWidget() == m_table ? m_table->setFocus()
                                        : findChild<QPushButton*>(u"createNewBusiness"_s)->setFocus();
}

void ProjectWindow::showList()
{
    {
        const QSignalBlocker quiet(m_table);
        m_table->setRowCount(0);
        for (const Business& business : m_controller.businesses)
            addRow(business);
        m_table->clearSelection();
        m_table->setCurrentCell(-1, -1);
    }
    m_stack->setCurrentIndex(m_controller.businesses.empty() ? 1 : 0);
    followSelection();
}

void ProjectWindow::addRow(const Business& business)
{
    const bool missing = !QFileInfo::exists(business.url);
    auto* const name = new QTableWidgetItem(lineIcon(missing ? u"warning"_s : u"project"_s), business.name);
    name->setToolTip(business.name.toHtmlEscaped());
    const QString path = missing ? localized("Missing: ") + business.url : business.url;
    auto* const file = new QTableWidgetItem(path);
    file->setToolTip(path.toHtmlEscaped());
    file->setForeground(missing ? textColor(redColor, palette())
                                : palette().color(QPalette::PlaceholderText));
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    m_table->setItem(row, 0, name);
    m_table->setItem(row, 1, file);
}

void ProjectWindow::followSelection()
{
    const int row = m_controller.tableView.selectedRow();
    if (row == m_table->currentRow() || row >= m_table->rowCount())
        return;
    const QSignalBlocker quiet(m_table);
    row < 0 ? m_table->clearSelection() : m_table->selectRow(row);
}

void ProjectWindow::takeSelection()
{
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    m_controller.tableView.selectRow(rows.isEmpty() ? -1 : rows.constFirst().row());
    m_controller.tableView.userChanged();
}

void ProjectWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    m_controller.window.close();
    Q_EMIT left();
}

void ProjectWindow::hideEvent(QHideEvent* event)
{
    rememberPlace(*this, m_settings, placeKey());
    QWidget::hideEvent(event);
}

} // namespace zelvor
