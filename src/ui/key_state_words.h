// The state of the program's key in words for people.
#pragma once

#include "support/key_state.h"

#include <QString>

namespace kelvo {

QString keyStateWords(KeyState state);

} // namespace kelvo
