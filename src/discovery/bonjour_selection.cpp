#include "discovery/bonjour_selection.h"

#include "discovery/record_texts.h"
#include "ports/console.h"
#include "ports/dispatch_queue.h"
#include "ports/dnssd_browser.h"
#include "support/array_controller.h"
#include "support/fatal.h"
#include "support/text.h"

namespace kelvo {
namespace {

constexpr double cScanTime = 1.0;
constexpr QStringView cSeparator = u"\n===============================================";

} // namespace

void BonjourSelection::ibSelectSourceByBonjor() {
    printInside(u"ibSelectSourceByBonjor(_:)");
    if (!fParts.presentSheet(cBonjourVCstoryboardID))
        stopProgram("Unable to instantiate ViewController in Main.storyboard!");
}

void BonjourSelection::ibSelectDestByBonjor() {
    printInside(u"ibSelectDestByBonjor(_:)");
}

void BonjourSelection::ibSearchBonjour() {
    printInside(u"ibSearchBonjour(_:)");
    fParts.browser.browseForType(cBrowsedType.toString());
    fParts.mainQueue.asyncAfter(cScanTime, [this] {
        fFoundServicesArray = fParts.browser.services();
        ibShowBonjourListInfo();
    });
}

void BonjourSelection::ibShowBonjourListInfo() {
    Console& console = fParts.console;
    console.print(u"self.fFoundServicesArray[" + countText(fFoundServicesArray) + u"] item");
    fParts.fArrayController.setContent(fFoundServicesArray);
    for (const DNSSD_Service& record : fFoundServicesArray.value_or(DNSSD_Services()))
        console.print(u"device => [" + plainText(record.hostTarget) + u"] @ [" +
                      plainText(record.ip4Address) + u"] -> [" + plainText(record.name) +
                      u"] is type[" + plainText(record.type) + u']');
    const auto print = [&console](QStringView text, int times) {
        for (int time = 0; time < times; ++time)
            console.print(text.toString());
    };
    print(u"\n", 2);
    print(cSeparator, 3);
    print(u"self.fArrayController? => [Optional(ArrayController)] ", 1);
    print(QString(u"self.fArrayController?.content[" + listText(fParts.fArrayController.content()) +
                  u"] "),
          1);
    print(cSeparator, 2);
    print(u"\n", 2);
}

void BonjourSelection::printInside(QStringView operation) {
    fParts.console.print(insideLine(u"ViewController", operation));
}

} // namespace kelvo
