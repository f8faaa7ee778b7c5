// OpenPanel: the dialog in which a person chooses a file or a folder.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace kelvo {

struct OpenPanelOptions {
    QString title;
    bool allowsMultipleSelection = false;
    bool canChooseDirectories = false;
    bool canChooseFiles = true;
    bool canCreateDirectories = false;

    bool operator==(const OpenPanelOptions&) const = default;
};

struct OpenPanelAnswer {
    bool ok = false;   ///< false when the panel was cancelled or could not be shown
    QStringList paths; ///< the chosen places, absolute, in the order of choice
};

/// Main thread only.
class OpenPanel {
public:
    virtual ~OpenPanel() = default;

    /// Shows a fresh panel and blocks until it is answered; the event loop goes on meanwhile.
    virtual OpenPanelAnswer runModal(const OpenPanelOptions& options) = 0;

    /// Lets a person choose one folder or file, "Select Directory", and blocks as `runModal`.
    /// Nothing when the panel was cancelled or nothing was chosen.
    std::optional<QString> selectDirectoryUrl();
};

} // namespace kelvo
