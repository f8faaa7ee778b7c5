#include "ports/open_panel.h"

namespace kelvo {

std::optional<QString> OpenPanel::selectDirectoryUrl() {
    const OpenPanelAnswer answer = runModal({.title = QStringLiteral("Select Directory"),
                                             .allowsMultipleSelection = false,
                                             .canChooseDirectories = true,
                                             .canChooseFiles = true,
                                             .canCreateDirectories = true});
    if (!answer.ok || answer.paths.isEmpty())
        return std::nullopt;
    return answer.paths.constFirst();
}

} // namespace kelvo
