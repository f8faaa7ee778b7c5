// VirtualDesktop: a display with a window manager, a person's hands and eyes on it.
#pragma once

#include "support/virtual_display.h"
#include "support/wait_until.h"

#include <QPoint>
#include <QProcess>
#include <QSize>
#include <QString>
#include <QStringList>

namespace kelvo {

/// In the middle of the start button, for a main window of the usual size at `window` with nothing
/// amiss about its source.
inline QPoint startButton(const QPoint& window) {
    return window + QPoint(98, 116);
}

class VirtualDesktop {
public:
    VirtualDesktop() = default;
    /// Ends the window manager and the display.
    ~VirtualDesktop();
    VirtualDesktop(const VirtualDesktop&) = delete;
    VirtualDesktop& operator=(const VirtualDesktop&) = delete;

    /// The first tool that a desktop needs and this machine does not have; empty when all are here.
    static QString missingTool();

    /// False when no display or no window manager came up.
    bool start(const QSize& size = {800, 600});

    /// The display's name, for DISPLAY.
    const QString& name() const { return fName; }

    /// What a tool on this display prints.
    QString tool(const char* program, const QStringList& arguments) const;

    void keys(const QStringList& names) const;
    void type(const QString& text) const;
    void click(const QPoint& place, int button) const;

    /// The title of the window with the keyboard focus.
    QString activeTitle() const;
    /// Whether a window with such a title gets the focus in time.
    bool becomesActive(const QString& start) const;

    /// Keeps a picture of the display in `folder`, with the test's output. False when none was
    /// made.
    bool keepPicture(const QString& folder, const char* picture) const;

private:
    VirtualDisplay fDisplay;
    QString fName;
    QProcess fManager;
};

} // namespace kelvo
