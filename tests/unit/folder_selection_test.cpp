#include "fakes/fake_desktop.h"
#include "fakes/fake_file_manager.h"
#include "fakes/fake_front.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "settings/preference_keys.h"
#include "support/file_url.h"
#include "ui/folder_selection.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

QString entry(const char* operation, const QString& detail = QStringLiteral(".......")) {
    return u"Inside Kelvo_Mirror.ViewController->" + QString::fromLatin1(operation) + detail;
}

class FolderSelectionTest : public ::testing::Test {
protected:
    MemoryDefaults defaults;
    RecordingConsole console;
    FakeOpenPanel panel;
    FakeWorkspace workspace;
    FakeFileManager files;
    std::shared_ptr<FakePathControl> pathControl = std::make_shared<FakePathControl>();
    FolderSelection selection{{defaults, console, panel, workspace, files, pathControl}};
};

// -- choosing

TEST_F(FolderSelectionTest, ChosenFolder_IsStoredUnderTheActionsOwnKey) {
    panel.answer = {true, {QStringLiteral("/Users/me/Movies")}};
    QStringList printedBefore;
    const Subscription stored = defaults.observe(
        prefPath1, [&](const DefaultsChange&) { printedBefore = console.printed(); });
    selection.ibSelectFolder1Action(nullptr);
    EXPECT_EQ(printedBefore, console.printed()) << "what comes of the choice is printed behind it";
    EXPECT_EQ(console.printed(), (QStringList{entry("ibSelectFolder1Action(_:)"),
                                              QStringLiteral("openDocument ViewController"),
                                              QStringLiteral("file selected: /Users/me/Movies")}));
    EXPECT_EQ(defaults.object(prefPath1), QVariant(QStringLiteral("/Users/me/Movies")));
    EXPECT_FALSE(defaults.object(prefPath2).isValid());

    panel.answer = {true, {QStringLiteral("/backup")}};
    console.clear();
    selection.ibSelectFolder2Action(nullptr);
    EXPECT_EQ(console.printed(), (QStringList{entry("ibSelectFolder2Action(_:)"),
                                              QStringLiteral("openDocument ViewController"),
                                              QStringLiteral("file selected: /backup")}));
    EXPECT_EQ(defaults.object(prefPath2), QVariant(QStringLiteral("/backup")));
    EXPECT_EQ(defaults.object(prefPath1), QVariant(QStringLiteral("/Users/me/Movies")));
}

TEST_F(FolderSelectionTest, Panel_IsAskedForOneFolderOrFile) {
    selection.ibSelectFolder1Action(nullptr);
    selection.ibSelectFolder2Action(nullptr);
    const OpenPanelOptions expected{QStringLiteral("Select Directory"), false, true, true, true};
    EXPECT_EQ(panel.shown, (std::vector{expected, expected}));
}

TEST_F(FolderSelectionTest, CancelledPanel_ChangesNothing) {
    defaults.setObject(prefPath1, QStringLiteral("/before"));
    const auto changes = defaults.changes();
    panel.answer = {false, {QStringLiteral("/half/chosen")}};
    selection.ibSelectFolder1Action(nullptr);
    EXPECT_EQ(console.printed().last(), u"file selection was canceled");
    EXPECT_EQ(defaults.changes(), changes);
}

TEST_F(FolderSelectionTest, OkWithoutAChoice_CountsAsCancelled) {
    panel.answer = {true, {}};
    selection.ibSelectFolder2Action(nullptr);
    EXPECT_EQ(console.printed().last(), u"file selection was canceled");
    EXPECT_FALSE(defaults.object(prefPath2).isValid());
}

TEST_F(FolderSelectionTest, ChosenFile_IsStoredAsItIs) {
    panel.answer = {true,
                    {QStringLiteral("/Users/me/It's \"one\" 100%.mov"), QStringLiteral("/2")}};
    selection.ibSelectFolder1Action(nullptr);
    EXPECT_EQ(defaults.stringForKey(prefPath1), QStringLiteral("/Users/me/It's \"one\" 100%.mov"));
}

TEST_F(FolderSelectionTest, SettingChangedWhileThePanelIsOpen_GivesWayToTheChoice) {
    panel.answer = {true, {QStringLiteral("/chosen")}};
    panel.whileOpen = [this] { defaults.setObject(prefPath1, QStringLiteral("/elsewhere")); };
    selection.ibSelectFolder1Action(nullptr);
    EXPECT_EQ(defaults.stringForKey(prefPath1), QStringLiteral("/chosen"));
}

// -- showing

TEST_F(FolderSelectionTest, RevealSource_OpensItsLocation) {
    defaults.setObject(prefPath1, QStringLiteral("/Users/me/My Movies"));
    selection.ibRevealSourcePath(nullptr);
    EXPECT_EQ(workspace.requests,
              QStringList{QStringLiteral("openUrl file:///Users/me/My%20Movies")});
    EXPECT_EQ(console.printed(), QStringList{entry("ibRevealSourcePath(_:)")});
}

TEST_F(FolderSelectionTest, RevealSource_KnowsTheHomeFolder) {
    defaults.setObject(prefPath1, QStringLiteral("~/Desktop"));
    selection.ibRevealSourcePath(nullptr);
    EXPECT_EQ(workspace.requests,
              QStringList{QStringLiteral("openUrl file:///Users/localuser/Desktop")});
}

TEST_F(FolderSelectionTest, RevealDestination_OpensTheFile) {
    defaults.setObject(prefPath2, QStringLiteral("/Volumes/A%20B"));
    selection.ibRevealDestPath(nullptr);
    EXPECT_EQ(workspace.requests, QStringList{QStringLiteral("openFile /Volumes/A%20B")});
    EXPECT_EQ(console.printed(), QStringList{entry("ibRevealDestPath(_:)")});
}

TEST_F(FolderSelectionTest, RevealOfUnsetFolders_OnlyPrintsTheEntryLines) {
    selection.ibRevealSourcePath(nullptr);
    selection.ibRevealDestPath(nullptr);
    EXPECT_TRUE(workspace.requests.isEmpty());
    EXPECT_EQ(console.printed(),
              (QStringList{entry("ibRevealSourcePath(_:)"), entry("ibRevealDestPath(_:)")}));
}

TEST_F(FolderSelectionTest, OpenTempFolder_OpensItsLocation) {
    selection.ibOpenTempFolder(nullptr);
    EXPECT_EQ(workspace.requests, QStringList{QStringLiteral("openUrl file:///tmp/of%20me")});
    EXPECT_EQ(console.printed(), QStringList{entry("ibOpenTempFolder(_:)")});
}

TEST_F(FolderSelectionTest, OpenTempFolder_WithoutOneOpensNothingAndSaysWhy) {
    files.temporary = {{}, QStringLiteral("/tmp/x belongs to somebody else")};
    selection.ibOpenTempFolder(nullptr);
    EXPECT_EQ(workspace.requests, QStringList());
    EXPECT_EQ(console.printed(),
              (QStringList{entry("ibOpenTempFolder(_:)"),
                           entry("ibOpenTempFolder(_:)",
                                 QStringLiteral(".......no temporary folder: /tmp/x belongs to "
                                                "somebody else"))}));
}

// -- the path control

TEST_F(FolderSelectionTest, Action1OnAFreshStore_ShowsTheDesktopFolder) {
    selection.ibAction1(nullptr);
    EXPECT_EQ(defaults.object(prefPath1), QVariant(QStringLiteral("~/Desktop")));
    EXPECT_EQ(pathControl->url(), QStringLiteral("file:///Users/localuser/Desktop"));
    EXPECT_EQ(
        console.printed(),
        (QStringList{
            entry("ibAction1(_:)"),
            QStringLiteral("item.title = /  item.url = file:///"),
            QStringLiteral("item.title = Users  item.url = file:///Users"),
            QStringLiteral("item.title = localuser  item.url = file:///Users/localuser"),
            QStringLiteral("item.title = Desktop  item.url = file:///Users/localuser/Desktop"),
        }));
}

TEST_F(FolderSelectionTest, Action1Again_ShowsTheSameFolder) {
    selection.ibAction1(nullptr);
    const auto changes = defaults.changes();
    selection.ibAction1(nullptr);
    EXPECT_EQ(pathControl->url(), QStringLiteral("file:///Users/localuser/Desktop"));
    EXPECT_EQ(defaults.changes(), changes);
}

TEST_F(FolderSelectionTest, Action1WithAFolder_ShowsItAndStoresNothing) {
    defaults.setObject(prefPath1, QStringLiteral("/gone"));
    const auto changes = defaults.changes();
    selection.ibAction1(nullptr);
    EXPECT_EQ(pathControl->url(), QStringLiteral("file:///gone"));
    EXPECT_EQ(console.printed().last(), u"item.title = gone  item.url = file:///gone");
    EXPECT_EQ(defaults.changes(), changes);
}

TEST_F(FolderSelectionTest, Action1WithoutAPathControl_StopsTheProgram) {
    pathControl.reset();
    EXPECT_EXIT(selection.ibAction1(nullptr), ::testing::KilledBySignal(SIGILL),
                "^the path control is not there\n");
}

TEST_F(FolderSelectionTest, RevealInFinder_OpensTheFixedPlace) {
    defaults.setObject(prefPath2, QStringLiteral("/backup"));
    pathControl->setUrl(QStringLiteral("file:///Users/me"));
    selection.ibRevealInFinderAction(pathControl.get());
    const QStringList lines = console.printed();
    ASSERT_EQ(lines.size(), 4);
    EXPECT_TRUE(lines[0].startsWith(
        entry("ibRevealInFinderAction(_:)", QStringLiteral(".......sender = <PathControl: 0x"))))
        << lines[0].toStdString();
    EXPECT_EQ(
        lines.sliced(1),
        (QStringList{
            entry("ibRevealInFinderAction(_:)", QStringLiteral(".......prefPath2 = /backup")),
            entry("ibRevealInFinderAction(_:)", QStringLiteral(".......url = file:///Users/me")),
            entry("ibRevealInFinderAction(_:)", QStringLiteral(".......url = /backup")),
        }));
    EXPECT_EQ(workspace.requests,
              QStringList{QStringLiteral("openFile /Volumes/Macintosh%20HD-2/Users/support/Desktop/"
                                         "FolderOnRemoteServer")});
}

TEST_F(FolderSelectionTest, RevealInFinderWithoutADestination_PrintsOnlyTheSender) {
    pathControl->setUrl(QStringLiteral("file:///Users/me"));
    selection.ibRevealInFinderAction(pathControl.get());
    EXPECT_EQ(console.printed().size(), 1);
    EXPECT_TRUE(workspace.requests.isEmpty());
}

TEST_F(FolderSelectionTest, RevealInFinderFromElsewhere_OpensNothing) {
    defaults.setObject(prefPath2, QStringLiteral("/backup"));
    FakeButton button;
    const auto senderOf = [this](const Control* sender) {
        const QString type =
            sender == pathControl.get() ? QStringLiteral("PathControl") : QStringLiteral("Control");
        return sender ? QStringLiteral(".......sender = <%1: 0x%2>")
                            .arg(type, QString::number(reinterpret_cast<quintptr>(sender), 16))
                      : QStringLiteral(".......sender = nil");
    };
    for (Control* sender : {static_cast<Control*>(nullptr), static_cast<Control*>(&button),
                            static_cast<Control*>(pathControl.get())}) {
        console.clear();
        selection.ibRevealInFinderAction(sender);
        ASSERT_EQ(console.printed().size(), 2);
        EXPECT_EQ(console.printed().first(), entry("ibRevealInFinderAction(_:)", senderOf(sender)));
        EXPECT_EQ(console.printed().last(), entry("ibRevealInFinderAction(_:)",
                                                  QStringLiteral(".......prefPath2 = /backup")));
    }
    EXPECT_TRUE(workspace.requests.isEmpty());
}

TEST(FileUrlTest, Table) {
    struct Case {
        QString path, url;
    };
    for (const Case& c : {Case{QStringLiteral("/"), QStringLiteral("file:///")},
                          Case{QStringLiteral("/a b"), QStringLiteral("file:///a%20b")},
                          Case{QStringLiteral("/100%20"), QStringLiteral("file:///100%2520")},
                          Case{QStringLiteral("/a?b#c;d"), QStringLiteral("file:///a%3Fb%23c%3Bd")},
                          Case{QStringLiteral("/\u00e9\n"), QStringLiteral("file:///%C3%A9%0A")},
                          Case{QStringLiteral("Movies"), QStringLiteral("file:Movies")},
                          Case{QString(), QStringLiteral("file:")}})
        EXPECT_EQ(fileUrl(c.path), c.url);
}

TEST(PathItemsTest, Location_IsTakenApartAtEachFolder) {
    using Items = std::vector<PathControl::Item>;
    const auto item = [](const char* title, const char* url) {
        return PathControl::Item{QString::fromUtf8(title), QString::fromUtf8(url)};
    };
    EXPECT_EQ(pathItemsOf(fileUrl(u"/a b/100%/\u00e9")),
              (Items{item("/", "file:///"), item("a b", "file:///a%20b"),
                     item("100%", "file:///a%20b/100%25"),
                     item("\xc3\xa9", "file:///a%20b/100%25/%C3%A9")}));
    EXPECT_EQ(pathItemsOf(QStringLiteral("file:///")), Items{item("/", "file:///")});
    EXPECT_EQ(pathItemsOf(QStringLiteral("file:////a//b/")),
              (Items{item("/", "file:///"), item("a", "file:///a"), item("b", "file:///a/b")}));
    EXPECT_EQ(pathItemsOf(fileUrl(u"/x\ny\u202e")).back().title, u"x y\\u202e");
    for (const QString& other : {QString(), QStringLiteral("file:Movies"),
                                 QStringLiteral("smb://host/share"), QStringLiteral("/a")})
        EXPECT_EQ(pathItemsOf(other), Items()) << other.toStdString();
}

} // namespace
} // namespace kelvo
