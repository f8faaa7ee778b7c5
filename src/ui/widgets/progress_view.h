// ProgressView: how far the pass has come that runs, or when the next one begins.
#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;

namespace kelvo {

class ElidedLabel;
struct WorkState;

/// Its room stays the same whether a pass runs or not. Main thread only.
class ProgressView final : public QWidget {
    Q_OBJECT
public:
    explicit ProgressView(QWidget* parent = nullptr);

    void showWork(const WorkState& work);

private:
    QLabel* addFigure(const char* name);

    QProgressBar* fBar;
    QLabel* fShare;
    ElidedLabel* fStep;
    QLabel* fNextPass;
    QLabel* fAmount;
    QLabel* fSpeed;
    QLabel* fTimeLeft;
    ElidedLabel* fFile;
    QLabel* fCount;
};

} // namespace kelvo
