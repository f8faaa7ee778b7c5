// ColorScheme: whether the person wants dark colours, as the desktop's portal tells all programs.
#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QObject>

#include <functional>

namespace kelvo {

/// Main thread only. Asks without waiting, and begins no portal where none runs; one that begins
/// later is asked then.
class ColorScheme final : public QObject {
    Q_OBJECT
public:
    /// `changed` is called from the event loop with each change; light is what holds at first.
    explicit ColorScheme(std::function<void(bool dark)> changed,
                         QDBusConnection bus = QDBusConnection::sessionBus());

    /// Whether the toolkit takes the desktop's colours over by itself: on KDE's desktop, and where
    /// a platform theme was chosen for it.
    static bool isTakenOverByToolkit();

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void ask();
    void take(const QVariant& value);

    const std::function<void(bool dark)> fChanged;
    QDBusConnection fBus;
    QDBusServiceWatcher fPortals;
    bool fIsDark = false;
};

} // namespace kelvo
