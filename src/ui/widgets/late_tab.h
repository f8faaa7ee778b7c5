// LateTab: a page of the window that makes its controls when they are first needed.
#pragma once

#include <QWidget>

#include <functional>

namespace kelvo {

/// The start does not wait for a page that nobody looks at. Main thread only.
class LateTab : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    /// Has `built` called once the controls are there, at once if they are.
    void whenBuilt(const std::function<void()>& built);

    void setVisible(bool visible) override;

Q_SIGNALS:
    void controlsBuilt();

protected:
    bool isBuilt() const { return fIsBuilt; }
    /// Has the controls made, if they are not there yet.
    void build();
    /// Makes them; called once, before the page is first shown.
    virtual void makeControls() = 0;

private:
    bool fIsBuilt = false;
};

} // namespace kelvo
