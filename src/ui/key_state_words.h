// The state of the program's key in words for people.
#pragma once

#include "remote/key_state.h"

namespace kelvo {

QString keyStateWords(KeyState state);

} // namespace kelvo
