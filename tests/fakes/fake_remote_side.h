// FakeTerminal and FakePasteboard: what setting up the remote side works with, as tests look at it
// and answer for it.
#pragma once

#include "ports/pasteboard.h"
#include "ports/terminal.h"

#include <vector>

namespace kelvo {

class FakeTerminal final : public Terminal {
public:
    struct Window {
        QString path;
        QString command;
        std::function<void(TerminalOutcome)> ended;
    };

    void openCommandFile(const QString& path, const QString& command,
                         std::function<void(TerminalOutcome)> ended) override {
        windows.push_back({path, command, std::move(ended)});
    }

    std::vector<Window> windows; ///< everything opened so far
};

class FakePasteboard final : public Pasteboard {
public:
    void setString(const QString& text) override { held = text; }
    QString held;
};

} // namespace kelvo
