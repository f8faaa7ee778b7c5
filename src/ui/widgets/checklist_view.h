// ChecklistView: the lines of the checklist, with the buttons for their remedies.
#pragma once

#include "ui/checklist.h"
#include "ui/widgets/focus_keeper.h"

#include <QWidget>

class QGridLayout;
class QLabel;
class QToolButton;

namespace kelvo {

/// Hidden while all is well. A remedy has one button, beside the first line that it mends. Rows
/// stay where they are and take other words; the focus stays with its remedy. Main thread only.
class ChecklistView final : public QWidget {
    Q_OBJECT
public:
    explicit ChecklistView(QWidget* parent = nullptr);

    /// From now on a click on a remedy's button calls `chosen`.
    void setRemedyChosen(std::function<void(Remedy)> chosen) { fRemedyChosen = std::move(chosen); }

    void setLines(const std::vector<ChecklistLine>& lines);

    /// Takes the focus of the Tab key, the first of the buttons.
    QWidget& focusPlace() const;

protected:
    bool focusNextPrevChild(bool next) override;

private:
    struct Row {
        QLabel* sign;
        QLabel* text;
        QToolButton* button;
        Remedy remedy = Remedy::None; ///< what the button does; None: it is hidden
    };
    void addRow();
    void showLines(const std::vector<ChecklistLine>& lines);

    QGridLayout* fGrid;
    std::vector<Row> fRows; ///< one, or as many as there ever were lines; the spare ones are hidden
    FocusKeeper fFocus{*this};
    std::function<void(Remedy)> fRemedyChosen;
};

} // namespace kelvo
