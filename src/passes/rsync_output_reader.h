// RsyncOutputReader: how far an rsync command is and what it names, read while it prints.
#pragma once

#include "passes/name_lines.h"
#include "passes/progress_line.h"
#include "passes/transfer_speed.h"
#include "support/name_list.h"
#include "support/pass_progress.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QStringView>

#include <limits>

namespace kelvo {

/// One thread at a time. Whatever is printed, it keeps no more than the first 50,000 names, of 8
/// MiB together, and one line of 32 KiB; its time grows with the bytes alone.
class RsyncOutputReader {
public:
    static constexpr std::size_t cMostNames = 50'000;
    static constexpr qsizetype cMostNameBytes = qsizetype{8} * 1024 * 1024;

    /// `restIsHere`: the same command has gone well before, so that what is not named now is here
    /// already. It decides what the share is of: otherwise, as long as rsync has passed over
    /// something, of the whole list, and so never more than the truth.
    RsyncOutputReader(QStringView command, bool restIsHere);

    /// The next of what the command prints, cut anywhere. `now`: seconds on any fixed clock.
    void read(QByteArrayView bytes, double now);

    /// Whether rsync has told of bytes so far.
    bool tellsProgress() const { return fTold; }

    /// All but the step. Of what would go back since the last call, nothing is said.
    PassProgress progress(double now);

    /// How many files were named so far, kept or not; nothing where lines do not tell.
    std::optional<qint64> filesNamed() const;

    /// The size of the largest file named so far; as large as can be where one has no size.
    qint64 largestNamed() const { return fLargestNamed; }

    /// The files named so far, and forgets them; their bytes as they are over there.
    NameList takeNames();

private:
    /// Of a number that is known better and better.
    struct Bounds {
        double least = 0;
        double most = std::numeric_limits<double>::infinity();
    };

    void take(QByteArrayView part, char end, double now);
    void keep(QByteArrayView part);
    void readPart(QByteArrayView part, bool wholeLine, double now);
    void named(const NamedFile& file);
    void moved(const ProgressLine& line, double now);
    void boundTotal(const ProgressLine& line);
    bool allChecked() const;
    bool nothingPassedOver() const;
    std::optional<double> bytesKnown() const;
    std::optional<double> share() const;

    const NameFormat fFormat;
    const bool fOverall; ///< its figures are of all files, not of each
    const bool fRestIsHere;

    QByteArray fPending;     ///< the begin of a part
    bool fSkipping = false;  ///< the part is longer than anything worth reading
    bool fRewritten = false; ///< a carriage return has been in the line
    NameList fNames;
    QByteArray fFile; ///< the name that was printed last
    qint64 fFilesNamed = 0;
    qint64 fFoldersNamed = 0;
    bool fRootNamed = false;
    qint64 fBytesNamed = 0; ///< the sizes printed with the names
    qint64 fLargestNamed = 0;

    bool fTold = false;
    qint64 fBytes = 0;
    qint64 fBytesOfEnded = 0; ///< of files that have come whole, where figures are of each
    int fPercentOfFile = 0;
    Bounds fTotal; ///< of the bytes in the whole list
    std::optional<ProgressLine::FileEnd> fEnd;
    TransferSpeed fSpeed;

    double fShareSaid = 0;
    qint64 fBytesSaid = 0;
    qint64 fFilesSaid = 0;
};

} // namespace kelvo
