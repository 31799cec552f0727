#include "cli/arguments.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

std::optional<Arguments> Arguments::parse(const QStringList& words, std::span<const OptionInfo> known,
                                          QString* error)
{
    Arguments arguments;
    bool optionsEnded = false;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString& word = words[i];
        if (optionsEnded || !word.startsWith(u'-') || word == u"-") {
            arguments.m_positional.append(word);
            continue;
        }
        if (word == u"--") {
            optionsEnded = true;
            continue;
        }
        const qsizetype equals = word.startsWith(u"--") ? word.indexOf(u'=') : -1;
        const QString name = equals < 0 ? word : word.left(equals);
        const auto option = std::ranges::find_if(
            known, [&](const OptionInfo& info) { return name == QLatin1StringView(info.name); });
        if (option == known.end()) {
            *error = u"unknown option "_s + name;
            return std::nullopt;
        }
        if (arguments.m_options.contains(name)) {
            *error = u"option "_s + name + u" is given twice"_s;
            return std::nullopt;
        }
        if (!option->takesValue && equals >= 0) {
            *error = u"option "_s + name + u" takes no value"_s;
            return std::nullopt;
        }
        QString value;
        if (option->takesValue) {
            if (equals < 0 && i + 1 == words.size()) {
                *error = u"option "_s + name + u" needs a value"_s;
                return std::nullopt;
            }
            value = equals < 0 ? words[++i] : word.mid(equals + 1);
        }
        arguments.m_options.insert(name, value);
    }
    return arguments;
}

std::optional<QString> Arguments::value(const QString& option) const
{
    const auto found = m_options.find(option);
    return found == m_options.end() ? std::nullopt : std::optional(*found);
}

} // namespace zelvor
