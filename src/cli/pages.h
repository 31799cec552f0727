#pragma once

#include "cli/arguments.h"
#include "cli/report.h"

namespace zelvor {

// What is drawn on pages. Only a program that links QtGui can draw, and linking it costs every start, so
// these two are written twice: zelvor-cli gives its place to zelvor-cli-pages (pages_elsewhere.cpp), and that
// one draws (pages_drawn.cpp). Both answer an exit code.

// The report's print form as a PDF, to standard output or where -o says.
int printReportForm(const Report& report, const Arguments& arguments);
// The invoice of a selling document as a PDF.
int printInvoice(const QString& project, qint64 id, const QString& path);

} // namespace zelvor
