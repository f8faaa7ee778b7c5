// The parts that speak over a message bus, linked in.
#pragma once

#include "app/bus_parts.h"

namespace kelvo {

BusParts ownBusParts();

} // namespace kelvo
