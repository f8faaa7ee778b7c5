// AttributedString: a text with the colour and alignment it is shown in.
#pragma once

#include "support/status_color.h"

#include <QString>

namespace kelvo {

enum class TextAlignment {
    Natural, ///< the field's own
    Centered,
};

struct AttributedString {
    QString string;
    StatusColor foregroundColor = StatusColor::Black;
    TextAlignment alignment = TextAlignment::Natural;

    bool operator==(const AttributedString&) const = default;
};

/// `text` in `color`, centred when asked for; no font is set, the field's own applies.
AttributedString getAttributedString(const QString& text, StatusColor color, bool doCenter);

} // namespace kelvo
