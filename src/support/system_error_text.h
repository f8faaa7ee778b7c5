// The words of the system's error numbers.
#pragma once

#include <QString>

namespace kelvo {

/// What the C library says about `error`, a value of errno: "No such file or directory". Any
/// thread.
QString systemErrorText(int error);

} // namespace kelvo
