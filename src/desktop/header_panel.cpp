#include "desktop/header_panel.h"

#include "core/currency_struct.h"
#include "core/localized.h"
#include "desktop/binding.h"
#include "desktop/elided_label.h"
#include "desktop/icons.h"
#include "desktop/measures.h"
#include "desktop/picture.h"
#include "desktop/quick_open.h"
#include "desktop/theme.h"
#include "shell/application_shell.h"

#include <QtCore/QPointer>
#include <QtGui/QPainter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr QSize logoSize(96, 28);

QToolButton* makeToggle(Button& outlet)
{
    auto* const button = new QToolButton;
    button->setAutoRaise(true);
    button->setCheckable(true);
    button->setIconSize({measures::toolIcon, measures::toolIcon});
    button->setToolTip(localized("Collapse or show the menu (F9)"));
    button->setAccessibleName(localized("Collapse the menu"));
    bind(outlet, button);
    const auto showIcon = [&outlet, shown = QPointer<QToolButton>(button)] {
        if (shown)
            shown->setIcon(lineIcon(outlet.isOn() ? u"expand-left"_s : u"collapse-left"_s));
    };
    outlet.onChange(showIcon);
    showIcon();
    return button;
}

} // namespace

HeaderPanel::HeaderPanel(ApplicationShell& shell, QWidget* parent)
    : QFrame(parent), m_shell(shell), m_logo(new QLabel), m_business(new ElidedLabel), m_currency(new QLabel),
      m_quickOpen(new QuickOpen(shell))
{
    setObjectName(u"headerPanel"_s);
    m_logo->setObjectName(u"headerLogo"_s);
    m_logo->setAccessibleName(localized("Logo"));
    m_business->setObjectName(u"headerBusiness"_s);
    m_business->setFont(titleFont(font()));
    m_currency->setObjectName(u"headerCurrency"_s);
    m_currency->setTextFormat(Qt::PlainText);
    m_currency->setForegroundRole(QPalette::PlaceholderText);

    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(measures::rowGap, measures::rowGap, measures::pageMargin, measures::rowGap);
    row->setSpacing(measures::rowGap);
    row->addWidget(makeToggle(shell.mainWindowController.toggleLeftViewButton));
    row->addWidget(m_logo);
    row->addWidget(m_business);
    row->addWidget(m_currency, 1);
    row->addWidget(m_quickOpen);
    m_logo->hide();
    showSettings();
}

void HeaderPanel::showSettings()
{
    const std::shared_ptr<Params> params =
        m_shell.appDelegate.connector.isOpen() ? m_shell.appDelegate.params() : nullptr;
    const QString company = params ? params->companyName.trimmed() : QString();
    m_business->setText(company.isEmpty() ? m_shell.windowTitle.text() : company);
    const auto currency = currencyFromInt(params ? params->defaultCurrency : 0);
    m_currency->setText(currency ? currencyShort(*currency) : QString());
    m_currency->setToolTip(currency ? currencyName(*currency).toHtmlEscaped() : QString());
    showLogo(params ? params->pathToLogo : QString());
}

void HeaderPanel::showLogo(const QString& path)
{
    if (path == m_logoPath)
        return;
    m_logoPath = path;
    const QPixmap logo = path.isEmpty() ? QPixmap() : pictureFile(path, logoSize, devicePixelRatioF());
    m_logo->setPixmap(logo);
    m_logo->setVisible(!logo.isNull());
}

void HeaderPanel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(lineColor(palette()));
    painter.drawLine(0, height() - 1, width(), height() - 1);
}

} // namespace zelvor
