#include "adapters/network/service_table.h"

namespace kelvo {
namespace {

// A network with more than this does not exist; somebody who floods it does.
constexpr std::size_t cMostServices = 10000;

} // namespace

void ServiceTable::startSearch(const QString& type) {
    const std::lock_guard lock(fMutex);
    if (type != fSearch.type)
        fEntries.clear();
    fSearch = {type, fSearch.number + 1};
    std::erase_if(fEntries, [](const Entry& entry) { return !entry.record.available; });
    fPlaces.clear();
    for (std::size_t place = 0; place < fEntries.size(); ++place) {
        const Entry& entry = fEntries[place];
        fPlaces.emplace(Key(entry.record.name, entry.record.interface), place);
    }
}

ServiceSearch ServiceTable::search() const {
    const std::lock_guard lock(fMutex);
    return fSearch;
}

ServiceSearch ServiceTable::beginSearch() {
    const std::lock_guard lock(fMutex);
    for (Entry& entry : fEntries)
        entry.heardOver = 0;
    return fSearch;
}

bool ServiceTable::found(const DNSSD_Service& record, HeardOver protocol) {
    const std::lock_guard lock(fMutex);
    if (record.type != fSearch.type)
        return false;
    Entry* known = entry(record.name, record.interface);
    if (!known) {
        if (fEntries.size() >= cMostServices)
            return false;
        fPlaces.emplace(Key(record.name, record.interface), fEntries.size());
        known = &fEntries.emplace_back(Entry{record, 0});
    }
    const bool first = known->heardOver == 0;
    setHeardOver(*known, known->heardOver | static_cast<unsigned>(protocol));
    return first;
}

void ServiceTable::resolved(const DNSSD_Service& record) {
    const std::lock_guard lock(fMutex);
    Entry* known = entry(record.name, record.interface);
    if (!known || record.type != fSearch.type)
        return;
    known->record.hostTarget = record.hostTarget;
    known->record.ip4Address = record.ip4Address;
    known->record.macAddress = record.macAddress;
    known->record.hostPort = record.hostPort;
}

bool ServiceTable::vanished(const QString& name, quint32 interface, HeardOver protocol) {
    const std::lock_guard lock(fMutex);
    Entry* known = entry(name, interface);
    if (!known)
        return true;
    setHeardOver(*known, known->heardOver & ~static_cast<unsigned>(protocol));
    return known->heardOver == 0;
}

void ServiceTable::settle(quint64 number) {
    const std::lock_guard lock(fMutex);
    if (number != fSearch.number)
        return;
    for (Entry& entry : fEntries)
        setHeardOver(entry, entry.heardOver);
}

void ServiceTable::lose() {
    const std::lock_guard lock(fMutex);
    for (Entry& entry : fEntries)
        setHeardOver(entry, 0);
}

DNSSD_Services ServiceTable::services() const {
    const std::lock_guard lock(fMutex);
    DNSSD_Services list;
    list.reserve(static_cast<qsizetype>(fEntries.size()));
    for (const Entry& entry : fEntries)
        list.append(entry.record);
    return list;
}

ServiceTable::Entry* ServiceTable::entry(const QString& name, quint32 interface) {
    const auto place = fPlaces.find({name, interface});
    return place == fPlaces.end() ? nullptr : &fEntries[place->second];
}

void ServiceTable::setHeardOver(Entry& entry, unsigned protocols) {
    entry.heardOver = protocols;
    entry.record.available = protocols != 0;
}

} // namespace kelvo
