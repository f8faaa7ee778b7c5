// ServiceTable: what is known of the services that are looked for, between the thread that hears of
// them and the one that asks.
#pragma once

#include "support/dnssd_service.h"

#include <map>
#include <mutex>
#include <utility>
#include <vector>

namespace kelvo {

/// Which of the two protocols a service was heard over.
enum class HeardOver : unsigned { IPv4 = 1, IPv6 = 2 };

/// What is looked for; a later search has a higher number.
struct ServiceSearch {
    QString type; ///< in full, "_smb._tcp"; empty before the first search
    quint64 number = 0;
};

/// Every operation: any thread, no waiting but for the copy of a list.
class ServiceTable {
public:
    /// Asks for a search. The same type again forgets what has vanished; another type forgets
    /// everything.
    void startSearch(const QString& type);

    /// What was asked for last.
    ServiceSearch search() const;

    /// The same, for the thread that begins it: the earlier search tells of nothing any more, and
    /// each service that is known awaits to be found anew.
    ServiceSearch beginSearch();

    /// A service was heard of; its place in the list is that of its first time. Returns whether it
    /// is to be resolved: it is listed (not one of another type, or beyond the most that are kept)
    /// and not yet heard of in the search that was begun last.
    bool found(const DNSSD_Service& record, HeardOver protocol);

    /// It was resolved: takes over host, address, hardware address and port. One that is not
    /// listed is passed over.
    void resolved(const DNSSD_Service& record);

    /// Not heard of over `protocol` any more. Returns whether it is gone over both.
    bool vanished(const QString& name, quint32 interface, HeardOver protocol);

    /// The search with this number has told all it knew: what it did not mention has vanished.
    /// A search that is no longer the latest changes nothing.
    void settle(quint64 number);

    /// Nobody tells of services any more: all have vanished, until they are found again.
    void lose();

    /// In the order of discovery.
    DNSSD_Services services() const;

private:
    struct Entry {
        DNSSD_Service record;
        unsigned heardOver = 0;
    };
    using Key = std::pair<QString, quint32>; ///< name and interface

    Entry* entry(const QString& name, quint32 interface);
    static void setHeardOver(Entry& entry, unsigned protocols);

    mutable std::mutex fMutex;
    ServiceSearch fSearch;
    std::vector<Entry> fEntries;
    std::map<Key, std::size_t> fPlaces;
};

} // namespace kelvo
