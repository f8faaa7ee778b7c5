#include "ui/status_line.h"

#include "ports/dispatch_queue.h"
#include "ports/status_field.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"

#include <utility>

namespace kelvo {
namespace {

constexpr double cStatusDelay = 0.1;

} // namespace

StatusLine::StatusLine(UserDefaults& defaults, DispatchQueue& mainQueue,
                       std::weak_ptr<StatusField> field)
    : fDefaults(defaults), fMainQueue(mainQueue), ibStatusTextField(std::move(field)) {}

void StatusLine::updateStatusMessage(std::optional<QString> mesg, StatusColor color,
                                     bool docenter) {
    fMainQueue.asyncAfter(cStatusDelay, [&defaults = fDefaults, weakField = ibStatusTextField,
                                         mesg = std::move(mesg), color, docenter] {
        const auto field = weakField.lock();
        if (!field)
            return;
        if (mesg)
            field->setAttributedStringValue(getAttributedString(*mesg, color, docenter));
        else
            field->clear();
        defaults.removeObject(prefStatusTextfieldString);
    });
}

} // namespace kelvo
