// What a set-up from a terminal is asked for, and what it comes to.
#pragma once

#include "app/commands/settings_commands.h"

#include <QString>
#include <QVariantMap>

#include <optional>

namespace kelvo {

/// The answers that stand on the command line; what is missing is asked where somebody can answer.
struct SetupRequest {
    std::optional<QString> mac = {}; ///< a host name or an address
    std::optional<QString> account = {};
    std::optional<QString> folder = {};
    std::optional<QString> destination = {};
    bool makeDestination = false;
    bool newKey = false;
    std::optional<bool> shareConnection = {}; ///< whether ssh is told of it
    std::optional<bool> enable = {};
    std::optional<bool> linger = {};
};

/// The settings themselves stand in the store that the questions were given.
struct SetupAnswers {
    QString destination;              ///< as it is stored
    bool makeDestination = false;     ///< there is no such folder yet
    bool newKey = false;              ///< the key that is there is to be replaced
    std::optional<bool> sshLine = {}; ///< whether the line belongs there; empty: left as it is
    bool enable = false;              ///< the service
    bool linger = false;
};

/// What is known of the service before anybody is asked.
struct ServiceFacts {
    bool canBeEnabled = false; ///< the account's own manager runs and knows the unit
    bool lingers = false;      ///< that manager runs although nobody is logged in
};

/// The end of a set-up that Ctrl+C, or the end of the input, came to before anything was changed.
inline const QString cNothingChanged = QStringLiteral("Nothing was changed.");

} // namespace kelvo
