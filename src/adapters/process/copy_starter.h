// CopyStarter: starts this program once more, for another profile.
#pragma once

#include "support/profile.h"

#include <QString>

#include <memory>

namespace kelvo {

class Console;

/// The copies live on after this one. Main thread only.
class CopyStarter {
public:
    /// `program` is the path of the program. `console` outlives this.
    CopyStarter(QString program, Console& console);
    ~CopyStarter();
    CopyStarter(const CopyStarter&) = delete;
    CopyStarter& operator=(const CopyStarter&) = delete;

    /// Starts a window of `profile` and returns at once; where such a copy runs already, that one
    /// comes to the front. Why nothing could be started; empty when something was. A copy that ends
    /// badly leaves a line in the log.
    QString start(const Profile& profile);

private:
    struct Watches;
    const QString fProgram;
    Console& fConsole;
    std::unique_ptr<Watches> fWatches;
};

} // namespace kelvo
