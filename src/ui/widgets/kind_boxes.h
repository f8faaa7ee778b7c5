// KindBoxes: a tick box for each kind of movies.
#pragma once

#include "ui/movie_kinds.h"

#include <QWidget>

class QCheckBox;

namespace kelvo {

/// In as many rows as the width asks for, in columns.
class KindBoxes final : public QWidget {
    Q_OBJECT
public:
    explicit KindBoxes(QWidget* parent = nullptr);

    /// Ticks `kinds`; without any the boxes are grey and empty. With `overSsh` the kinds that come
    /// anyway are ticked and grey.
    void setKinds(std::optional<MovieKinds> kinds, bool overSsh);

Q_SIGNALS:
    /// A person has ticked the kind at `place` of cMovieKinds, or taken the tick away.
    void kindTicked(std::size_t place, bool taken);

protected:
    void changeEvent(QEvent* event) override;

private:
    void alignBoxes();

    std::array<QCheckBox*, cMovieKinds.size()> fBoxes;
};

} // namespace kelvo
