#include "app/commands/options.h"

#include <QList>

namespace kelvo {
namespace {

using enum OptionGroup;

constexpr Option cOptions[] = {
    {u"headless", u"", Start,
     u"Run without display, window or tray; status and alerts go to standard output."},
    {u"no-sentinel", u"", Start,
     u"With --headless: no sentinel watches over the program, because whoever starts it (systemd) "
     u"starts it again after a crash."},
    {u"once", u"", Start,
     u"Run one pass with the stored settings, tell how it went and end with a code that names the "
     u"kind of trouble."},
    {u"status", u"", Copy,
     u"Tell what the running copy is doing and how it is; 0 when all is well, 1 in trouble, 4 when "
     u"none runs."},
    {u"follow", u"", Copy, u"Tell what the running copy does, as it happens, until Ctrl+C."},
    {u"start", u"", Copy, u"Switch syncing on."},
    {u"stop", u"", Copy, u"Switch syncing off; a pass that runs is the last one."},
    {u"sync-now", u"", Copy, u"Begin the next pass now."},
    {u"cancel", u"", Copy, u"End the pass that runs; the next one comes as after any other."},
    {u"max-age", u"AGE", Copy,
     u"With --status: end with 1 when the last success is older than 30min, 2h, 3d."},
    {u"passes", u"", Record, u"Print the record of passes, newest last."},
    {u"since", u"WHEN", Record,
     u"With --passes: those since a date, a date-time, or 30min, 2h, 3d ago."},
    {u"get", u"KEY", Settings, u"Print a setting."},
    {u"set", u"KEY VALUE", Settings, u"Change a setting."},
    {u"unset", u"KEY", Settings, u"Give a setting its factory value back."},
    {u"settings", u"", Settings, u"Print all settings as JSON."},
    {u"setup", u"", Setup,
     u"Set the Mac up from a terminal: asks what the window asks, installs the key and tests the "
     u"connection. The options that follow answer its questions."},
    {u"mac", u"HOST", Setup, u"With --setup: the Mac's host name or address."},
    {u"account", u"NAME", Setup, u"With --setup: the account on the Mac."},
    {u"folder", u"PATH", Setup, u"With --setup: the folder with the movies on the Mac."},
    {u"destination", u"PATH", Setup, u"With --setup: the folder here that the movies come into."},
    {u"make-destination", u"", Setup, u"With --setup: make that folder if it is missing."},
    {u"new-key", u"", Setup, u"With --setup: make a new key; that of today is kept."},
    {u"share-connection", u"", Setup,
     u"With --setup: tell ssh of the connection that passes share, by a line in ~/.ssh/config."},
    {u"no-share-connection", u"", Setup, u"With --setup: take that line away, or leave it out."},
    {u"enable", u"", Setup, u"With --setup: enable the service (systemd user unit)."},
    {u"no-enable", u"", Setup, u"With --setup: leave the service as it is."},
    {u"linger", u"", Setup, u"With --setup: run the service also while you are not logged in."},
    {u"no-linger", u"", Setup, u"With --setup: leave that as it is."},
    {u"profile", u"NAME", Macs,
     u"Work with settings, record, log and window of this name: one for each Mac."},
    {u"profiles", u"", Macs, u"List the profiles, with Mac, state and last success."},
    {u"export-profile", u"FILE", Macs,
     u"Write the settings for another machine, without folders and secrets."},
    {u"import-profile", u"FILE", Macs,
     u"With --profile: show what such a file will run, ask, and take it over."},
    {u"accept", u"", Macs, u"With --import-profile: take it over unasked."},
    {u"json", u"", Form,
     u"With --once, --passes, --status, --follow, --profiles: tell each thing as one JSON object "
     u"on a line."},
    {u"version", u"", Program, u"Print the version and end.", u"V"},
    {u"help", u"", Program, u"Print this help and end.", u"h"},
    {u"autorelaunched", u"", Hidden, u""},
};

constexpr qsizetype cWidth = 80;
constexpr qsizetype cHelpColumn = 23;

QStringView titleOf(OptionGroup group) {
    switch (group) {
    case Start:
        return u"Without an option the window is shown. Other ways to run passes:";
    case Copy:
        return u"Ask and tell the copy that runs:";
    case Record:
        return u"The record:";
    case Settings:
        return u"Settings:";
    case Setup:
        return u"Set a Mac up:";
    case Macs:
        return u"Several Macs:";
    case Form:
        return u"Form of the answers:";
    case Program:
        return u"The program:";
    case Hidden:
        break;
    }
    return {};
}

/// "  -V, --version", "  --set <KEY> <VALUE>".
QString usageOf(const Option& option) {
    QString usage = QStringLiteral("  ");
    if (!option.letter.isEmpty())
        usage += u'-' + option.letter + u", ";
    usage += u"--" + option.name;
    for (const QStringView value : option.values.split(u' ', Qt::SkipEmptyParts))
        usage += u" <" + value + u'>';
    return usage;
}

/// Appends the words of `text` to the last line of `all`, each further line from the column of the
/// explanations on.
void appendWrapped(QString& all, QStringView text) {
    qsizetype column = all.size() - 1 - all.lastIndexOf(u'\n');
    const auto goTo = [&](qsizetype wanted) {
        all += QString(wanted - column, u' ');
        column = wanted;
    };
    if (column >= cHelpColumn) {
        all += u'\n';
        column = 0;
    }
    goTo(cHelpColumn);
    for (const QStringView word : text.split(u' ')) {
        if (column > cHelpColumn && column + 1 + word.size() > cWidth) {
            all += u'\n';
            column = 0;
            goTo(cHelpColumn);
        }
        if (column > cHelpColumn)
            goTo(column + 1);
        all += word;
        column += word.size();
    }
    all += u'\n';
}

} // namespace

std::span<const Option> optionTable() {
    return cOptions;
}

QString optionHelp() {
    QString help =
        QStringLiteral("Usage: kelvo-mirror [options]\n"
                       "Keeps a local folder supplied with movie files from a remote Mac.\n");
    auto group = Hidden;
    for (const Option& each : cOptions) {
        if (each.group == Hidden)
            continue;
        if (each.group != group)
            help += u'\n' + titleOf(group = each.group) + u'\n';
        help += usageOf(each);
        appendWrapped(help, each.help);
    }
    return help;
}

} // namespace kelvo
