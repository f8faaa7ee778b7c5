// ScriptedShell: answers commands from a script and remembers what it was asked.
#pragma once

#include "fakes/event_list.h"
#include "ports/command_runner.h"

#include <QStringList>

#include <functional>
#include <map>
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
        fRules.push_back({.part = part, .answer = std::move(answer)});
    }
    void answerTo(const QString& part, const QString& output) {
        answerTo(part, [output](const QString&) { return output; });
    }

    /// The same, with an exit status.
    void answerTo(const QString& part, const QString& output, int exitStatus) {
        const std::lock_guard lock(fMutex);
        fRules.push_back({.part = part,
                          .answer = [output](const QString&) { return output; },
                          .exitStatus = exitStatus});
    }

    /// Commands that contain `part` print `soFar` and then never end by themselves. One that is
    /// not bounded is to be cancelled before its `Answer` returns or by `started`.
    void neverEnds(const QString& part, const QString& soFar) {
        const std::lock_guard lock(fMutex);
        fRules.push_back(
            {.part = part, .answer = [soFar](const QString&) { return soFar; }, .endless = true});
    }

    CommandResult run(const Command& command) override {
        const Rule rule = ruleFor(command);
        const CommandId id = enter();
        if (command.started)
            command.started(id);
        const QByteArray printed = (rule.answer ? rule.answer(command.text) : QString()).toUtf8();
        CommandResult result = kept(printed, command.bounds.kept);
        if (givesUp) {
            (void)leave(id);
            return {};
        }
        result.exitStatus = rule.endless ? 124 : rule.exitStatus;
        const bool tooMuch = printed.size() > command.bounds.most;
        if (leave(id))
            result.exitStatus.reset();
        else if (tooMuch)
            result.exitStatus = 141;
        else if (rule.endless && !command.seconds)
            throw std::logic_error("nobody bounded a command that never ends");
        if (command.received && !printed.isEmpty())
            command.received(printed);
        return result;
    }

    void cancel(CommandId command) override {
        const std::lock_guard lock(fMutex);
        if (fRunning.contains(command))
            fRunning[command] = true;
    }

    /// As they were run, without their functions.
    std::vector<Command> asked() const {
        const std::lock_guard lock(fMutex);
        return fAsked;
    }

    QStringList commands() const {
        const std::lock_guard lock(fMutex);
        QStringList texts;
        for (const Command& command : fAsked)
            texts.append(command.text);
        return texts;
    }

    /// The seconds each command was given; nothing for one that may take as long as it likes.
    std::vector<std::optional<double>> bounds() const {
        const std::lock_guard lock(fMutex);
        std::vector<std::optional<double>> seconds;
        for (const Command& command : fAsked)
            seconds.push_back(command.seconds);
        return seconds;
    }

    EventList events;
    bool givesUp = false; ///< as when the program quits: every command

private:
    struct Rule {
        QString part;
        Answer answer;
        bool endless = false;
        int exitStatus = 0;
    };

    /// For texts of single bytes where something is left out.
    static CommandResult kept(const QByteArray& printed, qsizetype most) {
        if (printed.size() <= most)
            return {QString::fromUtf8(printed), {}, {}};
        const qint64 leftOut = printed.size() - most;
        const QString text = QString::fromUtf8(printed.first(most / 2)) + u"\n… " +
                             QString::number(leftOut) + u" bytes left out …\n" +
                             QString::fromUtf8(printed.last(most - most / 2));
        return {text, {}, {}, leftOut};
    }

    CommandId enter() {
        const std::lock_guard lock(fMutex);
        fRunning[++fLast] = false;
        return fLast;
    }

    /// Whether it was cancelled.
    bool leave(CommandId command) {
        const std::lock_guard lock(fMutex);
        return fRunning.extract(command).mapped();
    }

    Rule ruleFor(const Command& command) {
        const std::lock_guard lock(fMutex);
        events.note(u"run " + command.text);
        fAsked.push_back({.text = command.text,
                          .seconds = command.seconds,
                          .bounds = command.bounds,
                          .leavesNothing = command.leavesNothing,
                          .input = command.input,
                          .variables = command.variables});
        Rule found;
        for (const Rule& rule : fRules) {
            if (command.text.contains(rule.part))
                found = rule;
        }
        return found;
    }

    mutable std::mutex fMutex;
    std::vector<Rule> fRules;
    std::vector<Command> fAsked;
    std::map<CommandId, bool> fRunning; ///< and whether it has been cancelled
    CommandId fLast = 0;
};

} // namespace kelvo
