// What stands on the screen where the style drew it.
#include "desktop/theme.h"

#include <gtest/gtest.h>

#include <QtGui/QImage>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStyleOption>

#include <algorithm>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double seen = 1.5;

class Outlines : public testing::TestWithParam<Appearance> {
protected:
    Outlines()
    {
        window.resize(300, 100);
        EXPECT_EQ(isDark(window.palette()), GetParam() == Appearance::Dark);
    }
    ~Outlines() override { applyAppearance(*qApp, Appearance::Light); }

    // How far the clearest of the first pixels, from the left edge to the right, stands off the ground.
    double clearest(QWidget& widget, const QRect& part)
    {
        widget.setGeometry(20, 20, 200, 40);
        widget.setFocusPolicy(Qt::NoFocus); // the focus has an outline of its own
        window.show();
        const QColor ground = window.palette().color(QPalette::Window);
        const QImage drawn = window.grab(widget.geometry()).toImage();
        double most = 1;
        for (int x = part.left(); x < part.left() + 3; ++x)
            most = std::max(most, contrast(drawn.pixelColor(x, part.center().y()), ground));
        return most;
    }
    static QRect all() { return {0, 0, 200, 40}; }
    static QRect tick(QStyle::SubElement element, const QWidget& widget)
    {
        QStyleOptionButton option;
        option.initFrom(&widget);
        option.rect = all();
        return widget.style()->subElementRect(element, &option, &widget);
    }

private:
    // Before the window is made.
    struct Look {
        Look() { applyAppearance(*qApp, GetParam()); }
    } look;

protected:
    QWidget window;
};

} // namespace

TEST_P(Outlines, aFieldHasOne)
{
    QLineEdit field(&window);
    EXPECT_GE(clearest(field, all()), seen);
}

TEST_P(Outlines, aFieldThatTakesNothingNowHasOneToo)
{
    QLineEdit field(&window);
    field.setEnabled(false);
    EXPECT_GE(clearest(field, all()), seen);
}

TEST_P(Outlines, aTickHasOne)
{
    QCheckBox box(u"Hidden"_s, &window);
    box.setGeometry(20, 20, 200, 40);
    EXPECT_GE(clearest(box, tick(QStyle::SE_CheckBoxIndicator, box)), seen);
}

TEST_P(Outlines, aRadioButtonHasOne)
{
    QRadioButton button(u"By customer"_s, &window);
    button.setGeometry(20, 20, 200, 40);
    EXPECT_GE(clearest(button, tick(QStyle::SE_RadioButtonIndicator, button)), seen);
}

TEST_P(Outlines, aChooserHasOne)
{
    QComboBox chooser(&window);
    EXPECT_GE(clearest(chooser, all()), seen);
}

TEST_P(Outlines, aFieldWithStepsHasOne)
{
    QSpinBox number(&window);
    EXPECT_GE(clearest(number, all()), seen);
    QDateTimeEdit date(&window);
    EXPECT_GE(clearest(date, all()), seen);
}

INSTANTIATE_TEST_SUITE_P(DesktopStyle, Outlines, testing::Values(Appearance::Light, Appearance::Dark),
                         [](const auto& instance) {
                             return std::string(instance.param == Appearance::Dark ? "onDark" : "onLight");
                         });

} // namespace zelvor
