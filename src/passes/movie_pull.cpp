#include "passes/movie_pull.h"

#include "support/partial_option.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace kelvo {
namespace {

constexpr QStringView cErrorsToo = u"2>&1";

/// Where our own commands keep half a file; no folder of movies has this name.
constexpr QStringView cPartialFolder = u".kelvo-partial";

/// Options that leave no file out, with their value behind "=" if they have one.
constexpr auto cHarmless = std::to_array<QStringView>({
    u"--archive",    u"--bwlimit",         u"--compress",
    u"--group",      u"--human-readable",  u"--ignore-existing",
    u"--info",       u"--itemize-changes", u"--links",
    u"--out-format", u"--owner",           u"--partial",
    u"--perms",      u"--progress",        u"--prune-empty-dirs",
    u"--recursive",  u"--rsync-path",      u"--stats",
    u"--timeout",    u"--times",           u"--update",
    u"--verbose",
});
constexpr QStringView cHarmlessLetters = u"DPaghilmoprtuvz";

struct PullWords {
    QStringList filters;
    QStringList places; ///< sources and destination
    bool goesDeep = false;
};

/// The words of `command` without their quotes; nothing where a shell does more than take those
/// away. The redirection of errors is no word.
std::optional<QStringList> plainWords(QStringView command) {
    QStringList words;
    std::optional<QString> word;
    QChar quote;
    for (qsizetype at = 0; at < command.size(); ++at) {
        const QChar sign = command[at];
        const QChar next = at + 1 < command.size() ? command[at + 1] : QChar();
        if (quote.isNull() && sign == u' ') {
            if (word)
                words.append(*std::exchange(word, std::nullopt));
            continue;
        }
        if (!word && quote.isNull() && command.sliced(at).startsWith(cErrorsToo)) {
            at += cErrorsToo.size() - 1;
            continue;
        }
        if (!word)
            word.emplace();
        if (quote == u'\'' ? sign == u'\'' : !quote.isNull() && sign == u'"')
            quote = {};
        else if (quote.isNull() && (sign == u'\'' || sign == u'"'))
            quote = sign;
        else if (quote != u'\'' && sign == u'\\' &&
                 (quote.isNull() || QStringView(u"$`\"\\").contains(next)))
            word->append(command.sliced(++at, next.isNull() ? 0 : 1));
        else if ((quote != u'\'' && QStringView(u"$`\n").contains(sign)) ||
                 (quote.isNull() && QStringView(u"&|;<>()*?[{~#\t").contains(sign)))
            return std::nullopt;
        else
            word->append(sign);
    }
    if (!quote.isNull())
        return std::nullopt;
    if (word)
        words.append(*word);
    return words;
}

/// Takes `option` in: whether it leaves no file out.
bool takeOption(QStringView option, PullWords& pull) {
    if (option.startsWith(u"--")) {
        const qsizetype end = option.indexOf(u'=');
        const QStringView name = option.first(end < 0 ? option.size() : end);
        const QStringView value = option.sliced(end < 0 ? option.size() : end + 1);
        pull.goesDeep = pull.goesDeep || option == u"--recursive" || option == u"--archive";
        // Folders of this name are left out of the source too, unless it begins with a slash.
        if (name == u"--partial-dir")
            return value == cPartialFolder || value.startsWith(u'/');
        return std::ranges::find(cHarmless, name) != cHarmless.end();
    }
    const QStringView letters = option.sliced(1);
    pull.goesDeep = pull.goesDeep || letters.contains(u'r') || letters.contains(u'a');
    return std::ranges::all_of(letters,
                               [](QChar letter) { return cHarmlessLetters.contains(letter); });
}

/// Nothing for a command with an option that may leave something out.
std::optional<PullWords> pullWords(QStringView command) {
    const QString withOption =
        command.toString().replace(cPartialOption.toString(), cPartialWord.toString());
    const auto words = plainWords(withOption);
    if (!words || words->isEmpty() || words->first().section(u'/', -1) != u"rsync")
        return std::nullopt;
    PullWords pull;
    for (qsizetype i = 1; i < words->size(); ++i) {
        const QString& word = words->at(i);
        const bool isFilter = word == u"-f";
        if (isFilter || word == u"-e") {
            if (++i == words->size())
                return std::nullopt;
            if (isFilter)
                pull.filters.append(words->at(i));
        } else if (!word.startsWith(u'-')) {
            pull.places.append(word);
        } else if (!takeOption(word, pull)) {
            return std::nullopt;
        }
    }
    return pull;
}

/// The first rule that fits a file decides, and a rule that takes leaves nothing out.
bool takeMovies(const QStringList& filters) {
    QStringList taken;
    for (const QString& rule : filters) {
        if (rule.startsWith(u"+ "))
            taken.append(rule.sliced(2));
        else if (rule == u"- *")
            return taken.contains(u"*/") && taken.contains(u"*.[mM][oO][vV]") &&
                   taken.contains(u"*.[mM][pP]4");
        else if (rule != QString(u"- " + cPartialFolder + u'/'))
            return false;
    }
    return true;
}

} // namespace

bool bringsEveryMovie(QStringView pull, QStringView movieCommand) {
    const auto ours = pullWords(pull);
    const auto movies = pullWords(movieCommand);
    return ours && movies && ours->goesDeep && ours->places == movies->places &&
           takeMovies(ours->filters);
}

} // namespace kelvo
