#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace zelvor {

class JsonWriter;

// A closed standard stream gives its number to the next file that is opened: the answers would go into the
// project. Fills the gaps with something that neither reads nor writes.
void holdStandardStreams();

// Everything that the command line says is UTF-8, and out at once.
void writeError(const QString& line); // "zelvor-cli: " and the line, on standard error
// On standard output; false when it could not be written (a closed pipe, a full disk).
bool writeOutput(const QByteArray& bytes);
// What the writer holds, as one line.
bool writeLine(JsonWriter& json);

} // namespace zelvor
