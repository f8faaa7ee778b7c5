// TerminalLine: one line on a terminal that is written anew as things go on.
#pragma once

#include <QString>

namespace kelvo {

/// Cut to the terminal's width, so that it never becomes two. A terminal that takes nothing at the
/// moment is left alone: nothing here waits.
class TerminalLine {
public:
    /// `terminal` stays open as long as the line.
    explicit TerminalLine(int terminal) : fTerminal(terminal) {}

    /// Takes the line away.
    ~TerminalLine() { show({}); }
    TerminalLine(const TerminalLine&) = delete;
    TerminalLine& operator=(const TerminalLine&) = delete;

    /// `text` holds no control characters. The text that stands already is not written again.
    void show(const QString& text);

private:
    const int fTerminal;
    QString fShown;
};

} // namespace kelvo
