#include "app/command_line.h"

#include "app/version.h"

#include <QCommandLineParser>

namespace kelvo {

CommandLine parseCommandLine(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Keeps a local folder supplied with movie files from a remote Mac."));
    const QCommandLineOption headless(
        QStringLiteral("headless"),
        QStringLiteral("Run without display, window or tray; status and alerts go to standard "
                       "output."));
    QCommandLineOption autorelaunched(QStringLiteral("autorelaunched"));
    autorelaunched.setFlags(QCommandLineOption::HiddenFromHelp);
    const QCommandLineOption version({QStringLiteral("V"), QStringLiteral("version")},
                                     QStringLiteral("Print the version and end."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Print this help and end."));
    parser.addOptions({headless, version, help, autorelaunched});

    const auto refuse = [](const QString& reason) {
        return CommandLine{LaunchKind::Refuse, false,
                           QString(u"kelvo-mirror: " + reason + u"\nTry 'kelvo-mirror --help'.\n")};
    };
    if (!parser.parse(arguments))
        return refuse(parser.errorText());
    if (!parser.positionalArguments().isEmpty())
        return refuse(u"unexpected argument '" + parser.positionalArguments().constFirst() + u'\'');
    if (parser.isSet(help))
        return {LaunchKind::PrintHelp, false, parser.helpText()};
    if (parser.isSet(version))
        return {LaunchKind::PrintVersion, false,
                QString(u"kelvo-mirror " + QStringView(cVersion) + u'\n')};
    return {parser.isSet(headless) ? LaunchKind::Headless : LaunchKind::Window,
            parser.isSet(autorelaunched),
            {}};
}

} // namespace kelvo
