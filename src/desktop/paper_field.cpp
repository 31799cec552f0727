#include "desktop/paper_field.h"

#include "desktop/elided_label.h"

#include <QtWidgets/QHBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr int fieldIndent = 5; // of the text inside a line with a frame

} // namespace

PaperField::PaperField(QWidget* edit, std::function<QString()> text, Qt::Alignment alignment)
    : m_edit(edit), m_holder(new QWidget(this)), m_text(new ElidedLabel(this)), m_textOf(std::move(text))
{
    auto* const inside = new QHBoxLayout(m_holder);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addWidget(edit);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_holder);
    layout->addWidget(m_text);
    m_text->setObjectName(edit->objectName() + u"Text"_s);
    m_text->setAlignment(alignment | Qt::AlignVCenter);
    m_text->setContentsMargins(fieldIndent, 0, fieldIndent, 0);
    m_text->setMinimumHeight(edit->sizeHint().height());
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_text->hide();
    setFocusProxy(edit);
}

void PaperField::setPaper(bool paper)
{
    if (paper)
        m_text->setText(m_textOf());
    m_holder->setVisible(!paper);
    m_text->setVisible(paper);
}

} // namespace zelvor
