// The desktop's controls where there is no desktop: nobody can choose, nobody sees the path.
#pragma once

#include "ports/open_panel.h"
#include "ports/path_control.h"

namespace kelvo {

class Console;

/// Every panel counts as cancelled, and a line in the system log says why.
class HeadlessOpenPanel final : public OpenPanel {
public:
    explicit HeadlessOpenPanel(Console& console) : fConsole(console) {}

    OpenPanelAnswer runModal(const OpenPanelOptions& options) override;

private:
    Console& fConsole;
};

/// Keeps the location it was given.
class HeadlessPathControl final : public PathControl {
public:
    void setUrl(const QString& url) override { fUrl = url; }
    std::optional<QString> url() const override;
    std::vector<Item> pathItems() const override { return pathItemsOf(fUrl); }

private:
    QString fUrl;
};

} // namespace kelvo
