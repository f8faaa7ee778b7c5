#include "ui/reveal_button_watchers.h"

#include "ports/console.h"
#include "ports/file_manager.h"
#include "ports/main_view.h"
#include "ports/user_defaults.h"
#include "ports/workspace.h"
#include "settings/preference_keys.h"
#include "support/text.h"
#include "ui/alerts.h"
#include "ui/words.h"

#include <utility>

namespace kelvo {

void RevealButtonWatchers::install() {
    monitorMouseClicks(fParts.ibRevealButton1, [this](bool inside) {
        if (inside)
            clickedButton1();
    });
    monitorMouseClicks(fParts.ibRevealButton2, [this](bool inside) {
        if (inside)
            fParts.console.print(QStringLiteral("Mouse down inside ibRevealButton22222222"));
    });
}

void RevealButtonWatchers::monitorMouseClicks(const Control* view,
                                              std::function<void(bool)> clickHandler) {
    fParts.console.log(insideLine(cViewControllerTypeName,
                                  u"monitorMouseClicksForNSViewController(for:in:clickHandler:)"));
    if (view)
        fMonitors.push_back(fParts.view.monitorRightMouseDown(*view, std::move(clickHandler)));
}

void RevealButtonWatchers::clickedButton1() {
    fParts.console.print(QStringLiteral("Mouse down inside BUTTON 11111111"));
    const auto stored = fParts.defaults.stringForKey(prefPath1);
    if (!stored)
        return;
    const QString path = expandingTilde(*stored, fParts.files.homeDirectory());
    if (fParts.alerts.showChoices(Words::tr("Reveal In Finder"),
                                  Words::tr("path:\n%1").arg(optionalText(path))))
        fParts.workspace.revealInFinder(path);
    else
        fParts.workspace.activateFileViewerSelecting({path});
}

} // namespace kelvo
