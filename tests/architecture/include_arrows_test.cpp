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

/// Folder by folder: which other folders it may include.
const std::map<std::string, Names> cArrows{
    {"support", {}},
    {"ports", {"support"}},
    {"sync", {"ports", "support"}},
    {"remote", {"ports", "support"}},
    {"discovery", {"ports", "support"}},
    {"passes", {"ports", "support"}},
    {"ui", {"sync", "remote", "discovery", "ports", "support"}},
    {"ui/widgets", {"ui", "ports", "support"}},
    {"adapters/qt", {"adapters/posix", "ports", "support"}},
    {"adapters/posix", {"ports", "support"}},
    {"adapters/avahi", {"ports", "support"}},
    {"adapters/headless", {"ports", "support"}},
    {"adapters/tray", {"ports", "support"}},
    {"app",
     {"ui", "ui/widgets", "sync", "remote", "discovery", "passes", "adapters/qt", "adapters/posix",
      "adapters/avahi", "adapters/headless", "adapters/tray", "ports", "support"}},
    {"sentinel", {}},
};

/// Folders that hold decisions: of Qt they know values only.
const Names cValueFolders{"support", "ports", "sync", "remote", "discovery", "passes", "ui"};

/// Qt Core headers that are values; everything else of Qt stays out of the folders above.
const Names cValueHeaders{"QByteArray",     "QChar",        "QDateTime",
                          "QHash",          "QList",        "QLocale",
                          "QMap",           "QSet",         "QString",
                          "QStringBuilder", "QStringList",  "QStringView",
                          "QVariant",       "QVariantList", "QVariantMap",
                          "QtGlobal",       "QUuid",        "QLatin1StringView",
                          "QVersionNumber"};

std::string folderOf(const fs::path& relative) {
    return relative.parent_path().generic_string();
}

/// What is wrong with `text`, the contents of a file in `folder`; a line an offence.
std::vector<std::string> offences(const std::string& folder, const std::string& text) {
    static const std::regex include(R"(^\s*#\s*include\s*(["<])([^">]+)[">])");
    std::vector<std::string> found;
    const auto arrows = cArrows.find(folder);
    if (arrows == cArrows.end())
        return {"the folder '" + folder + "' has no rule"};

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
            if (!generated && targetFolder != folder && !arrows->second.contains(targetFolder))
                found.push_back("must not include \"" + target + "\"");
        } else {
            const std::string name = target.substr(target.rfind('/') + 1);
            const bool fromQt = name.starts_with('Q') || target.starts_with("Qt");
            if (folder == "sentinel" && fromQt)
                found.push_back("must not use Qt: <" + target + ">");
            if (cValueFolders.contains(folder) && fromQt && !cValueHeaders.contains(target))
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

std::string contents(const fs::path& path) {
    std::ifstream in(path);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
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

TEST(IncludeArrowsTest, NoFile_OutgrowsFourHundredLines) {
    for (const fs::path& file : sourceFiles()) {
        const std::string text = contents(file);
        EXPECT_LE(std::ranges::count(text, '\n'), 400) << file.filename();
    }
}

TEST(IncludeArrowsTest, Offences_AreSeen) {
    EXPECT_EQ(offences("sync", "#include \"adapters/qt/x.h\"\n").size(), 1U);
    EXPECT_EQ(offences("sync", "  #  include \"remote/x.h\"").size(), 1U);
    EXPECT_EQ(offences("ports", "#include \"sync/x.h\"\n#include \"ui/x.h\"\n").size(), 2U);
    EXPECT_EQ(offences("ui", "#include <QTimer>\n#include <QtWidgets/QWidget>\n").size(), 2U);
    EXPECT_EQ(offences("sentinel", "#include <QString>\n").size(), 1U);
    EXPECT_EQ(offences("elsewhere", "").size(), 1U);
    EXPECT_TRUE(offences("sync", "#include \"sync/x.h\"\n#include <QString>\n// #include").empty());
}

} // namespace
} // namespace kelvo
