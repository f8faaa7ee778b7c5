// FakeSingleCopy: copies of the program that know of each other through one place in memory.
#pragma once

#include "ports/single_copy.h"

#include <utility>

namespace kelvo {

class FakeSingleCopy final : public SingleCopy {
public:
    /// What all copies of a test share.
    struct Place {
        FakeSingleCopy* first = nullptr;
        bool firstHangs = false;
        bool missing = false;
    };

    explicit FakeSingleCopy(Place& place) : fPlace(place) {}
    ~FakeSingleCopy() override {
        if (fPlace.first == this)
            fPlace.first = nullptr;
    }
    FakeSingleCopy(const FakeSingleCopy&) = delete;
    FakeSingleCopy& operator=(const FakeSingleCopy&) = delete;

    Claim claim(const QByteArray& token, Show show) override {
        ++claims;
        if (fPlace.missing)
            return Claim::Unguarded;
        if (!fPlace.first) {
            fPlace.first = this;
            fShow = std::move(show);
            return Claim::First;
        }
        if (fPlace.firstHangs)
            return Claim::OtherIsSilent;
        fPlace.first->fShow(token);
        return Claim::OtherIsShown;
    }

    int claims = 0;

private:
    Place& fPlace;
    Show fShow;
};

} // namespace kelvo
