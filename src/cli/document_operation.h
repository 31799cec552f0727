#pragma once

#include "cli/answer.h"

namespace zelvor {

class OperationReader;
class Program;

// Fills a new document's form, then saves it, or confirms it without saving first.
Answer newDocument(Program& program, OperationReader& reader);
// What opening a stored draft on its form and confirming it does.
Answer confirmStored(Program& program, OperationReader& reader);
// What the form's delete does with a stored draft.
Answer deleteStored(Program& program, OperationReader& reader);

} // namespace zelvor
