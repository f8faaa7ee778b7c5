// FakeWorkspace, FakeOpenPanel and FakePathControl: a desktop that tests look at and answer for.
#pragma once

#include "fakes/event_list.h"
#include "ports/open_panel.h"
#include "ports/path_control.h"
#include "ports/workspace.h"

#include <functional>
#include <utility>
#include <vector>

namespace kelvo {

class FakeWorkspace final : public Workspace {
public:
    void openUrl(const QString& url) override { request(u"openUrl " + url); }
    void openFile(const QString& path) override { request(u"openFile " + path); }
    void revealInFinder(const QString& path) override { request(u"reveal " + path); }
    void activateFileViewerSelecting(const QStringList& paths) override {
        if (!paths.isEmpty())
            request(u"select " + paths.join(u'|'));
    }

    QStringList requests; ///< every request so far
    EventList events;

private:
    void request(const QString& what) {
        requests.append(what);
        events.note(what);
    }
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
