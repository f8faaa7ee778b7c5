// DesktopNotices: short messages that the desktop shows wherever the person is.
#pragma once

#include <QString>

namespace kelvo {

class DesktopNotices {
public:
    virtual ~DesktopNotices() = default;

    /// Shows `title` and `text`, both plain, for as long as the desktop likes. Main thread; returns
    /// at once. A desktop that cannot show it is nobody's business.
    virtual void showNotice(const QString& title, const QString& text) = 0;
};

} // namespace kelvo
