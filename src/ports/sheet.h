// Sheet: what the controller of a sheet can do to the sheet itself.
#pragma once

namespace kelvo {

/// Main thread only.
class Sheet {
public:
    virtual ~Sheet() = default;

    /// Closes the sheet; one that is closed already is no error.
    virtual void dismiss() = 0;

    /// Plays the alert sound.
    virtual void beep() = 0;
};

} // namespace kelvo
