#include "ui/kelvo_status_menu_handler.h"

#include "ports/console.h"
#include "support/text.h"

namespace kelvo {
namespace {

constexpr QStringView cTypeName = u"SupportKit.KelvoStatusMenuHandler";

} // namespace

KelvoStatusMenuHandler::~KelvoStatusMenuHandler() {
    fPresence.forget(fTargets);
}

void KelvoStatusMenuHandler::setWindowController(MainWindowController* controller) {
    fTargets.fWindowController = controller;
}

void KelvoStatusMenuHandler::setMainVC(MainViewController* mainVC) {
    fTargets.fMainVC = mainVC;
}

void KelvoStatusMenuHandler::setupStatusMenuStuff() {
    fPresence.show(fTargets);
}

void KelvoStatusMenuHandler::removeStatusMenuStuff() {
    fPresence.remove(fTargets);
}

void KelvoStatusMenuHandler::delegatefunction1() {
    fConsole.print(insideLine(cTypeName, u"delegatefunction1()"));
}

void KelvoStatusMenuHandler::delegatefunction2() {
    fConsole.print(insideLine(cTypeName, u"delegatefunction2()"));
}

QString KelvoStatusMenuHandler::description() const {
    return u'<' + cTypeName + u": 0x" + QString::number(reinterpret_cast<quintptr>(this), 16) +
           u'>';
}

} // namespace kelvo
