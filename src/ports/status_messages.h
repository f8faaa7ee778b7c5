// StatusMessages: the status line, seen by those who have something to say.
#pragma once

#include "support/status_color.h"

#include <QString>

#include <optional>

namespace kelvo {

class StatusMessages {
public:
    virtual ~StatusMessages() = default;

    /// Shows `mesg` in `color`, centred when asked for, 0.1 s from now; no `mesg` clears the line.
    /// The saved status text is wiped with it. Any thread; returns at once.
    virtual void updateStatusMessage(std::optional<QString> mesg, StatusColor color,
                                     bool docenter) = 0;
};

} // namespace kelvo
