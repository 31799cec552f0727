#pragma once

#include "cli/answer.h"
#include "cli/operation_reader.h"
#include "cli/program.h"
#include "core/doc_type.h"
#include "core/outlets.h"
#include "documents/document_view_controller.h"

namespace zelvor {

// Fills the outlets of one kind of form from an operation. What the form does not take becomes an error of
// the reader; nothing is written here.

// Sets an outlet and tells the form, as a user would. False when the form keeps the outlet closed.
bool enter(TextField& field, const QString& text);
bool enter(NumberField& field, const Decimal& number);
bool enter(CheckBox& box, bool on);
bool enter(DatePicker& picker, qint64 moment);

// The value behind a key, entered when the key is there; an error when the form keeps the outlet closed.
void enterText(OperationReader& reader, const QString& key, TextField& field);
void enterNumber(OperationReader& reader, const QString& key, NumberField& field);
void enterBoolean(OperationReader& reader, const QString& key, CheckBox& box);
// A link by id; 0 and an absent key leave the form as it is.
void enterLink(OperationReader& reader, const QString& key, bool isUsed,
               const std::function<bool(qint64)>& choose);
// Whole days or months, from 0 on.
void enterWhole(OperationReader& reader, const QString& key, NumberField& field, qint64 largest);

// The answer of an action of a form: what its document is now, or the alert.
Answer answerOf(bool done, DocumentViewController& form, UnattendedDialogs& dialogs);

Answer newProductDocument(Program& program, OperationReader& reader, DocType type);
Answer newMoneyDocument(Program& program, OperationReader& reader, DocType type);
Answer newPropertyDocument(Program& program, OperationReader& reader, DocType type);

} // namespace zelvor
