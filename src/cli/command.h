#pragma once

#include "cli/arguments.h"

#include <QtCore/QByteArray>

#include <span>

namespace zelvor {

enum ExitCode {
    exitDone = 0,
    exitRefused = 1,  // an operation was refused, or a check found a fault
    exitBadUsage = 2, // bad usage, or a file that cannot be opened
};

// One command of zelvor-cli. `run` gets the words behind the command's name, already parsed.
struct Command {
    const char* name;
    const char* usage;   // behind "zelvor-cli": "create PROJECT.pdb [--currency CODE] [--register]"
    const char* summary; // one line for the list of commands
    const char* details; // what --help adds: options, formats; may be empty
    std::span<const OptionInfo> options;
    int minimumWords;
    int maximumWords;
    int (*run)(const Arguments& arguments);
    QByteArray (*moreDetails)() = nullptr; // what only the command itself can list
};

extern const Command createCommand;
extern const Command infoCommand;
extern const Command applyCommand;
extern const Command importCommand;
extern const Command reportCommand;
extern const Command invoiceCommand;
extern const Command closePeriodCommand;
extern const Command checkCommand;
extern const Command backupCommand;

// One line on standard error; answers exitBadUsage.
int badUsage(const QString& what);

} // namespace zelvor
