#pragma once

#include "core/dialogs.h"

#include <deque>
#include <vector>

namespace zelvor {

// Answers by script and keeps what was asked. Without a scripted answer a question waits among the unanswered
// ones, for a test that answers late, and a panel is cancelled.
class ScriptedDialogs final : public Dialogs {
public:
    void showAlert(const Alert& alert) override
    {
        alerts.push_back(alert);
        if (onAlert)
            onAlert(alert);
    }
    void ask(const Alert& alert, std::function<void(int)> answer) override
    {
        questions.push_back(alert);
        if (answers.empty()) {
            unanswered.push_back(std::move(answer));
            return;
        }
        const int button = answers.front();
        answers.pop_front();
        answer(button);
    }
    std::optional<QString> savePath(const SavePanel& panel) override
    {
        savePanels.push_back(panel);
        return next(savePaths);
    }
    std::optional<QString> openPath(const OpenPanel& panel) override
    {
        openPanels.push_back(panel);
        return next(openPaths);
    }

    QString lastAlert() const { return alerts.empty() ? QString() : alerts.back().messageText; }

    std::vector<Alert> alerts;
    std::vector<Alert> questions;
    std::vector<std::function<void(int)>> unanswered;
    std::vector<SavePanel> savePanels;
    std::vector<OpenPanel> openPanels;
    std::deque<int> answers; // firstButton and up
    std::deque<QString> savePaths;
    std::deque<QString> openPaths;
    std::function<void(const Alert&)> onAlert;

private:
    static std::optional<QString> next(std::deque<QString>& paths)
    {
        if (paths.empty())
            return std::nullopt;
        QString path = paths.front();
        paths.pop_front();
        return path;
    }
};

} // namespace zelvor
