#include "settings/factory_defaults.h"

#include "ports/bundle.h"
#include "ports/console.h"
#include "ports/user_defaults.h"
#include "settings/preferences.h"

namespace kelvo {

void registerFactoryDefaults(const Bundle& bundle, UserDefaults& defaults, Console& console) {
    for (const QStringView key :
         {prefShowNotices, prefShowArrivals, prefKeepConnection, prefQuitWithoutAsking})
        defaults.registerDefaults({{key.toString(), factoryValue(*preference(key))}});
    const auto factory = bundle.propertyList(QStringLiteral("FactoryDefaults"));
    if (!factory) {
        console.print(
            QStringLiteral("Oops something went wrong with registering facotry defaults...."));
        return;
    }
    defaults.registerDefaults(*factory);
    defaults.synchronize();
}

} // namespace kelvo
