#include "settings/preferences.h"

#include <algorithm>
#include <array>
#include <type_traits>

namespace kelvo {
namespace {

using enum PreferenceKind;
using enum PreferenceType;

constexpr std::monostate cNone;

/// Movies only; half a file waits where neither a player nor the next pass looks for one.
constexpr QStringView cFactoryTemplate =
    u"/usr/bin/rsync 2>&1 %@98 %@99 -r --times --prune-empty-dirs "
    u"${KELVO_MIRROR_PARTIAL---partial-dir=.kelvo-partial} "
    u"--stats --info=progress2 --out-format='%l %n' -f '- .kelvo-partial/' -f '+ */' -f '+ "
    u"*.[mM][oO][vV]' "
    u"-f '+ *.[mM][pP]4' -f '+ *.[mM]4[vV]' -f '+ *.[mM][kK][vV]' -f '+ *.[aA][vV][iI]' "
    u"-f '+ *.[mM][pP][gG]' -f '+ *.[mM][pP][eE][gG]' -f '+ *.[wW][eE][bB][mM]' "
    u"-f '+ *.[mM][tT][sS]' -f '- *' \"%@1\" \"%@2\"";

constexpr auto cTable = std::to_array<Preference>({
    {prefEnableScanning, State, Bool, cNone, u"Sync", u"Syncing is switched on."},
    {prefIsScanning, State, Bool, cNone, {}, u"A pass is in progress."},
    {prefDelayBetweenScans, Setting, Double, 30.0, u"Settings",
     u"The rest between two passes, in seconds; 0 or less counts as 3."},
    {prefRsyncCommandString1, Setting, String, cFactoryTemplate, u"Settings",
     u"The rsync command of a pass: %@1 stands for the source, %@2 for the destination, %@98 for "
     u"the options of ssh, %@99 for the option."},
    {prefRsyncCommandStringExample, State, String, cNone, u"Settings",
     u"The rsync command with its option filled in."},
    {prefRsyncCommandOptionTag, Setting, Integer, qint64{100}, u"Settings",
     u"Which files a pass touches: 100 or 105 every file that differs, 101 only files newer than "
     u"here (--update), 102 only files not here yet (--ignore-existing)."},
    {prefRsyncWithSSH, Setting, Bool, true, u"Settings",
     u"Passes pull from the remote Mac; otherwise they copy between two folders here."},
    {prefPath1, Setting, String, cNone, u"Sync",
     u"The source folder of passes between two folders here."},
    {prefPath2, Setting, String, cNone, u"Sync", u"The destination folder of all passes."},
    {prefRemoteUsername, Setting, String, cNone, u"Remote Mac", u"The account on the remote Mac."},
    {prefRemoteBonjourName, Setting, String, cNone, u"Remote Mac",
     u"The host name of the remote Mac."},
    {prefRemotePath, Setting, String, u"Movies", u"Remote Mac",
     u"The folder on the remote Mac that passes pull from."},
    {prefSampleRemoteFullPath, State, String, cNone, u"Remote Mac",
     u"The source of the passes that pull, as rsync takes it: user@host:folder."},
    {prefRemoteDnssdServiceData,
     Setting,
     Dictionary,
     cNone,
     {},
     u"What the network said of the Mac that was chosen in the list of Macs."},
    {prefScanningBonjour, State, Bool, cNone, {}, u"The list of Macs is searching."},
    {prefSelectedValidRow, State, Bool, cNone, {}, u"A Mac is selected in the list of Macs."},
    {perfFirstLineMessage, State, String, cNone, {}, u"The line above the list of Macs."},
    {prefStatusTextfieldString, State, String, cNone, u"Sync",
     u"A text for the status line; every status message takes it away."},
    {prefVersionDisplayString, State, String, cNone, u"Settings", u"The program's version."},
    {prefAutoStartScanOnLaunch, Setting, Bool, false, u"Settings",
     u"Syncing begins when the program starts."},
    {prefHideOnLaunch, Setting, Bool, false, u"Settings",
     u"The window is hidden when the program starts."},
    {prefShowNotices, Setting, Bool, true, u"Settings",
     u"A notice on the desktop tells when passes turn bad and when they are well again."},
    {prefShowArrivals, Setting, Bool, true, u"Settings",
     u"A notice on the desktop tells which movies have arrived."},
    {prefCommandAfterArrivals, Setting, String, cNone, u"Settings",
     u"A command that is run after a pass that brought files. It reads their paths from its "
     u"standard "
     u"input, each ended by a zero byte."},
    {prefKeepConnection, Setting, Bool, true, u"Settings",
     u"Passes log in to the Mac once and keep the connection through rests of up to a minute, for "
     u"an "
     u"hour at most, where ssh's configuration lets them."},
    {prefQuitWithoutAsking, Setting, Bool, false, u"Settings",
     u"Quitting during a pass ends it without asking."},
    {prefShowDiagnostics,
     Setting,
     Bool,
     false,
     {},
     u"The Diagnostics tab and the menu entries about restarts after a crash are shown."},
    {prefMainWindowSize, State, String, cNone, {}, u"The window's last size."},
    {prefMainWindowPlace,
     State,
     String,
     cNone,
     {},
     u"Where the window was last, where the desktop tells."},
    {prefMainWindowMaximized, State, Bool, cNone, {}, u"The window filled the screen at last."},
    {prefMainWindowTab, State, String, cNone, {}, u"The window's last tab."},
    {prefAdvancedShown, State, Bool, cNone, u"Settings",
     u"What stands under Advanced there is shown."},
    {prefPassesHalves,
     State,
     String,
     cNone,
     {},
     u"How the list of passes and the text of a pass share their room."},
    {prefClosedToTray,
     State,
     Bool,
     cNone,
     {},
     u"The window was closed to the tray before, and a notice told where it went."},
    {prefRecentLaunchDates,
     State,
     Times,
     cNone,
     {},
     u"When the program was started again after unexpected ends, in seconds since the beginning of "
     u"1970."},
    {prefRelaunchGivenUp,
     State,
     Bool,
     cNone,
     {},
     u"The program ended unexpectedly too often and is not started again any more."},
});

} // namespace

std::span<const Preference> preferenceTable() {
    return cTable;
}

const Preference* preference(QStringView key) {
    const auto* const found = std::ranges::find(cTable, key, &Preference::key);
    return found == cTable.end() ? nullptr : found;
}

bool isBrief(QStringView key) {
    return key == prefIsScanning;
}

bool isState(QStringView key) {
    const Preference* const row = preference(key);
    return row && row->kind == State;
}

QVariant factoryValue(const Preference& preference) {
    return std::visit(
        [](const auto& value) -> QVariant {
            using Value = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<Value, std::monostate>)
                return {};
            else if constexpr (std::is_same_v<Value, QStringView>)
                return value.toString();
            else
                return value;
        },
        preference.factory);
}

} // namespace kelvo
