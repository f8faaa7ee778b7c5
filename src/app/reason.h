// How the program says why it ends before it has begun.
#pragma once

#include <QString>

#include <cstdio>

namespace kelvo {

/// Says `reason`, a sentence without its full stop, on standard error; returns `exitCode`.
inline int printReason(const QString& reason, int exitCode) {
    std::fputs(qPrintable(QString(u"kelvo-mirror: " + reason + u".\n")), stderr);
    return exitCode;
}

} // namespace kelvo
