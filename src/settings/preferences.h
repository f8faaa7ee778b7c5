// The one table of settings keys and run-time flags kept in the settings store.
#pragma once

#include "settings/preference_keys.h"

#include <QStringView>

#include <span>

namespace kelvo {

enum class PreferenceType { Bool, Integer, Double, String, Dictionary };

struct Preference {
    QStringView key;
    PreferenceType type;
    QStringView meaning;
    QStringView fallback; ///< what the program does when the key is missing
    QStringView writers;  ///< "control" stands for a control of the window bound to the key
    QStringView readers;
};

/// Every key of support/preference_keys.h, in the order there.
std::span<const Preference> preferenceTable();

} // namespace kelvo
