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
                       std::weak_ptr<StatusField> field,
                       std::function<void(const AttributedString&)> shown)
    : fDefaults(defaults), fMainQueue(mainQueue), ibStatusTextField(std::move(field)),
      fShown(std::move(shown)) {}

void StatusLine::updateStatusMessage(std::optional<QString> mesg, StatusColor color,
                                     bool docenter) {
    fMainQueue.asyncAfter(cStatusDelay, [&defaults = fDefaults, weakField = ibStatusTextField,
                                         shown = fShown, mesg = std::move(mesg), color, docenter] {
        const auto field = weakField.lock();
        if (!field)
            return;
        const AttributedString value =
            mesg ? getAttributedString(*mesg, color, docenter) : AttributedString();
        if (mesg)
            field->setAttributedStringValue(value);
        else
            field->clear();
        defaults.removeObject(prefStatusTextfieldString);
        if (shown)
            shown(value);
    });
}

} // namespace kelvo
