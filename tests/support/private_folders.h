// Keeps a test process away from the files and services of whoever runs it.
#pragma once

#include <QTemporaryDir>

namespace kelvo {

/// Points HOME, the XDG folders, TMPDIR and the system bus into `home`; nobody serves that bus yet.
/// Called before any thread is started.
void usePrivateFolders(const QTemporaryDir& home);

} // namespace kelvo
