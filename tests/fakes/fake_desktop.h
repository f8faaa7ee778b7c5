// FakeWorkspace, FakeOpenPanel and FakePathControl: a desktop that tests look at and answer for.
#pragma once

#include "ports/open_panel.h"
#include "ports/path_control.h"
#include "ports/workspace.h"

#include <functional>
#include <utility>
#include <vector>

namespace kelvo {

class FakeWorkspace final : public Workspace {
public:
    void openUrl(const QString& url) override { requests.append(u"openUrl " + url); }
    void openFile(const QString& path) override { requests.append(u"openFile " + path); }
    void revealInFinder(const QString& path) override { requests.append(u"reveal " + path); }
    void activateFileViewerSelecting(const QStringList& paths) override {
        if (!paths.isEmpty())
            requests.append(u"select " + paths.join(u'|'));
    }

    QStringList requests; ///< every request so far
};

class FakeOpenPanel final : public OpenPanel {
public:
    OpenPanelAnswer runModal(const OpenPanelOptions& options) override {
        shown.push_back(options);
        if (whileOpen)
            whileOpen();
        return answer;
    }

    std::vector<OpenPanelOptions> shown;
    OpenPanelAnswer answer;
    std::function<void()> whileOpen; ///< runs while the panel is open
};

class FakePathControl final : public PathControl {
public:
    void setUrl(const QString& url) override { shown = url; }
    std::optional<QString> url() const override {
        return shown.isEmpty() ? std::nullopt : std::optional(shown);
    }
    std::vector<Item> pathItems() const override { return pathItemsOf(shown); }

    QString shown;
};

} // namespace kelvo
