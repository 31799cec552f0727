#pragma once

#include "cli/answer.h"
#include "cli/catalog_writer.h"
#include "cli/program.h"

#include <QtCore/QJsonObject>

namespace zelvor {

class OperationReader;

// The operations that come to a project from outside, one JSON object each. Nothing of an operation that
// answers anything but done stays in the file.
class Operations {
public:
    explicit Operations(Program& program);

    Answer run(const QJsonObject& operation);

private:
    Answer put(OperationReader& reader);
    Answer document(OperationReader& reader);
    Answer confirm(OperationReader& reader);
    Answer remove(OperationReader& reader);
    Answer closePeriod(OperationReader& reader);
    Answer updateRates(OperationReader& reader);

    Program& m_program;
    AppDelegate& m_appDelegate;
    CatalogWriter m_catalogs;
};

} // namespace zelvor
