// Whether an X display answers.
#pragma once

namespace kelvo {

/// Asks the display that $DISPLAY names, and lets go of it again. The toolkit itself ends the whole
/// process when there is none.
bool xDisplayAnswers();

} // namespace kelvo
