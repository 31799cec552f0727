#pragma once

#include <QtCore/QString>

#include <optional>

namespace zelvor {

class JsonWriter;

// How one operation ended. Refused is what the desktop would have told in an alert; invalid is what the
// desktop could not even have been asked for.
struct Answer {
    enum class Result { Done, Refused, Invalid };

    Result result = Result::Done;
    QString text = {}; // why not
    qint64 id = 0;     // of the record that was written; 0 for none
    struct DocumentState {
        qint64 number = 0;
        bool confirmed = false;
    };
    std::optional<DocumentState> document = {};

    static Answer done() { return {}; }
    static Answer stored(qint64 id) { return {.id = id}; }
    static Answer refused(const QString& alert) { return {.result = Result::Refused, .text = alert}; }
    static Answer invalid(const QString& error) { return {.result = Result::Invalid, .text = error}; }

    bool isDone() const { return result == Result::Done; }
    // {"ok":true,...}, {"ok":false,"alert":...} or {"ok":false,"error":"line 3: ..."}
    void write(JsonWriter& json, qint64 lineNumber) const;
};

} // namespace zelvor
