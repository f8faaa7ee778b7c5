// ChecklistView: the lines of the checklist, each with the button for its remedy.
#pragma once

#include "ui/checklist.h"

#include <QFrame>

class QGridLayout;

namespace kelvo {

/// Hidden while all is well. Main thread only.
class ChecklistView final : public QFrame {
    Q_OBJECT
public:
    explicit ChecklistView(QWidget* parent = nullptr);

    /// From now on a click on a line's button calls `chosen`.
    void setRemedyChosen(std::function<void(Remedy)> chosen) { fRemedyChosen = std::move(chosen); }

    void setLines(const std::vector<ChecklistLine>& lines);

private:
    QGridLayout* fRows;
    std::function<void(Remedy)> fRemedyChosen;
};

} // namespace kelvo
