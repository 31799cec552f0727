#pragma once

#include "core/colors.h"
#include "core/view.h"

#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtGui/QPalette>

class QApplication;

namespace zelvor {

enum class Appearance { System, Light, Dark };

// Sets style and palette of the whole program. System follows the desktop's own palette.
void applyAppearance(QApplication& application, Appearance appearance);

bool isDark(const QPalette& palette);
// The colour to draw on a screen with that palette. The colours that controllers give are the light set;
// each has a dark partner. Text colours keep a contrast of at least 4.5:1 (WCAG 2.1, 1.4.3) against the base.
QColor textColor(const Color& color, const QPalette& palette);
QColor groundColor(const Color& color, const QPalette& palette);
// Of a line that parts two areas.
QColor lineColor(const QPalette& palette);
// WCAG 2.1 relative contrast, 1 to 21.
double contrast(const QColor& a, const QColor& b);

QFont cellFont(CellFont font, const QFont& base);
// The font of numbers beside that one: itself when its figures are all of one width, else the nearest one
// whose figures are.
QFont figureFont(const QFont& base);
// Sizes of the one type family, from the desktop's own.
QFont titleFont(const QFont& base); // +4, bold
QFont noteFont(const QFont& base);  // -1

} // namespace zelvor
