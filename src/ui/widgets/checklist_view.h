// ChecklistView: the lines of the checklist, with the buttons for their remedies.
#pragma once

#include "ui/checklist.h"

#include <QFrame>

#include <map>

class QGridLayout;
class QLabel;
class QToolButton;

namespace kelvo {

/// Hidden while all is well. A remedy has one button, beside the first line that it mends; the
/// button stays the same as long as one line needs it, and keeps the focus. Main thread only.
class ChecklistView final : public QFrame {
    Q_OBJECT
public:
    explicit ChecklistView(QWidget* parent = nullptr);

    /// From now on a click on a remedy's button calls `chosen`.
    void setRemedyChosen(std::function<void(Remedy)> chosen) { fRemedyChosen = std::move(chosen); }

    void setLines(const std::vector<ChecklistLine>& lines);

private:
    struct Row {
        QLabel* sign;
        QLabel* text;
    };
    void addRow();
    QToolButton& buttonFor(Remedy remedy);

    QGridLayout* fRows;
    std::vector<Row> fLabels; ///< as many as there ever were lines; the spare ones are hidden
    std::map<Remedy, QToolButton*> fButtons;
    std::function<void(Remedy)> fRemedyChosen;
};

} // namespace kelvo
