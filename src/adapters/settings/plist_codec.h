// Property lists, XML and binary, to and from dictionaries of stored values.
#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <optional>

namespace kelvo {

struct DecodedPlist {
    std::optional<QVariantMap> root; ///< nothing when the list cannot be read
    QString fault;                   ///< why not: ends a sentence such as "… cannot be read: "
};

/// Reads an XML or a binary property list with a dictionary at its root, XML in UTF-8, UTF-16,
/// UTF-32, Latin-1 and what else this system's Qt can decode. Types are kept: bool,
/// qlonglong (qulonglong beyond its range), double, QString, QByteArray, QDateTime (UTC),
/// QVariantList, QVariantMap; an archiver's UID is read as an integer. Of equal keys the last one
/// holds. Broken UTF-8 is shown as U+FFFD. Whatever the bytes are, the call returns: an empty, cut,
/// too large or too deeply nested list is a fault. Any thread; independent of the locale.
DecodedPlist decodePlist(const QByteArray& bytes);

/// `root`, made of stored values (see support/stored_value.h), as an XML property list that
/// decodePlist reads back the same, with one exception: a character that XML cannot carry (most
/// control characters, U+FFFE, U+FFFF, half a surrogate pair) is written as U+FFFD. Any thread.
QByteArray encodePlist(const QVariantMap& root);

} // namespace kelvo
