// SetupSteps: the way to the remote Mac in four steps, which of them are done and which is next.
#pragma once

#include "support/key_state.h"
#include "ui/connection_watch.h"

#include <QString>

#include <array>

namespace kelvo {

enum class SetupStep { Mac, Account, Key, Connection };

inline constexpr std::size_t cSetupSteps = 4;

enum class StepState {
    Done,
    Next,    ///< the one to do now
    Later,   ///< may be done now, but there is one before it
    Trouble, ///< it was tried, and what went wrong is mended here
};

/// What is known of the way; texts as they are stored, empty while they are not set.
struct SetupFacts {
    QString host = {};
    QString user = {};
    QString folder = {};
    QString source = {};               ///< what passes pull from at the moment
    KeyState key = KeyState::NotAsked; ///< the last one that was no question
    bool asking = false;               ///< the Mac is being asked at this moment
    Connection connection = {};
    QDateTime now = {};
};

/// One step. Its texts are for people, on one line unless something else is said.
struct SetupLine {
    StepState state = StepState::Later;
    bool isNext = false; ///< its main button is the one to press; at most one step has it
    QString summary;     ///< what was chosen, or how things stand
    QString text;        ///< what is to be done, and what happens then
    QString remark;      ///< when it was, and what else helps to understand it; several lines

    bool operator==(const SetupLine&) const = default;
};

using SetupSteps = std::array<SetupLine, cSetupSteps>;

/// In the order of SetupStep.
SetupSteps setupSteps(const SetupFacts& facts);

/// The title of the terminal window that asks for the password of this account.
QString passwordTitle(const QString& user, const QString& host);

} // namespace kelvo
