#include "app/start/interface_registry.h"

#include "ui/interface_controllers.h"

#include <utility>

namespace kelvo {

void InterfaceRegistry::add(QStringView identifier, Maker maker) {
    fMakers.insert_or_assign(identifier.toString(), std::move(maker));
}

std::shared_ptr<InterfaceController>
InterfaceRegistry::instantiateController(QStringView identifier) const {
    const auto found = fMakers.find(identifier);
    return found != fMakers.end() && found->second ? found->second() : nullptr;
}

} // namespace kelvo
