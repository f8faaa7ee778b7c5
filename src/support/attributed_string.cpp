#include "support/attributed_string.h"

namespace kelvo {

AttributedString getAttributedString(const QString& text, StatusColor color, bool doCenter) {
    return {text, color, doCenter ? TextAlignment::Centered : TextAlignment::Natural};
}

} // namespace kelvo
