// StatusField: the place on the screen where the status line stands.
#pragma once

#include "support/attributed_string.h"

namespace kelvo {

/// Main thread only.
class StatusField {
public:
    virtual ~StatusField() = default;
    virtual void setAttributedStringValue(const AttributedString& value) = 0;
    virtual void clear() = 0;
};

} // namespace kelvo
