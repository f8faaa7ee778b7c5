#include "passes/rsync_output_reader.h"

#include "support/plain_line.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace kelvo {
namespace {

/// A name may be 4 KiB long, and each of its bytes five characters.
constexpr qsizetype cLongestPart = qsizetype{32} * 1024;
/// As long as there may be more to come, it is not said that all is here.
constexpr double cNearlyAll = 0.99;
/// How well a total has to be known before it is said.
constexpr double cKnown = 1.15;

qsizetype indexOf(QByteArrayView bytes, char sign) {
    const void* const found =
        bytes.isEmpty() ? nullptr
                        : std::memchr(bytes.data(), sign, static_cast<std::size_t>(bytes.size()));
    return found ? static_cast<const char*>(found) - bytes.data() : -1;
}

} // namespace

RsyncOutputReader::RsyncOutputReader(QStringView command, bool restIsHere)
    : fFormat(nameFormatOf(command)), fOverall(command.contains(u"progress2")),
      fRestIsHere(restIsHere) {}

void RsyncOutputReader::read(QByteArrayView bytes, double now) {
    while (!bytes.isEmpty()) {
        const qsizetype lineEnd = indexOf(bytes, '\n');
        QByteArrayView line = lineEnd < 0 ? bytes : bytes.first(lineEnd);
        bytes = lineEnd < 0 ? QByteArrayView() : bytes.sliced(lineEnd + 1);
        for (qsizetype at = 0; (at = indexOf(line, '\r')) >= 0; line = line.sliced(at + 1))
            take(line.first(at), '\r', now);
        if (lineEnd >= 0)
            take(line, '\n', now);
        else
            keep(line);
    }
    // What rsync writes over later is ended by nothing but blanks.
    if (fPending.startsWith(' ') && (fPending.endsWith("  ") || fPending.endsWith(')'))) {
        if (const auto progress = progressLineIn(fPending))
            moved(*progress, now);
    }
}

void RsyncOutputReader::keep(QByteArrayView part) {
    fSkipping = fSkipping || fPending.size() + part.size() > cLongestPart;
    if (!fSkipping)
        fPending.append(part);
}

void RsyncOutputReader::take(QByteArrayView part, char end, double now) {
    fRewritten = fRewritten || end == '\r';
    if (fPending.isEmpty() && !fSkipping) {
        readPart(part, end == '\n' && !fRewritten, now);
    } else {
        keep(part);
        if (!fSkipping)
            readPart(fPending, end == '\n' && !fRewritten, now);
        fPending.clear();
        fSkipping = false;
    }
    if (end == '\n')
        fRewritten = false;
}

void RsyncOutputReader::readPart(QByteArrayView part, bool wholeLine, double now) {
    if (part.isEmpty() || part.size() > cLongestPart)
        return;
    if (!wholeLine) {
        if (const auto progress = progressLineIn(part))
            moved(*progress, now);
    } else if (const auto file = namedIn(part, fFormat)) {
        named(*file);
    }
}

void RsyncOutputReader::named(const NamedFile& file) {
    if (file.name.endsWith('/')) {
        ++fFoldersNamed;
        fRootNamed = fRootNamed || file.name == QByteArrayView("./");
        return;
    }
    ++fFilesNamed;
    fFile.resize(file.name.size()); // which never gives room back
    std::memcpy(fFile.data(), file.name.data(), static_cast<std::size_t>(file.name.size()));
    fLargestNamed = std::max(fLargestNamed, file.size.value_or(std::numeric_limits<qint64>::max()));
    if (file.size)
        fBytesNamed =
            std::min(fBytesNamed, std::numeric_limits<qint64>::max() - *file.size) + *file.size;
    if (fNames.size() >= cMostNames || fNames.bytes() + file.name.size() > cMostNameBytes)
        return;
    if (file.name.contains('\\'))
        fNames.append(unescapedName(file.name));
    else
        fNames.append(file.name);
}

void RsyncOutputReader::moved(const ProgressLine& line, double now) {
    fTold = true;
    fPercentOfFile = line.fileEnd ? 0 : std::min(line.percent, 100);
    const bool isAnother = !line.fileEnd || !fEnd || line.fileEnd->transferred > fEnd->transferred;
    if (fOverall) {
        boundTotal(line);
        fBytes = std::max(fBytes, line.bytes);
    } else if (isAnother) {
        constexpr qint64 cMost = std::numeric_limits<qint64>::max() / 2;
        const qint64 bytes = std::min(fBytesOfEnded, cMost) + std::min(line.bytes, cMost);
        fBytes = std::max(fBytes, bytes);
        if (line.fileEnd)
            fBytesOfEnded = bytes;
    }
    if (line.fileEnd && (!fEnd || line.fileEnd->transferred >= fEnd->transferred))
        fEnd = line.fileEnd;
    fSpeed.reached(fBytes, now);
}

/// The percentage is cut off, the rate and the time left are rounded.
void RsyncOutputReader::boundTotal(const ProgressLine& line) {
    const auto bytes = static_cast<double>(line.bytes);
    Bounds now{bytes, std::numeric_limits<double>::infinity()};
    if (line.percent < 100)
        now.least = bytes * 100 / (line.percent + 1);
    if (line.percent > 0)
        now.most = bytes * 100 / line.percent;
    if (!line.fileEnd && line.seconds && line.bytesPerSecond > 0) {
        constexpr double cRounding = 0.03;
        const double rate = line.bytesPerSecond;
        const auto left = static_cast<double>(*line.seconds);
        now.least = std::max(now.least, bytes + rate * left * (1 - cRounding));
        now.most = std::min(now.most, bytes + rate * (left + 1) * (1 + cRounding));
    }
    // A list that rsync is still reading grows, and with it the total.
    const bool grows = line.fileEnd ? !line.fileEnd->listIsWhole : !(fEnd && fEnd->listIsWhole);
    fTotal.least = std::max(fTotal.least, now.least);
    fTotal.most = grows ? now.most : std::min(fTotal.most, now.most);
    if (fTotal.least > fTotal.most)
        fTotal = {std::min(now.least, now.most), std::max(now.least, now.most)};
}

bool RsyncOutputReader::allChecked() const {
    return fEnd && fEnd->listIsWhole && fEnd->unchecked == 0;
}

/// Of the whole list, as far as rsync has come. The uppermost folder is not named when it is as it
/// should be.
bool RsyncOutputReader::nothingPassedOver() const {
    if (!fEnd || !fEnd->listIsWhole)
        return false;
    const qint64 checked = fEnd->entries - fEnd->unchecked;
    return checked <= fEnd->transferred + fFoldersNamed + (fRootNamed ? 0 : 1);
}

std::optional<double> RsyncOutputReader::bytesKnown() const {
    if (allChecked())
        return static_cast<double>(fBytes);
    if (fRestIsHere && fBytesNamed > 0)
        return static_cast<double>(std::max(fBytesNamed, fBytes));
    const bool isKnown = fOverall && nothingPassedOver() && fTotal.most <= fTotal.least * cKnown;
    return isKnown ? std::optional(fTotal.least) : std::nullopt;
}

std::optional<double> RsyncOutputReader::share() const {
    const bool listGrows = fEnd && !fEnd->listIsWhole;
    if (!fTold || listGrows)
        return std::nullopt;
    if (allChecked())
        return 1;
    const auto bytes = static_cast<double>(fBytes);
    if (!fOverall) {
        const ProgressLine::FileEnd end = fEnd.value_or(ProgressLine::FileEnd());
        if (end.entries == 0)
            return std::nullopt;
        const auto checked = static_cast<double>(end.entries - end.unchecked);
        return std::min(cNearlyAll,
                        (checked + fPercentOfFile / 100.0) / static_cast<double>(end.entries));
    }
    if (fRestIsHere && fBytesNamed > 0)
        return std::min(cNearlyAll, bytes / static_cast<double>(fBytesNamed));
    return std::isfinite(fTotal.most) && fTotal.most > 0
               ? std::optional(std::min(cNearlyAll, bytes / fTotal.most))
               : std::nullopt;
}

PassProgress RsyncOutputReader::progress(double now) {
    PassProgress progress;
    progress.file = withVisibleControls(QString::fromUtf8(fFile));
    if (fFormat != NameFormat::None || fEnd) {
        fFilesSaid = std::max(fFilesSaid, fEnd ? fEnd->transferred : fFilesNamed - 1);
        progress.filesDone = fFilesSaid;
    }
    if (!fTold)
        return progress;
    progress.bytesDone = fBytes;
    progress.bytesPerSecond = fSpeed.at(now);
    const auto say = [](auto& said, auto value) {
        using Value = std::remove_reference_t<decltype(said)>;
        const bool back = value < said;
        said = std::max(said, value);
        return back ? std::nullopt : std::optional<Value>(value);
    };
    if (const auto known = bytesKnown()) {
        progress.bytesKnown = say(fBytesSaid, static_cast<qint64>(std::min(*known, 9e18)));
        const double left = *known - static_cast<double>(fBytes);
        if (progress.bytesKnown && progress.bytesPerSecond.value_or(0) > 0)
            progress.secondsLeft = std::max(left, 0.0) / *progress.bytesPerSecond;
    }
    if (const auto reached = share())
        progress.share = say(fShareSaid, *reached);
    if (allChecked())
        progress.filesKnown = fEnd->transferred;
    else if (!fRestIsHere && nothingPassedOver() && fFoldersNamed == (fRootNamed ? 1 : 0))
        progress.filesKnown = fEnd->transferred + fEnd->unchecked;
    return progress;
}

std::optional<qint64> RsyncOutputReader::filesNamed() const {
    if (fFormat == NameFormat::None || fFormat == NameFormat::Other)
        return std::nullopt;
    return fFilesNamed;
}

NameList RsyncOutputReader::takeNames() {
    return std::exchange(fNames, {});
}

} // namespace kelvo
