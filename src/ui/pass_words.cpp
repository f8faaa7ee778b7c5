#include "ui/pass_words.h"

#include "ui/words.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>

namespace kelvo {
namespace {

using enum CauseGroup;

struct Row {
    PassCause cause;
    CauseGroup group;
    const char* name;
    const char* sentence;
    const char* since; ///< the sentence with the beginning of the trouble in it; empty for none
    const char* nextStep;
};

constexpr qint64 cDay = 86'400; // seconds

constexpr auto cTable = std::to_array<Row>({
    {PassCause::Well, Well, "well", QT_TRANSLATE_NOOP("Words", "All is well."), "", ""},
    {PassCause::HostNotFound, Host, "host-not-found",
     QT_TRANSLATE_NOOP("Words", "No Mac answers to this name on the network."),
     QT_TRANSLATE_NOOP("Words", "No Mac answers to this name on the network since %1."),
     QT_TRANSLATE_NOOP(
         "Words", "Check the host name, and that the Mac is switched on and in this network.")},
    {PassCause::HostAway, Host, "host-away",
     QT_TRANSLATE_NOOP("Words", "The Mac is away or asleep."),
     QT_TRANSLATE_NOOP("Words", "The Mac is away or asleep since %1."),
     QT_TRANSLATE_NOOP("Words",
                       "Wake the Mac; in its energy settings, let it wake for network access.")},
    {PassCause::RemoteLoginOff, Host, "remote-login-off",
     QT_TRANSLATE_NOOP("Words", "The Mac is there but refuses logins."),
     QT_TRANSLATE_NOOP("Words", "The Mac is there but refuses logins since %1."),
     QT_TRANSLATE_NOOP("Words",
                       "On the Mac, switch on Remote Login (System Settings, General, Sharing).")},
    {PassCause::HostKeyUnknown, HostKey, "host-key-unknown",
     QT_TRANSLATE_NOOP("Words", "This machine has not met the Mac before."),
     QT_TRANSLATE_NOOP("Words", "This machine has not met the Mac before since %1."),
     QT_TRANSLATE_NOOP("Words", "Log in once with ssh in a terminal and accept the Mac's key.")},
    {PassCause::HostKeyChanged, HostKey, "host-key-changed",
     QT_TRANSLATE_NOOP("Words", "The Mac shows another key than before: it was set up anew, or "
                                "another machine has taken its name."),
     QT_TRANSLATE_NOOP("Words", "The Mac shows another key than before since %1: it was set up "
                                "anew, or another machine has taken its name."),
     QT_TRANSLATE_NOOP("Words", "If you know why, remove the old key with ssh-keygen -R and the "
                                "host name, then accept the new one.")},
    {PassCause::KeyRefused, Login, "key-refused",
     QT_TRANSLATE_NOOP("Words", "The Mac does not take this key for this user."),
     QT_TRANSLATE_NOOP("Words", "The Mac does not take this key for this user since %1."),
     QT_TRANSLATE_NOOP("Words", "Check the user name, then install the key on the Mac again.")},
    {PassCause::KeyMissing, Login, "key-missing",
     QT_TRANSLATE_NOOP("Words", "The program's own ssh key is missing here."),
     QT_TRANSLATE_NOOP("Words", "The program's own ssh key is missing here since %1."),
     QT_TRANSLATE_NOOP("Words", "Make the key and install it on the Mac.")},
    {PassCause::WrongUser, Login, "wrong-user",
     QT_TRANSLATE_NOOP("Words", "The Mac calls this user by another name."),
     QT_TRANSLATE_NOOP("Words", "The Mac calls this user by another name since %1."),
     QT_TRANSLATE_NOOP("Words", "Enter the account name that whoami prints on the Mac.")},
    {PassCause::LoginTalks, Login, "login-talks",
     QT_TRANSLATE_NOOP("Words", "The Mac prints a text at each login, which hides its answer."),
     QT_TRANSLATE_NOOP("Words",
                       "The Mac prints a text at each login since %1, which hides its answer."),
     QT_TRANSLATE_NOOP(
         "Words", "On the Mac, remove what the shell's start file (.zshenv, .bashrc) prints.")},
    {PassCause::RsyncMissingThere, RemoteSide, "rsync-missing-there",
     QT_TRANSLATE_NOOP("Words", "There is no rsync on the Mac."),
     QT_TRANSLATE_NOOP("Words", "There is no rsync on the Mac since %1."),
     QT_TRANSLATE_NOOP(
         "Words",
         "Install rsync on the Mac, or give its place in the template with --rsync-path.")},
    {PassCause::RsyncTooOldThere, RemoteSide, "rsync-too-old-there",
     QT_TRANSLATE_NOOP("Words", "The rsync on the Mac is too old for an option of the template."),
     QT_TRANSLATE_NOOP("Words",
                       "The rsync on the Mac is too old for an option of the template since %1."),
     QT_TRANSLATE_NOOP("Words",
                       "Update rsync on the Mac, or take the option out of the template.")},
    {PassCause::MovieCommandRefused, RemoteSide, "movie-command-refused",
     QT_TRANSLATE_NOOP("Words", "The rsync on the Mac is too old for the built-in movie command: "
                                "only what the template takes has arrived."),
     QT_TRANSLATE_NOOP("Words", "The rsync on the Mac is too old for the built-in movie command "
                                "since %1: only what the template takes has arrived."),
     QT_TRANSLATE_NOOP("Words", "Update rsync on the Mac, or let the template take every movie: "
                                "without filters, and with -r.")},
    {PassCause::SourceMissing, RemoteSide, "source-missing",
     QT_TRANSLATE_NOOP("Words", "The source folder is not there."),
     QT_TRANSLATE_NOOP("Words", "The source folder is not there since %1."),
     QT_TRANSLATE_NOOP("Words", "Check the remote path, and that the disk with it is connected.")},
    {PassCause::SourceNotPermitted, RemoteSide, "source-not-permitted",
     QT_TRANSLATE_NOOP("Words", "A source folder may not be read."),
     QT_TRANSLATE_NOOP("Words", "A source folder may not be read since %1."),
     QT_TRANSLATE_NOOP("Words", "On the Mac, allow full disk access for remote users (in Remote "
                                "Login), or change the folder's permissions.")},
    {PassCause::DiskFull, ThisSide, "disk-full",
     QT_TRANSLATE_NOOP("Words", "The disk here is full."),
     QT_TRANSLATE_NOOP("Words", "The disk here is full since %1."),
     QT_TRANSLATE_NOOP("Words", "Make room on the disk of the destination folder.")},
    {PassCause::DestinationUnusable, ThisSide, "destination-unusable",
     QT_TRANSLATE_NOOP("Words", "The destination folder is missing or cannot be written."),
     QT_TRANSLATE_NOOP("Words", "The destination folder is missing or cannot be written since %1."),
     QT_TRANSLATE_NOOP("Words", "Connect its disk, or choose another destination folder.")},
    {PassCause::DestinationTaken, ThisSide, "destination-taken",
     QT_TRANSLATE_NOOP("Words", "Another program is pulling into this folder."),
     QT_TRANSLATE_NOOP("Words", "Another program is pulling into this folder since %1."),
     QT_TRANSLATE_NOOP("Words",
                       "Give each program a destination folder of its own, or end the other one.")},
    {PassCause::ToolMissingHere, ThisSide, "tool-missing-here",
     QT_TRANSLATE_NOOP("Words", "A command of the pass is not installed here."),
     QT_TRANSLATE_NOOP("Words", "A command of the pass is not installed here since %1."),
     QT_TRANSLATE_NOOP("Words",
                       "Install rsync and ssh on this machine, or correct the command template.")},
    {PassCause::CommandNotUnderstood, ThisSide, "command-not-understood",
     QT_TRANSLATE_NOOP("Words", "The command template cannot be run."),
     QT_TRANSLATE_NOOP("Words", "The command template cannot be run since %1."),
     QT_TRANSLATE_NOOP("Words", "Correct the rsync command template in the settings.")},
    {PassCause::FilesVanished, Incomplete, "files-vanished",
     QT_TRANSLATE_NOOP("Words", "Some files vanished from the source while they were copied."), "",
     QT_TRANSLATE_NOOP("Words", "Nothing: the next pass brings what is there then.")},
    {PassCause::FilesNotTaken, Incomplete, "files-not-taken",
     QT_TRANSLATE_NOOP("Words", "Some files could not be taken."),
     QT_TRANSLATE_NOOP("Words", "Some files could not be taken since %1."),
     QT_TRANSLATE_NOOP("Words", "See the pass's text for their names and reasons.")},
    {PassCause::CutOff, CauseGroup::CutOff, "cut-off",
     QT_TRANSLATE_NOOP("Words", "The connection gave way in the middle of the transfer."),
     QT_TRANSLATE_NOOP("Words", "The connection gave way in the middle of the transfer since %1."),
     QT_TRANSLATE_NOOP("Words",
                       "Check the network; the next pass goes on where this one stopped.")},
    {PassCause::SettingsMissing, Settings, "settings-missing",
     QT_TRANSLATE_NOOP("Words", "The pass cannot run: a folder, the host or the user is not set."),
     QT_TRANSLATE_NOOP("Words",
                       "The pass cannot run since %1: a folder, the host or the user is not set."),
     QT_TRANSLATE_NOOP("Words", "Choose the Mac, the user name and both folders.")},
    {PassCause::SettingsRefused, Settings, "settings-refused",
     QT_TRANSLATE_NOOP("Words",
                       "The pass was not begun: a text in the settings cannot stand in a command."),
     QT_TRANSLATE_NOOP(
         "Words",
         "The pass was not begun since %1: a text in the settings cannot stand in a command."),
     QT_TRANSLATE_NOOP(
         "Words",
         "Choose another folder, user name or host: without a line break, and no \"-\" in front.")},
    {PassCause::Interrupted, CauseGroup::Interrupted, "interrupted",
     QT_TRANSLATE_NOOP("Words", "The program was ended during the pass."), "",
     QT_TRANSLATE_NOOP("Words", "Nothing: start it again.")},
    {PassCause::Cancelled, CauseGroup::Interrupted, "cancelled",
     QT_TRANSLATE_NOOP("Words", "Cancelled by you."), "",
     QT_TRANSLATE_NOOP("Words", "Nothing: the next pass goes on where this one stopped.")},
    {PassCause::AfterFailed, AfterArrivals, "after-failed",
     QT_TRANSLATE_NOOP(
         "Words", "The files have arrived, but the command that is run after arrivals failed."),
     QT_TRANSLATE_NOOP(
         "Words",
         "The files have arrived, but the command that is run after arrivals failed since %1."),
     QT_TRANSLATE_NOOP("Words",
                       "See the pass's text for what it said, or correct it in the settings.")},
    {PassCause::Unknown, CauseGroup::Unknown, "unknown",
     QT_TRANSLATE_NOOP("Words", "Something went wrong."),
     QT_TRANSLATE_NOOP("Words", "Something went wrong since %1."),
     QT_TRANSLATE_NOOP("Words", "See the pass's text for what the commands said.")},
});

const Row& rowOf(PassCause cause) {
    const auto* row = std::ranges::find(cTable, cause, &Row::cause);
    return row == cTable.end() ? cTable.back() : *row;
}

QString said(const char* text) {
    return *text == 0 ? QString() : Words::tr(text);
}

} // namespace

CauseWords wordsFor(PassCause cause) {
    const Row& row = rowOf(cause);
    return {QLatin1StringView(row.name), QLatin1StringView(row.sentence),
            QLatin1StringView(row.nextStep), row.group};
}

QString sentenceFor(PassCause cause) {
    return said(rowOf(cause).sentence);
}

QString sentenceFor(PassCause cause, const QString& since) {
    const QString sentence = said(rowOf(cause).since);
    return sentence.isEmpty() ? sentence : sentence.arg(since);
}

QString nextStepFor(PassCause cause) {
    return said(rowOf(cause).nextStep);
}

QString reasonFor(PassCause cause, const QString& lastLine) {
    if (lastLine.isEmpty())
        return {};
    if (cause == PassCause::Unknown)
        return Words::tr("The last line was: %1").arg(lastLine);
    if (cause == PassCause::SettingsRefused)
        return Words::tr("The reason: %1.").arg(Words::shown(lastLine));
    return {};
}

QString sentenceFor(const PassRecord& pass) {
    const QString reason = reasonFor(pass.cause, pass.lastLine);
    return reason.isEmpty()
               ? sentenceFor(pass.cause)
               : Words::tr("%1 %2", "two sentences").arg(sentenceFor(pass.cause), reason);
}

QString filesText(const Transfer& transfer) {
    if (!transfer.files)
        return Words::tr("files unknown");
    return *transfer.files == 0
               ? Words::tr("nothing new")
               : Words::counted("%Ln file", QT_TRANSLATE_N_NOOP("Words", "%Ln files"),
                                *transfer.files);
}

QString filesText(const PassRecord& pass) {
    return endedAtTheCheck(pass) ? Words::tr("no transfer") : filesText(pass.transfer);
}

QString sizeText(const Transfer& transfer) {
    if (transfer.bytes.value_or(0) <= 0)
        return {};
    return QLocale().formattedDataSize(*transfer.bytes, 1, QLocale::DataSizeSIFormat);
}

QString secondsText(double seconds) {
    const auto whole = static_cast<qint64>(std::llround(std::clamp(seconds, 0.0, 1e12)));
    if (whole < 60)
        return Words::tr("%L1 s").arg(whole);
    if (whole < 3600)
        return Words::tr("%L1 min %L2 s").arg(whole / 60).arg(whole % 60);
    return Words::tr("%L1 h %L2 min").arg(whole / 3600).arg(whole % 3600 / 60);
}

QString agoText(double seconds) {
    const auto whole = static_cast<qint64>(std::clamp(seconds, 0.0, 1e12));
    if (whole < 60)
        return Words::tr("just now");
    if (whole < 3600)
        return Words::counted("%Ln minute ago", QT_TRANSLATE_N_NOOP("Words", "%Ln minutes ago"),
                              whole / 60);
    if (whole < 2 * cDay)
        return Words::counted("%Ln hour ago", QT_TRANSLATE_N_NOOP("Words", "%Ln hours ago"),
                              whole / 3600);
    return Words::counted("%Ln day ago", QT_TRANSLATE_N_NOOP("Words", "%Ln days ago"),
                          whole / cDay);
}

double agoHolds(double seconds) {
    if (seconds < 0)
        return -seconds;
    const double unit = seconds < 3600 ? 60 : seconds < 2 * cDay ? 3600 : static_cast<double>(cDay);
    return unit - std::fmod(seconds, unit);
}

} // namespace kelvo
