#include "app/commands/setup_macs.h"

#include "ports/dialogue.h"
#include "ports/dispatch_queue.h"
#include "support/array_controller.h"
#include "support/plain_line.h"
#include "ui/bonjour_view_controller.h"

#include <utility>

namespace kelvo {
namespace {

constexpr double cPace = 0.25;
constexpr int cComplete = 9; ///< looks: the first scan has brought all that it brings
constexpr int cLongest = 48;
constexpr int cScanEvery = 12; ///< while nothing is found

} // namespace

SetupMacs::SetupMacs(const Parts& parts)
    : fParts(parts), fRows(std::make_shared<ArrayController>()),
      fList(BonjourViewController::make({.defaults = parts.settings,
                                         .mainQueue = parts.mainQueue,
                                         .bgQueue = parts.bgQueue,
                                         .console = parts.console,
                                         .browser = parts.browser,
                                         .fArrayController = fRows,
                                         .selectedRow = [this] { return fChosen; },
                                         .dismiss = [] {},
                                         .beep = [] {}})),
      fWatch({.mainQueue = parts.mainQueue,
              .browser = parts.browser,
              .hasNetwork = parts.hasNetwork,
              .isEmpty = [this] { return found().isEmpty(); },
              .scan = [this] { fList->ibSearchBonjour(); },
              .changed = [] {}}) {}

SetupMacs::~SetupMacs() = default;

void SetupMacs::search(std::function<void(bool)> done) {
    fDone = std::move(done);
    fLooks = 0;
    fList->viewDidLoad();
    fWatch.begin();
    fParts.dialogue.ask(
        QStringLiteral("Looking for Macs in this network; Return ends the search … "),
        [this](const std::optional<QString>& answer) {
            if (answer)
                show();
            else
                std::exchange(fDone, nullptr)(false);
        });
    look();
}

void SetupMacs::look() {
    if (!fDone)
        return;
    const bool isEmpty = found().isEmpty();
    const WhyEmpty why = fWatch.why();
    const bool cannotFind =
        why == WhyEmpty::DiscoveryNotInstalled || why == WhyEmpty::DiscoveryNotRunning;
    if (fLooks >= cLongest || (fLooks >= cComplete && (!isEmpty || cannotFind))) {
        fParts.dialogue.takeBack();
        show();
        return;
    }
    if (++fLooks % cScanEvery == 0 && isEmpty)
        fList->ibSearchBonjour();
    fParts.mainQueue.asyncAfter(cPace, [this] { look(); });
}

DNSSD_Services SetupMacs::found() const {
    return fRows->content().value_or(DNSSD_Services());
}

void SetupMacs::show() {
    fListed = found();
    if (fListed.isEmpty())
        fParts.dialogue.say(whyEmpty());
    for (qsizetype row = 0; row < fListed.size(); ++row)
        fParts.dialogue.say(QStringLiteral("  %1  %2  %3  %4")
                                .arg(row + 1)
                                .arg(oneLine(fListed[row].name), oneLine(fListed[row].ip4Address),
                                     oneLine(fListed[row].hostTarget)));
    std::exchange(fDone, nullptr)(true);
}

QString SetupMacs::whyEmpty() const {
    switch (fWatch.why()) {
    case WhyEmpty::DiscoveryNotInstalled:
        return QStringLiteral("Discovery is not installed on this machine. With it Macs would be "
                              "listed here: sudo apt install avahi-daemon");
    case WhyEmpty::DiscoveryNotRunning:
        return QStringLiteral("Discovery is not running on this machine. With it Macs would be "
                              "listed here: sudo systemctl start avahi-daemon");
    case WhyEmpty::NoNetwork:
        return QStringLiteral("This machine is not connected to a network.");
    case WhyEmpty::StillLooking:
    case WhyEmpty::NothingFound:
        break;
    }
    return QStringLiteral(
        "No Mac was found. On the Mac, System Settings, General, Sharing: File Sharing makes it "
        "known in its network, and Remote Login lets this program in. A Mac that is known by name "
        "or address can be used without being found.");
}

/// What was listed last is what its numbers mean.
void SetupMacs::choose(qsizetype number) {
    fRows->setContent(fListed);
    fChosen = number - 1;
    fList->ibSelectItem();
    fChosen = -1;
}

} // namespace kelvo
