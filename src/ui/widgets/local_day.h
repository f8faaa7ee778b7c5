// LocalDay: the day of a moment by this machine's clock, cheap for many moments of one day.
#pragma once

#include <QDateTime>

namespace kelvo {

class LocalDay {
public:
    QDate of(const QDateTime& moment) {
        const qint64 at = moment.toMSecsSinceEpoch();
        if (!fDay.isValid() || at < fBegin || at >= fEnd) {
            fDay = moment.toLocalTime().date();
            fBegin = fDay.startOfDay().toMSecsSinceEpoch();
            fEnd = fDay.addDays(1).startOfDay().toMSecsSinceEpoch();
        }
        return fDay;
    }

private:
    QDate fDay;
    qint64 fBegin = 0; ///< milliseconds since 1970
    qint64 fEnd = 0;
};

} // namespace kelvo
