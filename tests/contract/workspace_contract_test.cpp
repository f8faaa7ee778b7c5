#include "adapters/desktop/desktop_workspace.h"
#include "adapters/process/qt_main_queue.h"
#include "adapters/process/thread_pool_queue.h"
#include "fakes/fake_desktop.h"
#include "fakes/recording_console.h"
#include "support/file_manager_service.h"
#include "support/session_bus.h"
#include "support/wait_in_loop.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>

namespace kelvo {
namespace {

/// A real workspace whose opener writes down what it is asked to open.
class RealDesktop {
public:
    explicit RealDesktop(const QDBusConnection& bus = QDBusConnection(QStringLiteral("no bus")),
                         const QByteArray& afterwards = "exit 0")
        : fBus(bus) {
        QFile script(folder.filePath(QStringLiteral("opener")));
        EXPECT_TRUE(script.open(QFile::WriteOnly));
        script.write("#!/bin/sh\nprintf '%s %s\\n' $# \"$1\" >>'" + record().toLocal8Bit() + "'\n" +
                     afterwards + "\n");
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        restart(folder.filePath(QStringLiteral("opener")));
    }
    ~RealDesktop() {
        mainQueue.stop();
        bgQueue.stopAndWait();
    }

    void restart(const QString& opener) {
        workspace = std::make_unique<DesktopWorkspace>(
            mainQueue, bgQueue, console, QStringLiteral("/home/of me"), [this] { return fBus; },
            opener);
    }

    /// What was opened so far; each line is the number of arguments and the first of them.
    QStringList opened() const {
        QFile file(record());
        return file.open(QFile::ReadOnly)
                   ? QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)
                   : QStringList();
    }
    bool opens(const QString& address) {
        return waitInLoop([&] { return opened() == QStringList{u"1 " + address}; });
    }
    bool says(const QString& part) {
        return waitInLoop([&] { return console.logged().join(u'\n').contains(part); });
    }

    QTemporaryDir folder;
    RecordingConsole console;
    QtMainQueue mainQueue;
    ThreadPoolQueue bgQueue;
    std::unique_ptr<DesktopWorkspace> workspace;

private:
    QString record() const { return folder.filePath(QStringLiteral("opened")); }
    QDBusConnection fBus;
};

// -- what holds for every workspace

struct FakeKind {
    FakeWorkspace fake;
    Workspace& workspace() { return fake; }
    qsizetype requests() const { return fake.requests.size(); }
};
struct RealKind {
    RealDesktop desktop;
    Workspace& workspace() { return *desktop.workspace; }
    qsizetype requests() const { return desktop.opened().size(); }
};

template <typename Kind>
class WorkspaceContractTest : public ::testing::Test {
protected:
    bool asked(qsizetype times) {
        return waitInLoop([&] { return kind.requests() == times; });
    }
    Kind kind;
};
using Kinds = ::testing::Types<FakeKind, RealKind>;
TYPED_TEST_SUITE(WorkspaceContractTest, Kinds);

TYPED_TEST(WorkspaceContractTest, EachRequest_ReachesTheDesktopOnce) {
    Workspace& workspace = this->kind.workspace();
    workspace.openUrl(QStringLiteral("file:///tmp"));
    EXPECT_TRUE(this->asked(1));
    workspace.openFile(QStringLiteral("/tmp"));
    EXPECT_TRUE(this->asked(2));
    workspace.revealInFinder(QStringLiteral("/tmp"));
    EXPECT_TRUE(this->asked(3));
    workspace.activateFileViewerSelecting({QStringLiteral("/tmp/a")});
    EXPECT_TRUE(this->asked(4));
}

TYPED_TEST(WorkspaceContractTest, EmptySelection_AsksForNothing) {
    this->kind.workspace().activateFileViewerSelecting({});
    this->kind.workspace().openFile(QStringLiteral("/tmp"));
    EXPECT_TRUE(this->asked(1));
}

// -- opening on this desktop

TEST(DesktopWorkspaceTest, Url_IsOpenedAsOneArgument) {
    RealDesktop desktop;
    desktop.workspace->openUrl(QStringLiteral("file:///tmp/a%20b$(touch%20x)"));
    EXPECT_TRUE(desktop.opens(QStringLiteral("file:///tmp/a%20b$(touch%20x)")));
    EXPECT_TRUE(desktop.console.lines().empty());
}

TEST(DesktopWorkspaceTest, Path_IsTakenAsItStands) {
    RealDesktop desktop;
    desktop.workspace->openFile(QStringLiteral("/Volumes/Macintosh%20HD-2/a b?#"));
    EXPECT_TRUE(desktop.opens(QStringLiteral("file:///Volumes/Macintosh%2520HD-2/a%20b%3F%23")));
}

TEST(DesktopWorkspaceTest, Tilde_IsTheHomeFolder) {
    RealDesktop desktop;
    desktop.workspace->openFile(QStringLiteral("~/Desktop"));
    EXPECT_TRUE(desktop.opens(QStringLiteral("file:///home/of%20me/Desktop")));
}

TEST(DesktopWorkspaceTest, OddAddressesAndPaths_AreRefusedWithALine) {
    RealDesktop desktop;
    const QStringList urls{QString(),
                           QStringLiteral("--help"),
                           QStringLiteral("file:Movies"),
                           QStringLiteral("javascript:alert(1)"),
                           QStringLiteral("ssh://host/"),
                           QStringLiteral("smb:///nohost"),
                           QStringLiteral("file:///a\nb")};
    for (const QString& url : urls)
        desktop.workspace->openUrl(url);
    const QStringList paths{QString(), QStringLiteral("Movies"), QStringLiteral("-x"),
                            QString(u"/a" + QChar(u'\0') + u"b")};
    for (const QString& path : paths)
        desktop.workspace->openFile(path);
    EXPECT_EQ(desktop.console.logged().size(), urls.size() + paths.size());
    desktop.workspace->openUrl(QStringLiteral("smb://Remote-Mac.local/Movies"));
    EXPECT_TRUE(desktop.opens(QStringLiteral("smb://Remote-Mac.local/Movies")));
}

TEST(DesktopWorkspaceTest, VanishedPath_IsALineInTheLog) {
    RealDesktop desktop(QDBusConnection(QStringLiteral("no bus")), "exit 2");
    desktop.workspace->openFile(QStringLiteral("/gone"));
    EXPECT_TRUE(desktop.says(QStringLiteral("Cannot open file:///gone: there is no such file")));
}

TEST(DesktopWorkspaceTest, FailureOfTheOpener_IsSaidInWords) {
    const std::map<QByteArray, QString> reasons{
        {"1", QStringLiteral("exit code 1")},
        {"3", QStringLiteral("the desktop has no program for it")},
        {"4", QStringLiteral("the desktop's program for it failed")}};
    for (const auto& [code, reason] : reasons) {
        RealDesktop desktop(QDBusConnection(QStringLiteral("no bus")), "exit " + code);
        desktop.workspace->openFile(QStringLiteral("/x"));
        EXPECT_TRUE(desktop.says(u"Cannot open file:///x: " + reason)) << code.constData();
    }
}

TEST(DesktopWorkspaceTest, Refusals_NameWhatIsRefused) {
    RealDesktop desktop;
    desktop.workspace->openUrl(QStringLiteral("ssh://host/\x1b"));
    desktop.workspace->openFile(QStringLiteral("Movies"));
    EXPECT_EQ(desktop.console.logged().value(0),
              u"Cannot open ssh://host/\\x1b: this is no address to open.");
    EXPECT_TRUE(desktop.console.logged().value(1).startsWith(u"Cannot show "));
    EXPECT_TRUE(desktop.console.logged().value(1).endsWith(
        u"Movies\": the path does not begin at the root folder."));
}

TEST(DesktopWorkspaceTest, WebAddresses_AreOpened) {
    for (const char* const url : {"http://example.org/a", "https://example.org/a"}) {
        RealDesktop desktop;
        desktop.workspace->openUrl(QString::fromLatin1(url));
        EXPECT_TRUE(desktop.opens(QString::fromLatin1(url)));
    }
}

TEST(DesktopWorkspaceTest, OpenerKilled_IsALineInTheLog) {
    RealDesktop desktop(QDBusConnection(QStringLiteral("no bus")), "kill -9 $$");
    desktop.workspace->openFile(QStringLiteral("/x"));
    EXPECT_TRUE(desktop.says(QStringLiteral("Cannot open file:///x: the opener was ended")));
}

TEST(DesktopWorkspaceTest, MissingOpener_IsALineInTheLog) {
    RealDesktop desktop;
    desktop.restart(desktop.folder.filePath(QStringLiteral("no such opener")));
    desktop.workspace->openFile(QStringLiteral("/x"));
    EXPECT_TRUE(desktop.says(QStringLiteral("Cannot open file:///x: ")));
    EXPECT_EQ(desktop.console.logged().last(),
              u"Cannot open file:///x: " +
                  desktop.folder.filePath(QStringLiteral("no such opener")) +
                  u": No such file or directory");
}

TEST(DesktopWorkspaceTest, SlowOpener_HoldsNobodyUpAndOutlivesTheWorkspace) {
    // It ends when it may, and after a minute at the latest.
    RealDesktop desktop(
        QDBusConnection(QStringLiteral("no bus")),
        "cd \"${0%/*}\"; for i in $(seq 600); do [ -e go ] && break; sleep 0.1; done\n"
        "printf '1 after\\n' >>opened; exit 2");
    desktop.workspace->openFile(QStringLiteral("/x"));
    EXPECT_TRUE(desktop.opens(QStringLiteral("file:///x"))) << "nobody has waited for it";
    desktop.workspace.reset();
    ASSERT_TRUE(QFile(desktop.folder.filePath(QStringLiteral("go"))).open(QFile::WriteOnly));
    EXPECT_TRUE(waitInLoop([&] { return desktop.opened().size() == 2; }));
    EXPECT_TRUE(desktop.console.lines().empty());
}

// -- revealing on this desktop

TEST(DesktopWorkspaceTest, NoSessionBus_OpensTheFoldersAroundEachOnce) {
    RealDesktop desktop;
    desktop.workspace->activateFileViewerSelecting(
        {QStringLiteral("/m/a b/1.mov"), QStringLiteral("/m/a b/2.mov")});
    EXPECT_TRUE(desktop.opens(QStringLiteral("file:///m/a%20b/")));
}

TEST(DesktopWorkspaceTest, RevealedFolder_IsOpenedItself) {
    RealDesktop desktop;
    desktop.workspace->revealInFinder(desktop.folder.path());
    EXPECT_TRUE(desktop.opens(QString(u"file://" + desktop.folder.path())));
}

TEST(DesktopWorkspaceTest, RevealedFileOrVanishedPath_IsLookedForInItsFolder) {
    RealDesktop desktop;
    desktop.workspace->revealInFinder(desktop.folder.filePath(QStringLiteral("opener")));
    EXPECT_TRUE(desktop.opens(QString(u"file://" + desktop.folder.path() + u'/')));
    RealDesktop other;
    other.workspace->revealInFinder(QStringLiteral("/gone/with/it"));
    EXPECT_TRUE(other.opens(QStringLiteral("file:///gone/with/")));
}

class FileManagerTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(ours.get().isConnected() && theirs.get().isConnected()) << "no message bus";
    }

    PrivateBus daemon;
    BusConnection ours{daemon.address(), QStringLiteral("workspace")};
    BusConnection theirs{daemon.address(), QStringLiteral("file manager")};
    FileManagerService service{theirs.get()};
    RealDesktop desktop{ours.get()};
};

TEST_F(FileManagerTest, Items_AreShownByTheService) {
    ASSERT_TRUE(service.appear());
    desktop.workspace->activateFileViewerSelecting(
        {QStringLiteral("/m/a b"), QStringLiteral("~/c"), QStringLiteral("relative")});
    EXPECT_TRUE(waitInLoop([&] {
        return service.shown == QStringList{QStringLiteral("file:///m/a%20b"),
                                            QStringLiteral("file:///home/of%20me/c")};
    }));
    EXPECT_EQ(desktop.console.logged().size(), 1);
    EXPECT_TRUE(desktop.opened().isEmpty());
}

TEST_F(FileManagerTest, Refusal_OpensTheFolderAndSaysSo) {
    service.refuses = true;
    ASSERT_TRUE(service.appear());
    desktop.workspace->activateFileViewerSelecting(
        {QStringLiteral("/m/a"), QStringLiteral("/m/b")});
    EXPECT_TRUE(desktop.opens(QStringLiteral("file:///m/")));
    EXPECT_EQ(desktop.console.logged().constFirst(),
              u"The file manager cannot show file:///m/a, file:///m/b: not today\\x1b");
}

TEST_F(FileManagerTest, NoFileManager_OpensTheFolder) {
    desktop.workspace->activateFileViewerSelecting({QStringLiteral("/m/a")});
    EXPECT_TRUE(desktop.opens(QStringLiteral("file:///m/")));
}

TEST_F(FileManagerTest, SilentFileManager_HoldsNobodyUp) {
    service.neverAnswers = true;
    ASSERT_TRUE(service.appear());
    desktop.workspace->activateFileViewerSelecting({QStringLiteral("/m/a")});
    EXPECT_TRUE(waitInLoop([&] { return service.shown.size() == 1; }));
    EXPECT_TRUE(desktop.opened().isEmpty()) << "as it is after waiting in vain";
    EXPECT_TRUE(desktop.console.lines().empty());
    desktop.workspace.reset();
}

} // namespace
} // namespace kelvo
