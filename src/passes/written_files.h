// WrittenFiles: how far a command is that says nothing, from the file it is writing.
#pragma once

#include "passes/transfer_speed.h"
#include "ports/command_runner.h"
#include "support/pass_progress.h"

#include <QByteArray>

#include <optional>

namespace kelvo {

/// What comes and goes between two looks is not counted: the figures are no more than the truth.
/// One thread at a time.
class WrittenFiles {
public:
    /// A look is worth its cost only so often.
    bool isDue(double now) const { return !fLooked || now - *fLooked >= cBetweenLooks; }

    void saw(const std::optional<FileBeingWritten>& file, double now);

    /// Adds what is known to `progress`.
    void addTo(PassProgress& progress, double now) const;

private:
    static constexpr double cBetweenLooks = 0.2;

    std::optional<double> fLooked;
    QByteArray fPath; ///< empty: none has been seen, or the last one is done
    qint64 fSize = 0;
    qint64 fFilesDone = 0;
    qint64 fBytesDone = 0; ///< of files that are done
    bool fSawAny = false;
    TransferSpeed fSpeed;
};

} // namespace kelvo
