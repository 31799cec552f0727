#include "cli/output.h"

#include "cli/json_writer.h"

#include <cstdio>

namespace zelvor {

void writeError(const QString& line)
{
    const QByteArray text = "zelvor-cli: " + line.trimmed().toUtf8() + '\n';
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stderr);
}

bool writeOutput(const QByteArray& bytes)
{
    const auto size = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
}

bool writeLine(JsonWriter& json)
{
    return writeOutput(json.take() + '\n');
}

} // namespace zelvor
