#include "ui/template_setting.h"

#include "ports/user_defaults.h"
#include "settings/preference_keys.h"

namespace kelvo {

std::optional<MovieKinds> TemplateSetting::kinds() const {
    return kindsOfTemplate(stored());
}

void TemplateSetting::setKind(std::size_t place, bool taken) {
    auto changed = kinds();
    if (!changed)
        return;
    changed->set(place, taken);
    store(templateWithKinds(*changed));
}

void TemplateSetting::takeOver() {
    if (const auto successor = successorOf(stored()))
        store(*successor);
}

TemplateSetting::Change TemplateSetting::nextChange() const {
    if (stored() != factoryTemplate())
        return Change::ToFactory;
    return fOwn.isEmpty() ? Change::None : Change::ToOwn;
}

void TemplateSetting::change() {
    switch (nextChange()) {
    case Change::None:
        break;
    case Change::ToFactory:
        fOwn = stored();
        store(factoryTemplate());
        break;
    case Change::ToOwn:
        store(fOwn);
        break;
    }
}

QString TemplateSetting::stored() const {
    return fDefaults.stringForKey(prefRsyncCommandString1).value_or(QString());
}

/// The factory's own text is not stored where it is the default: a later version may have a better
/// one.
void TemplateSetting::store(const QString& command) {
    if (command == factoryTemplate())
        fDefaults.removeObject(prefRsyncCommandString1);
    if (stored() != command)
        fDefaults.setObject(prefRsyncCommandString1, command);
}

} // namespace kelvo
