// The one table of everything that the program keeps in the settings store.
#pragma once

#include "settings/preference_keys.h"

#include <QStringView>
#include <QVariant>

#include <span>
#include <variant>

namespace kelvo {

enum class PreferenceType { Bool, Integer, Double, String, Dictionary, Times };

/// Whether a person chooses the value, be it through a sheet, or the program writes it as it runs.
enum class PreferenceKind { Setting, State };

struct Preference {
    QStringView key;
    PreferenceKind kind;
    PreferenceType type;
    /// What the store reads while no value is set; of the key's type, or none.
    std::variant<std::monostate, bool, qint64, double, QStringView> factory;
    QStringView shownOn; ///< title of the window's tab; empty: on none
    QStringView purpose; ///< for people, with the unit
};

/// Every key of settings/preference_keys.h, in the order there.
std::span<const Preference> preferenceTable();

/// The row of `key`; null when there is none.
const Preference* preference(QStringView key);

/// Whether the program writes `key` as it runs; false for a key without a row.
bool isState(QStringView key);

/// Whether `key` comes and goes within seconds and tells nothing after the program's end: it need
/// not reach the disk at once.
bool isBrief(QStringView key);

/// As the store keeps it; invalid when there is none.
QVariant factoryValue(const Preference& preference);

} // namespace kelvo
