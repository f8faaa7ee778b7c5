// The list of services: one filtering pass, and the main queue's stall when a list is shown.
#include "adapters/console/rotating_log_file.h"
#include "adapters/console/stream_console.h"
#include "adapters/network/service_table.h"
#include "bench/row.h"
#include "fakes/memory_defaults.h"
#include "fakes/virtual_queues.h"
#include "ports/dnssd_browser.h"
#include "support/array_controller.h"
#include "ui/bonjour_view_controller.h"

#include <fcntl.h>
#include <unistd.h>

#include <chrono>

namespace kelvo::bench {
namespace {

constexpr int cFilteredRecords = 10000;
constexpr int cShownRecords = 1000;
constexpr int cRepetitions = 9;

template <typename Body>
double secondsOf(Body body) {
    const auto begin = std::chrono::steady_clock::now();
    body();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

DNSSD_Service record(int number) {
    DNSSD_Service made;
    made.name = QStringLiteral("Studio Mac Pro %1").arg(number);
    made.type = QStringLiteral("_smb._tcp");
    made.scheme = QStringLiteral("smb");
    made.domain = QStringLiteral("local");
    made.hostTarget = QStringLiteral("Studio-Mac-Pro-%1.local").arg(number);
    made.ip4Address = QStringLiteral("10.%1.%2.7").arg(number / 250).arg(number % 250);
    made.interface = 2;
    made.hostPort = 445;
    made.available = true;
    return made;
}

/// The real table that the real browser reads from, without a network behind it.
class FilledBrowser final : public DnssdBrowser {
public:
    Subscription observeState(std::function<void(DiscoveryState)> changed) override {
        changed(DiscoveryState::Running);
        return {};
    }
    explicit FilledBrowser(int count) {
        fTable.startSearch(QStringLiteral("_smb._tcp"));
        for (int number = 0; number < count; ++number)
            fTable.found(record(number), HeardOver::IPv4);
    }
    void browseForType(const QString&) override {}
    DNSSD_Services services() const override { return fTable.services(); }
    void searchEndpoints(const EndpointRequest&, EndpointListener) override {}

private:
    ServiceTable fTable;
};

/// The list with everything real but its widgets; lines go to a console that throws them away.
class List {
public:
    explicit List(int count) : fBrowser(count) {}
    ~List() { ::close(fNowhere); }

    BonjourViewController& controller() { return *fController; }
    VirtualMainQueue& mainQueue() { return fMainQueue; }
    ManualBackgroundQueue& bgQueue() { return fBgQueue; }
    qsizetype rows() const { return fRows->content().value_or(DNSSD_Services()).size(); }

private:
    const int fNowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    RotatingLogFile fLogFile;
    StreamConsole fConsole{fNowhere, fNowhere, fLogFile};
    FilledBrowser fBrowser;
    MemoryDefaults fDefaults;
    VirtualMainQueue fMainQueue;
    ManualBackgroundQueue fBgQueue;
    std::shared_ptr<ArrayController> fRows = std::make_shared<ArrayController>();
    std::shared_ptr<BonjourViewController> fController = BonjourViewController::make({
        .defaults = fDefaults,
        .mainQueue = fMainQueue,
        .bgQueue = fBgQueue,
        .console = fConsole,
        .browser = fBrowser,
        .fArrayController = fRows,
        .selectedRow = [] { return -1; },
        .dismiss = [] {},
        .beep = [] {},
    });
};

std::optional<std::vector<Figure>> measureFilter() {
    std::vector<double> allNew;
    std::vector<double> allKnown;
    for (int time = 0; time < cRepetitions; ++time) {
        List list(cFilteredRecords);
        list.controller().ibSearchBonjour();
        list.mainQueue().advance(1.0); // read, not yet filtered
        allNew.push_back(secondsOf([&] { list.controller().updateFilteredArray(); }));
        allKnown.push_back(secondsOf([&] { list.controller().updateFilteredArray(); }));
        list.controller().ibUpdateFilteredList();
        if (list.rows() != cFilteredRecords) {
            std::fprintf(stderr, "The filter gave %lld rows.\n",
                         static_cast<long long>(list.rows()));
            return std::nullopt;
        }
    }
    return std::vector<Figure>{{"filtering 10,000 records, all new", median(allNew) * 1e3, 20.0,
                                "ms", std::to_string(cRepetitions) + " passes"},
                               {"filtering 10,000 records, all known", median(allKnown) * 1e3, 10.0,
                                "ms", std::to_string(cRepetitions) + " passes"}};
}

std::optional<std::vector<Figure>> measureSnapshot() {
    std::vector<double> stalls;
    for (int time = 0; time < cRepetitions; ++time) {
        List list(cShownRecords);
        // Two scans: the second tells of all rows of the first as well.
        double longest = 0;
        for (int scan = 0; scan < 2; ++scan) {
            list.controller().ibSearchBonjour();
            while (!list.mainQueue().idle()) {
                const double due = list.mainQueue().nextDelay();
                longest = std::max(longest, secondsOf([&] { list.mainQueue().advance(due); }));
                list.bgQueue().runAll(); // on threads of its own in the program
            }
        }
        if (list.rows() != cShownRecords)
            return std::nullopt;
        stalls.push_back(longest);
    }
    return std::vector<Figure>{{"longest main-queue stall of a scan that finds 1,000 Macs",
                                median(stalls) * 1e3, 5.0, "ms",
                                std::to_string(cRepetitions) + " times two scans"}};
}

} // namespace

Row filterRow() {
    return {"filter", measureFilter};
}

Row snapshotRow() {
    return {"snapshot", measureSnapshot};
}

} // namespace kelvo::bench
