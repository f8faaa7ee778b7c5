// SetupMacs: finds Macs for the set-up from a terminal, and lists them.
#pragma once

#include "support/dnssd_service.h"
#include "support/subscription.h"
#include "ui/empty_list_watch.h"

#include <QString>

#include <functional>
#include <memory>

namespace kelvo {

class ArrayController;
class BackgroundQueue;
class BonjourViewController;
class Console;
class Dialogue;
class UserDefaults;

/// Main thread only. The main queue must have ended before this is destroyed.
class SetupMacs {
public:
    struct Parts {
        Dialogue& dialogue;
        UserDefaults& settings;
        DispatchQueue& mainQueue;
        BackgroundQueue& bgQueue;
        Console& console;
        DnssdBrowser& browser;
        std::function<bool()> hasNetwork;
    };

    /// All of it outlives this.
    explicit SetupMacs(const Parts& parts);
    ~SetupMacs();
    SetupMacs(const SetupMacs&) = delete;
    SetupMacs& operator=(const SetupMacs&) = delete;

    /// Searches until there is a Mac and the list is complete, until Return, or for 12 s; then
    /// shows the list with numbers, or why it is empty. `done` gets false when the input has ended.
    void search(std::function<void(bool)> done);

    /// How many there are; they are numbered from 1.
    qsizetype count() const { return fListed.size(); }

    /// Stores the Mac of this number as the window's list does.
    void choose(qsizetype number);

private:
    void look();
    DNSSD_Services found() const; ///< by the scans so far
    void show();
    QString whyEmpty() const;

    const Parts fParts;
    std::shared_ptr<ArrayController> fRows;
    std::shared_ptr<BonjourViewController> fList;
    EmptyListWatch fWatch;
    DNSSD_Services fListed;
    qsizetype fChosen = -1; ///< a row
    int fLooks = 0;
    std::function<void(bool)> fDone;
};

} // namespace kelvo
