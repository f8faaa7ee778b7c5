#include "ui/start_button_title.h"

#include "ports/console.h"
#include "ports/control.h"
#include "ports/dispatch_queue.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "support/fatal.h"

namespace kelvo {
namespace {

QString stopTitle(bool withSSH) {
    return withSSH ? QStringLiteral("click to stop bonjour rsync")
                   : QStringLiteral("click to stop rsync");
}

} // namespace

Button& StartButtonTitle::present() const {
    if (!ibStartButton)
        stopProgram("the start button is not there");
    return *ibStartButton;
}

void StartButtonTitle::showKindOfPass(bool usesSSH) {
    present().setTitle(usesSSH ? QStringLiteral("Start rsync with bonjour")
                               : QStringLiteral("Start rsync with afp path"));
}

void StartButtonTitle::showRunning(bool isRunning) {
    fConsole.print(isRunning ? QStringLiteral("state is now IS RUNNING")
                             : QStringLiteral("state is now OFF"));
    const bool withSSH = fDefaults.boolForKey(prefRsyncWithSSH);
    if (isRunning)
        present().setTitle(stopTitle(withSSH));
    else
        present().setTitle(withSSH ? QStringLiteral("click to restart rsync using bonjour")
                                   : QStringLiteral("click to restart rsync"));
}

void StartButtonTitle::update() {
    fMainQueue.async([this] {
        if (!ibStartButton)
            return;
        const bool withSSH = fDefaults.boolForKey(prefRsyncWithSSH);
        if (ibStartButton->state() == 1)
            ibStartButton->setTitle(stopTitle(withSSH));
        else
            ibStartButton->setTitle(withSSH ? QStringLiteral("click to start rsync using bonjour")
                                            : QStringLiteral("click to start rsync"));
    });
}

} // namespace kelvo
