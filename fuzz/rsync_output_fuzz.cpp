// A command line in the first line, then any bytes as what it prints, in pieces: whatever they are,
// the progress is one, nothing in it goes back, and the names do not depend on the pieces.
#include "fuzz_input.h"
#include "passes/rsync_output_reader.h"

#include <algorithm>
#include <cmath>

namespace {

using namespace kelvo;

template <typename Number>
void checkNumber(const std::optional<Number>& number) {
    require(!number || (*number >= 0 && std::isfinite(static_cast<double>(*number))));
}

template <typename Number>
void checkOrder(const std::optional<Number>& before, const std::optional<Number>& after) {
    require(!before || !after || *before <= *after);
}

void check(const PassProgress& progress) {
    checkNumber(progress.filesDone);
    checkNumber(progress.filesKnown);
    checkNumber(progress.bytesDone);
    checkNumber(progress.bytesKnown);
    checkNumber(progress.share);
    checkNumber(progress.bytesPerSecond);
    checkNumber(progress.secondsLeft);
    require(!progress.share || *progress.share <= 1);
    require(std::ranges::none_of(progress.file, [](QChar c) { return c < u' ' && c != u'\t'; }));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view rest = inputText(data, size);
    const QString command = asText(nextText(rest, '\n'));
    const QByteArrayView output(rest.data(), static_cast<qsizetype>(rest.size()));

    RsyncOutputReader whole(command, false);
    whole.read(output, 1);
    check(whole.progress(2));

    RsyncOutputReader inPieces(command, true);
    PassProgress last;
    double now = 0;
    for (qsizetype at = 0; at < output.size();) {
        const qsizetype length = std::min<qsizetype>(1 + size % 13, output.size() - at);
        inPieces.read(output.sliced(at, length), now += 0.3);
        const PassProgress progress = inPieces.progress(now);
        check(progress);
        checkOrder(last.filesDone, progress.filesDone);
        checkOrder(last.bytesDone, progress.bytesDone);
        checkOrder(last.bytesKnown, progress.bytesKnown);
        checkOrder(last.share, progress.share);
        last = progress;
        at += length;
    }
    require(whole.takeNames() == inPieces.takeNames());

    const QString text = asText(rest);
    const QString shown = withoutProgress(text);
    require(shown.size() <= text.size() && !shown.contains(u'\r'));
    return 0;
}
