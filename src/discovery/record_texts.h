// How service records, and lists and dictionaries of them, read in a diagnostic line.
#pragma once

#include "support/dnssd_service.h"

#include <QMap>
#include <QStringList>

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

/// The record's dictionary in one line, "[\"available\": true, \"dateAdded\": …]", by key. Made
/// without the dictionary: a large network has a thousand of them printed at a time.
QString dictionaryText(const DNSSD_Service& record);

/// "Optional([\"10.0.0.2\": […]])" of such lines by address, in pieces that share their memory.
QStringList tableText(const QMap<QString, QString>& dictionaries);

/// "Optional(3)" or "nil".
QString countText(const std::optional<DNSSD_Services>& records);

} // namespace kelvo
