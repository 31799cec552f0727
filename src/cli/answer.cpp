#include "cli/answer.h"

#include "cli/json_writer.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

void Answer::write(JsonWriter& json, qint64 lineNumber) const
{
    json.beginObject().member(u"ok"_s, isDone());
    if (result == Result::Refused)
        json.member(u"alert"_s, text);
    if (result == Result::Invalid)
        json.member(u"error"_s, u"line "_s + QString::number(lineNumber) + u": "_s + text);
    if (id != 0)
        json.member(u"id"_s, id);
    if (document)
        json.member(u"number"_s, document->number).member(u"confirmed"_s, document->confirmed);
    json.endObject();
}

} // namespace zelvor
