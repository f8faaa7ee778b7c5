#include "passes/name_lines.h"

#include "support/shell_reader.h"

#include <QList>
#include <QString>

#include <algorithm>
#include <array>
#include <string_view>
#include <type_traits>

namespace kelvo {
namespace {

using namespace std::literals;

/// Lines that rsync prints among the names, and that name no file that came; by their first signs.
constexpr auto cRemarks = [] {
    auto remarks = std::to_array<std::string_view>({
        "rsync: "sv,
        "rsync error:"sv,
        "rsync warning:"sv,
        "receiving "sv,
        "sent "sv,
        "total size "sv,
        "created "sv,
        "delta-"sv,
        "skipping "sv,
        "file has vanished:"sv,
        "IO error "sv,
        "ssh: "sv,
        "deleting "sv,
        "building file list"sv,
        "sending incremental"sv,
        "Warning: "sv,
        "protocol version mismatch -- "sv,
        "(see the rsync "sv,
        "Server is very old version of rsync"sv,
        "filter rules are too modern "sv,
        "--prune-empty-dirs requires protocol "sv,
        "Connection "sv,
        "cd+++"sv,
        ".d"sv,
        "Number of files:"sv,
        "Number of created files:"sv,
        "Number of deleted files:"sv,
        "Number of regular files transferred:"sv,
        "Number of files transferred:"sv,
        "Total file size:"sv,
        "Total transferred file size:"sv,
        "Literal data:"sv,
        "Matched data:"sv,
        "File list size:"sv,
        "File list generation time:"sv,
        "File list transfer time:"sv,
        "Total bytes sent:"sv,
        "Total bytes received:"sv,
    });
    std::ranges::sort(remarks);
    return remarks;
}();

constexpr char cLastAscii = 0x7f;

/// Where in `cRemarks` those begin whose first sign is not below an index.
constexpr auto cFirstRemarks = [] {
    std::array<std::size_t, cLastAscii + 2> first{};
    for (std::size_t sign = 0; sign < first.size(); ++sign)
        first[sign] = std::ranges::count_if(cRemarks, [sign](std::string_view remark) {
            return static_cast<std::size_t>(remark.front()) < sign;
        });
    return first;
}();

/// The value of `option` in `command`, without its quotes.
std::optional<QStringView> valueOf(QStringView option, QStringView command) {
    const qsizetype at = command.indexOf(option);
    if (at < 0)
        return std::nullopt;
    // Quotes around the whole word, as in '--out-format=%n', count too.
    const QChar before = at > 0 ? command[at - 1] : QChar(u' ');
    QStringView rest = command.sliced(at + option.size());
    QChar end = before;
    if (!rest.isEmpty() && (rest[0] == u'\'' || rest[0] == u'"')) {
        end = rest[0];
        rest = rest.sliced(1);
    }
    const qsizetype length = rest.indexOf(end);
    return length < 0 ? rest : rest.first(length);
}

bool namesFiles(QChar letter) {
    return letter == u'v' || letter == u'P';
}

NameFormat formatByWords(QStringView command) {
    NameFormat found = NameFormat::None;
    ShellReader reader(command);
    for (const QStringView word : command.split(u' ', Qt::SkipEmptyParts)) {
        const Quoting quoting = reader.placeAt(word.begin() - command.begin()).quoting;
        if (quoting == Quoting::Single || quoting == Quoting::Double)
            continue; // as the -i in -e 'ssh -i key'
        if (word.startsWith(u"--itemize-changes"))
            return NameFormat::Itemized;
        if (word.startsWith(u"--verbose") || word.startsWith(u"--progress") ||
            (word.startsWith(u"--info=") && word.contains(u"name")))
            found = NameFormat::Bare;
        if (word.size() < 2 || word[0] != u'-' || !word[1].isLetter())
            continue;
        // What follows the letter of -e and -f is their value.
        const auto end = std::find_if(word.begin() + 1, word.end(),
                                      [](QChar c) { return c == u'e' || c == u'f'; });
        if (std::find(word.begin() + 1, end, u'i') != end)
            return NameFormat::Itemized;
        if (std::any_of(word.begin() + 1, end, namesFiles))
            found = NameFormat::Bare;
    }
    return found;
}

/// `line` is of bytes or of UTF-16 units.
template <typename Unit>
bool beginsAsRemark(std::basic_string_view<Unit> line) {
    if (line.empty())
        return false;
    const std::size_t sign = static_cast<std::make_unsigned_t<Unit>>(line[0]);
    if (sign > cLastAscii)
        return false;
    return std::any_of(cRemarks.begin() + cFirstRemarks[sign],
                       cRemarks.begin() + cFirstRemarks[sign + 1], [line](std::string_view begin) {
                           return line.size() >= begin.size() &&
                                  std::equal(begin.begin(), begin.end(), line.begin());
                       });
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace

NameFormat nameFormatOf(QStringView command) {
    const auto format = valueOf(u"--out-format=", command);
    if (!format)
        return formatByWords(command);
    if (*format == u"%n" || *format == u"%n%L")
        return NameFormat::Bare;
    if (*format == u"%i %n" || *format == u"%i %n%L")
        return NameFormat::Itemized;
    return *format == u"%l %n" ? NameFormat::Sized : NameFormat::Other;
}

bool isRemark(QStringView line) {
    return beginsAsRemark(std::u16string_view(line.utf16(), static_cast<std::size_t>(line.size())));
}

bool isRemark(QByteArrayView line) {
    return beginsAsRemark(std::string_view(line.data(), static_cast<std::size_t>(line.size())));
}

std::optional<NamedFile> namedIn(QByteArrayView line, NameFormat format) {
    constexpr qsizetype cItems = 11; // of "%i"
    if (format == NameFormat::None || format == NameFormat::Other || line.isEmpty())
        return std::nullopt;
    if (format == NameFormat::Sized) {
        constexpr qsizetype cMostDigits = 18;
        qint64 size = 0;
        qsizetype at = 0;
        for (; at < line.size() && at < cMostDigits && isDigit(line[at]); ++at)
            size = size * 10 + (line[at] - '0');
        if (at == 0 || at + 1 >= line.size() || line[at] != ' ')
            return std::nullopt;
        return NamedFile{line.sliced(at + 1), size};
    }
    if (format == NameFormat::Itemized) {
        const bool received = line.size() > cItems + 1 && line[cItems] == ' ' &&
                              (line[0] == '>' || line[0] == 'c') && line[1] != 'L';
        return received ? std::optional(NamedFile{line.sliced(cItems + 1), {}}) : std::nullopt;
    }
    if (line[0] == ' ' || line[0] == '\t' || isRemark(line))
        return std::nullopt;
    return NamedFile{line, {}};
}

QByteArray unescapedName(QByteArrayView name) {
    QByteArray bytes;
    bytes.reserve(name.size());
    const auto octal = [&name](qsizetype at) { return name[at] >= '0' && name[at] <= '7'; };
    for (qsizetype at = 0; at < name.size(); ++at) {
        const bool escaped = name[at] == '\\' && at + 4 < name.size() && name[at + 1] == '#' &&
                             name[at + 2] <= '3' && octal(at + 2) && octal(at + 3) && octal(at + 4);
        if (escaped) {
            const int value =
                (name[at + 2] - '0') * 64 + (name[at + 3] - '0') * 8 + (name[at + 4] - '0');
            bytes.append(static_cast<char>(value));
            at += 4;
        } else {
            bytes.append(name[at]);
        }
    }
    return bytes;
}

} // namespace kelvo
