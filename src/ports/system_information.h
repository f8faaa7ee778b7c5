// SystemInformation: says in the log what the program runs on.
#pragma once

namespace kelvo {

class SystemInformation {
public:
    virtual ~SystemInformation() = default;

    /// Writes a line each about the system, the desktop and the tools the program needs to the
    /// system log, soon: it returns at once. What cannot be found out is said so. Main thread.
    virtual void logCurrentSystemInfo() = 0;
};

} // namespace kelvo
