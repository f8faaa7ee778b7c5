#include "app/commands/setup_options.h"

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

const QList<QCommandLineOption>& setupOptions() {
    static const QList<QCommandLineOption> options{
        {cSetup, QStringLiteral("Set the Mac up from a terminal: asks what the window asks, "
                                "installs the key and tests the connection. The options that "
                                "follow answer its questions.")},
        {cMac, QStringLiteral("With --setup: the Mac's host name or address."),
         QStringLiteral("HOST")},
        {cAccount, QStringLiteral("With --setup: the account on the Mac."), QStringLiteral("NAME")},
        {cFolder, QStringLiteral("With --setup: the folder with the movies on the Mac."),
         QStringLiteral("PATH")},
        {cDestination, QStringLiteral("With --setup: the folder here that the movies come into."),
         QStringLiteral("PATH")},
        {cMakeDestination, QStringLiteral("With --setup: make that folder if it is missing.")},
        {cNewKey, QStringLiteral("With --setup: make a new key; that of today is kept.")},
        {cEnable, QStringLiteral("With --setup: enable the service (systemd user unit).")},
        {cNoEnable, QStringLiteral("With --setup: leave the service as it is.")},
        {cLinger, QStringLiteral("With --setup: run the service also while you are not logged "
                                 "in.")},
        {cNoLinger, QStringLiteral("With --setup: leave that as it is.")}};
    return options;
}

std::variant<std::monostate, SetupRequest, QString> setupRequest(const QCommandLineParser& parser) {
    if (!parser.isSet(cSetup)) {
        for (const QCommandLineOption& each : setupOptions()) {
            if (parser.isSet(each))
                return QString(u"--" + each.names().constFirst() + u" goes with --setup");
        }
        return {};
    }
    for (const auto& [yes, no] : {std::pair(cEnable, cNoEnable), std::pair(cLinger, cNoLinger)}) {
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
                        .enable = choice(parser, cEnable, cNoEnable),
                        .linger = choice(parser, cLinger, cNoLinger)};
}

} // namespace kelvo
