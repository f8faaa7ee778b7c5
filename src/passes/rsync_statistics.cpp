#include "passes/rsync_statistics.h"

#include "passes/name_lines.h"

#include <QString>

#include <algorithm>
#include <cmath>

namespace kelvo {
namespace {

/// The number at the beginning of `text`, however rsync writes it: "1234", "1,234", "1.23M".
std::optional<qint64> rsyncNumber(QStringView text) {
    QString digits;
    qsizetype at = 0;
    for (; at < text.size() && (text[at].isDigit() || text[at] == u',' || text[at] == u'.'); ++at)
        digits += text[at];
    const qsizetype power = at < text.size() ? QStringView(u"KMGTP").indexOf(text[at]) + 1 : 0;
    bool valid = false;
    if (power > 0) {
        const double value = digits.replace(u',', u'.').toDouble(&valid);
        const double bytes = std::round(value * std::pow(1000.0, static_cast<double>(power)));
        return valid && bytes < 9e18 ? std::optional(static_cast<qint64>(bytes)) : std::nullopt;
    }
    const qint64 value = digits.remove(u',').remove(u'.').toLongLong(&valid);
    return valid ? std::optional(value) : std::nullopt;
}

std::optional<qint64> figureAfter(QStringView line, std::initializer_list<QStringView> labels) {
    for (const QStringView label : labels) {
        if (line.startsWith(label))
            return rsyncNumber(line.sliced(label.size()).trimmed());
    }
    return std::nullopt;
}

/// rsync gave up while the two sides were agreeing on how to speak, before any file.
bool isRefusal(QStringView line) {
    return line.startsWith(u"rsync error: ") &&
           (line.contains(u"compat.c(") || line.contains(u"(code 2) at exclude.c("));
}

/// Whether a line that begins with `sign` may be one of those that tell of all files. Most are
/// names.
bool mayTell(QChar sign) {
    return sign == u'N' || sign == u'T' || sign == u's' || sign == u'r';
}

bool namesFile(QStringView line, NameFormat format) {
    // A folder ends in "/"; rsync's progress lines begin with blanks.
    if (line.endsWith(u'/') || line[0].isSpace())
        return false;
    if (format == NameFormat::Sized)
        return line[0].isDigit();
    return !isRemark(line);
}

} // namespace

Transfer transferOf(QStringView command, QStringView output) {
    const NameFormat format = nameFormatOf(command);
    Transfer statistics;
    std::optional<qint64> received;
    qint64 names = 0;
    bool refused = false;
    for (qsizetype begin = 0; begin < output.size();) {
        qsizetype end = output.indexOf(u'\n', begin);
        if (end < 0)
            end = output.size();
        QStringView line = output.sliced(begin, end - begin);
        begin = end + 1;
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (line.isEmpty())
            continue;
        if (!mayTell(line[0])) {
            names += namesFile(line, format) ? 1 : 0;
        } else if (const auto files = figureAfter(line, {u"Number of regular files transferred:",
                                                         u"Number of files transferred:"})) {
            statistics.files = files;
            statistics.source = TransferSource::Statistics;
        } else if (const auto bytes = figureAfter(line, {u"Total transferred file size:"})) {
            statistics.bytes = bytes;
            statistics.source = TransferSource::Statistics;
        } else if (line.startsWith(u"sent ")) {
            const qsizetype at = line.indexOf(u"received ");
            if (at >= 0)
                received = rsyncNumber(line.sliced(at + 9));
        } else if (isRefusal(line)) {
            refused = true;
        } else if (namesFile(line, format)) {
            ++names;
        }
    }
    if (statistics.source == TransferSource::Statistics)
        return statistics;
    if (refused)
        return {TransferSource::Lines, 0, 0};
    if (format != NameFormat::None)
        return {TransferSource::Lines, names, names == 0 ? 0 : received};
    return {};
}

Transfer sumOf(const Transfer& left, const Transfer& right) {
    if (left.source == TransferSource::Unknown)
        return right;
    if (right.source == TransferSource::Unknown)
        return left;
    const auto sum = [](std::optional<qint64> a, std::optional<qint64> b) {
        qint64 total = 0;
        return a && b && !__builtin_add_overflow(*a, *b, &total) ? std::optional(total)
                                                                 : std::nullopt;
    };
    return {std::max(left.source, right.source), sum(left.files, right.files),
            sum(left.bytes, right.bytes)};
}

} // namespace kelvo
