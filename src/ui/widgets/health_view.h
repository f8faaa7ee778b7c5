// HealthView: how the last passes went, in a sign and in words, with the button for the next step.
#pragma once

#include "support/work_state.h"

#include <QWidget>

#include <functional>

class QLabel;
class QPushButton;

namespace kelvo {

/// Sign, words and colour say the same. Keeps the room of three lines. Main thread only.
class HealthView final : public QWidget {
    Q_OBJECT
public:
    explicit HealthView(QWidget* parent = nullptr);

    /// From now on a click on the button calls `chosen`.
    void setRemedyChosen(std::function<void(Remedy)> chosen) { fRemedyChosen = std::move(chosen); }

    void showHealth(const Health& health);

protected:
    void changeEvent(QEvent* event) override;

private:
    void applyLook();

    Health fHealth;
    QLabel* fSign;
    QLabel* fText;
    QLabel* fLastSuccess;
    QPushButton* fButton;
    std::function<void(Remedy)> fRemedyChosen;
};

} // namespace kelvo
