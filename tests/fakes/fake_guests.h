// FakeGuests: guests in memory that say what a test lets them say.
#pragma once

#include "ports/guests.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <map>
#include <utility>
#include <vector>

namespace kelvo {

class FakeGuests final : public Guests {
public:
    struct Guest {
        std::vector<QByteArray> heard; ///< every line so far
        bool dismissed = false;
        bool reads = true; ///< one that does not is dismissed at the next line
    };

    void receive(Host given) override { host = std::move(given); }
    bool say(Id id, const QByteArray& line, const QByteArray& farewell = {}) override {
        const auto guest = guests.find(id);
        if (guest == guests.end() || guest->second.dismissed)
            return false;
        guest->second.heard.push_back(guest->second.reads ? line : farewell);
        guest->second.dismissed = !guest->second.reads;
        return !guest->second.dismissed;
    }
    void dismiss(Id id) override {
        if (const auto guest = guests.find(id); guest != guests.end())
            guest->second.dismissed = true;
    }

    /// A new guest says `line`, without its end.
    Id come(const QByteArray& line) {
        guests.emplace(++last, Guest{.heard = {}, .reads = newcomersRead});
        host.said(last, line);
        return last;
    }
    void leave(Id id) {
        const bool missed = !guests.at(id).dismissed;
        guests.erase(id);
        if (missed)
            host.left(id);
    }

    /// What the guest has heard last.
    QJsonObject answer(Id id) const {
        const auto& heard = guests.at(id).heard;
        return heard.empty() ? QJsonObject() : QJsonDocument::fromJson(heard.back()).object();
    }

    bool newcomersRead = true;
    std::map<Id, Guest> guests;
    Host host;
    Id last = 0;
};

} // namespace kelvo
