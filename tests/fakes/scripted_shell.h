// ScriptedShell: answers commands from a script and remembers what it was asked.
#pragma once

#include "ports/shell_runner.h"

#include <QStringList>

#include <functional>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

namespace kelvo {

class ScriptedShell final : public ShellRunner {
public:
    using Answer = std::function<QString(const QString& command)>;

    /// Commands that contain `part` get this answer; a later rule goes before an earlier one.
    void answerTo(const QString& part, Answer answer) {
        const std::lock_guard lock(fMutex);
        fRules.push_back({part, std::move(answer)});
    }
    void answerTo(const QString& part, const QString& output) {
        answerTo(part, [output](const QString&) { return output; });
    }

    /// Commands that contain `part` print `soFar` and then never end by themselves.
    void neverEnds(const QString& part, const QString& soFar) {
        const std::lock_guard lock(fMutex);
        fRules.push_back({part, [soFar](const QString&) { return soFar; }, true});
    }

    QString outputWhenRunAsShellCommand(const QString& command) override {
        const Rule rule = ruleFor(command, std::nullopt);
        if (rule.endless)
            throw std::logic_error("nobody bounded a command that never ends");
        return rule.answer ? rule.answer(command) : QString();
    }

    QString outputWithin(double seconds, const QString& command) override {
        const Rule rule = ruleFor(command, seconds);
        return rule.answer ? rule.answer(command) : QString();
    }

    QStringList commands() const {
        const std::lock_guard lock(fMutex);
        return fCommands;
    }

    /// The seconds each command was given; nothing for one that may take as long as it likes.
    std::vector<std::optional<double>> bounds() const {
        const std::lock_guard lock(fMutex);
        return fBounds;
    }

private:
    struct Rule {
        QString part;
        Answer answer;
        bool endless = false;
    };

    Rule ruleFor(const QString& command, std::optional<double> seconds) {
        const std::lock_guard lock(fMutex);
        fCommands.append(command);
        fBounds.push_back(seconds);
        Rule found;
        for (const Rule& rule : fRules) {
            if (command.contains(rule.part))
                found = rule;
        }
        return found;
    }

    mutable std::mutex fMutex;
    std::vector<Rule> fRules;
    QStringList fCommands;
    std::vector<std::optional<double>> fBounds;
};

} // namespace kelvo
