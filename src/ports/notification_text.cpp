#include "ports/notification_text.h"

#include "support/property_value.h"
#include "support/text.h"

namespace kelvo {
namespace {

QString entryText(const QVariant& value) {
    if (value.typeId() == QMetaType::QString)
        return quotedText(value.toString());
    return stringValue(value).value_or(
        QString(u'(' + QLatin1StringView(value.isValid() ? value.typeName() : "nothing") + u')'));
}

} // namespace

QString userInfoText(const QVariantMap& userInfo) {
    if (userInfo.isEmpty())
        return QStringLiteral("nil");
    QStringList entries;
    for (auto entry = userInfo.cbegin(); entry != userInfo.cend(); ++entry)
        entries.append(u"AnyHashable(" + quotedText(entry.key()) + u"): " +
                       entryText(entry.value()));
    return u"Optional([" + entries.join(QStringLiteral(", ")) + u"])";
}

QString notificationText(const Notification& notification) {
    return u"name = " + notification.name + u", object = nil, userInfo = " +
           userInfoText(notification.userInfo);
}

} // namespace kelvo
