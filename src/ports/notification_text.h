// How notifications read in diagnostic lines.
#pragma once

#include "ports/notification_center.h"

namespace kelvo {

/// `Optional([AnyHashable("key"): "text"])`, or `nil` without any information.
QString userInfoText(const QVariantMap& userInfo);

/// `name = …, object = nil, userInfo = …`.
QString notificationText(const Notification& notification);

} // namespace kelvo
