// TerminalDialogue: questions and answers on the terminal that the program was started in.
#pragma once

#include "ports/dialogue.h"

#include <memory>

class QSocketNotifier;

namespace kelvo {

/// Needs an event loop. Reads only while a question stands, a line each time, so that a command
/// which asks on the same terminal gets what is typed for it.
class TerminalDialogue final : public Dialogue {
public:
    /// The descriptors stay open as long as the dialogue. Questions are asked where both lead to a
    /// terminal.
    TerminalDialogue(int input, int output);
    ~TerminalDialogue() override;

    bool canAnswer() const override { return fCanAnswer; }
    void say(const QString& text) override;
    void ask(const QString& question, Answered answered) override;
    void takeBack() override;

private:
    void readLine();
    void write(const QString& text) const;

    const int fInput;
    const int fOutput;
    const bool fCanAnswer;
    Answered fAnswered;
    std::unique_ptr<QSocketNotifier> fNotifier;
};

} // namespace kelvo
