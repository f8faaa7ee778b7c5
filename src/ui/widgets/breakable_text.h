// breakable: text from elsewhere that wraps though it has no blanks.
#pragma once

#include <QString>

namespace kelvo {

/// `text` for a label that wraps: a run of letters that is too long for a line may be broken after
/// each of them, by marks that are not seen. Not for text that a person copies.
QString breakable(const QString& text);

} // namespace kelvo
