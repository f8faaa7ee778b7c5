// DesktopNotices: short messages that the desktop shows wherever the person is.
#pragma once

#include <QString>

#include <functional>

namespace kelvo {

struct Notice {
    QString title; ///< plain
    QString text;  ///< plain
    bool urgent = false;
    /// Called when the person chooses "Show", on the main thread; at most once. Empty: no such
    /// choice.
    std::function<void()> show = {};
};

class DesktopNotices {
public:
    virtual ~DesktopNotices() = default;

    /// Shows `notice` for as long as the desktop likes. Main thread; returns at once. A desktop
    /// that cannot show it is nobody's business; one without choices shows it without.
    virtual void showNotice(const Notice& notice) = 0;
};

} // namespace kelvo
