#include "desktop/catalog_popover.h"

#include "core/localized.h"
#include "desktop/binding.h"
#include "desktop/icons.h"
#include "desktop/measures.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr int columnsOfASide = 4; // label, field, what stands beside it, the gap to the other side
constexpr int widestOfASide = 3;

// As large as the form; scrolls it only where the window is too small.
class FormScroll final : public QScrollArea {
public:
    FormScroll(QWidget* form, QWidget* parent) : QScrollArea(parent)
    {
        setWidget(form);
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        viewport()->setAutoFillBackground(false);
        form->setAutoFillBackground(false);
        // Wherever the cursor comes from.
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
            if (now && widget()->isAncestorOf(now))
                ensureWidgetVisible(now);
        });
    }
    QSize sizeHint() const override { return widget()->sizeHint(); }
    QSize minimumSizeHint() const override
    {
        const QSize form = widget()->minimumSizeHint();
        return {form.width(), std::min(form.height(), 3 * fontMetrics().height())};
    }
};

// The picture and the tip of a lock follow its state.
void showLock(const Button& lock, QToolButton* button)
{
    button->setIcon(lineIcon(lock.isOn() ? u"lock"_s : u"unlock"_s));
    button->setToolTip(lock.isOn()
                           ? localized("Locked: documents keep this figure. Press to change it by hand.")
                           : localized("Open: the figure can be changed by hand."));
}

// Whoever opened the lock goes on in the field.
void goOnWhenOpened(NumberField& outlet, const Button& lock, QLineEdit* line)
{
    const QPointer<QLineEdit> field(line);
    const auto wasOpen = std::make_shared<bool>(outlet.enabled());
    outlet.onChange([&outlet, &lock, field, wasOpen] {
        const bool before = std::exchange(*wasOpen, outlet.enabled());
        const bool opened = outlet.enabled() && !before;
        if (!opened || !field || !field->isVisible() || !lock.enabled() || lock.isOn())
            return;
        field->setFocus(Qt::OtherFocusReason);
        field->selectAll();
    });
}

QRect globalRect(const QWidget* widget)
{
    return {widget->mapToGlobal(QPoint()), widget->size()};
}

bool isInAPopover(const QWidget* widget)
{
    for (const QWidget* w = widget; w; w = w->parentWidget()) {
        if (qobject_cast<const PopoverPanel*>(w))
            return true;
    }
    return false;
}

} // namespace

CatalogPopover::CatalogPopover(Popover& outlet, QWidget* host, std::function<void()> cancel)
    : PopoverPanel(outlet, host), m_popover(outlet), m_cancelForm(std::move(cancel)), m_host(host),
      m_form(new QWidget), m_grid(new QGridLayout(m_form))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(measures::labelGap);
    m_grid->setVerticalSpacing(measures::rowGap);
    addWide(new FormScroll(m_form, this));
    setOnCancel(m_cancelForm);
    setAnchor([this] { return anchor(); });
    connect(host, &QObject::destroyed, this, [this] { delete this; });
    host->installEventFilter(this);
}

// A form that is gone must not stay open behind the controller's back: it could never be opened again.
CatalogPopover::~CatalogPopover()
{
    if (m_popover.isOpen())
        m_cancelForm();
}

// The form does not stay behind on another page.
bool CatalogPopover::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_host && event->type() == QEvent::Hide && !event->spontaneous() && m_popover.isOpen())
        m_cancelForm();
    return PopoverPanel::eventFilter(watched, event);
}

// Asked anew when the window changes its size: then the focus is in here already.
QRect CatalogPopover::anchor()
{
    QWidget* const focused = QApplication::focusWidget();
    if (focused && !isAncestorOf(focused))
        m_asker = focused;
    if (m_asker && isInAPopover(m_asker))
        return globalRect(m_asker);
    const QRect row = m_rowAnchor ? m_rowAnchor() : QRect();
    if (!row.isNull())
        return row;
    return m_asker ? globalRect(m_asker) : m_host ? globalRect(m_host) : QRect();
}

void CatalogPopover::addField(const QString& text, QWidget* field, QWidget* beside)
{
    const int side = m_inColumns ? m_column : 0;
    const int row = m_inColumns ? m_rows[side] : std::max(m_rows[0], m_rows[1]);
    const int first = side * columnsOfASide;
    if (!text.isEmpty()) {
        auto* const label = new QLabel(text, m_form);
        label->setBuddy(field);
        m_grid->addWidget(label, row, first, Qt::AlignRight | Qt::AlignVCenter);
    }
    const int last = m_inColumns ? first + widestOfASide : columnsOfASide + widestOfASide;
    m_grid->addWidget(field, row, first + 1, 1, last - first - 1 - (beside ? 1 : 0));
    if (beside)
        m_grid->addWidget(beside, row, last - 1);
    m_rows[side] = row + 1;
    if (!m_inColumns)
        m_rows[1] = row + 1;
}

void CatalogPopover::addPair(const QString& text, QWidget* narrow, QWidget* wide)
{
    auto* const pair = new QWidget(m_form);
    auto* const layout = new QHBoxLayout(pair);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(measures::rowGap);
    layout->addWidget(narrow);
    layout->addWidget(wide, 1);
    pair->setFocusProxy(narrow); // the label's mnemonic leads to it
    addField(text, pair);
}

void CatalogPopover::startColumns()
{
    m_inColumns = true;
    m_column = 0;
    m_grid->setColumnMinimumWidth(columnsOfASide - 1, measures::groupGap);
    m_grid->setColumnStretch(1, 1);
    m_grid->setColumnStretch(columnsOfASide + 1, 1);
}

void CatalogPopover::nextColumn()
{
    m_column = 1;
}

void CatalogPopover::endColumns()
{
    m_inColumns = false;
}

QLineEdit* CatalogPopover::addText(TextField& outlet, const FieldName& name)
{
    auto* const line = new QLineEdit(m_form);
    line->setMinimumWidth(fontMetrics().averageCharWidth() * (m_inColumns ? 26 : 36));
    bind(outlet, line, name.accessibleName);
    addField(name.label, line);
    return line;
}

void CatalogPopover::addLines(TextField& outlet, const FieldName& name)
{
    auto* const lines = new QPlainTextEdit(m_form);
    lines->setTabChangesFocus(true);
    lines->setFixedHeight(fontMetrics().lineSpacing() * 3 + 12);
    bind(outlet, lines, name.accessibleName);
    addField(name.label, lines);
    if (QLayoutItem* const label = m_grid->itemAtPosition(m_rows[0] - 1, 0))
        label->setAlignment(Qt::AlignRight | Qt::AlignTop);
}

QLineEdit* CatalogPopover::addNumber(NumberField& outlet, const FieldName& name, int decimals)
{
    auto* const line = new QLineEdit(m_form);
    line->setMinimumWidth(fontMetrics().averageCharWidth() * 14);
    bind(outlet, line, name.accessibleName, decimals);
    addField(name.label, line);
    return line;
}

void CatalogPopover::addLocked(NumberField& outlet, Button& lock, const FieldName& name,
                               const QString& lockName)
{
    auto* const line = new QLineEdit(m_form);
    line->setMinimumWidth(fontMetrics().averageCharWidth() * 14);
    bind(outlet, line, name.accessibleName);
    QToolButton* const button = makeSmallButton(lockName);
    button->setCheckable(true);
    bind(lock, button);
    showLock(lock, button);
    const QPointer<QToolButton> shown(button);
    lock.onChange([&lock, shown] {
        if (shown)
            showLock(lock, shown);
    });
    goOnWhenOpened(outlet, lock, line);
    addField(name.label, line, button);
}

QComboBox* CatalogPopover::makeChooser(PopUpButton& outlet, const QString& accessibleName)
{
    auto* const box = new QComboBox(m_form);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(16);
    box->setMaxVisibleItems(16);
    bind(outlet, box, accessibleName);
    return box;
}

void CatalogPopover::addChooser(PopUpButton& outlet, const FieldName& name)
{
    addField(name.label, makeChooser(outlet, name.accessibleName));
}

// The focus is in the chooser when the other popover opens: there it comes back to, with the new entry
// chosen.
void CatalogPopover::addChooser(PopUpButton& outlet, const FieldName& name, const AddBeside& adding)
{
    QComboBox* const box = makeChooser(outlet, name.accessibleName);
    QToolButton* const add = makeSmallButton(adding.accessibleName);
    add->setObjectName(adding.objectName);
    add->setIcon(lineIcon(u"add"_s));
    add->setToolTip(adding.accessibleName);
    connect(add, &QToolButton::clicked, this, [box, action = adding.action] {
        box->setFocus(Qt::OtherFocusReason);
        action();
    });
    addField(name.label, box, add);
}

void CatalogPopover::addCheckBox(CheckBox& outlet, const QString& text, const QString& tip)
{
    auto* const box = new QCheckBox(text, m_form);
    box->setToolTip(tip);
    box->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed); // what can be clicked, and no more
    bind(outlet, box);
    addField({}, box);
}

QToolButton* CatalogPopover::makeSmallButton(const QString& accessibleName)
{
    auto* const button = new QToolButton(m_form);
    button->setAccessibleName(accessibleName);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAutoRaise(true);
    button->setIconSize({measures::menuIcon, measures::menuIcon});
    return button;
}

void CatalogPopover::finish(QLineEdit* first, Label& error, Button& okButton)
{
    setError(error);
    addOk(okButton, localized("OK"));
    setFirstField(first);
    keepTabOrder(first);
}

// The fields in the order in which they were made, then Cancel, then OK.
void CatalogPopover::keepTabOrder(QLineEdit* first)
{
    QWidget* last = first;
    for (QWidget* const field : m_form->findChildren<QWidget*>()) {
        if (field == first || field->window() != window() || field->focusProxy() ||
            !(field->focusPolicy() & Qt::TabFocus))
            continue;
        setTabOrder(last, field);
        last = field;
    }
    for (QPushButton* const button : findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        setTabOrder(last, button);
        last = button;
    }
}

} // namespace zelvor
