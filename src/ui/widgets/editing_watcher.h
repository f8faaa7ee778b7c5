// EditingWatcher: tells when a person has finished editing a text field, or given it up.
#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace kelvo {

/// Owned by the field it watches.
class EditingWatcher final : public QObject {
    Q_OBJECT
public:
    /// `ended` when the keyboard focus leaves, or at Return where `returnEnds`; `givenUp` at
    /// Escape.
    EditingWatcher(QWidget& field, bool returnEnds, std::function<void()> ended,
                   std::function<void()> givenUp);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const bool fReturnEnds;
    const std::function<void()> fEnded;
    const std::function<void()> fGivenUp;
};

} // namespace kelvo
