// TrayIcon: the status menu in the desktop's tray.
#pragma once

#include "ports/desktop_notices.h"
#include "ports/status_menu.h"
#include "ports/tray_item.h"
#include "support/profile.h"
#include "support/subscription.h"

#include <QIcon>
#include <QMenu>
#include <QSystemTrayIcon>

#include <array>
#include <memory>
#include <optional>

namespace kelvo {

class DispatchQueue;
class TrayHost;

/// Shows the item where a panel takes it over the bus; the toolkit's icon in a tray of the X11 kind
/// alone. The toolkit decides once in a process which kind it talks to, at the first icon made;
/// its icon is therefore made only when `host` knows of such a tray.
class TrayIcon final : public QObject, public StatusMenu {
    Q_OBJECT
public:
    /// The first three outlive this; the queue must have ended before.
    TrayIcon(TrayHost& host, TrayItem& item, DispatchQueue& mainQueue, const Profile& profile = {});
    ~TrayIcon() override;

    void setActions(StatusMenuActions actions) override;
    void show(StatusMenuState state) override;
    void showWork(const WorkState& work) override;
    void setStartTitle(const QString& title) override;
    void hide() override;
    bool isReachable() const override;

    /// Shows a notice beside the toolkit's icon; none where that is not shown.
    void showNotice(const Notice& notice);

    /// The toolkit's icon; none while hidden, on the bus, or before there has been an X11 tray.
    const QSystemTrayIcon* shownIcon() const;
    QMenu& menu() { return fMenu; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Action = std::function<void()> StatusMenuActions::*;
    QAction* addEntry(const char* name, const QString& title, Action action);
    void addFactLines();
    void run(Action action);
    void choose(std::size_t entry);
    void tellMenuShown(bool shown);
    void update();
    void showWorkNow();
    void fillItem();
    QString tip() const;
    void makeIcon();

    TrayHost& fHost;
    TrayItem& fItem;
    DispatchQueue& fMainQueue;
    const QString fTitle;
    StatusMenuActions fActions;
    QMenu fMenu;
    std::array<QAction*, 3> fFacts{}; ///< what is going on, the last success, the next pass
    QAction* fFactsEnd = nullptr;
    QAction* fStartEntry = nullptr;
    QAction* fSyncNowEntry = nullptr;
    QAction* fCancelEntry = nullptr;
    QAction* fRevealEntry = nullptr;
    std::optional<StatusMenuState> fState; ///< nothing while hidden
    std::optional<StatusMenuState> fDrawn; ///< which state `fPicture` shows
    QIcon fPicture;
    TrayLook fLook;
    WorkState fWork;
    WorkState fShownWork;
    bool fIsQuiet = false; ///< work has been shown a moment ago
    std::unique_ptr<QSystemTrayIcon> fIcon;
    Subscription fHostChanges;
};

} // namespace kelvo
