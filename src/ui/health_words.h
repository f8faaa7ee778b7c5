// How the last passes went, in words, and what a person can do about it.
#pragma once

#include "ports/pass_store.h"
#include "ports/user_defaults.h"
#include "support/work_state.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <vector>

namespace kelvo {

struct ChecklistLine;

struct HealthFacts {
    const Standing& standing;
    SettingsStanding settings;
    const std::vector<ChecklistLine>& missing; ///< for the next pass
    QDateTime now;                             ///< UTC
};

struct HealthWords {
    Health health;
    QString matter;      ///< the first sentence of the trouble; empty while there is none
    QStringList remarks; ///< one sentence each, or two
};

/// Trouble is what the record says; beside it that settings or record cannot be kept and that a
/// tool is missing.
HealthWords healthWords(const HealthFacts& facts);

/// What mends a pass of this cause.
Remedy remedyFor(const PassRecord& pass);

} // namespace kelvo
