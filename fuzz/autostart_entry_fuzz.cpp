// Any path of a program: the entry's Exec line, read by the rules of desktop entries, names it and
// nothing else, and no line of the entry comes from the path.
#include "adapters/desktop/autostart_entry.h"
#include "fuzz_input.h"

#include <QByteArray>
#include <QList>

#include <optional>

namespace {

using namespace kelvo;

/// A value as it stands in the file, its escapes read; nothing for an unknown one.
std::optional<QByteArray> valueOf(const QByteArray& line) {
    QByteArray value;
    for (qsizetype at = 0; at < line.size(); ++at) {
        if (line[at] != '\\') {
            value += line[at];
            continue;
        }
        const char escaped = ++at < line.size() ? line[at] : '\0';
        const qsizetype which = QByteArray("sntr\\").indexOf(escaped);
        if (which < 0)
            return std::nullopt;
        value += " \n\t\r\\"[which];
    }
    return value;
}

/// The words of an Exec value, quotes and field codes read; nothing where it breaks the rules.
std::optional<QList<QByteArray>> wordsOf(const QByteArray& value) {
    QList<QByteArray> words;
    for (qsizetype at = 0; at < value.size(); ++at) {
        QByteArray word;
        const bool quoted = value[at] == '"';
        for (at += quoted ? 1 : 0; at < value.size() && value[at] != (quoted ? '"' : ' '); ++at) {
            if (quoted && (value[at] == '$' || value[at] == '`'))
                return std::nullopt;
            if (!quoted && QByteArray(" \t\n\"'\\><~|&;$*?#()`").contains(value[at]))
                return std::nullopt;
            if (value[at] == '\\' &&
                (++at == value.size() || !QByteArray("\"`$\\").contains(value[at])))
                return std::nullopt;
            if (value[at] == '%' && (++at == value.size() || value[at] != '%'))
                return std::nullopt;
            word += value[at];
        }
        if (quoted && (at == value.size() || (at + 1 < value.size() && value[++at] != ' ')))
            return std::nullopt;
        words.append(word);
    }
    return words;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // No path holds a zero byte.
    std::string_view rest = inputText(data, size);
    const QString program = u'/' + asText(nextText(rest));
    const QList<QByteArray> lines = autostartText(program).split('\n');
    static const auto cPlain = autostartText(QStringLiteral("/usr/bin/x")).split('\n');
    require(lines.size() == cPlain.size());
    const QByteArray label = "Exec=";
    for (qsizetype at = 0; at < lines.size(); ++at) {
        if (!lines[at].startsWith(label)) {
            require(lines[at] == cPlain[at]);
            continue;
        }
        const auto value = valueOf(lines[at].sliced(label.size()));
        require(value.has_value());
        const auto words = wordsOf(*value);
        require(words && !words->isEmpty() && words->last() == program.toUtf8());
        // What is looked for as it stands must not hold the sign of a field code.
        require(words->first() == (program.contains(u'%') ? QByteArray("nice") : program.toUtf8()));
        require(words->size() == (program.contains(u'%') ? 4 : 1));
    }
    return 0;
}
