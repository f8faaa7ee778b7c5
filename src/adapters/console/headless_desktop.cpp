#include "adapters/console/headless_desktop.h"

#include "ports/console.h"

namespace kelvo {

OpenPanelAnswer HeadlessOpenPanel::runModal(const OpenPanelOptions& options) {
    fConsole.log(options.title + u": there is no window to choose in.");
    return {};
}

void HeadlessTerminal::openCommandFile(const QString&, const QString& command, const QString&,
                                       std::function<void(TerminalOutcome)>) {
    fConsole.print(u"terminal: " + command);
}

} // namespace kelvo
