// NetworkPathMonitoring: the line that says what the network does, and a test of the browser.
#pragma once

#include "support/subscription.h"

#include <QString>
#include <QStringList>
#include <QStringView>

#include <functional>
#include <memory>
#include <optional>

namespace kelvo {

class Console;
class Control;
class DispatchQueue;
class DnssdBrowser;
class NetworkChecker;
class NotificationCenter;
struct Notification;

/// What the monitoring works with; the references outlive it.
struct NetworkPathMonitoringParts {
    NotificationCenter& notificationCenter;
    DispatchQueue& mainQueue;
    Console& console;
    DnssdBrowser& browser;
    /// May answer with nothing: then nothing is watched.
    std::function<std::unique_ptr<NetworkChecker>()> makeKelvoSSID;
    /// Receives the text of the network line whenever it is set, on the main thread.
    std::function<void(const QString&)> showNetworkStatus;
};

/// Main thread only, except that notifications may arrive on any thread. The main queue must have
/// ended before this is destroyed.
class NetworkPathMonitoring {
public:
    explicit NetworkPathMonitoring(NetworkPathMonitoringParts parts);
    ~NetworkPathMonitoring();
    NetworkPathMonitoring(const NetworkPathMonitoring&) = delete;
    NetworkPathMonitoring& operator=(const NetworkPathMonitoring&) = delete;

    /// Makes the checker, listens to it and starts it. Called once.
    void setupNetworkChecker();

    /// Prints the notification on the calling thread; 0.1 s from now shows no text and then its
    /// message. A notification without a usable message leaves no text. Any thread.
    void handleNWPathMonitorNotification(const Notification& notification);

    /// Looks for SMB services and prints what there is, from now on at every change.
    void ibTestNWBrowser(Control* sender);

private:
    void gather(const QStringList& endpoints);
    void printInside(QStringView operation, QStringView detail = u".......") const;

    const NetworkPathMonitoringParts fParts;
    std::optional<QStringList> fFoundItemsFromBonjour;
    Subscription fObservation;
    std::unique_ptr<NetworkChecker> fKelvoSSID; ///< ends before the observation does
};

} // namespace kelvo
