// ChecklistProbe: what this machine says about the things a pass needs.
#pragma once

#include <QString>

namespace kelvo {

class ChecklistProbe {
public:
    virtual ~ChecklistProbe() = default;

    /// Both may wait for a slow disk: not on the main thread. Any other thread, several at once.
    virtual bool isProgram(const QString& path) const = 0;
    virtual bool isWritableFolder(const QString& path) const = 0;
};

} // namespace kelvo
