// Reads every #include under src/ and holds it against the arrows drawn in docs/architecture.md.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace kelvo {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

enum class QtUse { None, Values, All };

struct Rule {
    bool includesAll = false;
    Names folders; ///< which other folders it may include
    QtUse qt = QtUse::All;
};

std::string contents(const fs::path& path) {
    std::ifstream in(path);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// The rows of the table of arrows in `text`, folder by folder.
std::map<std::string, Rule> rulesIn(const std::string& text) {
    static const std::regex row(R"(\| `([a-z/]+)` \|([^|]*)\| (none|values|all) \|)");
    static const std::regex name("`([a-z/]+)`");
    std::map<std::string, Rule> rules;
    for (std::sregex_iterator each(text.begin(), text.end(), row), end; each != end; ++each) {
        Rule rule;
        const std::string targets = (*each)[2];
        rule.includesAll = targets == " everything ";
        for (std::sregex_iterator to(targets.begin(), targets.end(), name); to != end; ++to)
            rule.folders.insert((*to)[1]);
        const std::string qt = (*each)[3];
        rule.qt = qt == "none" ? QtUse::None : qt == "values" ? QtUse::Values : QtUse::All;
        rules.emplace((*each)[1], std::move(rule));
    }
    return rules;
}

const std::map<std::string, Rule>& rules() {
    static const auto all = rulesIn(contents(KELVO_ARCHITECTURE));
    return all;
}

/// Qt Core headers that are values; everything else of Qt stays out of the folders above.
const Names cValueHeaders{"QByteArray",    "QByteArrayView", "QChar",    "QDate",
                          "QDateTime",     "QHash",          "QList",    "QLocale",
                          "QMap",          "QSet",           "QString",  "QStringBuilder",
                          "QStringList",   "QStringView",    "QVariant", "QVariantList",
                          "QVariantMap",   "QtGlobal",       "QUuid",    "QLatin1StringView",
                          "QVersionNumber"};

/// Words for people are found in the catalogues by Qt Core; nothing else of that header is used.
const std::string cTranslatingFolder = "ui";
const std::string cTranslatingHeader = "QCoreApplication";

std::string folderOf(const fs::path& relative) {
    return relative.parent_path().generic_string();
}

/// What is wrong with `text`, the contents of a file in `folder`; a line an offence.
std::vector<std::string> offences(const std::string& folder, const std::string& text) {
    static const std::regex include(R"(^\s*#\s*include\s*(["<])([^">]+)[">])");
    std::vector<std::string> found;
    const auto named = rules().find(folder);
    if (named == rules().end())
        return {"the folder '" + folder + "' has no rule"};
    const Rule& rule = named->second;

    std::size_t begin = 0;
    while (begin < text.size()) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        const std::string line = text.substr(begin, end - begin);
        begin = end + 1;
        std::smatch match;
        if (!std::regex_search(line, match, include))
            continue;
        const std::string target = match[2];
        if (match[1] == "\"") {
            const std::string targetFolder = folderOf(target);
            const bool generated = targetFolder.empty(); // ui_*.h and *.moc of the build
            if (!generated && targetFolder != folder && !rule.includesAll &&
                !rule.folders.contains(targetFolder))
                found.push_back("must not include \"" + target + "\"");
        } else {
            const std::string name = target.substr(target.rfind('/') + 1);
            const bool fromQt = name.starts_with('Q') || target.starts_with("Qt");
            if (rule.qt == QtUse::None && fromQt)
                found.push_back("must not use Qt: <" + target + ">");
            const bool translates = folder == cTranslatingFolder && target == cTranslatingHeader;
            if (rule.qt == QtUse::Values && fromQt && !cValueHeaders.contains(target) &&
                !translates)
                found.push_back("must not use more of Qt than values: <" + target + ">");
        }
    }
    return found;
}

std::vector<fs::path> sourceFiles() {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(KELVO_SOURCE_FOLDER)) {
        const std::string ending = entry.path().extension().string();
        if (entry.is_regular_file() && (ending == ".h" || ending == ".cpp"))
            files.push_back(entry.path());
    }
    std::ranges::sort(files);
    return files;
}

TEST(IncludeArrowsTest, EveryInclude_PointsDownwards) {
    const auto files = sourceFiles();
    ASSERT_GT(files.size(), 40U) << "the sources were not found";
    for (const fs::path& file : files) {
        const fs::path relative = fs::relative(file, KELVO_SOURCE_FOLDER);
        for (const std::string& offence : offences(folderOf(relative), contents(file)))
            ADD_FAILURE() << relative.generic_string() << ": " << offence;
    }
}

TEST(IncludeArrowsTest, EveryHeader_SaysWhatItIsAndGuardsItself) {
    for (const fs::path& file : sourceFiles()) {
        if (file.extension() != ".h")
            continue;
        const std::string text = contents(file);
        EXPECT_TRUE(text.starts_with("// ")) << file.filename() << " does not say what it is for";
        EXPECT_NE(text.find("#pragma once"), std::string::npos) << file.filename();
    }
}

TEST(IncludeArrowsTest, TableOfArrows_NamesTheFoldersThereAre) {
    Names folders;
    for (const fs::path& file : sourceFiles())
        folders.insert(folderOf(fs::relative(file, KELVO_SOURCE_FOLDER)));
    Names named;
    for (const auto& [folder, rule] : rules()) {
        named.insert(folder);
        for (const std::string& target : rule.folders)
            EXPECT_TRUE(rules().contains(target)) << folder << " may include " << target;
    }
    EXPECT_EQ(named, folders);
}

TEST(IncludeArrowsTest, Offences_AreSeen) {
    EXPECT_EQ(offences("sync", "#include \"adapters/process/x.h\"\n").size(), 1U);
    EXPECT_EQ(offences("sync", "  #  include \"remote/x.h\"").size(), 1U);
    EXPECT_EQ(offences("ports", "#include \"sync/x.h\"\n#include \"ui/x.h\"\n").size(), 2U);
    EXPECT_EQ(offences("ui", "#include <QTimer>\n#include <QtWidgets/QWidget>\n").size(), 2U);
    EXPECT_EQ(offences("sync", "#include <QCoreApplication>\n").size(), 1U);
    EXPECT_TRUE(offences("ui", "#include <QCoreApplication>\n").empty());
    EXPECT_EQ(offences("sentinel", "#include <QString>\n").size(), 1U);
    EXPECT_EQ(offences("app", "#include \"ui/widgets/x.h\"\n#include \"ui/x.h\"\n").size(), 1U);
    EXPECT_EQ(offences("elsewhere", "").size(), 1U);
    EXPECT_TRUE(offences("sync", "#include \"sync/x.h\"\n#include <QString>\n// #include").empty());
}

} // namespace
} // namespace kelvo
