// What a window does once it stands there.
#pragma once

#include <functional>

class QWidget;

namespace kelvo {

class DispatchQueue;

/// Has `work` done once, by `mainQueue`, when `window` has been painted for the first time, or
/// after a second when nothing has asked it to paint itself: it may lie on a workspace that nobody
/// looks at. Not at all when the window is gone by then. Main thread only.
void afterFirstPaint(QWidget& window, DispatchQueue& mainQueue, std::function<void()> work);

} // namespace kelvo
