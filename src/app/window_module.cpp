#include "app/window_module.h"

#include "app/own_module.h"

namespace kelvo {
namespace {

QString troubleOf(const OwnModule& module) {
    switch (module.fault) {
    case OwnModule::Fault::None:
        break;
    case OwnModule::Fault::Missing:
        return QStringLiteral("the window is not installed; its package is kelvo-mirror-window");
    case OwnModule::Fault::Unsafe:
        return u"the window is not loaded, for other users can write it: " + module.detail;
    case OwnModule::Fault::Unloadable:
        return u"the window cannot be loaded: " + module.detail;
    }
    return {};
}

} // namespace

WindowModule loadWindowModule() {
    const OwnModule module = loadOwnModule("window.so", cShowWindow);
    return {.show = reinterpret_cast<ShowWindow*>(module.function), .trouble = troubleOf(module)};
}

} // namespace kelvo
