#include "desktop/popover_panel.h"

#include "core/localized.h"
#include "desktop/binding.h"
#include "desktop/measures.h"
#include "desktop/number_entry.h"
#include "desktop/theme.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr int arrow = 10;
constexpr int radius = 6;
constexpr int pointedAt = 320; // of a long row, its beginning is pointed at

QRect roomIn(const QWidget& window)
{
    return window.rect().adjusted(measures::labelGap, measures::labelGap, -measures::labelGap,
                                  -measures::labelGap);
}

// As large as the fields in it; scrolls them only where the window is too small.
class FieldScroll final : public QScrollArea {
public:
    explicit FieldScroll(QWidget* fields)
    {
        setWidget(fields);
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        viewport()->setAutoFillBackground(false);
        fields->setAutoFillBackground(false);
        // Wherever the focus comes from, its field is seen.
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
            if (now && widget()->isAncestorOf(now))
                ensureWidgetVisible(now);
        });
    }
    QSize sizeHint() const override { return widget()->sizeHint(); }
    QSize minimumSizeHint() const override
    {
        const QSize fields = widget()->minimumSizeHint();
        return {fields.width(), std::min(fields.height(), 3 * fontMetrics().height())};
    }
};

} // namespace

PopoverPanel::PopoverPanel(Popover& outlet, QWidget* host)
    : QFrame(host->window()), m_outlet(outlet), m_host(host), m_rows(new QVBoxLayout(this)),
      m_fields(new QGridLayout), m_buttons(new QHBoxLayout)
{
    setObjectName(outlet.name());
    setFocusPolicy(Qt::NoFocus);
    const int margin = measures::pageMargin + arrow;
    m_rows->setContentsMargins(margin, margin, margin, margin);
    m_rows->setSpacing(measures::rowGap);
    m_fields->setHorizontalSpacing(measures::rowGap);
    m_fields->setVerticalSpacing(measures::rowGap);
    m_fields->setColumnStretch(1, 1);
    m_fields->setContentsMargins(0, 0, 0, 0);
    auto* const fields = new QWidget;
    fields->setLayout(m_fields);
    m_rows->addWidget(new FieldScroll(fields), 1);
    auto* const cancelButton = new QPushButton(localized("Cancel"));
    cancelButton->setObjectName(u"cancelButton"_s);
    cancelButton->setAutoDefault(false);
    connect(cancelButton, &QPushButton::clicked, this, [this] { cancel(); });
    m_buttons->addStretch(1);
    m_buttons->addWidget(cancelButton);
    m_rows->addLayout(m_buttons);
    hide();
    const QPointer<PopoverPanel> self(this);
    outlet.onChange([self] {
        if (self)
            self->m_outlet.isOpen() ? self->openPanel() : self->closePanel();
    });
    connect(host, &QObject::destroyed, this, [this] { delete this; });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { keepFocus(now); });
}

PopoverPanel::~PopoverPanel()
{
    disconnect(qApp, nullptr, this, nullptr); // the focus still moves while the fields go
    delete m_shield.data();
}

void PopoverPanel::setTitle(Label& title)
{
    auto* const label = new QLabel(this);
    label->setFont(titleFont(font()));
    bind(title, label);
    m_rows->insertWidget(0, label);
    setAccessibleName(title.text());
    const QPointer<PopoverPanel> self(this);
    title.onChange([self, &title] {
        if (self)
            self->setAccessibleName(title.text());
    });
}

QLabel* PopoverPanel::addRow(const QString& text, QWidget* field, QWidget* beside)
{
    auto* const label = new QLabel(text, this);
    label->setBuddy(field);
    const int row = m_fields->rowCount();
    m_fields->addWidget(label, row, 0, Qt::AlignRight | Qt::AlignVCenter);
    m_fields->addWidget(field, row, 1, 1, beside ? 1 : 2);
    if (beside)
        m_fields->addWidget(beside, row, 2);
    return label;
}

void PopoverPanel::addWide(QWidget* widget)
{
    m_fields->addWidget(widget, m_fields->rowCount(), 0, 1, 3);
}

void PopoverPanel::setError(Label& error)
{
    auto* const label = new QLabel(this);
    label->setMinimumHeight(label->fontMetrics().height());
    label->setWordWrap(true);
    error.setColor(redColor);
    bind(error, label);
    m_rows->insertWidget(m_rows->count() - 1, label);
}

QPushButton* PopoverPanel::addOk(Button& okButton, const QString& text)
{
    m_ok = new QPushButton(text, this);
    m_ok->setDefault(true);
    m_ok->setAutoDefault(false);
    bind(okButton, m_ok);
    m_buttons->addWidget(m_ok);
    return m_ok;
}

void PopoverPanel::openPanel()
{
    if (m_open)
        return;
    if (m_host->window() != parentWidget()) // the page has come into another window since
        setParent(m_host->window());
    m_open = true;
    m_focusBefore = QApplication::focusWidget();
    if (!m_shield) {
        m_shield = new QWidget(window());
        m_shield->setObjectName(u"popoverShield"_s);
        window()->installEventFilter(this);
    }
    m_shield->setGeometry(window()->rect());
    m_shield->show();
    m_shield->raise();
    place();
    show();
    raise();
    QWidget* const first = firstField();
    first->setFocus(Qt::PopupFocusReason);
    if (auto* const line = qobject_cast<QLineEdit*>(first))
        line->selectAll();
}

QWidget* PopoverPanel::firstField() const
{
    if (m_first && m_first->isEnabled())
        return m_first;
    return m_ok && m_ok->isEnabled() ? m_ok : findChild<QPushButton*>(u"cancelButton"_s);
}

void PopoverPanel::closePanel()
{
    if (!m_open)
        return;
    m_open = false;
    dropTyping(*this);
    hide();
    if (m_shield)
        m_shield->hide();
    QWidget* const next = m_focusBefore && m_focusBefore->isVisible() ? m_focusBefore.data() : m_host;
    next->setFocus(Qt::PopupFocusReason);
}

// Whether no other form was opened from this one. What was raised last is the last child.
bool PopoverPanel::isInFront() const
{
    const auto panels = window()->findChildren<PopoverPanel*>(QString(), Qt::FindDirectChildrenOnly);
    const auto front =
        std::find_if(panels.rbegin(), panels.rend(), [](const PopoverPanel* panel) { return panel->m_open; });
    return front != panels.rend() && *front == this;
}

void PopoverPanel::keepFocus(QWidget* now)
{
    if (m_open && now && now->window() == window() && !isAncestorOf(now) && isInFront())
        firstField()->setFocus(Qt::PopupFocusReason);
}

// No larger than the window.
QSize PopoverPanel::fittingSize() const
{
    return sizeHint().boundedTo(roomIn(*window()).size());
}

// Beside the anchor where there is room: below it, else above it, and never outside the window.
void PopoverPanel::place()
{
    QWidget* const area = window();
    const QRect room = roomIn(*area);
    resize(fittingSize());
    QRect anchor = m_anchor ? m_anchor() : QRect(m_host->mapToGlobal(QPoint()), m_host->size());
    anchor.moveTopLeft(area->mapFromGlobal(anchor.topLeft()));
    const int middle =
        std::clamp(anchor.left() + std::min(anchor.width(), pointedAt) / 2, room.left(), room.right());
    const bool below = anchor.bottom() + height() <= room.bottom() ||
                       room.bottom() - anchor.bottom() >= anchor.top() - room.top();
    const int top = below ? anchor.bottom() : anchor.top() - height();
    const int left = middle - width() / 2;
    move(std::clamp(left, room.left(), std::max(room.left(), room.right() - width())),
         std::clamp(top, room.top(), std::max(room.top(), room.bottom() - height())));
    m_tip = mapFrom(area, QPoint(middle, below ? anchor.bottom() : anchor.top()));
}

void PopoverPanel::cancel()
{
    if (m_cancel)
        m_cancel();
    else
        m_outlet.close();
}

// The commands of the window behind wait as well: no key leads away from an open form.
bool PopoverPanel::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride)
        event->accept();
    // An error of two lines, or a field that shows now, needs its room.
    if (event->type() == QEvent::LayoutRequest && m_open && fittingSize() != size())
        place();
    return QFrame::event(event);
}

void PopoverPanel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        cancel();
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        pressReturn();
    event->accept(); // the page behind hears of no key
}

// A button that has the focus is the one that is meant.
void PopoverPanel::pressReturn()
{
    auto* const button = qobject_cast<QAbstractButton*>(focusWidget());
    if (qobject_cast<QPushButton*>(button) || qobject_cast<QToolButton*>(button))
        button->click();
    else if (m_ok && m_ok->isEnabled())
        m_ok->click();
}

void PopoverPanel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF body = QRectF(rect()).adjusted(arrow, arrow, -arrow, -arrow);
    QPainterPath shape;
    shape.addRoundedRect(body, radius, radius);
    const bool above = m_tip.y() <= body.top();
    const bool beneath = m_tip.y() >= body.bottom();
    if (above || beneath) {
        const double x = std::clamp(double(m_tip.x()), body.left() + 2 * arrow, body.right() - 2 * arrow);
        const double edge = above ? body.top() : body.bottom();
        const double tip = above ? edge - arrow + 1 : edge + arrow - 1;
        QPainterPath pointer;
        pointer.moveTo(x - arrow, edge);
        pointer.lineTo(x, tip);
        pointer.lineTo(x + arrow, edge);
        pointer.closeSubpath();
        shape = shape.united(pointer);
    }
    painter.setBrush(palette().color(QPalette::Window));
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.35F);
    painter.setPen(line);
    painter.drawPath(shape);
}

bool PopoverPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && watched == window() && m_open) {
        m_shield->setGeometry(window()->rect());
        place();
    }
    return QFrame::eventFilter(watched, event);
}

// Tab goes round inside the panel.
bool PopoverPanel::focusNextPrevChild(bool next)
{
    QWidget* const start = focusWidget() ? focusWidget() : this;
    const auto step = [next](QWidget* w) { return next ? w->nextInFocusChain() : w->previousInFocusChain(); };
    for (QWidget* w = step(start); w != start; w = step(w)) {
        if (isAncestorOf(w) && w->isEnabled() && w->isVisibleTo(this) && (w->focusPolicy() & Qt::TabFocus)) {
            w->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
    return false;
}

} // namespace zelvor
