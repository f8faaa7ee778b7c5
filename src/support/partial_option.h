// How our own rsync commands name the folder in which a cut transfer leaves what has come.
#pragma once

#include <QStringView>

namespace kelvo {

/// As it stands in a command: the shell puts the option there, or what cPartialVariable says.
inline constexpr QStringView cPartialOption =
    u"${KELVO_MIRROR_PARTIAL---partial-dir=.kelvo-partial}";

/// The option itself. It makes rsync look for a half file beside every file that is here already.
inline constexpr QStringView cPartialWord = u"--partial-dir=.kelvo-partial";

/// The environment variable; empty, it takes the option away.
inline constexpr char cPartialVariable[] = "KELVO_MIRROR_PARTIAL";

} // namespace kelvo
