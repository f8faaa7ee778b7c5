// HealthView: how the last passes went, in a sign and in words, with the button for the next step.
#pragma once

#include "support/work_state.h"

#include <QWidget>

#include <functional>

class QLabel;
class QPushButton;

namespace kelvo {

/// Sign, words and colour say the same. Keeps the room of three lines. A screen reader speaks the
/// words when trouble begins, when it turns into another one and when all is well again. Main
/// thread only.
class HealthView final : public QWidget {
    Q_OBJECT
public:
    explicit HealthView(QWidget* parent = nullptr);

    /// From now on a click on the button calls `chosen`.
    void setRemedyChosen(std::function<void(Remedy)> chosen) { fRemedyChosen = std::move(chosen); }

    void showHealth(const Health& health);

    /// Takes the focus of the Tab key.
    QWidget& focusPlace() const;

    /// A person has asked for a pass: how it went is spoken although it is no news.
    void forgetSpokenText() { fAskedFor = true; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void applyLook();
    void speak();

    Health fHealth;
    QString fSpoken;        ///< the cause of the trouble; empty while there is none
    bool fAskedFor = false; ///< trouble is spoken even if it is the same
    QLabel* fSign;
    QLabel* fText;
    QLabel* fLastSuccess;
    QPushButton* fButton;
    std::function<void(Remedy)> fRemedyChosen;
};

} // namespace kelvo
