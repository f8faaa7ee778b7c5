// The dark colours of a window whose toolkit has none of its own.
#pragma once

#include <QPalette>

namespace kelvo {

/// Every text keeps a contrast of at least 4.5 to 1 on its ground.
QPalette darkPalette();

} // namespace kelvo
