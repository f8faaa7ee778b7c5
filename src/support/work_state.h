// WorkState: what the program is doing and how it is, as window, tray and lines show it.
#pragma once

#include <QString>
#include <QStringList>

#include <algorithm>
#include <optional>

namespace kelvo {

enum class WorkPhase {
    Off,        ///< syncing is switched off and nothing runs
    Missing,    ///< switched on; a pass begins once what is missing is there
    Running,    ///< a pass runs
    Finishing,  ///< switched off while a pass runs: it is the last one
    Cancelling, ///< a person has ended the pass; its commands are on their way out
    Resting,    ///< switched on, between two passes
};

/// Whether a pass runs in this phase.
inline bool passRuns(WorkPhase phase) {
    return phase == WorkPhase::Running || phase == WorkPhase::Finishing ||
           phase == WorkPhase::Cancelling;
}

/// What a person can do next; None: nothing but wait.
enum class Remedy {
    None,
    ShowRemoteTab,
    ChooseMac, ///< this and the next two: a step on the Remote Mac tab
    EnterAccount,
    SetUpKey,
    ChooseSource,
    ChooseDestination,
    CopyInstallCommand,
    CheckAgain,  ///< a pass now
    ShowDetails, ///< the last pass on the Activity tab
    OpenLog,
};

/// `share` (0 to 1) in whole percent; 100 only once it is all.
inline int wholePercent(double share) {
    return static_cast<int>(std::clamp(share, 0.0, 1.0) * 100);
}

enum class HealthSign { Unknown, Well, Trouble };

/// How the last passes went. Sign and text say the same.
struct Health {
    HealthSign sign = HealthSign::Unknown;
    QString text = {}; ///< one sentence, or two
    QString lastSuccess =
        {}; ///< "Last success: 12 minutes ago, 3 files"; empty while there was none
    Remedy remedy = Remedy::None;
    QString cause = {}; ///< of trouble: its name, the same for as long as it is the same trouble

    bool operator==(const Health&) const = default;
};

/// Texts are ready to be shown, on one line each; an empty one has nothing to say.
struct WorkState {
    WorkPhase phase = WorkPhase::Off;
    QString headline = {};            ///< all of it in one line: "Syncing: 48 %, about 4 min"
    QString step = {};                ///< "First pull"
    QString file = {};                ///< the one being received
    QString count = {};               ///< "file 7 of 15"
    QString amount = {};              ///< "18.2 of 37.6 GB"
    QString speed = {};               ///< "92.0 MB/s"
    QString timeLeft = {};            ///< "about 4 min"
    std::optional<double> share = {}; ///< 0 to 1; nothing as long as it is not known
    QString nextPass = {};            ///< "Next pass in 23 s"
    Health health = {};
    QStringList remarks = {}; ///< what else a person should know, such as settings set aside
    bool maySyncNow = false;  ///< a pass can be asked for
    bool mayCancel = false;   ///< the pass that runs can be cancelled

    bool operator==(const WorkState&) const = default;
};

/// What is known of the progress in one line, "First pull, 48 %, file 7 of 15, 18.2 of 37.6
/// GB, 92.0 MB/s, about 4 min, Feature.mkv"; empty while no command runs.
QString progressLine(const WorkState& work);

/// "48 %"; 100 not before all of it is done.
QString shareText(double share);

} // namespace kelvo
