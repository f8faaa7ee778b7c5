// How service records, and lists and dictionaries of them, read in a diagnostic line.
#pragma once

#include "support/dnssd_service.h"

#include <QMap>

#include <optional>

namespace kelvo {

/// The type that is browsed for.
inline constexpr QStringView cBrowsedType = u"_smb";

/// `text` from the network, with controls and marks that turn the direction of reading spelled out.
QString plainText(QStringView text);

/// "DNSSD_Service(Remote Mac, Remote-Mac.local, 10.0.0.2)".
QString recordText(const DNSSD_Service& record);

/// "[DNSSD_Service(…), DNSSD_Service(…)]".
QString listText(const DNSSD_Services& records);

/// The same within "Optional(…)", or "nil".
QString listText(const std::optional<DNSSD_Services>& records);

/// "[\"available\": true, \"domain\": \"local\", …]", by key; "[:]" for none.
QString dictionaryText(const QVariantMap& dictionary);

/// "Optional([\"10.0.0.2\": […]])".
QString tableText(const std::optional<QMap<QString, QVariantMap>>& table);

/// "Optional(3)" or "nil".
QString countText(const std::optional<DNSSD_Services>& records);

} // namespace kelvo
