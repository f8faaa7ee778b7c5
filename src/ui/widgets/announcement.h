// announce: has a screen reader speak what has changed elsewhere than at the keyboard focus.
#pragma once

class QString;
class QWidget;

namespace kelvo {

enum class Urgency {
    Polite, ///< waits its turn, and is left out while another window has the keyboard
    Asked,  ///< waits its turn: what a dialog did that may have the keyboard for a moment yet
    Urgent, ///< trouble: spoken whenever the window can be seen
};

/// Has `text` spoken, the words that `place` now shows. Nothing is spoken of a place that cannot be
/// seen, nothing without letters, and no text twice in a row for one place unless `forgetSpoken`
/// came between. Without a screen reader it does next to nothing. Main thread only.
void announce(QWidget& place, const QString& text, Urgency urgency = Urgency::Polite);

/// A person has asked for it: what was spoken for `place` last may be spoken again.
void forgetSpoken(const QWidget& place);

} // namespace kelvo
