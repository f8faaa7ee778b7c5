// Which texts from the network may be listed at all, and how the others are told of.
#pragma once

#include <QString>

namespace kelvo {

/// Whether `name` may be shown and later stand inside a shell command between double quotes: it
/// is not empty, has at most 63 bytes of UTF-8 and none of $ ` " \ ; & | < >, no control character,
/// no line end of any kind and nothing that is no character (half a pair, U+FFFD for broken
/// UTF-8). Apostrophes, brackets, blanks, letters of all scripts and marks that turn the direction
/// of reading pass.
bool isAcceptableServiceName(QStringView name);

/// The same for a host name of up to 255 bytes.
bool isAcceptableHostName(QStringView name);

/// `text` for a log line: visible ASCII and letters of all scripts stand, a backslash is doubled,
/// everything else is spelled out ("\x0a", "\u202e").
QString escapedForLog(QStringView text);

/// The same, put behind `line`: nothing is made on the way for a text that is plain.
void appendEscapedForLog(QString& line, QStringView text);

/// Whether `text` is an IPv4 address in four decimal parts without leading zeros.
bool isDottedIPv4(QStringView text);

/// "Remote\032Mac._smb._tcp.local": the escaped form of a full service name. Dots and backslashes
/// of `name` have a backslash before them, blanks and control bytes are \ and three decimal digits.
QString fullServiceName(QStringView name, QStringView type, QStringView domain);

} // namespace kelvo
