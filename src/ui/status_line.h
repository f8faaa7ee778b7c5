// StatusLine: brings status messages to the status field.
#pragma once

#include "support/attributed_string.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace kelvo {

class DispatchQueue;
class StatusField;
class UserDefaults;

class StatusLine {
public:
    /// A field that is gone when a message is due drops the message. `shown` is told on the main
    /// thread what the field shows, an empty text when it was cleared; it may be empty.
    StatusLine(UserDefaults& defaults, DispatchQueue& mainQueue, std::weak_ptr<StatusField> field,
               std::function<void(const AttributedString&)> shown = {});

    /// Shows `mesg` in `color`, centred when asked for, 0.1 s from now; no `mesg` clears the line.
    /// The saved status text is wiped with it. Any thread; returns at once.
    void updateStatusMessage(std::optional<QString> mesg, StatusColor color, bool docenter);

private:
    UserDefaults& fDefaults;
    DispatchQueue& fMainQueue;
    std::weak_ptr<StatusField> ibStatusTextField;
    const std::function<void(const AttributedString&)> fShown;
};

} // namespace kelvo
