#include "ui/widgets/seconds_box.h"

#include <QLocale>

#include <limits>

namespace kelvo {

SecondsBox::SecondsBox(QWidget* parent) : QDoubleSpinBox(parent) {
    using Limits = std::numeric_limits<double>;
    setDecimals(Limits::max_exponent10 + Limits::digits10);
    setRange(0.0, Limits::max());
    setKeyboardTracking(false);
}

QString SecondsBox::textFromValue(double value) const {
    QLocale digits = locale();
    digits.setNumberOptions(digits.numberOptions() | QLocale::OmitGroupSeparator);
    return digits.toString(value, 'f', QLocale::FloatingPointShortest);
}

} // namespace kelvo
