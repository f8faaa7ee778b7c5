// TransferSpeed: how fast bytes have come of late.
#pragma once

#include <QtGlobal>

#include <deque>
#include <optional>

namespace kelvo {

/// Any fixed clock, in seconds. Keeps some twenty points at most.
class TransferSpeed {
public:
    /// `bytes` have come in all at the moment `now`; neither goes back.
    void reached(qint64 bytes, double now) {
        if (fPoints.empty() || now - fPoints.back().when >= cSpacing)
            fPoints.push_back({now, bytes});
        while (fPoints.size() > 1 && now - fPoints[1].when >= cWindow)
            fPoints.pop_front();
        fBytes = bytes;
    }

    /// Bytes a second, the mean of the last ten seconds; sinks while nothing comes.
    std::optional<double> at(double now) const {
        constexpr double cLeast = 0.4; // of a shorter time a mean says little
        if (fPoints.empty() || now - fPoints.front().when < cLeast)
            return std::nullopt;
        const Point& first = fPoints.front();
        return static_cast<double>(fBytes - first.bytes) / (now - first.when);
    }

private:
    static constexpr double cSpacing = 0.5;
    static constexpr double cWindow = 10;

    struct Point {
        double when;
        qint64 bytes;
    };

    std::deque<Point> fPoints;
    qint64 fBytes = 0;
};

} // namespace kelvo
