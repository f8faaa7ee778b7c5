#include "adapters/desktop/x_display.h"

#include <xcb/xcb.h>

namespace kelvo {

bool xDisplayAnswers() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

} // namespace kelvo
