// StatusColor: the two colours of the status line.
#pragma once

#include <QStringView>

namespace kelvo {

enum class StatusColor {
    Black, ///< progress, and clearing the line
    Red,   ///< trouble
};

/// "black" or "red".
constexpr QStringView colorName(StatusColor color) {
    return color == StatusColor::Red ? QStringView(u"red") : QStringView(u"black");
}

} // namespace kelvo
