#include "desktop/mnemonics.h"

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtGui/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

QChar mnemonicOf(const QString& text)
{
    for (qsizetype at = 0; at + 1 < text.size(); ++at) {
        if (text[at] == u'&' && text[at + 1] != u'&')
            return text[at + 1].toLower();
        if (text[at] == u'&')
            ++at;
    }
    return {};
}

// Where the letters stand that can be the key: the initials of words, then the others.
std::vector<qsizetype> lettersOf(const QString& text)
{
    std::vector<qsizetype> initials;
    std::vector<qsizetype> others;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (!text[at].isLetterOrNumber())
            continue;
        const bool startsWord = at == 0 || !text[at - 1].isLetterOrNumber();
        (startsWord ? initials : others).push_back(at);
    }
    initials.insert(initials.end(), others.begin(), others.end());
    return initials;
}

// Entries matched with letters along augmenting paths: an entry takes a letter from another one when that has
// a second choice. So as many entries as can be get one.
class Matching {
public:
    explicit Matching(QList<QAction*> entries, const QSet<QChar>& taken)
        : m_entries(std::move(entries)), m_taken(taken)
    {
        for (qsizetype entry = 0; entry < m_entries.size(); ++entry) {
            m_tried.clear();
            give(entry);
        }
    }
    void write() const
    {
        for (auto owner = m_owners.begin(); owner != m_owners.end(); ++owner) {
            QAction* const action = m_entries[owner->entry];
            action->setText(action->text().insert(owner->place, u'&'));
        }
    }

private:
    struct Owner {
        qsizetype entry;
        qsizetype place; // of the letter in its text
    };

    bool give(qsizetype entry)
    {
        const QString text = m_entries[entry]->text();
        for (const qsizetype place : lettersOf(text)) {
            const QChar letter = text[place].toLower();
            if (m_taken.contains(letter) || m_tried.contains(letter))
                continue;
            m_tried.insert(letter);
            const auto owner = m_owners.find(letter);
            if (owner != m_owners.end() && !give(owner->entry))
                continue;
            m_owners.insert(letter, {entry, place});
            return true;
        }
        return false;
    }

    QList<QAction*> m_entries;
    QSet<QChar> m_taken;
    QSet<QChar> m_tried;
    QHash<QChar, Owner> m_owners;
};

void assign(const QList<QAction*>& actions)
{
    QSet<QChar> taken;
    QList<QAction*> without;
    for (QAction* const action : actions) {
        const QChar key = mnemonicOf(action->text());
        if (!key.isNull())
            taken.insert(key);
        else if (!action->isSeparator())
            without.append(action);
    }
    Matching(without, taken).write();
}

} // namespace

void assignMnemonics(QMenu* menu)
{
    assign(menu->actions());
}

void assignMnemonics(QMenuBar* bar)
{
    assign(bar->actions());
}

} // namespace zelvor
