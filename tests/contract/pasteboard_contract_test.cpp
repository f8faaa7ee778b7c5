// The contract of Pasteboard on the fake and on the toolkit's clipboard. Without a desktop there is
// nowhere to paste, and nothing is kept.
#include "fakes/fake_remote_side.h"
#include "ui/widgets/widget_main_view.h"

#include <QClipboard>
#include <QGuiApplication>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

struct FakeBoard {
    FakePasteboard pasteboard;
    QString held() const { return pasteboard.held; }
};

struct DesktopBoard {
    WidgetPasteboard pasteboard;
    QString held() const { return QGuiApplication::clipboard()->text(); }
};

template <typename Board>
class PasteboardContractTest : public ::testing::Test {
protected:
    Board board;
};

using Boards = ::testing::Types<FakeBoard, DesktopBoard>;
TYPED_TEST_SUITE(PasteboardContractTest, Boards);

TYPED_TEST(PasteboardContractTest, Text_TakesThePlaceOfWhatWasHeld) {
    this->board.pasteboard.setString(QStringLiteral("ssh-copy-id \"é\""));
    EXPECT_EQ(this->board.held(), u"ssh-copy-id \"é\"");
    this->board.pasteboard.setString(QStringLiteral("second"));
    EXPECT_EQ(this->board.held(), u"second");
}

} // namespace
} // namespace kelvo
