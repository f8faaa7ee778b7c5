// ChecklistView: the lines of the checklist, each with the button that mends it.
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

    /// What the buttons do.
    void setMend(std::function<void(Mend)> mend) { fMend = std::move(mend); }

    void setLines(const std::vector<ChecklistLine>& lines);

private:
    QGridLayout* fRows;
    std::function<void(Mend)> fMend;
};

} // namespace kelvo
