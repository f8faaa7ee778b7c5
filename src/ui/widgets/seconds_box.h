// SecondsBox: a number of seconds in a box, with as many digits as it needs.
#pragma once

#include <QDoubleSpinBox>

namespace kelvo {

/// Takes every number from 0 up and shows it as it is: neither rounded nor cut.
class SecondsBox final : public QDoubleSpinBox {
    Q_OBJECT
public:
    explicit SecondsBox(QWidget* parent = nullptr);

    QString textFromValue(double value) const override;
};

} // namespace kelvo
