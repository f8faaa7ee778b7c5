#include "support/shell_words.h"

#include "support/shell_reader.h"

#include <algorithm>

namespace kelvo {
namespace {

bool isOrdinary(QChar sign) {
    return sign.unicode() >= 0x80 || sign.isLetterOrNumber() ||
           QStringView(u"_./-:@~+,=%").contains(sign);
}

/// Whether every shell reads `value` as it is, wherever it stands.
bool isOrdinary(QStringView value) {
    return !value.startsWith(u'~') &&
           std::ranges::all_of(value, [](QChar sign) { return isOrdinary(sign); });
}

QString escaped(QStringView text, Quoting quoting) {
    switch (quoting) {
    case Quoting::Single:
        return insideSingleQuotes(text);
    case Quoting::Double:
        return insideDoubleQuotes(text);
    default:
        return withoutQuotes(text);
    }
}

/// As rsync reads a word of its remote shell command: blanks part words, a quote in a word in the
/// same quotes is doubled, a backslash is a sign like others.
QString quotedForRsync(const QString& value) {
    const auto isSpecial = [](QChar sign) { return QStringView(u" '\"").contains(sign); };
    if (std::ranges::none_of(value, isSpecial))
        return value;
    QString doubled = value;
    return u'"' + doubled.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

bool isRemoteShellCommand(QStringView text) {
    const qsizetype blank = text.indexOf(u' ');
    return blank > 0 && text.first(blank).endsWith(u"ssh") && text.endsWith(u' ') &&
           !text.contains(u'\'') && !text.contains(u'"');
}

bool isAnotherText(QStringView text) {
    return std::ranges::any_of(text,
                               [](QChar sign) { return QStringView(u" \t\n'\"").contains(sign); });
}

/// Right behind quotes of the inner text blanks do no harm.
bool isOrdinaryAt(const ShellPlace& place, const QString& value) {
    const bool quotedInside = place.before.endsWith(u'"') || place.before.endsWith(u'\'');
    return isOrdinary(quotedInside ? QString(value).remove(u' ') : value);
}

std::optional<QString> wordAt(const ShellPlace& place, const QString& value) {
    if (isOrdinaryAt(place, value))
        return value;
    if (isRemoteShellCommand(place.before))
        return escaped(quotedForRsync(value), place.quoting);
    if (place.quoting == Quoting::Unclear || isAnotherText(place.before))
        return {};
    return escaped(value, place.quoting);
}

std::optional<QString> pieceAt(const ShellPlace& place, const Filling& piece) {
    if (place.quoting == Quoting::Unclear && !isOrdinary(*piece.valueOfPiece))
        return {};
    if (place.quoting == Quoting::Bare || place.quoting == Quoting::Unclear)
        return piece.text;
    return escaped(piece.text, place.quoting);
}

struct Found {
    qsizetype at = -1;
    const Filling* filling = nullptr;
};

Found firstFrom(qsizetype from, const QString& command, const std::vector<Filling>& fillings) {
    Found first;
    for (const Filling& filling : fillings) {
        const qsizetype at = command.indexOf(filling.placeholder, from);
        if (at >= 0 && (first.filling == nullptr || at < first.at))
            first = {at, &filling};
    }
    return first;
}

} // namespace

QString wordFault(QStringView value) {
    if (value.contains(u'\0'))
        return QStringLiteral("holds a zero");
    if (value.contains(u'\n') || value.contains(u'\r'))
        return QStringLiteral("holds a line break");
    if (value.contains(QChar::ReplacementCharacter) || !value.isValidUtf16())
        return QStringLiteral("holds signs that are no text");
    if (value.startsWith(u'-'))
        return QStringLiteral("begins with \"-\"");
    return {};
}

QString insideDoubleQuotes(QStringView text) {
    QString safe;
    for (const QChar sign : text) {
        if (QStringView(u"\\\"$`").contains(sign))
            safe.append(u'\\');
        safe.append(sign);
    }
    return safe;
}

QString insideSingleQuotes(QStringView text) {
    return text.toString().replace(u'\'', QStringLiteral("'\\''"));
}

QString withoutQuotes(QStringView text) {
    QString safe;
    for (const QChar sign : text) {
        if (!isOrdinary(sign) || (sign == u'~' && safe.isEmpty()))
            safe.append(u'\\');
        safe.append(sign);
    }
    return safe;
}

std::optional<QString> withWord(const QString& command, QStringView placeholder,
                                const QString& value) {
    return withFillings(command, {{placeholder.toString(), value}});
}

std::optional<QString> withFillings(const QString& command, const std::vector<Filling>& fillings) {
    ShellReader reader(command);
    QString result;
    qsizetype from = 0;
    for (Found found = firstFrom(from, command, fillings); found.filling != nullptr;
         found = firstFrom(from, command, fillings)) {
        const Filling& filling = *found.filling;
        const ShellPlace place = reader.placeAt(found.at);
        const auto text =
            filling.valueOfPiece ? pieceAt(place, filling) : wordAt(place, filling.text);
        if (!text)
            return {};
        result += QStringView(command).sliced(from, found.at - from) + *text;
        from = found.at + filling.placeholder.size();
    }
    return result + QStringView(command).sliced(from);
}

} // namespace kelvo
