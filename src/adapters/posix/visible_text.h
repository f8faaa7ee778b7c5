// Makes control characters visible, so that no text can drive a terminal or forge a log line.
#pragma once

#include <QString>

namespace kelvo {

/// `text` with every control character except line end and tab written as \xNN or \u{NNNN}, and
/// every character that turns the reading direction likewise. A text without any comes back as it
/// is, not copied.
QString withVisibleControls(const QString& text);

} // namespace kelvo
