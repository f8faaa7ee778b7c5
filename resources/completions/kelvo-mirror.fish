# Completion of kelvo-mirror for fish.

set -l settings \
    prefDelayBetweenScans prefRsyncCommandString1 prefRsyncCommandOptionTag prefRsyncWithSSH \
    prefPath1 prefPath2 prefRemoteUsername prefRemoteBonjourName prefRemotePath \
    prefRemoteDnssdServiceData prefAutoStartScanOnLaunch prefHideOnLaunch showNotices showArrivals \
    commandAfterArrivals keepConnection quitWithoutAsking showDiagnostics
set -l state \
    prefEnableScanning prefIsScanning prefRsyncCommandStringExample prefSampleRemoteFullPath \
    prefScanningBonjour prefSelectedValidRow perfFirstLineMessage prefStatusTextfieldString \
    prefVersionDisplayString mainWindowSize mainWindowPlace mainWindowMaximized mainWindowTab \
    advancedShown passesHalves closedToTray recentLaunchDates relaunchGivenUp
complete -c kelvo-mirror -f
complete -c kelvo-mirror -l headless -d 'Run without display, window or tray; status and alerts go to standard output.'
complete -c kelvo-mirror -l no-sentinel -d 'With --headless: no sentinel watches over the program, because whoever starts it (systemd) starts it again after a crash.'
complete -c kelvo-mirror -l once -d 'Run one pass with the stored settings, tell how it went and end with a code that names the kind of trouble.'
complete -c kelvo-mirror -l status -d 'Tell what the running copy is doing and how it is; 0 when all is well, 1 in trouble, 4 when none runs.'
complete -c kelvo-mirror -l follow -d 'Tell what the running copy does, as it happens, until Ctrl+C.'
complete -c kelvo-mirror -l start -d 'Switch syncing on.'
complete -c kelvo-mirror -l stop -d 'Switch syncing off; a pass that runs is the last one.'
complete -c kelvo-mirror -l sync-now -d 'Begin the next pass now.'
complete -c kelvo-mirror -l cancel -d 'End the pass that runs; the next one comes as after any other.'
complete -c kelvo-mirror -l max-age -x -a '30min 2h 3d' -d 'With --status: end with 1 when the last success is older than 30min, 2h, 3d.'
complete -c kelvo-mirror -l passes -d 'Print the record of passes, newest last.'
complete -c kelvo-mirror -l since -x -a '30min 2h 3d' -d 'With --passes: those since a date, a date-time, or 30min, 2h, 3d ago.'
complete -c kelvo-mirror -l get -x -a "$settings $state" -d 'Print a setting.'
complete -c kelvo-mirror -l set -x -a "$settings" -d 'Change a setting.'
complete -c kelvo-mirror -l unset -x -a "$settings" -d 'Give a setting its factory value back.'
complete -c kelvo-mirror -l settings -d 'Print all settings as JSON.'
complete -c kelvo-mirror -l setup -d 'Set the Mac up from a terminal: asks what the window asks, installs the key and tests the connection. The options that follow answer its questions.'
complete -c kelvo-mirror -l mac -x -d 'With --setup: the Mac\'s host name or address.'
complete -c kelvo-mirror -l account -x -d 'With --setup: the account on the Mac.'
complete -c kelvo-mirror -l folder -x -d 'With --setup: the folder with the movies on the Mac.'
complete -c kelvo-mirror -l destination -x -d 'With --setup: the folder here that the movies come into.'
complete -c kelvo-mirror -l make-destination -d 'With --setup: make that folder if it is missing.'
complete -c kelvo-mirror -l new-key -d 'With --setup: make a new key; that of today is kept.'
complete -c kelvo-mirror -l share-connection -d 'With --setup: tell ssh of the connection that passes share, by a line in ~/.ssh/config.'
complete -c kelvo-mirror -l no-share-connection -d 'With --setup: take that line away, or leave it out.'
complete -c kelvo-mirror -l enable -d 'With --setup: enable the service (systemd user unit).'
complete -c kelvo-mirror -l no-enable -d 'With --setup: leave the service as it is.'
complete -c kelvo-mirror -l linger -d 'With --setup: run the service also while you are not logged in.'
complete -c kelvo-mirror -l no-linger -d 'With --setup: leave that as it is.'
complete -c kelvo-mirror -l profile -x -d 'Work with settings, record, log and window of this name: one for each Mac.'
complete -c kelvo-mirror -l profiles -d 'List the profiles, with Mac, state and last success.'
complete -c kelvo-mirror -l export-profile -r -F -d 'Write the settings for another machine, without folders and secrets.'
complete -c kelvo-mirror -l import-profile -r -F -d 'With --profile: show what such a file will run, ask, and take it over.'
complete -c kelvo-mirror -l accept -d 'With --import-profile: take it over unasked.'
complete -c kelvo-mirror -l json -d 'With --once, --passes, --status, --follow, --profiles: tell each thing as one JSON object on a line.'
complete -c kelvo-mirror -s V -l version -d 'Print the version and end.'
complete -c kelvo-mirror -s h -l help -d 'Print this help and end.'
