#include "cli/document_form.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

bool enter(TextField& field, const QString& text)
{
    field.setText(text);
    return field.userChanged();
}

bool enter(NumberField& field, const Decimal& number)
{
    field.setValue(number);
    return field.userChanged();
}

bool enter(CheckBox& box, bool on)
{
    if (box.isOn() == on)
        return true;
    box.setOn(on);
    return box.userChanged();
}

bool enter(DatePicker& picker, qint64 moment)
{
    picker.setMoment(moment);
    return picker.userChanged();
}

static void failClosed(OperationReader& reader, const QString& key)
{
    reader.fail(u"this document does not take '"_s + key + u'\'');
}

void enterText(OperationReader& reader, const QString& key, TextField& field)
{
    const QString text = reader.text(key);
    if (reader.has(key) && !enter(field, text) && !text.isEmpty())
        failClosed(reader, key);
}

void enterNumber(OperationReader& reader, const QString& key, NumberField& field)
{
    const Decimal number = reader.number(key, Decimal());
    if (reader.has(key) && !enter(field, number) && !number.isZero())
        failClosed(reader, key);
}

void enterBoolean(OperationReader& reader, const QString& key, CheckBox& box)
{
    const bool on = reader.boolean(key, false);
    if (reader.has(key) && !enter(box, on))
        failClosed(reader, key);
}

void enterLink(OperationReader& reader, const QString& key, bool isUsed,
               const std::function<bool(qint64)>& choose)
{
    const qint64 id = reader.integer(key, 0);
    if (id == 0)
        return;
    if (!isUsed)
        failClosed(reader, key);
    else if (!choose(id))
        reader.fail(u"'"_s + key + u"': there is no record with the id "_s + QString::number(id) +
                    u", or it is out of use"_s);
}

void enterWhole(OperationReader& reader, const QString& key, NumberField& field, qint64 largest)
{
    const qint64 number = reader.integer(key, 0);
    if (!reader.has(key))
        return;
    if (number < 0 || number > largest)
        reader.fail(u'\'' + key + u"' must be a whole number from 0 to "_s + QString::number(largest));
    else if (!enter(field, number) && number != 0)
        failClosed(reader, key);
}

Answer answerOf(bool done, DocumentViewController& form, UnattendedDialogs& dialogs)
{
    const QString alert = dialogs.takeText();
    if (!done)
        return Answer::refused(alert.isEmpty() ? u"The document could not be stored."_s : alert);
    const DocumentModel& document = form.documentModel();
    return {.id = document.id, .document = Answer::DocumentState{document.docNumber, document.confirmed}};
}

} // namespace zelvor
