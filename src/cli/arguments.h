#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <span>

namespace zelvor {

// One option that a command knows: "--currency" takes a value, "--register" does not.
struct OptionInfo {
    const char* name; // with its dashes
    bool takesValue;
};

// The words behind a command: positional ones in order, and options by name. "--name value" and
// "--name=value" mean the same; "--" ends the options.
class Arguments {
public:
    // On a word that the command does not know, or a missing value, answers none and fills `error`.
    static std::optional<Arguments> parse(const QStringList& words, std::span<const OptionInfo> known,
                                          QString* error);

    const QStringList& positional() const { return m_positional; }
    QStringList options() const { return m_options.keys(); } // those given
    bool has(const QString& option) const { return m_options.contains(option); }
    // The value of an option that was given; none otherwise.
    std::optional<QString> value(const QString& option) const;

private:
    QStringList m_positional;
    QMap<QString, QString> m_options;
};

} // namespace zelvor
