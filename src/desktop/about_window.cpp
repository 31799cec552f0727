#include "desktop/about_window.h"

#include "core/localized.h"
#include "desktop/icons.h"
#include "desktop/measures.h"
#include "desktop/theme.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr int pictureSize = 96;

QLabel* centred(const QString& text)
{
    auto* const label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignHCenter);
    return label;
}

} // namespace

AboutWindow::AboutWindow(QWidget* parent) : QDialog(parent)
{
    setObjectName(u"aboutWindow"_s);
    setWindowTitle(localized("About Zelvor"));
    auto* const picture = centred({});
    picture->setPixmap(pictureIcon(u"zelvor"_s).pixmap(pictureSize, pictureSize));
    auto* const name = centred(u"Zelvor"_s);
    name->setFont(titleFont(font()));
    auto* const version = centred(localized("Version %1").arg(QCoreApplication::applicationVersion()));
    version->setObjectName(u"version"_s);
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const purpose = centred(localized("Book-keeping and trade accounting for small businesses"));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(measures::pageMargin * 2, measures::pageMargin * 2, measures::pageMargin * 2,
                             measures::pageMargin);
    rows->setSpacing(measures::rowGap);
    rows->addWidget(picture);
    rows->addWidget(name);
    rows->addWidget(version);
    rows->addWidget(purpose);
    rows->addSpacing(measures::rowGap);
    rows->addWidget(buttons);
    rows->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace zelvor
