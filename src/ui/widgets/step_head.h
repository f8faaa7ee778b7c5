// StepHead: the head of one step of the set-up: sign, title, state in a word, what was chosen.
#pragma once

#include "ui/setup_steps.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace kelvo {

class ElidedLabel;

/// The sign repeats the word, so it has no words of its own. Main thread only.
class StepHead final : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
public:
    explicit StepHead(QWidget* parent = nullptr);

    QString title() const;
    void setTitle(const QString& title);

    /// A step that is folded, or was unfolded by a person, has its button; the folded one shows
    /// what was chosen.
    enum class Fold { Never, Folded, Unfolded };
    void showStep(const SetupLine& line, Fold fold);

    /// Unfolds the step, or folds it again.
    QPushButton& changeButton() { return *fChange; }

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void drawSign();

    QLabel* fSign;
    QLabel* fTitle;
    QLabel* fWord;
    ElidedLabel* fSummary;
    QPushButton* fChange;
    StepState fState = StepState::Later;
};

} // namespace kelvo
