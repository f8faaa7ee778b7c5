#include "app/commands/setup_options.h"

#include "app/commands/options.h"

#include <QCommandLineParser>

#include <utility>

namespace kelvo {
namespace {

const QString cSetup = QStringLiteral("setup");
const QString cMac = QStringLiteral("mac");
const QString cAccount = QStringLiteral("account");
const QString cFolder = QStringLiteral("folder");
const QString cDestination = QStringLiteral("destination");
const QString cMakeDestination = QStringLiteral("make-destination");
const QString cNewKey = QStringLiteral("new-key");
const QString cShareConnection = QStringLiteral("share-connection");
const QString cNoShareConnection = QStringLiteral("no-share-connection");
const QString cEnable = QStringLiteral("enable");
const QString cNoEnable = QStringLiteral("no-enable");
const QString cLinger = QStringLiteral("linger");
const QString cNoLinger = QStringLiteral("no-linger");

/// Nothing when neither is there; both are for whoever asks first.
std::optional<bool> choice(const QCommandLineParser& parser, const QString& yes,
                           const QString& no) {
    if (parser.isSet(yes))
        return true;
    return parser.isSet(no) ? std::optional(false) : std::nullopt;
}

} // namespace

std::variant<std::monostate, SetupRequest, QString> setupRequest(const QCommandLineParser& parser) {
    if (!parser.isSet(cSetup)) {
        for (const Option& each : optionTable()) {
            if (each.group == OptionGroup::Setup && parser.isSet(each.name.toString()))
                return QString(u"--" + each.name + u" goes with --setup");
        }
        return {};
    }
    for (const auto& [yes, no] : {std::pair(cShareConnection, cNoShareConnection),
                                  std::pair(cEnable, cNoEnable), std::pair(cLinger, cNoLinger)}) {
        if (parser.isSet(yes) && parser.isSet(no))
            return QString(u"--" + yes + u" and --" + no + u" do not go together");
    }
    const auto text = [&parser](const QString& option) {
        return parser.isSet(option) ? std::optional(parser.value(option)) : std::nullopt;
    };
    return SetupRequest{.mac = text(cMac),
                        .account = text(cAccount),
                        .folder = text(cFolder),
                        .destination = text(cDestination),
                        .makeDestination = parser.isSet(cMakeDestination),
                        .newKey = parser.isSet(cNewKey),
                        .shareConnection = choice(parser, cShareConnection, cNoShareConnection),
                        .enable = choice(parser, cEnable, cNoEnable),
                        .linger = choice(parser, cLinger, cNoLinger)};
}

} // namespace kelvo
