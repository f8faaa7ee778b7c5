// The way into the bus's parts, a module that a program without a window loads when one is used.
#include "app/bus/own_bus_parts.h"
#include "app/version.h"

#include <QStringView>

extern "C" [[gnu::visibility("default")]] kelvo::GiveBusParts kelvoMirrorGiveBusParts;

const kelvo::BusParts* kelvoMirrorGiveBusParts(const char16_t* version) {
    static const kelvo::BusParts parts = kelvo::ownBusParts();
    return QStringView(version) == kelvo::cVersion ? &parts : nullptr;
}
