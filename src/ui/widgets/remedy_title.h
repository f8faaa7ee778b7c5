// What stands on the button for a remedy.
#pragma once

#include "support/work_state.h"

namespace kelvo {

/// Empty for Remedy::None.
QString remedyTitle(Remedy remedy);

} // namespace kelvo
