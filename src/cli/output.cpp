#include "cli/output.h"

#include "cli/json_writer.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace zelvor {

void holdStandardStreams()
{
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (::fcntl(stream, F_GETFD) < 0)
            ::open("/dev/null", (stream == STDIN_FILENO ? O_WRONLY : O_RDONLY));
    }
}

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
