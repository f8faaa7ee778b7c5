// StatusLine: brings status messages to the status field.
#pragma once

#include "ports/status_messages.h"

#include <memory>

namespace kelvo {

class DispatchQueue;
class StatusField;
class UserDefaults;

class StatusLine final : public StatusMessages {
public:
    /// A field that is gone when a message is due drops the message.
    StatusLine(UserDefaults& defaults, DispatchQueue& mainQueue, std::weak_ptr<StatusField> field);

    void updateStatusMessage(std::optional<QString> mesg, StatusColor color,
                             bool docenter) override;

private:
    UserDefaults& fDefaults;
    DispatchQueue& fMainQueue;
    std::weak_ptr<StatusField> ibStatusTextField;
};

} // namespace kelvo
