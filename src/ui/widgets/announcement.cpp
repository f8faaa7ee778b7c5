#include "ui/widgets/announcement.h"

#include "ui/widgets/accessible_factory.h"

#include <QAccessible>
#include <QWidget>

namespace kelvo {
namespace {

/// Speaks for the widget that it lies in; nothing of it is seen.
Spokesman* spokesmanOf(const QWidget& place) {
    return place.findChild<Spokesman*>({}, Qt::FindDirectChildrenOnly);
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
    Spokesman* spokesman = spokesmanOf(place);
    if (!spokesman)
        spokesman = new Spokesman(place);
    else if (spokesman->accessibleName() == text)
        return;
    spokesman->setAccessibleName(text);
    speak(*spokesman, urgency);
}

void forgetSpoken(const QWidget& place) {
    if (Spokesman* spokesman = spokesmanOf(place))
        spokesman->setAccessibleName({});
}

} // namespace kelvo
