// Application: the program as the desktop sees it.
#pragma once

namespace kelvo {

/// Main thread only.
class Application {
public:
    virtual ~Application() = default;

    /// Takes all windows of the program off the screen; it runs on.
    virtual void hide() = 0;

    /// Brings the main window to the front, out of hiding and out of its minimised state.
    virtual void bringToFront() = 0;

    /// Asks for the orderly end and returns; the end begins once the event loop is back.
    virtual void terminate() = 0;
};

} // namespace kelvo
