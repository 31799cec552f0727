#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <optional>

namespace zelvor {

// A box below the text of a question: "do not ask again". It takes effect when it is ticked, whatever the
// answer will be.
struct AlertCheckBox {
    QString title;
    bool on = false;
    std::function<void(bool)> onToggled;
};

// A question or message for the user. alertStyle: 0 warning, 1 informational sheet.
struct Alert {
    QString messageText;
    QString informativeText;
    QStringList buttons;
    int alertStyle = 0;
    std::optional<AlertCheckBox> checkBox = {};
};

inline constexpr int firstButton = 1000; // the answers count up from here

struct SavePanel {
    QString title;
    QString nameLabel;
    QString prompt;
    QString extension; // without the dot
};

struct OpenPanel {
    QString title;
    QString nameLabel;
    QString prompt;
    QStringList allowedTypes; // extensions without the dot
};

// What a controller asks of the person in front of it. The desktop shows it, the command line answers from
// its options, a test answers by script. Nothing here is ever asked while a transaction is open.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    // A modal message; returns when it is closed.
    virtual void showAlert(const Alert& alert) = 0;
    // A question on a sheet; `answer` gets firstButton for the first button, firstButton + 1 for the next.
    virtual void ask(const Alert& alert, std::function<void(int)> answer) = 0;
    // The chosen path, or none when the user cancelled.
    virtual std::optional<QString> savePath(const SavePanel& panel) = 0;
    virtual std::optional<QString> openPath(const OpenPanel& panel) = 0;
};

} // namespace zelvor
