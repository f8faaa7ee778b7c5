// A line that a person's template came to: where it is said to have brought every movie, a real
// shell's words tell of a whole pull from the same place to the same place.
#include "fuzz_input.h"
#include "passes/movie_pull.h"

#include <wordexp.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace {

using namespace kelvo;

const QString cPlaces = QStringLiteral(R"( "mac:it's \$5/" "/srv/movies/")");

/// As a shell that may neither run nor fill in anything takes `command` apart; nothing where it
/// would have to.
std::vector<std::string> shellWords(std::string command) {
    std::vector<std::string> words;
    wordexp_t found{};
    if (::wordexp(command.c_str(), &found, WRDE_NOCMD | WRDE_UNDEF) == 0) {
        words.assign(found.we_wordv, found.we_wordv + found.we_wordc);
        ::wordfree(&found);
    }
    return words;
}

bool leavesOut(const std::string& option) {
    static constexpr auto cTelling = std::to_array<std::string_view>({"--exclude",
                                                                      "--include",
                                                                      "--filter",
                                                                      "--files-from",
                                                                      "--max-size",
                                                                      "--min-size",
                                                                      "--existing",
                                                                      "--dry-run",
                                                                      "--cvs-exclude",
                                                                      "--max-delete",
                                                                      "--one-file-system",
                                                                      "--dirs",
                                                                      "--no-recursive",
                                                                      "--size-only",
                                                                      "--compare-dest",
                                                                      "--stop-",
                                                                      "--list-only",
                                                                      "--delete",
                                                                      "--remove-source-files",
                                                                      "--write-batch",
                                                                      "--only-write-batch",
                                                                      "--no-"});
    if (option.starts_with("--partial-dir="))
        return option != "--partial-dir=.kelvo-partial" && option[14] != '/';
    if (option.starts_with("--"))
        return std::ranges::any_of(
            cTelling, [&](std::string_view telling) { return option.starts_with(telling); });
    return option.find_first_of("CFnxd") != std::string::npos;
}

void checkWords(const std::vector<std::string>& words) {
    require(words.size() >= 4 && (words[0] == "rsync" || words[0].ends_with("/rsync")));
    require(words[words.size() - 2] == "mac:it's $5/" && words.back() == "/srv/movies/");
    bool goesDeep = false;
    std::vector<std::string> filters;
    for (std::size_t i = 1; i + 2 < words.size(); ++i) {
        const std::string& word = words[i];
        require(word.starts_with('-'));
        if (word == "-e" || word == "-f") {
            const std::string& value = words[++i];
            if (word == "-f")
                filters.push_back(value);
            continue;
        }
        require(!leavesOut(word));
        goesDeep = goesDeep || word == "--archive" || word == "--recursive" ||
                   (!word.starts_with("--") && word.find_first_of("ra") != std::string::npos);
    }
    require(goesDeep);
    const auto last = std::ranges::find(filters, "- *");
    for (auto rule = filters.begin(); rule != last; ++rule)
        require(rule->starts_with("+ ") || *rule == "- .kelvo-partial/");
    for (const char* const taken : {"+ */", "+ *.[mM][oO][vV]", "+ *.[mM][pP]4"})
        require(last == filters.end() || std::find(filters.begin(), last, taken) != last);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // No command holds a zero byte.
    std::string_view rest = inputText(data, size);
    const QString movies = u"rsync -e 'ssh -p 22' -f '+ */' -f '- *' -r" + cPlaces;
    const QString pull = asText(nextText(rest)) + cPlaces;
    if (!bringsEveryMovie(pull, movies))
        return 0;
    require(!bringsEveryMovie(QString(pull + u" --dry-run"), movies));
    require(!bringsEveryMovie(QString(pull + u"; true"), movies));
    require(!bringsEveryMovie(QString(pull + u" /elsewhere"), movies));
    // That errors go where the output goes is for the shell alone.
    std::string command = pull.toStdString();
    const std::size_t redirection = command.find(" 2>&1 ");
    if (redirection != std::string::npos)
        command.replace(redirection, 6, " ");
    // The function below knows no bare brace, which shells take for a letter, and makes a word of
    // an empty pair of quotes before a letter.
    if (command.find_first_of(">}") == std::string::npos &&
        command.find("\"\"") == std::string::npos && command.find("''") == std::string::npos)
        checkWords(shellWords(command));
    return 0;
}
