// ScriptedShell: answers commands from a script and remembers what it was asked.
#pragma once

#include "ports/command_runner.h"

#include <QStringList>

#include <functional>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

namespace kelvo {

class ScriptedShell final : public CommandRunner {
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

    CommandResult run(const Command& command) override {
        const Rule rule = ruleFor(command);
        if (rule.endless && !command.seconds)
            throw std::logic_error("nobody bounded a command that never ends");
        CommandResult result{.output = rule.answer ? rule.answer(command.text) : QString(),
                             .errors = {},
                             .exitStatus = rule.endless ? 124 : 0};
        if (command.received && !result.output.isEmpty())
            command.received(result.output.toUtf8());
        return result;
    }

    void cancel(CommandId) override {}

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

    Rule ruleFor(const Command& command) {
        const std::lock_guard lock(fMutex);
        fCommands.append(command.text);
        fBounds.push_back(command.seconds);
        Rule found;
        for (const Rule& rule : fRules) {
            if (command.text.contains(rule.part))
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
