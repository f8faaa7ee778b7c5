// Which files a pass has brought.
#pragma once

#include "support/name_list.h"
#include "support/pass_record.h"

#include <vector>

namespace kelvo {

class FileManager;

struct ArrivalSearch {
    QByteArray destination;  ///< an absolute path; beneath any other nothing is found
    QDateTime began;         ///< when the pass did
    const NameList& names;   ///< as pulls printed them, relative to the destination
    bool unnamedToo = false; ///< some pull may have brought files without naming them
};

/// Files that lie in the destination and have changed since the pass began, in the order in which
/// they did; each once, at most 10,000. Names are believed only so far: what is no file there, lies
/// behind a link or has not changed did not arrive. Without names the whole destination is looked
/// through, but for what rsync keeps there of unfinished files. Blocks; any thread.
std::vector<Arrival> arrivalsOf(const FileManager& files, const ArrivalSearch& search);

} // namespace kelvo
