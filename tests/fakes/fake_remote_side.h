// FakeTerminal: a terminal that tests look at and answer for.
#pragma once

#include "fakes/event_list.h"
#include "ports/terminal.h"

#include <vector>

namespace kelvo {

class FakeTerminal final : public Terminal {
public:
    struct Window {
        QString path;
        QString command;
        QString title;
        std::function<void(TerminalOutcome)> ended;
    };

    void openCommandFile(const QString& path, const QString& command, const QString& title,
                         std::function<void(TerminalOutcome)> ended) override {
        windows.push_back({path, command, title, std::move(ended)});
        events.note(u"terminal " + command);
    }

    std::vector<Window> windows; ///< everything opened so far
    EventList events;
};

} // namespace kelvo
