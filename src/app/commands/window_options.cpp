#include "app/commands/window_options.h"

#include <algorithm>

namespace kelvo {
namespace {

constexpr QStringView cSwitches[] = {u"reverse", u"widgetcount", u"nograb", u"dograb"};
constexpr QStringView cValued[] = {
    u"platform",    u"platformpluginpath", u"platformtheme", u"plugin",   u"session",
    u"style",       u"stylesheet",         u"display",       u"geometry", u"qwindowgeometry",
    u"qwindowicon", u"qwindowtitle",       u"icon",          u"title",    u"name",
};

template <std::size_t Size>
bool holds(const QStringView (&names)[Size], QStringView name) {
    return std::ranges::find(names, name) != std::end(names);
}

/// Empty for what is no option.
QStringView withoutDashes(QStringView word) {
    if (!word.startsWith(u'-'))
        return {};
    return word.sliced(word.startsWith(u"--") ? 2 : 1);
}

} // namespace

QString WindowOptions::valueOf(QStringView option) const {
    QString value;
    for (qsizetype at = 0; at + 1 < given.size(); ++at) {
        if (given[at] == u'-' + option.toString())
            value = given[++at];
    }
    return value;
}

WindowOptions windowOptions(const QStringList& arguments) {
    WindowOptions found{.given = {},
                        .rest = arguments.first(std::min<qsizetype>(1, arguments.size())),
                        .problem = {}};
    for (qsizetype at = 1; at < arguments.size(); ++at) {
        const QString& word = arguments[at];
        if (word == u"--") {
            found.rest += arguments.sliced(at);
            break;
        }
        const QStringView text = withoutDashes(word);
        const qsizetype equals = text.indexOf(u'=');
        const QStringView name = equals < 0 ? text : text.first(equals);
        if (holds(cSwitches, text)) {
            found.given.append(u'-' + text.toString());
        } else if (!holds(cValued, name)) {
            found.rest.append(word);
        } else if (equals >= 0) {
            found.given += {u'-' + name.toString(), text.sliced(equals + 1).toString()};
        } else if (at + 1 < arguments.size()) {
            found.given += {u'-' + name.toString(), arguments[++at]};
        } else {
            found.problem = u"the option '" + word + u"' lacks its value";
        }
    }
    return found;
}

} // namespace kelvo
