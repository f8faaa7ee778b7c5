#include "passes/progress_line.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace kelvo {
namespace {

constexpr qsizetype cLongest = 160;
constexpr double cMostBytes = 9e18;
constexpr qint64 cMostPercent = 1000; // a file can grow while it is read

/// Reads from the front of a text; what is not there is not taken.
class Scan {
public:
    explicit Scan(QByteArrayView text) : fText(text) {}

    qsizetype at() const { return fAt; }
    char next() const { return fAt < fText.size() ? fText[fAt] : '\0'; }
    bool nextIsDigit() const { return next() >= '0' && next() <= '9'; }

    qsizetype blanks() {
        const qsizetype begin = fAt;
        while (next() == ' ')
            ++fAt;
        return fAt - begin;
    }

    bool take(std::string_view word) {
        const std::string_view rest(fText.data() + fAt,
                                    static_cast<std::size_t>(fText.size() - fAt));
        if (!rest.starts_with(word))
            return false;
        fAt += static_cast<qsizetype>(word.size());
        return true;
    }

    /// Plain digits, at most 18.
    std::optional<qint64> number() {
        qint64 value = 0;
        const qsizetype begin = fAt;
        for (; nextIsDigit() && fAt - begin < 18; ++fAt)
            value = value * 10 + (next() - '0');
        return fAt > begin && !nextIsDigit() ? std::optional(value) : std::nullopt;
    }

    /// "1234", "1,234,567", or with a letter, which says that the last sign is a decimal one,
    /// "1.23M".
    std::optional<double> figure() {
        const auto [digits, fraction] = digitsAndFraction();
        constexpr std::string_view cLetters = "KMGTP";
        const std::size_t power = cLetters.find(next());
        if (!digits || power == cLetters.npos)
            return digits;
        ++fAt;
        return *digits / fraction * std::pow(1000.0, static_cast<double>(power + 1));
    }

    /// "1.95".
    std::optional<double> decimal() {
        const auto [digits, fraction] = digitsAndFraction();
        return digits ? std::optional(*digits / fraction) : std::nullopt;
    }

private:
    /// The digits as one number, and ten to the number of those behind the last sign.
    std::pair<std::optional<double>, double> digitsAndFraction() {
        constexpr qsizetype cMost = 30;
        double digits = 0;
        double fraction = 0;
        const qsizetype begin = fAt;
        for (; (nextIsDigit() || next() == ',' || next() == '.') && fAt - begin < cMost; ++fAt) {
            if (nextIsDigit()) {
                digits = digits * 10 + (next() - '0');
                fraction *= 10;
            } else {
                fraction = 1;
            }
        }
        return {fAt > begin ? std::optional(digits) : std::nullopt, std::max(fraction, 1.0)};
    }

    const QByteArrayView fText;
    qsizetype fAt = 0;
};

/// "1.95MB/s".
std::optional<double> rateIn(Scan& scan) {
    const auto shown = scan.decimal();
    if (!shown)
        return std::nullopt;
    if (scan.take("kB/s"))
        return *shown * 1024;
    if (scan.take("MB/s"))
        return *shown * 1024 * 1024;
    if (scan.take("GB/s"))
        return *shown * 1024 * 1024 * 1024;
    return std::nullopt;
}

/// "0:00:06", or "??:??:??"; false when there is neither.
bool timeIn(Scan& scan, std::optional<qint64>& seconds) {
    if (scan.take("??:??:??"))
        return true;
    const auto hours = scan.number();
    if (!hours || *hours > 1'000'000 || !scan.take(":"))
        return false;
    const auto minutes = scan.number();
    if (!minutes || *minutes > 59 || !scan.take(":"))
        return false;
    const auto rest = scan.number();
    if (!rest || *rest > 59)
        return false;
    seconds = (*hours * 60 + *minutes) * 60 + *rest;
    return true;
}

/// "(xfr#1, to-chk=7/9)"; older ones write "xfer" and "check".
std::optional<ProgressLine::FileEnd> fileEndIn(Scan& scan) {
    ProgressLine::FileEnd end;
    if (!scan.take("(xfr#") && !scan.take("(xfer#"))
        return std::nullopt;
    const auto transferred = scan.number();
    if (!transferred || !scan.take(", "))
        return std::nullopt;
    end.listIsWhole = scan.take("to-");
    if ((!end.listIsWhole && !scan.take("ir-")) || (!scan.take("chk=") && !scan.take("check=")))
        return std::nullopt;
    const auto unchecked = scan.number();
    if (!unchecked || !scan.take("/"))
        return std::nullopt;
    const auto entries = scan.number();
    if (!entries || !scan.take(")") || *unchecked > *entries || *transferred > *entries)
        return std::nullopt;
    end.transferred = *transferred;
    end.unchecked = *unchecked;
    end.entries = *entries;
    return end;
}

/// How many units of `text` are progress.
qsizetype progressLength(QStringView text) {
    if (text.isEmpty() || (text[0] != u' ' && !text[0].isDigit()))
        return 0;
    const QByteArray beginning = text.first(std::min(text.size(), cLongest)).toLatin1();
    const auto line = progressLineIn(beginning);
    return line ? line->length : 0;
}

/// What stays of a line in which there are carriage returns.
QStringView lastWord(QStringView line) {
    while (line.endsWith(u'\r'))
        line.chop(1);
    const QStringView last = line.sliced(line.lastIndexOf(u'\r') + 1);
    return last.sliced(progressLength(last));
}

} // namespace

std::optional<ProgressLine> progressLineIn(QByteArrayView text) {
    Scan scan(text.first(std::min(text.size(), cLongest)));
    ProgressLine line;
    scan.blanks();
    const auto bytes = scan.figure();
    if (!bytes || *bytes > cMostBytes || scan.blanks() == 0)
        return std::nullopt;
    line.bytes = static_cast<qint64>(*bytes);
    const auto percent = scan.number();
    if (!percent || *percent > cMostPercent || !scan.take("%") || scan.blanks() == 0)
        return std::nullopt;
    line.percent = static_cast<int>(*percent);
    const auto rate = rateIn(scan);
    if (!rate || scan.blanks() == 0 || !timeIn(scan, line.seconds))
        return std::nullopt;
    line.bytesPerSecond = *rate;
    // A text that has been cut off could still go on.
    if (scan.blanks() == 0)
        return std::nullopt;
    line.fileEnd = fileEndIn(scan);
    scan.blanks();
    line.length = scan.at();
    return line;
}

QString withoutProgress(QString output) {
    qsizetype read = output.indexOf(u'\r');
    if (read < 0)
        return output;
    // What goes is closed up in place: the text may be as large as the memory allows.
    QChar* const text = output.data();
    qsizetype kept = read = output.lastIndexOf(u'\n', read) + 1;
    while (read < output.size()) {
        qsizetype end = output.indexOf(u'\n', read);
        const bool ended = end >= 0;
        end = ended ? end : output.size();
        const QStringView line(text + read, end - read);
        const bool overwritten = line.contains(u'\r');
        const QStringView stays = overwritten ? lastWord(line) : line;
        read = ended ? end + 1 : end;
        if (overwritten && stays.trimmed().isEmpty())
            continue;
        std::copy(stays.begin(), stays.end(), text + kept);
        kept += stays.size();
        if (ended)
            text[kept++] = u'\n';
    }
    output.truncate(kept);
    return output;
}

} // namespace kelvo
