#include "ui/observed_status_field.h"

#include <utility>

namespace kelvo {

ObservedStatusField::ObservedStatusField(std::shared_ptr<StatusField> field,
                                         std::function<void(bool)> trouble)
    : fField(std::move(field)), fTrouble(std::move(trouble)) {}

void ObservedStatusField::setAttributedStringValue(const AttributedString& value) {
    fField->setAttributedStringValue(value);
    fTrouble(value.foregroundColor == StatusColor::Red);
}

void ObservedStatusField::clear() {
    fField->clear();
    fTrouble(false);
}

} // namespace kelvo
