// The window as a part that may be missing: what is loaded without it, and what is said for it.
#include "starter/part.h"
#include "support/program_profile.h"
#include "support/running_program.h"
#include "support/virtual_display.h"

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <sys/stat.h>

#include <memory>

namespace kelvo {
namespace {

const QString cProgram = QStringLiteral(KELVO_PROGRAM);

/// The files whose names tell that they belong to a display, of those that a process has mapped.
QStringList mappedForADisplay(qint64 process) {
    QStringList found;
    const QString maps =
        QString::fromLocal8Bit(contents(QStringLiteral("/proc/%1/maps").arg(process)));
    for (const QString& line : maps.split(u'\n')) {
        const QString name = line.section(u'/', -1);
        for (const char* part :
             {"window.so", "libQt6Gui", "libQt6Widgets", "libQt6Svg", "libQt6Network", "libxcb",
              "libX", "libwayland", "libfontconfig"}) {
            if (name.startsWith(QLatin1StringView(part)) && !found.contains(name))
                found.append(name);
        }
    }
    return found;
}

class WindowModuleSystemTest : public ::testing::Test, public ProgramProfile {
protected:
    void SetUp() override { ASSERT_NE(program, QString()); }

    /// The program, its window on `display` by now; nothing where no display can be had.
    std::unique_ptr<RunningProgram> windowOn(VirtualDisplay& display) const {
        const QString name = display.start();
        if (name.isEmpty())
            return nullptr;
        QProcessEnvironment withDisplay = environment();
        withDisplay.insert(QStringLiteral("DISPLAY"), name);
        auto running = std::make_unique<RunningProgram>(cProgram, QStringList(), withDisplay);
        EXPECT_TRUE(running->waitForLine(QStringLiteral("great got self.fKelvoSSID..."), 60))
            << running->transcript().toStdString();
        return running;
    }

    /// The same program with another library in its place, or with none.
    Ended runWithoutArguments() const { return runToEnd(program, {}); }

    const QString program = copiedProgram();
    const QString part = path(QStringLiteral("copy/lib/kelvo-mirror/program.so"));
    const QString module = path(QStringLiteral("copy/lib/kelvo-mirror/window.so"));
};

TEST_F(WindowModuleSystemTest, PassWithoutAWindow_LoadsNothingOfADisplay) {
    write(settingsFile(), plistText(plainProfile()));
    write(path(QStringLiteral("Camera/a.mov")), "movie");
    RunningProgram running(cProgram, {QStringLiteral("--headless")}, environment());
    ASSERT_TRUE(running.waitForLine(QStringLiteral("result from shell command ="), 60))
        << running.transcript().toStdString();
    ASSERT_TRUE(running.waitForLine(QStringLiteral("result from shell command ="), 60));
    EXPECT_TRUE(
        contents(QStringLiteral("/proc/%1/maps").arg(running.processId())).contains("libQt6Core"));
    EXPECT_EQ(mappedForADisplay(running.processId()), QStringList());
    EXPECT_EQ(running.stop(), 0);
}

TEST_F(WindowModuleSystemTest, Window_IsLoadedWhereOneIsWanted) {
    VirtualDisplay display;
    const auto running = windowOn(display);
    if (!running)
        GTEST_SKIP() << "no Xvfb on this machine to open a window on";
    const QStringList mapped = mappedForADisplay(running->processId());
    EXPECT_TRUE(mapped.contains(QStringLiteral("window.so"))) << mapped.join(u' ').toStdString();
    EXPECT_EQ(mapped.filter(QStringLiteral("libQt6Network")), QStringList());
    EXPECT_EQ(running->stop(), 0);
}

TEST_F(WindowModuleSystemTest, Window_ComesWithoutTheOtherPart) {
    VirtualDisplay display;
    const auto running = windowOn(display);
    if (!running)
        GTEST_SKIP() << "no Xvfb on this machine to open a window on";
    const QByteArray maps = contents(QStringLiteral("/proc/%1/maps").arg(running->processId()));
    EXPECT_TRUE(maps.contains("/window.so"));
    EXPECT_FALSE(maps.contains("/program.so"));
    EXPECT_EQ(running->stop(), 0);
}

TEST_F(WindowModuleSystemTest, WindowThatIsNotInstalled_IsSaidWithItsPackageAndTheWayOut) {
    QProcess process;
    QProcessEnvironment elsewhere = environment();
    elsewhere.insert(QStringLiteral("LD_LIBRARY_PATH"),
                     QFileInfo(QStringLiteral(KELVO_WINDOW)).path());
    process.setProcessEnvironment(elsewhere);
    process.setWorkingDirectory(QFileInfo(QStringLiteral(KELVO_WINDOW)).path());
    process.start(program, QStringList());
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 3);
    EXPECT_EQ(process.readAllStandardError(),
              "kelvo-mirror: the window is not installed; its package is kelvo-mirror-window. Run "
              "'kelvo-mirror --headless' to work without one.\n");
    EXPECT_FALSE(QFile::exists(settingsFile())) << "nothing was started";
}

TEST_F(WindowModuleSystemTest, WindowThatIsNotInstalled_IsMissedByTheWindowOnly) {
    ASSERT_EQ(runToEnd(program, {QStringLiteral("--set"), QStringLiteral("prefPath1"),
                                 QStringLiteral("/from")})
                  .code,
              0);
    EXPECT_EQ(runToEnd(program, {QStringLiteral("--get"), QStringLiteral("prefPath1")}).output,
              "/from\n");
    EXPECT_EQ(runToEnd(program, {QStringLiteral("--version")}).code, 0);
}

TEST_F(WindowModuleSystemTest, FileThatIsNoWindow_IsSaid) {
    write(module, "no library");
    const auto [code, output, errors] = runWithoutArguments();
    EXPECT_EQ(code, 3);
    EXPECT_TRUE(errors.contains("the window cannot be loaded") && errors.contains("window.so") &&
                errors.contains("--headless"))
        << errors.constData();
}

TEST_F(WindowModuleSystemTest, WindowThatOthersCanWrite_IsNotLoaded) {
    ASSERT_TRUE(QFile::copy(QStringLiteral(KELVO_WINDOW), module));
    const QByteArray file = module.toLocal8Bit();
    const QByteArray folder = QFileInfo(module).path().toLocal8Bit();
    ::chmod(program.toLocal8Bit().constData(), 0755);
    ::chmod(part.toLocal8Bit().constData(), 0644);
    ::chmod(folder.constData(), 0755);
    const auto errors = [this] {
        const Ended ended = runWithoutArguments();
        EXPECT_EQ(ended.code, 3);
        return ended.errors;
    };
    for (const int mode : {0666, 0664}) {
        ASSERT_EQ(::chmod(file.constData(), static_cast<mode_t>(mode)), 0);
        EXPECT_TRUE(errors().contains(QByteArray("other users can write it: " + file))) << mode;
    }
    ::chmod(file.constData(), 0644);
    EXPECT_TRUE(errors().contains("no display")) << "it was loaded, and missed what it needs";
}

TEST_F(WindowModuleSystemTest, FolderThatOthersCanWrite_HasNothingLoaded) {
    ASSERT_TRUE(QFile::copy(QStringLiteral(KELVO_WINDOW), module));
    const QByteArray folder = QFileInfo(module).path().toLocal8Bit();
    ::chmod(program.toLocal8Bit().constData(), 0755);
    for (const QString& file : {module, part})
        ::chmod(file.toLocal8Bit().constData(), 0644);
    for (const int mode : {0777, 0775}) {
        ASSERT_EQ(::chmod(folder.constData(), static_cast<mode_t>(mode)), 0);
        for (const QStringList& arguments : {QStringList(), {QStringLiteral("--version")}}) {
            const Ended ended = runToEnd(program, arguments);
            EXPECT_EQ(ended.code, 1) << mode;
            EXPECT_EQ(ended.output, "") << mode;
            EXPECT_TRUE(ended.errors.contains("other users can write it")) << mode;
        }
    }
    ::chmod(folder.constData(), 0755);
    EXPECT_EQ(runToEnd(program, {QStringLiteral("--version")}).code, 0);
}

TEST_F(WindowModuleSystemTest, ProgramWithoutItsPart_SaysSo) {
    ASSERT_TRUE(QFile::remove(part));
    const Ended ended = runToEnd(program, {QStringLiteral("--version")});
    EXPECT_EQ(ended.code, 1);
    EXPECT_EQ(ended.errors,
              "kelvo-mirror: its own part cannot be loaded: No such file or directory.\n");
}

TEST_F(WindowModuleSystemTest, EachPart_LeavesAloneWhatIsTheOthers) {
    char name[] = "kelvo-mirror";
    char version[] = "--version";
    char* forProgram[] = {name, version, nullptr};
    char* forWindow[] = {name, nullptr};
    const auto run = [](const char* part, int count, char** words) {
        void* const library = ::dlopen(part, RTLD_LAZY | RTLD_LOCAL);
        auto* const function =
            library ? reinterpret_cast<RunPart*>(::dlsym(library, cRunPart)) : nullptr;
        return function ? function(count, words) : 0;
    };
    EXPECT_EQ(run(KELVO_WINDOW, 2, forProgram), cOtherPart);
    EXPECT_EQ(run(KELVO_PROGRAM_PART, 1, forWindow), cOtherPart);
}

TEST_F(WindowModuleSystemTest, OptionOfTheToolkit_LeadsToTheWindowToo) {
    ASSERT_TRUE(QFile::copy(QStringLiteral(KELVO_WINDOW), module));
    const Ended ended = runToEnd(program, {QStringLiteral("-display"), QStringLiteral(":nowhere")});
    EXPECT_EQ(ended.code, 3);
    EXPECT_TRUE(ended.errors.contains("the display :nowhere does not answer"))
        << ended.errors.constData();
}

} // namespace
} // namespace kelvo
