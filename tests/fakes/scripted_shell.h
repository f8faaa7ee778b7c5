// ScriptedShell: answers commands from a script and remembers what it was asked.
#pragma once

#include "ports/shell_runner.h"

#include <QStringList>

#include <functional>
#include <mutex>
#include <utility>
#include <vector>

namespace kelvo {

class ScriptedShell final : public ShellRunner {
public:
    using Answer = std::function<QString(const QString& command)>;

    /// Commands that contain `part` get this answer; a later rule goes before an earlier one.
    void answerTo(const QString& part, Answer answer) {
        const std::lock_guard lock(fMutex);
        fRules.emplace_back(part, std::move(answer));
    }
    void answerTo(const QString& part, const QString& output) {
        answerTo(part, [output](const QString&) { return output; });
    }

    QString outputWhenRunAsShellCommand(const QString& command) override {
        Answer answer;
        {
            const std::lock_guard lock(fMutex);
            fCommands.append(command);
            for (const auto& [part, ruleAnswer] : fRules) {
                if (command.contains(part))
                    answer = ruleAnswer;
            }
        }
        return answer ? answer(command) : QString();
    }

    QStringList commands() const {
        const std::lock_guard lock(fMutex);
        return fCommands;
    }

private:
    mutable std::mutex fMutex;
    std::vector<std::pair<QString, Answer>> fRules;
    QStringList fCommands;
};

} // namespace kelvo
