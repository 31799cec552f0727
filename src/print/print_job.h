#pragma once

#include "print/print_view.h"

#include <QtGui/QPagedPaintDevice>

class QIODevice;

namespace zelvor {

// The print job: one routine for paper, PDF and PNG. A4, left and right margins 36, top and bottom 45,
// scale 1, the orientation of the form; setData() was called.

// Paper, or any other paged device that is ready to paint. False when it cannot be painted on.
bool printOn(PrintView& form, QPagedPaintDevice& device);
// A PDF with the form's title, fonts embedded, text that can be selected. False when the device took less.
bool writePdf(PrintView& form, QIODevice& device);
// The pages as pictures, margins included, at that many dots per inch.
std::vector<QImage> pictures(PrintView& form, double dotsPerInch);

} // namespace zelvor
