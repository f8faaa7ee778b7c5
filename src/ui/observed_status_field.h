// ObservedStatusField: a status field that also tells whether what it shows is trouble.
#pragma once

#include "ports/status_field.h"

#include <functional>
#include <memory>

namespace kelvo {

/// Main thread only.
class ObservedStatusField final : public StatusField {
public:
    /// `trouble` is told with each message, after the field shows it: true for red, false for black
    /// and for clearing. It outlives this object.
    ObservedStatusField(std::shared_ptr<StatusField> field, std::function<void(bool)> trouble);

    void setAttributedStringValue(const AttributedString& value) override;
    void clear() override;

private:
    std::shared_ptr<StatusField> fField;
    std::function<void(bool)> fTrouble;
};

} // namespace kelvo
