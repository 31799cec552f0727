#pragma once

#include "core/outlets.h"

#include <QtWidgets/QSlider>

namespace zelvor {

// A slider beside the field of the same whole number, from 0 to `maximum`. The number may lie beyond.
class NumberSlider : public QSlider {
    Q_OBJECT

public:
    NumberSlider(NumberField& number, qint64 maximum, const QString& accessibleName,
                 QWidget* parent = nullptr);

protected:
    // A wheel that rolls over the form changes nothing in it unless the slider was chosen.
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace zelvor
