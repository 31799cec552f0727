#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <functional>
#include <optional>

namespace zelvor {

// Takes the next piece of what a command writes; false ends the writing.
using Sink = std::function<bool(const QByteArray& piece)>;

// Lets `write` write to standard output, or to the file at `path`, whole or not at all. The answer is an exit
// code; what could not be written was told. A `write` that answers false by itself told its own fault.
int deliver(const std::optional<QString>& path, const std::function<bool(const Sink&)>& write);

} // namespace zelvor
