// Readable Qt values in the messages of failed tests. Found by argument-dependent lookup, hence
// outside any namespace of ours.
#pragma once

#include <QDebug>
#include <QString>
#include <QVariant>

#include <ostream>

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QVariant& value, std::ostream* out) {
    *out << QDebug::toString(value).toStdString();
}
