// FakeConnection: a connection that opens and breaks as the test says.
#pragma once

#include "ports/kept_connection.h"

#include <algorithm>
#include <vector>

namespace kelvo {

class FakeConnection final : public KeptConnection {
public:
    void open(const LoginTarget& target) override {
        opened.push_back(target);
        fIsOpen = opens;
        fHasStood = opens;
    }
    QByteArray folder(double patience) override {
        longestPatience = std::max(longestPatience, patience);
        return fIsOpen ? QByteArray("/run/connection") : QByteArray();
    }
    bool hasStood() const override { return fHasStood; }
    void close() override {
        ++closed;
        fIsOpen = false;
    }

    void breakOff() { fIsOpen = false; }
    bool isOpen() const { return fIsOpen; }

    bool opens = true; ///< whether logins go well; set before
    std::vector<LoginTarget> opened;
    int closed = 0;
    double longestPatience = 0;

private:
    bool fIsOpen = false;
    bool fHasStood = false;
};

} // namespace kelvo
