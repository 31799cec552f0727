#pragma once

#include "print/print_view.h"

#include <QtGui/QPageLayout>
#include <QtGui/QPagedPaintDevice>

#include <vector>

class QIODevice;

namespace zelvor {

// The print job: one routine for paper, PDF and pictures. Left and right margins 36, top and bottom 45, scale
// 1; setData() was called. A sheet that fills its last page to the edge has one more, which is empty.

// A4 in the form's orientation: how paper is set up before the user is asked.
QPageLayout pageLayout(const PrintView& form);
// Paper, or any other paged device that is ready to paint, of the size and orientation it has. False when it
// cannot be painted on.
bool printOn(PrintView& form, QPagedPaintDevice& device);
// An A4 PDF with the form's title, fonts embedded, text that can be selected. Two of the same form differ in
// nothing but the moment they were made. False when the device took less.
bool writePdf(PrintView& form, QIODevice& device);
// The A4 pages as pictures, margins included, at that many dots per inch; none when memory does not hold
// them.
std::vector<QImage> pictures(PrintView& form, double dotsPerInch);

} // namespace zelvor
