#include "desktop/number_slider.h"

#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtGui/QWheelEvent>

#include <algorithm>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

NumberSlider::NumberSlider(NumberField& number, qint64 maximum, const QString& accessibleName,
                           QWidget* parent)
    : QSlider(Qt::Horizontal, parent)
{
    setObjectName(number.name() + u"Slider"_s);
    setAccessibleName(accessibleName);
    setFocusPolicy(Qt::StrongFocus); // not by the wheel
    setRange(0, static_cast<int>(std::clamp<qint64>(maximum, 0, std::numeric_limits<int>::max())));
    const QPointer<NumberSlider> self(this);
    const auto show = [self, &number] {
        if (!self)
            return;
        const QSignalBlocker quiet(self.data());
        self->setEnabled(number.enabled());
        self->setValue(static_cast<int>(std::clamp<qint64>(number.integer(), 0, self->maximum())));
    };
    number.onChange(show);
    show();
    connect(this, &QSlider::valueChanged, this, [&number](int value) {
        number.setValue(Decimal(value));
        number.userChanged();
    });
}

void NumberSlider::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QSlider::wheelEvent(event);
    else
        event->ignore();
}

} // namespace zelvor
