// Profile: a name under which the program keeps settings, record, log and lock of their own, so
// that several copies work side by side, one for each Mac.
#pragma once

#include "support/pass_record.h"

#include <QDateTime>
#include <QString>
#include <QStringView>

#include <optional>

namespace kelvo {

/// The first passes of all profiles begin within so many seconds.
inline constexpr double cFirstPassSpread = 30.0;

/// Why `name` is no name of a profile, as in `it holds " "`; empty when it is one: 1 to 64 letters
/// (A to Z, a to z), digits, "-" and "_".
QString profileNameFault(QStringView name);

struct Profile {
    QString name = {}; ///< as `profileNameFault` has it; empty: the program without a profile

    bool isNamed() const { return !name.isEmpty(); }

    /// The profile's own folder within `folder`, which is the one of the program without a profile.
    QString within(const QString& folder) const;

    /// "Kelvo Mirror", "Kelvo Mirror – NAME".
    QString title() const;

    /// Starts it from a terminal: "kelvo-mirror", "kelvo-mirror --profile NAME".
    QString command() const;

    /// Its service: "kelvo-mirror", "kelvo-mirror@NAME".
    QString unit() const;

    /// How much later than others its first pass begins, in seconds: always the same for a name, at
    /// most cFirstPassSpread, 0 without one.
    double firstPassDelay() const;

    bool operator==(const Profile&) const = default;
};

/// What is known of a profile from outside, whether a copy of it runs or not.
struct ProfileState {
    Profile profile = {};
    QString mac = {}; ///< its host name as stored; empty while none is set or none is asked
    bool isRunning = false;
    QDateTime lastSuccess = {};            ///< UTC, when the last pass that went well began
    std::optional<PassCause> trouble = {}; ///< why the last pass that says something did not
    QString fault = {}; ///< why its settings or its record cannot be read; empty when they can

    bool operator==(const ProfileState&) const = default;
};

} // namespace kelvo
