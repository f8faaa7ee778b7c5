#include "adapters/console/headless_desktop.h"
#include "adapters/console/headless_outlets.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class HeadlessFrontTest : public ::testing::Test {
protected:
    RecordingConsole console;
    VirtualMainQueue mainQueue;
    HeadlessAlerts alerts{console, mainQueue};
    std::vector<ModalResponse> responses;
    std::function<void(ModalResponse)> record() {
        return [this](ModalResponse response) { responses.push_back(response); };
    }
};

TEST_F(HeadlessFrontTest, Status_IsOneLineWithItsColour) {
    HeadlessStatusField field(console);
    field.setAttributedStringValue(
        getAttributedString(QStringLiteral("two\nlines"), StatusColor::Red, true));
    field.setAttributedStringValue(
        getAttributedString(QStringLiteral("ok"), StatusColor::Black, true));
    field.clear();
    EXPECT_EQ(console.printed(),
              (QStringList{QStringLiteral("status red: two\\nlines"),
                           QStringLiteral("status black: ok"), QStringLiteral("status black: ")}));
}

TEST_F(HeadlessFrontTest, Button_TurnsOverAndSendsItself) {
    int clicks = 0;
    HeadlessButton button([&](Control* sender) {
        ++clicks;
        EXPECT_EQ(dynamic_cast<Button*>(sender)->state(), clicks % 2);
    });
    button.performClick();
    button.performClick();
    EXPECT_EQ(clicks, 2);
}

TEST_F(HeadlessFrontTest, Alert_IsOneLineAndAnswersWithItsFirstButton) {
    alerts.beginSheet({QStringLiteral("T"), QStringLiteral("a\nb\n"), {}, {}, false}, record());
    EXPECT_EQ(console.printed(), QStringList{QStringLiteral("alert: T | a\\nb\\n")});
    EXPECT_TRUE(responses.empty()) << "never inside the call";
    mainQueue.runDue();
    EXPECT_EQ(responses, std::vector<ModalResponse>{1000});
}

TEST_F(HeadlessFrontTest, AlertThatAnswersItself_WaitsForItsMaker) {
    const SheetId sheet = alerts.beginSheet({QStringLiteral("T"), {}, {}, {}, true}, record());
    mainQueue.advance(60);
    EXPECT_TRUE(responses.empty());
    alerts.endSheet(sheet);
    alerts.endSheet(sheet);
    alerts.endSheet(99);
    mainQueue.runDue();
    EXPECT_EQ(responses, std::vector<ModalResponse>{cModalResponseStop});
}

TEST_F(HeadlessFrontTest, ModalQuestion_AnswersWithItsFirstButton) {
    EXPECT_EQ(alerts.runModal({QStringLiteral("T"), QStringLiteral("x"), {}, {}, false}), 1000);
    EXPECT_EQ(console.printed(), QStringList{QStringLiteral("alert: T | x")});
}

TEST(HeadlessOpenPanelTest, NobodyCanChoose_CountsAsCancelledWithALine) {
    RecordingConsole console;
    HeadlessOpenPanel panel(console);
    EXPECT_EQ(panel.selectDirectoryUrl(), std::nullopt);
    EXPECT_EQ(console.logged(),
              QStringList{QStringLiteral("Select Directory: there is no window to choose in.")});
}

TEST(HeadlessPathControlTest, Location_IsKeptThoughNobodySeesIt) {
    HeadlessPathControl control;
    EXPECT_EQ(control.url(), std::nullopt);
    EXPECT_TRUE(control.pathItems().empty());
    control.setUrl(QStringLiteral("file:///a"));
    EXPECT_EQ(control.url(), QStringLiteral("file:///a"));
    EXPECT_EQ(control.pathItems().size(), 2U);
    control.setUrl({});
    EXPECT_EQ(control.url(), std::nullopt);
}

TEST(HeadlessTerminalTest, Command_IsPrintedForSomebodyToRun) {
    RecordingConsole console;
    HeadlessTerminal terminal(console);
    bool ended = false;
    terminal.openCommandFile(QStringLiteral("/tmp/x.command"), QStringLiteral("echo \"a b\""),
                             QString(), [&ended](TerminalOutcome) { ended = true; });
    EXPECT_EQ(console.printed(), QStringList{QStringLiteral("terminal: echo \"a b\"")});
    EXPECT_FALSE(ended);
}

} // namespace
} // namespace kelvo
