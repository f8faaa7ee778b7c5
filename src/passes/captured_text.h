// A command's text cut down to what is worth keeping, and the lines looked for in it.
#pragma once

#include "support/pass_record.h"

#include <QStringList>
#include <QStringView>

namespace kelvo {

/// How much of a long text's beginning, and of its end, is kept: bytes of UTF-8.
inline constexpr qsizetype cKeptText = qsizetype{32} * 1024;

/// `output` followed by `errors`. Up to 64 KiB of UTF-8 the whole; of more, the first and the last
/// 32 KiB. Cut between characters; needs no copy of the whole.
CapturedText capturedText(QStringView output, QStringView errors = {});

/// The lines that are there, of the beginning and of the end, trimmed; empty ones are left out.
QStringList linesOf(const CapturedText& text);

} // namespace kelvo
