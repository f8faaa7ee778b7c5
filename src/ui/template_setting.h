// TemplateSetting: the stored rsync template as the tick boxes of movie kinds and the way back to
// the factory's own see it.
#pragma once

#include "ui/movie_kinds.h"

namespace kelvo {

class UserDefaults;

/// Main thread only; reads the store each time it is asked.
class TemplateSetting {
public:
    /// `defaults` outlives the setting.
    explicit TemplateSetting(UserDefaults& defaults) : fDefaults(defaults) {}

    /// Nothing while the template is one that a person has written.
    std::optional<MovieKinds> kinds() const;

    /// Takes the kind at `place` of cMovieKinds into the template, or out of it. A template that a
    /// person has written stays as it is.
    void setKind(std::size_t place, bool taken);

    /// Puts today's template in the place of one that an earlier version gave; what a person has
    /// written stays.
    void takeOver();

    enum class Change {
        None,      ///< the factory's template is in use, and no other was before
        ToFactory, ///< away from another one
        ToOwn,     ///< back to the one that was there before the last change to the factory's
    };
    Change nextChange() const;

    /// Makes the change that is next.
    void change();

private:
    QString stored() const;
    void store(const QString& command);

    UserDefaults& fDefaults;
    QString fOwn; ///< what the factory's template took the place of; empty: nothing so far
};

} // namespace kelvo
