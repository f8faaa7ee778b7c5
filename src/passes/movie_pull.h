// What an rsync command leaves out of its source.
#pragma once

#include <QStringView>

namespace kelvo {

/// Whether `pull` has certainly brought every movie that `movieCommand` asks for, provided that it
/// went well; both as they were run. Options that keep an older or another copy here count as the
/// person's choice. What is not known to leave nothing out is taken to do so.
bool bringsEveryMovie(QStringView pull, QStringView movieCommand);

} // namespace kelvo
