#include "cli/program.h"

#include "cli/output.h"

namespace zelvor {

void UnattendedDialogs::ask(const Alert& alert, std::function<void(int)> answer)
{
    answer(firstButton + static_cast<int>(alert.buttons.size()) - 1);
}

QString UnattendedDialogs::takeText()
{
    return std::exchange(m_text, QString());
}

Program::Program() : appDelegate({m_clock, Calendar(QTimeZone::systemTimeZone()), dialogs, m_defaults}) {}

bool Program::open(const QString& path, Access access)
{
    if (appDelegate.connector.open(path, access))
        return true;
    writeError(appDelegate.connector.openError());
    return false;
}

} // namespace zelvor
