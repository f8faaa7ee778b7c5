# Completion of kelvo-mirror for bash.
# shellcheck shell=bash

_kelvo_mirror() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} words
    local options='
        --headless --once --status --follow --start --stop --sync-now --cancel --max-age
        --passes --since --get --set --unset --settings --json --version --help
    '
    local settings='
        prefDelayBetweenScans prefRsyncCommandString1 prefRsyncCommandOptionTag prefRsyncWithSSH
        prefPath1 prefPath2 prefRemoteUsername prefRemoteBonjourName prefRemotePath
        prefRemoteDnssdServiceData prefAutoStartScanOnLaunch prefHideOnLaunch showNotices
        showArrivals commandAfterArrivals quitWithoutAsking showDiagnostics
    '
    local state='
        prefEnableScanning prefIsScanning prefRsyncCommandStringExample prefSampleRemoteFullPath
        prefScanningBonjour prefSelectedValidRow perfFirstLineMessage prefStatusTextfieldString
        prefVersionDisplayString mainWindowSize mainWindowPlace mainWindowMaximized
        mainWindowTab advancedShown passesHalves closedToTray recentLaunchDates relaunchGivenUp
    '
    case $before in
    --get) words=$settings$state ;;
    --set | --unset) words=$settings ;;
    --since | --max-age) words='30min 2h 3d' ;;
    *) words=$options ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}
complete -F _kelvo_mirror kelvo-mirror
