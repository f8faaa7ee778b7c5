// Which displays answer. The toolkit itself ends the whole process when there is none.
#pragma once

#include <QByteArray>
#include <QString>

namespace kelvo {

/// Both connect to a display and let go of it again.
///
/// An X display by its name, the one that $DISPLAY names by default.
bool xDisplayAnswers(const QByteArray& name = {});
/// The Wayland display that $WAYLAND_DISPLAY names, or the session's usual one.
bool waylandDisplayAnswers();

/// Whether the toolkit has its part for Wayland displays, which is a package of its own.
bool hasWaylandPlatform();

} // namespace kelvo
