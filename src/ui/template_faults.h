// What an rsync template lacks, before a pass finds out.
#pragma once

#include <QString>

#include <vector>

namespace kelvo {

enum class TemplateFault {
    NoSource,      ///< without %@1 a pass does not read the source that is chosen
    NoDestination, ///< without %@2 it does not fill the destination that is chosen
    NoSsh,         ///< without %@98 and %@3 a pull does not use the program's own key
    NoOption,      ///< without %@99 the option that is chosen changes nothing
    PartsWords,    ///< a pass is refused when a folder's name is no ordinary word
};

/// In the order above. `overSsh`: passes pull from a Mac; `optionTag`: as stored. None of them
/// keeps a pass from running the template as it stands, except the last one.
std::vector<TemplateFault> templateFaults(const QString& command, bool overSsh, qint64 optionTag);

} // namespace kelvo
