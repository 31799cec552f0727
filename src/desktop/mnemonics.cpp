#include "desktop/mnemonics.h"

#include <QtCore/QSet>
#include <QtGui/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// Where the letter stands that is to be the key; -1 when all are taken. Twice '&' is a plain one.
qsizetype freeLetter(const QString& text, const QSet<QChar>& taken)
{
    const auto isFree = [&](qsizetype at) {
        return text[at].isLetterOrNumber() && !taken.contains(text[at].toLower());
    };
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool startsWord = at == 0 || !text[at - 1].isLetterOrNumber();
        if (startsWord && isFree(at))
            return at;
    }
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (isFree(at))
            return at;
    }
    return -1;
}

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

void assign(const QList<QAction*>& actions)
{
    QSet<QChar> taken;
    for (const QAction* action : actions) {
        if (const QChar key = mnemonicOf(action->text()); !key.isNull())
            taken.insert(key);
    }
    for (QAction* const action : actions) {
        QString text = action->text();
        if (action->isSeparator() || !mnemonicOf(text).isNull())
            continue;
        const qsizetype at = freeLetter(text, taken);
        if (at < 0)
            continue;
        taken.insert(text[at].toLower());
        action->setText(text.insert(at, u'&'));
    }
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
