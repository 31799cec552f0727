#include "desktop/start_page.h"

#include "core/localized.h"
#include "desktop/icons.h"
#include "desktop/measures.h"
#include "desktop/theme.h"
#include "shell/main_view_controller.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

StartPage::StartPage(MainViewController& workspace, QWidget* parent) : QWidget(parent), m_workspace(workspace)
{
    setObjectName(u"startPage"_s);
    auto* const heading = new QLabel(localized("What comes next?"));
    heading->setFont(titleFont(font()));
    heading->setAlignment(Qt::AlignHCenter);
    auto* const note = new QLabel(localized("Everything else is in the menu at the left, or a Ctrl+K away."));
    note->setAlignment(Qt::AlignHCenter);
    note->setForegroundRole(QPalette::PlaceholderText);

    auto* const rows = new QVBoxLayout(this);
    rows->setSpacing(measures::rowGap);
    rows->addStretch(2);
    rows->addWidget(heading);
    rows->addSpacing(measures::rowGap);
    m_first = addButton("startSale", DocType::SellProduct, localized("New Sale"), rows);
    addButton("startPurchase", DocType::BuyProduct, localized("New Purchase"), rows);
    addButton("startProducts", DocType::ProductCatalog, localized("Products…"), rows);
    rows->addSpacing(measures::rowGap);
    rows->addWidget(note);
    rows->addStretch(3);
}

QPushButton* StartPage::addButton(const char* name, DocType type, const QString& text, QVBoxLayout* rows)
{
    auto* const button = new QPushButton(lineIcon(docTypeImage(type)), u'\u2002' + text);
    button->setAccessibleName(text);
    button->setObjectName(QString::fromLatin1(name));
    button->setIconSize({measures::toolIcon, measures::toolIcon});
    button->setMinimumSize(fontMetrics().averageCharWidth() * 34, fontMetrics().height() * 3);
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, [this, type] { m_workspace.topMenuAction(type); });
    rows->addWidget(button, 0, Qt::AlignHCenter);
    return button;
}

void StartPage::takeFocus()
{
    m_first->setFocus();
}

} // namespace zelvor
