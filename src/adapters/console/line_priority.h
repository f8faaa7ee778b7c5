// How grave a line is, for readers that sort lines by that.
#pragma once

#include <QStringView>

namespace kelvo {

inline constexpr QStringView cStatusLine = u"status ";
inline constexpr QStringView cRedStatusLine = u"status red: ";
inline constexpr QStringView cAlertLine = u"alert: ";

/// Whether a program without a window tells of trouble in this line.
inline bool tellsOfTrouble(QStringView line) {
    return line.startsWith(cRedStatusLine) || line.startsWith(cAlertLine);
}

} // namespace kelvo
