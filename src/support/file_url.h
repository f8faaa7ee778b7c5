// File locations: paths written as the addresses that desktop services pass around.
#pragma once

#include <QString>
#include <QStringView>

namespace kelvo {

/// "file://" and `path` with everything but letters, digits and a few harmless signs as "%XX" of
/// its UTF-8; for a path that is not absolute "file:" and the path. No file is looked at.
QString fileUrl(QStringView path);

} // namespace kelvo
