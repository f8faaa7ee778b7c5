# Completion of kelvo-mirror for bash.
# shellcheck shell=bash

_kelvo_mirror() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} words
    local options='
        --headless --no-sentinel --once --status --follow --start --stop --sync-now --cancel
        --max-age --passes --since --get --set --unset --settings --setup --mac --account
        --folder --destination --make-destination --new-key --share-connection
        --no-share-connection --enable --no-enable --linger --no-linger --profile --profiles
        --export-profile --import-profile --accept --json --version --help
    '
    local settings='
        prefDelayBetweenScans prefRsyncCommandString1 prefRsyncCommandOptionTag prefRsyncWithSSH
        prefPath1 prefPath2 prefRemoteUsername prefRemoteBonjourName prefRemotePath
        prefRemoteDnssdServiceData prefAutoStartScanOnLaunch prefHideOnLaunch showNotices
        showArrivals commandAfterArrivals keepConnection quitWithoutAsking showDiagnostics
    '
    local state='
        prefEnableScanning prefIsScanning prefRsyncCommandStringExample prefSampleRemoteFullPath
        prefScanningBonjour prefSelectedValidRow perfFirstLineMessage prefStatusTextfieldString
        prefVersionDisplayString mainWindowSize mainWindowPlace mainWindowMaximized mainWindowTab
        advancedShown passesHalves closedToTray recentLaunchDates relaunchGivenUp
    '
    case $before in
    --get) words=$settings$state ;;
    --set | --unset) words=$settings ;;
    --since | --max-age) words='30min 2h 3d' ;;
    --mac | --account | --folder | --destination | --profile) words= ;;
    --export-profile | --import-profile)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        return
        ;;
    *) words=$options ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}
complete -F _kelvo_mirror kelvo-mirror
