// BonjourSelection: what the main view offers for finding the remote computer by DNS-SD.
#pragma once

#include "support/dnssd_service.h"

#include <functional>
#include <optional>
#include <utility>

namespace kelvo {

class ArrayController;
class Console;
class DispatchQueue;
class DnssdBrowser;

/// Everything it works with; all of it outlives this.
struct BonjourSelectionParts {
    DispatchQueue& mainQueue;
    Console& console;
    DnssdBrowser& browser;
    /// Makes the sheet of this identifier afresh and shows it; false when there is no such sheet.
    std::function<bool(QStringView)> presentSheet;
    ArrayController& fArrayController; ///< the main view's own list
};

/// Main thread only. The main queue must have ended before this is destroyed: what waits there
/// belongs to it.
class BonjourSelection {
public:
    explicit BonjourSelection(BonjourSelectionParts parts) : fParts(std::move(parts)) {}
    BonjourSelection(const BonjourSelection&) = delete;
    BonjourSelection& operator=(const BonjourSelection&) = delete;

    /// Opens a fresh list of services as a sheet; without such a sheet the program stops.
    void ibSelectSourceByBonjor();

    /// Only leaves a line: a destination is not chosen this way.
    void ibSelectDestByBonjor();

    /// Scans, and one second later shows and prints what was found.
    void ibSearchBonjour();

    /// Puts the last scan's result into the main view's list and prints it, nothing left out.
    void ibShowBonjourListInfo();

private:
    void printInside(QStringView operation);

    const BonjourSelectionParts fParts;
    std::optional<DNSSD_Services> fFoundServicesArray;
};

} // namespace kelvo
