// What the bytes of a property list must satisfy before libplist may see them.
#pragma once

#include <QByteArrayView>
#include <QString>

namespace kelvo {

/// The largest property list that is read or written, in bytes.
inline constexpr qsizetype cLargestPlist = qsizetype{16} * 1024 * 1024;

/// Why `bytes` must not be parsed; empty when they may be. Refused are: nothing at all, more than
/// cLargestPlist, an XML text that does not end with its closing tag (libplist takes one that was
/// cut right after its root), so many containers that libplist's recursion could exhaust the stack,
/// and a binary list whose objects refer to each other in circles, too deep, or so often that they
/// would not fit into memory, or with a key that holds a zero, at which libplist ends the program.
/// Any thread.
QString plistFault(QByteArrayView bytes);

/// Whether `bytes` begin like a binary property list.
bool isBinaryPlist(QByteArrayView bytes);

} // namespace kelvo
