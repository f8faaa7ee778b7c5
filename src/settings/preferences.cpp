#include "settings/preferences.h"

#include <array>

namespace kelvo {
namespace {

using enum PreferenceType;

constexpr QStringView cControl = u"control";

constexpr auto cTable = std::to_array<Preference>({
    {prefEnableScanning, Bool, u"syncing is switched on (stored as the button's state 0 or 1)",
     u"off", u"SyncCycle, ViewController", u"SyncCycle, ViewController"},
    {prefIsScanning, Bool, u"a pass is in progress", u"no", u"SyncCycle, ViewController",
     u"SyncCycle"},
    {prefDelayBetweenScans, Double, u"rest between two passes, seconds", u"3.0", cControl,
     u"SyncCycle"},
    {prefRsyncCommandString1, String, u"the rsync command template",
     u"the text Unable-To-Find-prefRsyncCommandString1", cControl, u"SyncCycle, ViewController"},
    {prefRsyncCommandStringExample, String, u"the template with its option filled in, for display",
     u"empty", u"ViewController", cControl},
    {prefRsyncCommandOptionTag, Integer, u"which rsync option the template gets",
     u"0, which is invalid", cControl, u"RsyncCommand, ViewController"},
    {prefRsyncWithSSH, Bool, u"pull from the remote host instead of copying between folders here",
     u"no", cControl, u"SyncCycle, ViewController"},
    {prefPath1, String, u"source folder of the plain pass", u"the pass ends silently",
     u"FolderSelection", u"SyncCycle, ViewController, FolderSelection"},
    {prefPath2, String, u"destination folder of both passes", u"the pass ends silently",
     u"FolderSelection", u"SyncCycle, FolderSelection"},
    {prefRemoteUsername, String, u"account on the remote host", u"no sample path, no validation",
     cControl,
     u"SamplePath, RemoteHostValidation, ConnectionCheck, SshKeyProvisioning, SmbShareAccess"},
    {prefRemoteBonjourName, String, u"name of the remote host", u"no sample path, no validation",
     u"BonjourViewController",
     u"SamplePath, SyncCycle, RemoteHostValidation, ConnectionCheck, SshKeyProvisioning, "
     u"SmbShareAccess"},
    {prefRemotePath, String, u"folder on the remote host to pull from", u"no sample path", cControl,
     u"SamplePath, ConnectionCheck, SmbShareAccess, FolderSelection"},
    {prefSampleRemoteFullPath, String, u"remote source in rsync form: user@host:path",
     u"the pass ends silently", u"SamplePath", u"SyncCycle"},
    {prefRemoteDnssdServiceData, Dictionary, u"the chosen service's record", u"none",
     u"BonjourViewController", u"BonjourViewController"},
    {prefScanningBonjour, Bool, u"the Bonjour list is browsing", u"no", u"BonjourViewController",
     cControl},
    {prefSelectedValidRow, Bool, u"a usable row of the Bonjour list is selected", u"no",
     u"BonjourViewController", cControl},
    {perfFirstLineMessage, String, u"first line above the Bonjour list", u"empty",
     u"BonjourViewController", cControl},
    {prefStatusTextfieldString, String, u"saved text of the status line, wiped by every message",
     u"empty", u"StatusLine", cControl},
    {prefVersionDisplayString, String, u"version text for display", u"empty", u"ViewController",
     cControl},
    {prefAutoStartScanOnLaunch, Bool, u"start syncing after launch", u"no", cControl,
     u"ViewController"},
    {prefHideOnLaunch, Bool, u"hide the window after launch", u"no", cControl, u"ViewController"},
});

} // namespace

std::span<const Preference> preferenceTable() {
    return cTable;
}

} // namespace kelvo
