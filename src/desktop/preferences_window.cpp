#include "desktop/preferences_window.h"

#include "core/localized.h"
#include "desktop/binding.h"
#include "desktop/desktop_settings.h"
#include "desktop/elided_label.h"
#include "desktop/icons.h"
#include "desktop/measures.h"
#include "desktop/picture.h"
#include "desktop/theme.h"
#include "desktop/window_place.h"
#include "shell/application_shell.h"

#include <QtCore/QPointer>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr QSize firstSize(900, 720);
constexpr QSize logoWell(240, 72);
constexpr int rateWidth = 110;

const QString& placeKey()
{
    static const QString key = u"preferences"_s;
    return key;
}

QLabel* makeHeading(const QString& title, const QFont& base)
{
    auto* const heading = new QLabel(title);
    QFont bold = base;
    bold.setBold(true);
    bold.setPointSizeF(base.pointSizeF() + 1);
    heading->setFont(bold);
    return heading;
}

void addLabelled(QGridLayout* rows, const QString& text, QWidget* field)
{
    auto* const label = new QLabel(text);
    label->setBuddy(field);
    const int row = rows->rowCount();
    rows->addWidget(label, row, 0);
    rows->addWidget(field, row, 1);
}

void addWide(QGridLayout* rows, QWidget* widget)
{
    rows->addWidget(widget, rows->rowCount(), 0, 1, 2);
}

// The month behind a moment within it; the beginning of time stands for none.
QString monthText(const AppDelegate& appDelegate, qint64 moment)
{
    if (moment == 0)
        return localized("None yet");
    const QDate day = appDelegate.calendar.dateTime(moment).date();
    return QLocale().standaloneMonthName(day.month()) + u' ' + QString::number(day.year());
}

} // namespace

PreferencesWindow::PreferencesWindow(ApplicationShell& shell, DesktopSettings& settings)
    : m_shell(shell), m_controller(shell.preferences), m_settings(settings)
{
    setObjectName(u"preferencesWindow"_s);
    setWindowFlags(Qt::Window);
    setWindowIcon(pictureIcon(u"zelvor"_s));
    layOut();
    restorePlace(*this, settings, placeKey(), firstSize);
    const QPointer<PreferencesWindow> self(this);
    m_controller.window.onChange([self] {
        if (self)
            self->showOrHide();
    });
    m_controller.windowTitle.onChange([self] {
        if (self)
            self->setWindowTitle(self->m_controller.windowTitle.text());
    });
}

void PreferencesWindow::layOut()
{
    auto* const content = new QWidget;
    auto* const columns = new QHBoxLayout(content);
    columns->setContentsMargins(measures::pageMargin, measures::pageMargin, measures::pageMargin,
                                measures::pageMargin);
    columns->setSpacing(2 * measures::groupGap);
    auto* const left = new QGridLayout;
    auto* const right = new QGridLayout;
    for (QGridLayout* const column : {left, right}) {
        column->setSpacing(measures::rowGap);
        column->setColumnStretch(1, 1);
        columns->addLayout(column, 1);
    }
    addCurrency(left);
    addCompany(left);
    addLogo(left);
    addTaxes(right);
    addDocuments(right);
    addBank(right);
    for (QGridLayout* const column : {left, right})
        column->setRowStretch(column->rowCount(), 1);

    auto* const scroll = new QScrollArea; // on a small screen the buttons below stay
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(content);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(makeReadOnlyNote());
    rows->addWidget(scroll, 1);
    rows->addLayout(makeButtons());
}

QLabel* PreferencesWindow::makeReadOnlyNote()
{
    auto* const note = new QLabel;
    note->setWordWrap(true);
    note->setContentsMargins(measures::pageMargin, measures::pageMargin, measures::pageMargin, 0);
    bind(m_controller.readOnlyWarning, note);
    return note;
}

QBoxLayout* PreferencesWindow::makeButtons()
{
    auto* const projects = new QPushButton(lineIcon(u"project"_s), localized("Projects…"));
    projects->setObjectName(u"showProjectSelectWindow"_s);
    projects->setAutoDefault(false);
    projects->setToolTip(localized("Leaves this project for the list of all projects."));
    auto* const close = new QPushButton(localized("Close"));
    close->setObjectName(u"closeWindow"_s);
    close->setAutoDefault(false);
    auto* const apply = new QPushButton(localized("Apply"));
    apply->setDefault(true);
    bind(m_controller.applyButton, apply);
    connect(projects, &QPushButton::clicked, this, [this] { m_controller.showProjectSelectWindow(); });
    connect(close, &QPushButton::clicked, this, [this] { m_controller.closeWindow(); });
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(measures::pageMargin, measures::rowGap, measures::pageMargin,
                            measures::pageMargin);
    row->setSpacing(measures::rowGap);
    row->addWidget(projects);
    row->addStretch(1);
    row->addWidget(close);
    row->addWidget(apply);
    return row;
}

void PreferencesWindow::addGroup(QGridLayout* rows, const QString& title)
{
    auto* const heading = makeHeading(title, font());
    const bool first = rows->isEmpty();
    heading->setContentsMargins(0, first ? 0 : measures::groupGap - measures::rowGap, 0, 0);
    addWide(rows, heading);
}

QLineEdit* PreferencesWindow::addText(QGridLayout* rows, TextField& field, const QString& label,
                                      const QString& name)
{
    auto* const edit = new QLineEdit;
    bind(field, edit, name);
    addLabelled(rows, label, edit);
    return edit;
}

QLineEdit* PreferencesWindow::addNumber(QGridLayout* rows, NumberField& field, const QString& label,
                                        int decimals)
{
    auto* const edit = new QLineEdit;
    edit->setMaximumWidth(rateWidth);
    bind(field, edit, label, decimals);
    // Typing is a change already, not only leaving the field: the button is to be pressed from here.
    connect(edit, &QLineEdit::textEdited, this, [this] { m_controller.defaultsChanged(); });
    addLabelled(rows, label, edit);
    return edit;
}

void PreferencesWindow::addCheck(QGridLayout* rows, CheckBox& box, const QString& label)
{
    auto* const check = new QCheckBox(label);
    bind(box, check);
    addWide(rows, check);
}

void PreferencesWindow::addCurrency(QGridLayout* rows)
{
    addGroup(rows, localized("Currency"));
    m_currency = new QComboBox;
    bind(m_controller.currencySelect, m_currency, localized("Default currency"));
    addLabelled(rows, localized("Default currency"), m_currency);
    auto* const warning = new QLabel;
    warning->setWordWrap(true);
    bind(m_controller.defaultCurrencyWarning, warning);
    addWide(rows, warning);
}

void PreferencesWindow::addCompany(QGridLayout* rows)
{
    addGroup(rows, localized("Company"));
    m_companyName = addText(rows, m_controller.companyName, localized("Name"), localized("Company name"));
    addText(rows, m_controller.companyAddress, localized("Address"), localized("Company address"));
    addText(rows, m_controller.companyCity, localized("City"), localized("Company city"));
    addText(rows, m_controller.companyPhone, localized("Phone"), localized("Company phone"));
    addText(rows, m_controller.companyMail, localized("E-mail"), localized("Company e-mail"));
    addText(rows, m_controller.companyDomain, localized("Web site"), localized("Company web site"));
}

void PreferencesWindow::addLogo(QGridLayout* rows)
{
    addGroup(rows, localized("Logo"));
    m_logo = new QLabel;
    m_logo->setObjectName(m_controller.logoImageView.name());
    m_logo->setAccessibleName(localized("Logo"));
    m_logo->setFrameShape(QFrame::StyledPanel);
    m_logo->setFixedSize(logoWell + QSize(2 * measures::rowGap, 2 * measures::rowGap));
    m_logo->setAlignment(Qt::AlignCenter);
    addWide(rows, m_logo);
    auto* const path = new ElidedLabel;
    bind(m_controller.logoPath, path);
    auto* const choose = new QPushButton(lineIcon(u"open"_s), localized("Choose…"));
    choose->setAccessibleName(localized("Choose the logo file"));
    auto* const remove = new QPushButton(lineIcon(u"clear"_s), localized("Remove"));
    remove->setAccessibleName(localized("Remove the logo"));
    for (QPushButton* const button : {choose, remove})
        button->setAutoDefault(false);
    bind(m_controller.openLogoButton, choose);
    bind(m_controller.deleteLogoButton, remove);
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(measures::rowGap);
    buttons->addWidget(choose);
    buttons->addWidget(remove);
    buttons->addWidget(path, 1);
    rows->addLayout(buttons, rows->rowCount(), 0, 1, 2);
    addCheck(rows, m_controller.printCompanyLogoCheck, localized("Print the logo on forms"));
    const QPointer<PreferencesWindow> self(this);
    m_controller.logoImageView.onChange([self] {
        if (self)
            self->showLogo();
    });
    showLogo();
}

void PreferencesWindow::addTaxes(QGridLayout* rows)
{
    addGroup(rows, localized("Taxes"));
    addCheck(rows, m_controller.useVATCheck, localized("The company pays VAT"));
    addNumber(rows, m_controller.vatRate, localized("VAT rate, %"), 2);
    addCheck(rows, m_controller.useVATNoCheck, localized("Print the VAT number on forms"));
    addText(rows, m_controller.vatNo, localized("VAT number"), localized("VAT number"));
    addCheck(rows, m_controller.useGSTCheck, localized("The company pays GST"));
    addNumber(rows, m_controller.gstRate, localized("GST rate, %"), 2);
}

void PreferencesWindow::addDocuments(QGridLayout* rows)
{
    addGroup(rows, localized("Documents and reports"));
    addReportPeriod(rows);
    addNumber(rows, m_controller.maxDeferment, localized("Longest deferment, days"), 0);
    addCheck(rows, m_controller.showCurrentBalanceCheck, localized("Show the current balance at the foot"));
    addLastPeriod(rows);
}

void PreferencesWindow::addReportPeriod(QGridLayout* rows)
{
    auto* const frame = new QWidget;
    auto* const cells = new QHBoxLayout(frame);
    cells->setContentsMargins(0, 0, 0, 0);
    cells->setSpacing(measures::groupGap);
    auto* const group = new QButtonGroup(frame);
    int tag = 1;
    for (const QString& text : {localized("Month"), localized("Quarter"), localized("Year")}) {
        auto* const cell = new QRadioButton(text);
        cell->setObjectName(u"reportPeriod%1"_s.arg(tag));
        group->addButton(cell, tag++);
        cells->addWidget(cell);
    }
    cells->addStretch(1);
    bind(m_controller.reportPeriod, group, frame, localized("Report period"));
    addLabelled(rows, localized("Report period"), frame);
}

// The moment behind it is a day of the month that nobody means.
void PreferencesWindow::addLastPeriod(QGridLayout* rows)
{
    DatePicker& outlet = m_controller.lastPeriodSaved;
    auto* const month = new QLabel;
    month->setObjectName(outlet.name());
    const auto show = [this, &outlet, shown = QPointer<QLabel>(month)] {
        if (shown)
            shown->setText(monthText(m_shell.appDelegate, outlet.moment()));
    };
    outlet.onChange(show);
    show();
    addLabelled(rows, localized("Last closed month"), month);
}

void PreferencesWindow::addBank(QGridLayout* rows)
{
    addGroup(rows, localized("Bank"));
    addText(rows, m_controller.bankAccountName, localized("Account holder"), localized("Account holder"));
    addText(rows, m_controller.bankAccountNumber, localized("Account number"), localized("Account number"));
    addText(rows, m_controller.bankName, localized("Bank"), localized("Bank name"));
    addText(rows, m_controller.bankAddress, localized("Address"), localized("Bank address"));
    addText(rows, m_controller.bankIBAN, localized("IBAN"), localized("IBAN"));
    addText(rows, m_controller.bankSWIFT, localized("SWIFT"), localized("SWIFT"));
    addCheck(rows, m_controller.printBankDetailsCheck, localized("Print the bank details on forms"));
}

// Empty when the file cannot be read: the user sees that there is nothing to print.
void PreferencesWindow::showLogo()
{
    const QString& name = m_controller.logoImageView.text();
    const bool own = name.isEmpty() || name == u"logo.png";
    const QString path = own ? u":/zelvor/icons/logo.png"_s : name;
    m_logo->setPixmap(pictureFile(path, logoWell, devicePixelRatioF()));
}

void PreferencesWindow::showOrHide()
{
    if (!m_controller.window.isOpen()) {
        hide();
        Q_EMIT left();
        return;
    }
    setWindowTitle(m_controller.windowTitle.text());
    show();
    m_controller.initial ? m_currency->setFocus() : m_companyName->setFocus();
}

void PreferencesWindow::reject()
{
    m_controller.closeWindow();
}

void PreferencesWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    m_controller.closeWindow();
}

void PreferencesWindow::hideEvent(QHideEvent* event)
{
    rememberPlace(*this, m_settings, placeKey());
    QDialog::hideEvent(event);
}

} // namespace zelvor
