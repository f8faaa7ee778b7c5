#include "adapters/network/refused_names.h"

#include "ports/console.h"
#include "support/service_name_rules.h"
#include "support/text.h"

namespace kelvo {
namespace {

constexpr qsizetype cMostTold = 1000;

} // namespace

void RefusedNames::tell(const QString& name) {
    if (fTold.size() >= cMostTold || fTold.contains(name))
        return;
    fTold.insert(name);
    const bool last = fTold.size() == cMostTold;
    fConsole.log(insideLine(u"AvahiBrowser", u"services",
                            QString(u".......refused the service name [" + escapedForLog(name) +
                                    (last ? u"]; further ones are not told" : u"]"))));
}

} // namespace kelvo
