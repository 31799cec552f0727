#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace zelvor {

// Writes JSON piece by piece, keys in the order given, so that a long answer never lies in memory whole. When
// the last bracket is closed a new text begins.
// Numbers are the shortest text that reads back as the same value; NaN is null.
class JsonWriter {
public:
    JsonWriter& beginObject() { return open('{'); }
    JsonWriter& endObject() { return close('}'); }
    JsonWriter& beginArray() { return open('['); }
    JsonWriter& endArray() { return close(']'); }
    JsonWriter& key(const QString& name);
    JsonWriter& value(bool value);
    JsonWriter& value(int value) { return this->value(qint64{value}); }
    JsonWriter& value(qint64 value);
    JsonWriter& value(double value);
    JsonWriter& value(const QString& value);
    // What a cell answers: a truth value, a number, a moment in seconds or a text.
    JsonWriter& value(const QVariant& value);
    template <class Value>
    JsonWriter& member(const QString& name, const Value& value)
    {
        return key(name).value(value);
    }

    qsizetype size() const { return m_text.size(); }
    // What was written since the last call.
    QByteArray take() { return std::exchange(m_text, QByteArray()); }

private:
    JsonWriter& open(char bracket);
    JsonWriter& close(char bracket);
    void separate();
    void writeText(const QString& text);

    QByteArray m_text;
    int m_depth = 0; // open brackets
    bool m_needsComma = false;
};

} // namespace zelvor
