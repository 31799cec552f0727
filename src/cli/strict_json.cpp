#include "cli/strict_json.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QSet>

#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// Walks a text that is known to be valid JSON and looks at the keys of every object.
class KeyWalk {
public:
    explicit KeyWalk(const QByteArray& text) : m_text(text) {}

    // The first key that an object has twice, or none.
    std::optional<QString> repeatedKey()
    {
        for (; m_place < m_text.size(); ++m_place) {
            const char c = m_text[m_place];
            if (c == '{' || c == '[')
                m_open.push_back({c == '{', true, {}});
            else if (c == '}' || c == ']')
                m_open.pop_back();
            else if (c == ',')
                m_open.back().keyIsNext = true;
            else if (c == ':')
                m_open.back().keyIsNext = false;
            else if (c == '"') {
                const QByteArray quoted = skipText();
                if (std::optional<QString> repeated = takeText(quoted))
                    return repeated;
            }
        }
        return std::nullopt;
    }

private:
    struct Level {
        bool isObject;
        bool keyIsNext;
        QSet<QString> keys;
    };

    // The text that begins here, with its quotes; ends on the closing one.
    QByteArray skipText()
    {
        const qsizetype from = m_place;
        for (++m_place; m_text[m_place] != '"'; ++m_place) {
            if (m_text[m_place] == '\\')
                ++m_place;
        }
        return m_open.back().isObject && m_open.back().keyIsNext ? m_text.mid(from, m_place - from + 1)
                                                                 : QByteArray();
    }

    std::optional<QString> takeText(const QByteArray& quoted)
    {
        if (quoted.isEmpty())
            return std::nullopt;
        const QString key = QJsonDocument::fromJson('[' + quoted + ']').array().first().toString();
        QSet<QString>& keys = m_open.back().keys;
        if (keys.contains(key))
            return key;
        keys.insert(key);
        return std::nullopt;
    }

    const QByteArray& m_text;
    qsizetype m_place = 0;
    std::vector<Level> m_open;
};

} // namespace

std::optional<QJsonObject> parseStrictObject(const QByteArray& text, QString* error)
{
    QJsonParseError problem;
    const QJsonDocument document = QJsonDocument::fromJson(text, &problem);
    if (problem.error != QJsonParseError::NoError) {
        *error = u"no valid JSON: "_s + problem.errorString() + u" (at byte "_s +
                 QString::number(problem.offset) + u')';
        return std::nullopt;
    }
    if (!document.isObject()) {
        *error = u"not a JSON object"_s;
        return std::nullopt;
    }
    if (const std::optional<QString> repeated = KeyWalk(text).repeatedKey()) {
        *error = u"the key '"_s + *repeated + u"' is given twice"_s;
        return std::nullopt;
    }
    return document.object();
}

} // namespace zelvor
