// The encodings in which an XML property list may come.
#pragma once

#include <QByteArray>

namespace kelvo {

/// `bytes` in UTF-8 without a mark of order, which is all that libplist reads: UTF-16 and UTF-32
/// are known by their mark or their first character, others by the name in the XML declaration.
/// What is binary, in UTF-8, or in an encoding that is not known comes back as it is. Any thread.
QByteArray plistInUtf8(const QByteArray& bytes);

} // namespace kelvo
