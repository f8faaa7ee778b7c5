// What the built program is linked with: its file with next to nothing, the part without a window
// with nothing of a display or, before it is used, of the message bus.
#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <regex>
#include <string>

namespace kelvo {
namespace {

struct ClosePipe {
    void operator()(std::FILE* pipe) const { ::pclose(pipe); }
};

/// What `command` prints.
std::string outputOf(const std::string& command) {
    const std::unique_ptr<std::FILE, ClosePipe> pipe(::popen(command.c_str(), "re"));
    std::string output;
    for (int byte = pipe ? std::fgetc(pipe.get()) : EOF; byte != EOF; byte = std::fgetc(pipe.get()))
        output += static_cast<char>(byte);
    return output;
}

std::string linesWith(const std::regex& line, const std::string& output) {
    std::string found;
    for (std::sregex_iterator each(output.begin(), output.end(), line), end; each != end; ++each)
        found += each->str();
    return found;
}

/// The lines of `output` that name a library which only windows and the toolkit's network need.
std::string ofTheDisplay(const std::string& output) {
    static const std::regex line(
        R"([^\n]*lib(Qt6(Gui|Widgets|Svg|Network|OpenGL)|xcb|X|xkb|wayland|GL|EGL|fontconfig|freetype)[^\n]*\n)");
    return linesWith(line, output);
}

/// Those that name a library of the message bus, or of Avahi, who is spoken with over it.
std::string ofTheBus(const std::string& output) {
    static const std::regex line(R"([^\n]*lib(Qt6DBus|dbus|systemd|avahi)[^\n]*\n)");
    return linesWith(line, output);
}

TEST(LinkedLibrariesTest, ProgramsFile_NamesTheCLibraryAlone) {
    const std::string named = outputOf("LC_ALL=C readelf -dW '" KELVO_PROGRAM "' | grep NEEDED");
    // A sanitizer, where there is one, brings what it needs itself.
    const bool sanitized = named.find("san.so") != std::string::npos;
    static const std::regex others(R"([^\n]*\[(?!libc\.so|ld-linux)[^\n]*\n)");
    static const std::regex ofQt(R"([^\n]*libQt6[^\n]*\n)");
    EXPECT_NE(named.find("[libc.so"), std::string::npos) << named;
    EXPECT_EQ(linesWith(sanitized ? ofQt : others, named), "");
}

TEST(LinkedLibrariesTest, Part_NamesNoneOfTheDisplay) {
    const std::string named =
        outputOf("LC_ALL=C readelf -dW '" KELVO_PROGRAM_PART "' | grep NEEDED");
    ASSERT_NE(named.find("libQt6Core"), std::string::npos) << named;
    EXPECT_EQ(ofTheDisplay(named), "");
}

TEST(LinkedLibrariesTest, PartsLibraries_BringNoneOfTheDisplayAlong) {
    const std::string brought = outputOf("LC_ALL=C ldd '" KELVO_PROGRAM_PART "'");
    ASSERT_NE(brought.find("libQt6Core"), std::string::npos) << brought;
    EXPECT_EQ(ofTheDisplay(brought), "");
    EXPECT_EQ(ofTheBus(brought), "");
}

TEST(LinkedLibrariesTest, Bus_NamesThose) {
    const std::string named = outputOf("LC_ALL=C readelf -dW '" KELVO_BUS "' | grep NEEDED");
    for (const char* library : {"libQt6DBus", "libavahi-client"})
        EXPECT_NE(ofTheBus(named).find(library), std::string::npos) << library;
    EXPECT_EQ(ofTheDisplay(named), "");
}

TEST(LinkedLibrariesTest, Window_NamesThem) {
    const std::string named = outputOf("LC_ALL=C readelf -dW '" KELVO_WINDOW "' | grep NEEDED");
    for (const char* library : {"libQt6Gui", "libQt6Widgets", "libxcb"})
        EXPECT_NE(ofTheDisplay(named).find(library), std::string::npos) << library;
}

TEST(LinkedLibrariesTest, Bus_GivesOneFunctionAndNothingElse) {
    EXPECT_EQ(outputOf("LC_ALL=C nm -D --defined-only '" KELVO_BUS "' | cut -d' ' -f3"),
              "kelvoMirrorGiveBusParts\n");
}

TEST(LinkedLibrariesTest, Parts_GiveOneFunctionAndNothingElse) {
    // The linker may put a local symbol into the table, which nobody else can bind to.
    for (const char* part : {KELVO_PROGRAM_PART, KELVO_WINDOW})
        EXPECT_EQ(outputOf(std::string("LC_ALL=C nm -D --defined-only --extern-only '") + part +
                           "' | cut -d' ' -f3"),
                  "kelvoMirrorRun\n")
            << part;
}

TEST(LinkedLibrariesTest, Parts_LookFirstWhereMostOfTheirSymbolsAre) {
    const auto first = [](const char* part) {
        return outputOf(std::string("LC_ALL=C readelf -dW '") + part +
                        "' | grep -m1 NEEDED | grep -o 'libQt6[A-Za-z]*'");
    };
    EXPECT_EQ(first(KELVO_PROGRAM_PART), "libQt6Core\n");
    EXPECT_EQ(first(KELVO_WINDOW), "libQt6Widgets\n");
}

} // namespace
} // namespace kelvo
