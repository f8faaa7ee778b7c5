// The keys of the settings store, and the values that stand in for missing ones.
#pragma once

#include <QStringView>

namespace kelvo {

inline constexpr QStringView prefEnableScanning = u"prefEnableScanning";
inline constexpr QStringView prefIsScanning = u"prefIsScanning";
inline constexpr QStringView prefDelayBetweenScans = u"prefDelayBetweenScans";
inline constexpr QStringView prefRsyncCommandString1 = u"prefRsyncCommandString1";
inline constexpr QStringView prefRsyncCommandStringExample = u"prefRsyncCommandStringExample";
inline constexpr QStringView prefRsyncCommandOptionTag = u"prefRsyncCommandOptionTag";
inline constexpr QStringView prefRsyncWithSSH = u"prefRsyncWithSSH";
inline constexpr QStringView prefPath1 = u"prefPath1";
inline constexpr QStringView prefPath2 = u"prefPath2";
inline constexpr QStringView prefRemoteUsername = u"prefRemoteUsername";
inline constexpr QStringView prefRemoteBonjourName = u"prefRemoteBonjourName";
inline constexpr QStringView prefRemotePath = u"prefRemotePath";
inline constexpr QStringView prefSampleRemoteFullPath = u"prefSampleRemoteFullPath";
inline constexpr QStringView prefRemoteDnssdServiceData = u"prefRemoteDnssdServiceData";
inline constexpr QStringView prefScanningBonjour = u"prefScanningBonjour";
inline constexpr QStringView prefSelectedValidRow = u"prefSelectedValidRow";
inline constexpr QStringView perfFirstLineMessage = u"perfFirstLineMessage"; // "perf": stored so
inline constexpr QStringView prefStatusTextfieldString = u"prefStatusTextfieldString";
inline constexpr QStringView prefVersionDisplayString = u"prefVersionDisplayString";
inline constexpr QStringView prefAutoStartScanOnLaunch = u"prefAutoStartScanOnLaunch";
inline constexpr QStringView prefHideOnLaunch = u"prefHideOnLaunch";
inline constexpr QStringView prefShowNotices = u"showNotices";
inline constexpr QStringView prefShowArrivals = u"showArrivals";
inline constexpr QStringView prefCommandAfterArrivals = u"commandAfterArrivals";
inline constexpr QStringView prefKeepConnection = u"keepConnection";
inline constexpr QStringView prefQuitWithoutAsking = u"quitWithoutAsking";
inline constexpr QStringView prefShowDiagnostics = u"showDiagnostics";
inline constexpr QStringView prefMainWindowSize = u"mainWindowSize";
inline constexpr QStringView prefMainWindowPlace = u"mainWindowPlace";
inline constexpr QStringView prefMainWindowMaximized = u"mainWindowMaximized";
inline constexpr QStringView prefMainWindowTab = u"mainWindowTab";
inline constexpr QStringView prefAdvancedShown = u"advancedShown";
inline constexpr QStringView prefPassesHalves = u"passesHalves";
inline constexpr QStringView prefClosedToTray = u"closedToTray";
inline constexpr QStringView prefRecentLaunchDates = u"recentLaunchDates";
inline constexpr QStringView prefRelaunchGivenUp = u"relaunchGivenUp";

/// The template text that a pass runs when prefRsyncCommandString1 is missing.
inline constexpr QStringView cMissingRsyncCommandString1 =
    u"Unable-To-Find-prefRsyncCommandString1";

/// The rest after a pass when prefDelayBetweenScans is missing, 0 or less, in seconds.
inline constexpr double cFallbackDelayBetweenScans = 3.0;

} // namespace kelvo
