// WidgetOpenPanel: the dialog for choosing files and folders.
#pragma once

#include "ports/open_panel.h"

#include <QPointer>
#include <QWidget>

namespace kelvo {

/// A panel that may choose both takes a folder by its Open button, the folder that is shown when
/// nothing is selected in it.
class WidgetOpenPanel final : public OpenPanel {
public:
    explicit WidgetOpenPanel(QWidget& parent) : fParent(&parent) {}

    OpenPanelAnswer runModal(const OpenPanelOptions& options) override;

private:
    QPointer<QWidget> fParent;
};

} // namespace kelvo
