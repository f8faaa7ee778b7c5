// The token by which the desktop knows that a person asked for a window, and lets that come to the
// front. The toolkit looks for it in the environment whenever a window is activated.
#pragma once

#include <QByteArray>

namespace kelvo {

/// The token that this process was started with or that was offered last; empty: none.
QByteArray activationToken();

/// Has the next window that is activated use `token`. Empty: none; programs that are started later
/// do not come across an older one either. Main thread only.
void offerActivationToken(const QByteArray& token);

} // namespace kelvo
