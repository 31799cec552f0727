#pragma once

#include <QtWidgets/QWidget>

#include <functional>

namespace zelvor {

class ElidedLabel;

// A field that turns into paper: while it is paper, its text stands in the same place without a frame.
class PaperField : public QWidget {
    Q_OBJECT

public:
    PaperField(QWidget* edit, std::function<QString()> text, Qt::Alignment alignment = Qt::AlignLeft);

    void setPaper(bool paper);
    QWidget* edit() const { return m_edit; }

private:
    QWidget* m_edit;
    QWidget* m_holder; // hides the field, whatever its outlet says of its visibility
    ElidedLabel* m_text;
    std::function<QString()> m_textOf;
};

} // namespace zelvor
