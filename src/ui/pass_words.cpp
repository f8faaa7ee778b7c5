#include "ui/pass_words.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>

namespace kelvo {
namespace {

using enum CauseGroup;

struct Row {
    PassCause cause;
    CauseWords words;
};

constexpr qint64 cDay = 86'400; // seconds

constexpr auto cTable = std::to_array<Row>({
    {PassCause::Well, {u"well", u"All is well.", u"", Well}},
    {PassCause::HostNotFound,
     {u"host-not-found", u"No Mac answers to this name on the network.",
      u"Check the host name, and that the Mac is switched on and in this network.", Host}},
    {PassCause::HostAway,
     {u"host-away", u"The Mac is away or asleep.",
      u"Wake the Mac; in its energy settings, let it wake for network access.", Host}},
    {PassCause::RemoteLoginOff,
     {u"remote-login-off", u"The Mac is there but refuses logins.",
      u"On the Mac, switch on Remote Login (System Settings, General, Sharing).", Host}},
    {PassCause::HostKeyUnknown,
     {u"host-key-unknown", u"This machine has not met the Mac before.",
      u"Log in once with ssh in a terminal and accept the Mac's key.", HostKey}},
    {PassCause::HostKeyChanged,
     {u"host-key-changed",
      u"The Mac shows another key than before: it was set up anew, or "
      u"another machine has taken its name.",
      u"If you know why, remove the old key with ssh-keygen -R and the host name, then accept the "
      u"new one.",
      HostKey}},
    {PassCause::KeyRefused,
     {u"key-refused", u"The Mac does not take this key for this user.",
      u"Check the user name, then install the key on the Mac again.", Login}},
    {PassCause::KeyMissing,
     {u"key-missing", u"The program's own ssh key is missing here.",
      u"Make the key and install it on the Mac.", Login}},
    {PassCause::WrongUser,
     {u"wrong-user", u"The Mac calls this user by another name.",
      u"Enter the account name that whoami prints on the Mac.", Login}},
    {PassCause::LoginTalks,
     {u"login-talks", u"The Mac prints a text at each login, which hides its answer.",
      u"On the Mac, remove what the shell's start file (.zshenv, .bashrc) prints.", Login}},
    {PassCause::RsyncMissingThere,
     {u"rsync-missing-there", u"There is no rsync on the Mac.",
      u"Install rsync on the Mac, or give its place in the template with --rsync-path.",
      RemoteSide}},
    {PassCause::RsyncTooOldThere,
     {u"rsync-too-old-there", u"The rsync on the Mac is too old for an option of the template.",
      u"Update rsync on the Mac, or take the option out of the template.", RemoteSide}},
    {PassCause::MovieCommandRefused,
     {u"movie-command-refused",
      u"The rsync on the Mac is too old for the built-in movie command: only what the template "
      u"takes has arrived.",
      u"Update rsync on the Mac, or let the template take every movie: without filters, and with "
      u"-r.",
      RemoteSide}},
    {PassCause::SourceMissing,
     {u"source-missing", u"The source folder is not there.",
      u"Check the remote path, and that the disk with it is connected.", RemoteSide}},
    {PassCause::SourceNotPermitted,
     {u"source-not-permitted", u"A source folder may not be read.",
      u"On the Mac, allow full disk access for remote users (in Remote Login), or change the "
      u"folder's permissions.",
      RemoteSide}},
    {PassCause::DiskFull,
     {u"disk-full", u"The disk here is full.", u"Make room on the disk of the destination folder.",
      ThisSide}},
    {PassCause::DestinationUnusable,
     {u"destination-unusable", u"The destination folder is missing or cannot be written.",
      u"Connect its disk, or choose another destination folder.", ThisSide}},
    {PassCause::DestinationTaken,
     {u"destination-taken", u"Another program is pulling into this folder.",
      u"Give each program a destination folder of its own, or end the other one.", ThisSide}},
    {PassCause::ToolMissingHere,
     {u"tool-missing-here", u"A command of the pass is not installed here.",
      u"Install rsync and ssh on this machine, or correct the command template.", ThisSide}},
    {PassCause::CommandNotUnderstood,
     {u"command-not-understood", u"The command template cannot be run.",
      u"Correct the rsync command template in the settings.", ThisSide}},
    {PassCause::FilesVanished,
     {u"files-vanished", u"Some files vanished from the source while they were copied.",
      u"Nothing: the next pass brings what is there then.", Incomplete}},
    {PassCause::FilesNotTaken,
     {u"files-not-taken", u"Some files could not be taken.",
      u"See the pass's text for their names and reasons.", Incomplete}},
    {PassCause::CutOff,
     {u"cut-off", u"The connection gave way in the middle of the transfer.",
      u"Check the network; the next pass goes on where this one stopped.", CauseGroup::CutOff}},
    {PassCause::SettingsMissing,
     {u"settings-missing", u"The pass cannot run: a folder, the host or the user is not set.",
      u"Choose the Mac, the user name and both folders.", Settings}},
    {PassCause::SettingsRefused,
     {u"settings-refused",
      u"The pass was not begun: a text in the settings cannot stand in a command.",
      u"Choose another folder, user name or host: without a line break, and no \"-\" in front.",
      Settings}},
    {PassCause::Interrupted,
     {u"interrupted", u"The program was ended during the pass.", u"Nothing: start it again.",
      CauseGroup::Interrupted}},
    {PassCause::Cancelled,
     {u"cancelled", u"Cancelled by you.", u"Nothing: the next pass goes on where this one stopped.",
      CauseGroup::Interrupted}},
    {PassCause::AfterFailed,
     {u"after-failed",
      u"The files have arrived, but the command that is run after arrivals failed.",
      u"See the pass's text for what it said, or correct it in the settings.", AfterArrivals}},
    {PassCause::Unknown,
     {u"unknown", u"Something went wrong.", u"See the pass's text for what the commands said.",
      CauseGroup::Unknown}},
});

QString counted(qint64 number, QStringView one, QStringView many) {
    return QString::number(number) + u' ' + (number == 1 ? one : many);
}

} // namespace

CauseWords wordsFor(PassCause cause) {
    const auto* row = std::ranges::find(cTable, cause, &Row::cause);
    return row == cTable.end() ? cTable.back().words : row->words;
}

QString sentenceFor(const PassRecord& pass) {
    QString sentence = wordsFor(pass.cause).sentence.toString();
    if (pass.lastLine.isEmpty())
        return sentence;
    if (pass.cause == PassCause::Unknown)
        return sentence + u" The last line was: " + pass.lastLine;
    if (pass.cause == PassCause::SettingsRefused)
        return sentence + u" The reason: " + pass.lastLine + u'.';
    return sentence;
}

QString filesText(const Transfer& transfer) {
    if (!transfer.files)
        return QStringLiteral("files unknown");
    return *transfer.files == 0 ? QStringLiteral("nothing new")
                                : counted(*transfer.files, u"file", u"files");
}

QString filesText(const PassRecord& pass) {
    return endedAtTheCheck(pass) ? QStringLiteral("no transfer") : filesText(pass.transfer);
}

QString sizeText(const Transfer& transfer) {
    if (transfer.bytes.value_or(0) <= 0)
        return {};
    return QLocale::c().formattedDataSize(*transfer.bytes, 1, QLocale::DataSizeSIFormat);
}

QString secondsText(double seconds) {
    const auto whole = static_cast<qint64>(std::llround(std::clamp(seconds, 0.0, 1e12)));
    if (whole < 60)
        return QString::number(whole) + u" s";
    if (whole < 3600)
        return QString::number(whole / 60) + u" min " + QString::number(whole % 60) + u" s";
    return QString::number(whole / 3600) + u" h " + QString::number(whole % 3600 / 60) + u" min";
}

QString agoText(double seconds) {
    const auto whole = static_cast<qint64>(std::clamp(seconds, 0.0, 1e12));
    if (whole < 60)
        return QStringLiteral("just now");
    if (whole < 3600)
        return counted(whole / 60, u"minute ago", u"minutes ago");
    if (whole < 2 * cDay)
        return counted(whole / 3600, u"hour ago", u"hours ago");
    return counted(whole / cDay, u"day ago", u"days ago");
}

double agoHolds(double seconds) {
    if (seconds < 0)
        return -seconds;
    const double unit = seconds < 3600 ? 60 : seconds < 2 * cDay ? 3600 : static_cast<double>(cDay);
    return unit - std::fmod(seconds, unit);
}

} // namespace kelvo
