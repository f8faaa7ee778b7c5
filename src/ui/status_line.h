// StatusLine: brings status messages to the status field.
#pragma once

#include "ports/status_messages.h"

#include <functional>
#include <memory>

namespace kelvo {

class DispatchQueue;
class StatusField;
class UserDefaults;

class StatusLine final : public StatusMessages {
public:
    /// A field that is gone when a message is due drops the message. `trouble`, if any, is told
    /// after the field has shown a message: true for red, false for black and for clearing. It
    /// outlives what waits on the main queue.
    StatusLine(UserDefaults& defaults, DispatchQueue& mainQueue, std::weak_ptr<StatusField> field,
               std::function<void(bool)> trouble = {});

    void updateStatusMessage(std::optional<QString> mesg, StatusColor color,
                             bool docenter) override;

private:
    UserDefaults& fDefaults;
    DispatchQueue& fMainQueue;
    std::weak_ptr<StatusField> ibStatusTextField;
    std::function<void(bool)> fTrouble;
};

} // namespace kelvo
