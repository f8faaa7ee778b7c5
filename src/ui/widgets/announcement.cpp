#include "ui/widgets/announcement.h"

#include "ui/widgets/accessible_factory.h"

#include <QAccessible>
#include <QWidget>

namespace kelvo {
namespace {

/// So many texts of a place can still be read: a screen reader asks for the words some time after
/// it is told that there are some.
constexpr int cKept = 3;

/// Those who speak for the widget that they lie in, the last one last; nothing of them is seen.
QList<Spokesman*> spokesmenOf(const QWidget& place) {
    return place.findChildren<Spokesman*>(QString(), Qt::FindDirectChildrenOnly);
}

void speak(Spokesman& spokesman, [[maybe_unused]] Urgency urgency) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(spokesman.parentWidget(), spokesman.accessibleName());
    event.setPoliteness(urgency == Urgency::Urgent ? QAccessible::AnnouncementPoliteness::Assertive
                                                   : QAccessible::AnnouncementPoliteness::Polite);
#else
    // A notification that comes up is read out wherever the focus is; other roles' events are not.
    QAccessibleEvent event(&spokesman, QAccessible::ObjectShow);
#endif
    QAccessible::updateAccessibility(&event);
}

} // namespace

void announce(QWidget& place, const QString& text, Urgency urgency) {
    if (text.trimmed().isEmpty() || !place.isVisible() ||
        (urgency == Urgency::Polite && !place.isActiveWindow()))
        return;
    installAccessibleFactory();
    const QList<Spokesman*> before = spokesmenOf(place);
    if (!before.isEmpty() && !before.last()->isForgotten() &&
        before.last()->accessibleName() == text)
        return;
    if (before.size() == cKept)
        delete before.first();
    speak(*new Spokesman(place, text), urgency);
}

void forgetSpoken(const QWidget& place) {
    for (Spokesman* spokesman : spokesmenOf(place))
        spokesman->forget();
}

} // namespace kelvo
