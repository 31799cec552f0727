#include "desktop/product_document_page.h"

#include "catalogs/contragent_select_view.h"
#include "core/localized.h"
#include "desktop/binding.h"
#include "desktop/contragent_chooser.h"
#include "desktop/icons.h"
#include "desktop/measures.h"
#include "desktop/number_entry.h"
#include "desktop/paper_field.h"
#include "desktop/product_chooser_panel.h"
#include "desktop/product_document_fields.h"
#include "desktop/product_document_totals.h"
#include "desktop/product_entry_line.h"
#include "desktop/product_rows_panel.h"
#include "desktop/product_rows_table.h"
#include "desktop/search_line.h"
#include "desktop/tool_button.h"
#include "documents/product_document_view_controller.h"

#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// The one button of the page that stands out. The style lightens a button's colour.
void makeStrong(QPushButton* button)
{
    QPalette palette = QGuiApplication::palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Button, palette.color(group, QPalette::Highlight).darker(150));
        palette.setColor(group, QPalette::ButtonText, palette.color(group, QPalette::HighlightedText));
    }
    if (palette != button->palette())
        button->setPalette(palette);
}

} // namespace

ProductDocumentPage::ProductDocumentPage(ProductDocumentViewController& controller, QWidget* parent)
    : Page(controller.mainView, parent), m_controller(controller),
      m_fields(new ProductDocumentFields(controller)), m_sheet(new ProductRowsPanel(controller)),
      m_totals(new ProductDocumentTotals(controller)), m_splitter(new QSplitter)
{
    bind(controller.documentTitle, heading());
    makeTools();
    makeBody();
    followForm();
    showState();
}

ProductDocumentPage::~ProductDocumentPage()
{
    delete m_chooser; // lies over the window
}

void ProductDocumentPage::makeTools()
{
    ProductDocumentView& view = m_controller.mainView;
    makeButton(view.saveButton, localized("Save"), u"save"_s, PageCommand::Save)
        ->setToolTip(localized("Save the draft (Ctrl+S)"));
    m_confirm = makeButton(view.confirmButton, localized("Confirm"), u"confirm"_s, PageCommand::Confirm);
    m_confirm->setIcon({}); // the icons are drawn for plain ground
    makeStrong(m_confirm);
    auto* const print = new ToolButton(u"print"_s, localized("Print"), localized("Print (Ctrl+P)"), this);
    print->setObjectName(u"printButton"_s);
    print->setEnabled(can(PageCommand::Print));
    tools()->addWidget(print);
    auto* const remove =
        new ToolButton(u"delete"_s, localized("Delete"), localized("Delete the document"), this);
    bind(view.deleteDocButton, remove);
    tools()->addWidget(remove);
    auto* const more = new ToolButton(u"menu"_s, localized("More"), localized("More commands"), this);
    more->setObjectName(u"moreButton"_s);
    more->setToolButtonStyle(Qt::ToolButtonIconOnly);
    auto* const menu = new QMenu(more);
    QAction* const close = menu->addAction(lineIcon(u"close"_s), localized("Close"));
    // The page goes with its tab: not before the menu is done.
    connect(
        close, &QAction::triggered, this, [this] { onClose ? onClose() : m_controller.closeDoc(); },
        Qt::QueuedConnection);
    more->setMenu(menu);
    more->setPopupMode(QToolButton::InstantPopup);
    tools()->addWidget(more);
}

// What is being typed is part of what is saved, so a press ends the editing first.
QPushButton* ProductDocumentPage::makeButton(Button& outlet, const QString& text, const QString& icon,
                                             PageCommand command)
{
    auto* const button = new QPushButton(lineIcon(icon), text);
    button->setObjectName(outlet.name());
    button->setAccessibleName(text);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAutoDefault(true);
    const QPointer<QPushButton> shown(button);
    const auto follow = [shown, &outlet] {
        if (shown)
            shown->setEnabled(outlet.enabled());
    };
    outlet.onChange(follow);
    follow();
    connect(button, &QPushButton::clicked, this, [this, command] { perform(command); });
    tools()->addWidget(button);
    return button;
}

void ProductDocumentPage::makeBody()
{
    // In reading order, which the Tab key follows.
    rows()->addWidget(m_fields);
    rows()->addWidget(m_splitter, 1);
    m_splitter->setObjectName(u"documentSplitter"_s);
    m_splitter->addWidget(m_sheet);
    m_products = new ProductChooserPanel(m_controller, this);
    m_splitter->addWidget(m_products);
    m_splitter->setStretchFactor(0, 7);
    m_splitter->setStretchFactor(1, 3);
    m_splitter->setSizes({700, 300});
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setHandleWidth(measures::rowGap);
    rows()->addWidget(makeFoot());
}

QWidget* ProductDocumentPage::makeFoot()
{
    ProductDocumentView& view = m_controller.mainView;
    auto* const remove = new ToolButton(u"remove"_s, localized("Delete Row"),
                                        localized("Delete the selected row (Delete)"), this);
    remove->setObjectName(view.deleteSelectedRowsButton.name());
    const QPointer<ToolButton> shown(remove);
    const Button& outlet = view.deleteSelectedRowsButton;
    const auto follow = [shown, &outlet] {
        if (shown)
            shown->setEnabled(outlet.enabled());
    };
    view.deleteSelectedRowsButton.onChange(follow);
    follow();
    connect(remove, &QToolButton::clicked, m_sheet, &ProductRowsPanel::deleteRow);
    m_deleteRow = remove;

    auto* const comment = new QLineEdit;
    bind(view.comment, comment, localized("Comment"));
    m_comment = new PaperField(comment, [&view] { return view.comment.text(); });
    auto* const label = new QLabel(localized("Comment"));
    label->setBuddy(comment);
    auto* const commentLine = new QHBoxLayout;
    commentLine->setSpacing(measures::labelGap);
    commentLine->addWidget(label);
    commentLine->addWidget(m_comment, 1);
    auto* const left = new QVBoxLayout;
    left->setSpacing(measures::rowGap);
    left->addWidget(remove, 0, Qt::AlignLeft);
    left->addLayout(commentLine);
    left->addStretch(1);

    auto* const foot = new QWidget;
    auto* const layout = new QHBoxLayout(foot);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2 * measures::groupGap);
    layout->addLayout(left, 1);
    layout->addWidget(m_totals);
    return foot;
}

void ProductDocumentPage::followForm()
{
    connect(m_fields, &ProductDocumentFields::contragentAsked, this, &ProductDocumentPage::askContragent);
    connect(m_products, &ProductChooserPanel::productChosen, m_sheet, &ProductRowsPanel::takeProduct);
    const QPointer<ProductDocumentPage> self(this);
    m_controller.onEndEditing = [self] { return !self || self->finishEditing(); };
    m_controller.mainView.onReload([self] {
        if (self)
            self->showState();
    });
    m_controller.documentTitle.onChange([self] {
        if (self)
            self->showState();
    });
    m_controller.mainView.confirmButton.onChange([self] {
        if (self)
            self->showState();
    });
}

void ProductDocumentPage::showState()
{
    const QStringList missing = m_controller.mainView.missingInputs();
    m_confirm->setToolTip(missing.isEmpty() || !m_controller.isEditable()
                              ? localized("Confirm the document (Ctrl+Return)")
                              : localized("These inputs are missing: ") + missing.join(u", "_s));
    setAccessibleName(m_controller.documentTitle.text());
    const bool paper = !m_controller.isEditable();
    if (paper == m_paper)
        return;
    m_paper = paper;
    m_fields->setPaper(paper);
    m_sheet->setPaper(paper);
    m_totals->setPaper(paper);
    m_comment->setPaper(paper);
    m_products->setVisible(!paper);
    m_deleteRow->setVisible(!paper);
    paintPaper();
}

// Paper is white all over.
void ProductDocumentPage::paintPaper()
{
    QPalette colors = QGuiApplication::palette();
    if (m_paper)
        colors.setColor(QPalette::Window, colors.color(QPalette::Base));
    setAutoFillBackground(m_paper);
    if (colors != palette())
        setPalette(colors);
}

void ProductDocumentPage::askContragent(const QString& typed)
{
    ContragentSelectView& view = m_controller.contragentSelectView();
    if (!m_chooser) {
        m_chooser = new ContragentChooser(view, m_controller.appDelegate.calendar, this);
        m_chooser->setAnchor([field = QPointer<QWidget>(m_fields->contragentField())] {
            return field ? QRect(field->mapToGlobal(QPoint()), field->size()) : QRect();
        });
        connect(m_chooser, &ContragentChooser::chosen, this, &ProductDocumentPage::goToNextInput);
    }
    m_controller.selectContragent();
    if (!typed.isEmpty() && view.selectPopover.isOpen())
        m_chooser->startWith(typed);
}

// The cursor goes to what is missing first: an input of the head, else the next product.
void ProductDocumentPage::goToNextInput()
{
    QWidget* next = m_fields->firstMissing();
    if (m_paper)
        next = m_sheet->table();
    else if (!next)
        next = m_sheet->entry();
    next->setFocus(Qt::OtherFocusReason);
}

// Back on a tab that was in work the cursor stands where it stood.
void ProductDocumentPage::takeFocus()
{
    QWidget* const before = std::exchange(m_begun, true) ? focusWidget() : nullptr;
    if (before && before != this && before->isEnabled() && before->isVisibleTo(this))
        before->setFocus(Qt::OtherFocusReason);
    else
        goToNextInput();
}

void ProductDocumentPage::refresh()
{
    m_sheet->table()->refresh();
}

bool ProductDocumentPage::can(PageCommand command) const
{
    const ProductDocumentView& view = m_controller.mainView;
    switch (command) {
    case PageCommand::Find:
        return !m_paper;
    case PageCommand::Edit:
        return !m_paper && m_sheet->table()->currentRow() >= 0;
    case PageCommand::Save:
        return view.saveButton.enabled();
    case PageCommand::Confirm:
        return view.confirmButton.enabled();
    case PageCommand::Delete:
        return view.deleteDocButton.enabled();
    default:
        return false;
    }
}

void ProductDocumentPage::perform(PageCommand command)
{
    ProductDocumentView& view = m_controller.mainView;
    switch (command) {
    case PageCommand::Find:
        m_products->searchLine()->setFocus(Qt::ShortcutFocusReason);
        m_products->searchLine()->selectAll();
        break;
    case PageCommand::Edit:
        m_sheet->table()->editCell(m_sheet->table()->currentRow(), u"amount"_s);
        break;
    case PageCommand::Save:
        if (finishEditing())
            view.saveButton.userChanged();
        break;
    case PageCommand::Confirm:
        if (finishEditing() && m_sheet->entry()->isDone() && view.confirmButton.userChanged() && m_paper)
            goToNextInput();
        break;
    case PageCommand::Delete:
        view.deleteDocButton.userChanged();
        break;
    default:
        break;
    }
}

// Takes over what is being typed. False when it is no number: the cursor stays on it.
bool ProductDocumentPage::finishEditing()
{
    return m_sheet->table()->finishEditing() && endEditing(*this);
}

void ProductDocumentPage::changeEvent(QEvent* event)
{
    Page::changeEvent(event);
    if (event->type() != QEvent::ApplicationPaletteChange || !m_confirm)
        return;
    makeStrong(m_confirm);
    paintPaper();
}

} // namespace zelvor
