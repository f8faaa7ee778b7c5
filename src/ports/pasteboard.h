// Pasteboard: the desktop's clipboard.
#pragma once

#include <QString>

namespace kelvo {

class Pasteboard {
public:
    virtual ~Pasteboard() = default;

    /// Puts `text` there in place of what it held. Main thread.
    virtual void setString(const QString& text) = 0;
};

} // namespace kelvo
