#include "desktop/product_document_fields.h"

#include "core/localized.h"
#include "desktop/binding.h"
#include "desktop/cell_text.h"
#include "desktop/icons.h"
#include "desktop/measures.h"
#include "desktop/number_slider.h"
#include "desktop/paper_field.h"
#include "desktop/theme.h"
#include "documents/product_document_view_controller.h"

#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSlider>
#include <QtWidgets/QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr int fieldsInARow = 3;
constexpr int columnsOfAField = 3; // label, field, gap

// Red alone would not be seen by everyone: what is missing has a star too.
class RequiredLabel final : public QLabel {
public:
    explicit RequiredLabel(Label& outlet) : m_outlet(outlet)
    {
        setObjectName(outlet.name());
        setTextFormat(Qt::PlainText);
        outlet.onChange([self = QPointer<RequiredLabel>(this)] {
            if (self)
                self->showOutlet();
        });
        showOutlet();
    }

protected:
    void changeEvent(QEvent* event) override
    {
        QLabel::changeEvent(event);
        if (event->type() == QEvent::ApplicationPaletteChange)
            showOutlet();
    }

private:
    void showOutlet()
    {
        setText(m_outlet.color() == redColor ? m_outlet.text() + u" *"_s : m_outlet.text());
        QPalette own; // only the ink; everything else follows the palette of the program
        own.setColor(QPalette::WindowText, textColor(m_outlet.color(), QGuiApplication::palette()));
        setPalette(own);
    }

    const Label& m_outlet;
};

QLabel* plainLabel(const QString& text)
{
    auto* const label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    return label;
}

// A screen reader is told the chosen entry for a chooser's name, and finds no label beside it: the two do not
// lie in one widget.
void describe(QComboBox* box, const QString& use)
{
    box->setAccessibleDescription(use);
}

QWidget* sideBySide(std::initializer_list<QWidget*> widgets)
{
    auto* const holder = new QWidget;
    auto* const layout = new QHBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(measures::labelGap);
    for (QWidget* const widget : widgets)
        layout->addWidget(widget, widget->sizePolicy().horizontalPolicy() == QSizePolicy::Expanding ? 1 : 0);
    return holder;
}

QLineEdit* shortNumber(NumberField& outlet, const QString& accessibleName)
{
    auto* const edit = new QLineEdit;
    bind(outlet, edit, accessibleName, 0);
    edit->setFixedWidth(edit->fontMetrics().horizontalAdvance(u"0000000"_s));
    return edit;
}

QToolButton* smallButton(const QString& name, const QString& icon, const QString& text)
{
    auto* const button = new QToolButton;
    button->setObjectName(name);
    button->setIcon(lineIcon(icon));
    button->setAccessibleName(text);
    button->setToolTip(text);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

ProductDocumentFields::ProductDocumentFields(ProductDocumentViewController& form, QWidget* parent)
    : QWidget(parent), m_form(form), m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(measures::labelGap);
    m_grid->setVerticalSpacing(measures::rowGap);
    for (int place = 0; place < fieldsInARow; ++place) {
        m_grid->setColumnStretch(place * columnsOfAField + 1, 1);
        if (place + 1 < fieldsInARow)
            m_grid->setColumnMinimumWidth(place * columnsOfAField + 2, measures::groupGap);
    }
    addFields();
}

// In reading order, three in a row; without a warehouse the employee takes its place, so that the
// counterparty stands where it always does.
void ProductDocumentFields::addFields()
{
    const bool warehouses = m_form.stockFromEnabled() || m_form.stockToEnabled();
    const bool contragent = m_form.contragentEnabled();
    addDate();
    addWarehouses();
    if (!warehouses)
        addManager();
    if (contragent)
        addContragent();
    if (warehouses)
        addManager();
    else
        addDiscount();
    if (contragent) {
        addDeferment();
        addBalance();
    }
    if (warehouses && m_form.discountEnabled())
        addDiscount();
    addTaxes();
}

void ProductDocumentFields::add(QLabel* label, QWidget* field)
{
    const int row = m_count / fieldsInARow;
    const int column = m_count % fieldsInARow * columnsOfAField;
    ++m_count;
    m_grid->addWidget(label, row, column, Qt::AlignRight | Qt::AlignVCenter);
    m_grid->addWidget(field, row, column + 1);
    label->setBuddy(field);
}

PaperField* ProductDocumentFields::onPaper(PaperField* field)
{
    m_paperFields.push_back(field);
    return field;
}

void ProductDocumentFields::addDate()
{
    auto* const edit = new QDateTimeEdit;
    bind(m_form.mainView.date, edit, localized("Date"), m_form.appDelegate.calendar);
    add(plainLabel(localized("Date")), onPaper(new PaperField(edit, [edit] { return edit->text(); })));
}

void ProductDocumentFields::addWarehouses()
{
    const auto addSelect = [this](PopUpButton& outlet, Label& label) {
        auto* const box = new QComboBox;
        bind(outlet, box, label.text());
        describe(box, label.text());
        add(new RequiredLabel(label), onPaper(new PaperField(box, [box] { return box->currentText(); })));
    };
    ProductDocumentView& view = m_form.mainView;
    if (m_form.stockFromEnabled())
        addSelect(view.stockFromSelect, view.stockFromLabel);
    if (m_form.stockToEnabled())
        addSelect(view.stockToSelect, view.stockToLabel);
}

void ProductDocumentFields::addContragent()
{
    ProductDocumentView& view = m_form.mainView;
    QWidget* const field = contragentWithButtons();
    add(new RequiredLabel(view.contragentLabel),
        onPaper(new PaperField(field, [&view] { return view.contragentField.text(); })));
}

QWidget* ProductDocumentFields::contragentWithButtons()
{
    m_contragent = new QLineEdit;
    m_contragent->setReadOnly(true); // chosen, never typed
    m_contragent->setPlaceholderText(localized("Choose…"));
    bind(m_form.mainView.contragentField, m_contragent, m_form.mainView.contragentLabel.text());
    m_contragent->installEventFilter(this);
    QToolButton* const choose =
        smallButton(u"selectContragent"_s, u"choose"_s, localized("Choose the counterparty"));
    QToolButton* const clear =
        smallButton(u"clearContragent"_s, u"clear"_s, localized("Take the counterparty out"));
    connect(choose, &QToolButton::clicked, this, [this] { Q_EMIT contragentAsked({}); });
    connect(clear, &QToolButton::clicked, this, [this] { m_form.clearContragent(); });
    const TextField& outlet = m_form.mainView.contragentField;
    const QPointer<QToolButton> shown(clear);
    const auto follow = [shown, &outlet] {
        if (shown)
            shown->setEnabled(outlet.enabled() && !outlet.text().isEmpty());
    };
    m_form.mainView.contragentField.onChange(follow);
    follow();
    return sideBySide({m_contragent, choose, clear});
}

void ProductDocumentFields::addManager()
{
    ProductDocumentView& view = m_form.mainView;
    view.prepareManagers();
    auto* const box = new QComboBox;
    bind(view.managerSelect, box, view.managerLabel.text());
    describe(box, view.managerLabel.text());
    auto* const label = new QLabel;
    bind(view.managerLabel, label);
    add(label, onPaper(new PaperField(box, [box] { return box->currentText(); })));
}

void ProductDocumentFields::addDeferment()
{
    const QString name = localized("Pay within, days");
    QLineEdit* const edit = shortNumber(m_form.deferment, name);
    auto* const slider = new NumberSlider(m_form.deferment, m_form.mainView.params->maxDeferment,
                                          localized("Pay within, days, by a slider"));
    if (slider->maximum() == 0)
        slider->hide();
    QWidget* const field = sideBySide({edit, slider, plainLabel(localized("days"))});
    field->setObjectName(u"defermentField"_s);
    add(plainLabel(localized("Pay within")),
        onPaper(new PaperField(field, [edit] { return edit->text() + u' ' + localized("days"); })));
}

void ProductDocumentFields::addBalance()
{
    auto* const label = new QLabel;
    bind(m_form.mainView.saldoLabel, label);
    auto* const balance = new QLabel;
    balance->setTextInteractionFlags(Qt::TextSelectableByMouse);
    bind(m_form.contragentBalance, balance);
    balance->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    balance->setContentsMargins(measures::labelGap + 1, 0, 0, 0);
    add(label, balance);
}

void ProductDocumentFields::addDiscount()
{
    auto* const slider = new QSlider(Qt::Horizontal);
    bind(m_form.contragentDiscountSlider, slider, localized("Discount, percent, by a slider"));
    QLineEdit* const edit = shortNumber(m_form.contragentDiscount, localized("Discount, percent"));
    QWidget* const field = sideBySide({edit, slider, plainLabel(u"%"_s)});
    field->setObjectName(u"discountField"_s);
    add(plainLabel(localized("Discount")),
        onPaper(new PaperField(field, [edit] { return edit->text() + u" %"_s; })));
}

// A tax that the project does not know is not shown, unless the document has it all the same.
void ProductDocumentFields::addTaxes()
{
    const Params& params = *m_form.mainView.params;
    const bool vat = params.useVAT || m_form.vatCheck.isOn();
    const bool gst = params.useGST || m_form.gstCheck.isOn();
    if (!vat && !gst)
        return;
    auto* const holder = new QWidget;
    auto* const layout = new QHBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(measures::groupGap);
    const auto addCheck = [layout](CheckBox& outlet, const QString& text) {
        auto* const box = new QCheckBox(text);
        bind(outlet, box);
        layout->addWidget(box);
    };
    if (vat)
        addCheck(m_form.vatCheck, localized("Prices include VAT"));
    if (gst)
        addCheck(m_form.gstCheck, localized("TAX on top of prices"));
    layout->addStretch(1);
    holder->setObjectName(u"taxes"_s);
    add(plainLabel(localized("Taxes")), onPaper(new PaperField(holder, [holder] {
            QStringList taken;
            for (const QCheckBox* const box : holder->findChildren<QCheckBox*>()) {
                if (box->isChecked())
                    taken.append(box->text());
            }
            return taken.isEmpty() ? localized("none") : taken.join(u", "_s);
        })));
}

QWidget* ProductDocumentFields::firstMissing() const
{
    const ProductDocumentView& view = m_form.mainView;
    const auto box = [this](const PopUpButton& outlet) { return findChild<QComboBox*>(outlet.name()); };
    if (m_form.stockFromEnabled() && view.stockFromSelect.selectedTag() == 0)
        return box(view.stockFromSelect);
    if (m_form.stockToEnabled() && view.stockToSelect.selectedTag() == 0)
        return box(view.stockToSelect);
    if (m_form.contragentEnabled() && view.contragentField.text().isEmpty())
        return m_contragent;
    return nullptr;
}

void ProductDocumentFields::setPaper(bool paper)
{
    for (PaperField* const field : m_paperFields)
        field->setPaper(paper);
}

// Enter, the arrow down, a click or a letter on the field opens the chooser; Delete empties it.
bool ProductDocumentFields::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_contragent || !m_contragent->isEnabled())
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonRelease) {
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
            Q_EMIT contragentAsked({});
        return false;
    }
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* const press = static_cast<QKeyEvent*>(event);
    if (press->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier))
        return false;
    switch (press->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
    case Qt::Key_Space:
    case Qt::Key_F4:
        Q_EMIT contragentAsked({});
        return true;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        m_form.clearContragent();
        return true;
    default:
        break;
    }
    const QString text = press->text();
    if (text.isEmpty() || !text.front().isPrint())
        return false;
    Q_EMIT contragentAsked(text);
    return true;
}

} // namespace zelvor
