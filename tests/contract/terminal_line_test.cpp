#include "adapters/console/terminal_line.h"
#include "adapters/system/unique_fd.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <cstdlib>

namespace kelvo {
namespace {

class TerminalLineTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(::grantpt(master.get()), 0);
        ASSERT_EQ(::unlockpt(master.get()), 0);
        terminal = UniqueFd(::open(::ptsname(master.get()), O_RDWR | O_NOCTTY | O_CLOEXEC));
        ASSERT_GE(terminal.get(), 0);
        setWidth(11);
    }
    void setWidth(unsigned short columns) {
        const winsize size{.ws_row = 24, .ws_col = columns, .ws_xpixel = 0, .ws_ypixel = 0};
        ASSERT_EQ(::ioctl(terminal.get(), TIOCSWINSZ, &size), 0);
    }

    /// What a person's terminal got since the last call.
    QByteArray got() {
        QByteArray bytes(4096, '\0');
        const ssize_t count =
            ::read(master.get(), bytes.data(), static_cast<std::size_t>(bytes.size()));
        return count > 0 ? bytes.left(count) : QByteArray();
    }

    UniqueFd master{::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)};
    UniqueFd terminal;
};

TEST_F(TerminalLineTest, Line_IsWrittenAnewCutToTheWidthAndTakenAway) {
    {
        TerminalLine line(terminal.get());
        line.show(QStringLiteral("48 %"));
        EXPECT_EQ(got(), QByteArray("\r48 %\x1b[K"));
        line.show(QStringLiteral("48 %"));
        EXPECT_EQ(got(), QByteArray()) << "it stands there already";
        line.show(QStringLiteral("49 %, file 1 of 2"));
        EXPECT_EQ(got(), QByteArray("\r49 %, file\x1b[K"));
        line.show(QString(20, QChar(0x4e2d)));
        EXPECT_EQ(got().size(), 1 + 5 * 3 + 3) << "characters of two columns";
    }
    EXPECT_EQ(got(), QByteArray("\r\x1b[K"));
}

TEST_F(TerminalLineTest, NothingShown_NothingToTakeAway) {
    { const TerminalLine line(terminal.get()); }
    EXPECT_EQ(got(), QByteArray());
}

TEST_F(TerminalLineTest, HaltedTerminal_HoldsNobodyUp) {
    ASSERT_EQ(::tcflow(terminal.get(), TCOOFF), 0);
    TerminalLine line(terminal.get());
    for (int i = 0; i < 100'000 / 10; ++i)
        line.show(QString::number(i));
    ASSERT_EQ(::tcflow(terminal.get(), TCOON), 0);
    line.show(QStringLiteral("at last"));
    EXPECT_TRUE(got().endsWith("\rat last\x1b[K"));
}

TEST_F(TerminalLineTest, TwoColumns_AreTakenByTheKoreanLettersAndWhatFollows) {
    TerminalLine line(terminal.get());
    line.show(QString(11, QChar(0x10ff)));
    EXPECT_EQ(got(), '\r' + QString(10, QChar(0x10ff)).toUtf8() + "\x1b[K");
    line.show(QString(11, QChar(0x1100)));
    EXPECT_EQ(got(), '\r' + QString(5, QChar(0x1100)).toUtf8() + "\x1b[K");
    line.show(u'x' + QString(5, QChar(0x1100)));
    EXPECT_EQ(got(), "\rx" + QString(4, QChar(0x1100)).toUtf8() + "\x1b[K") << "none is halved";
}

TEST_F(TerminalLineTest, TerminalWithoutAWidth_CountsAsEightyColumns) {
    setWidth(0);
    TerminalLine line(terminal.get());
    line.show(QString(100, u'x'));
    EXPECT_EQ(got(), '\r' + QByteArray(79, 'x') + "\x1b[K");
}

TEST_F(TerminalLineTest, TerminalOfOneColumn_StaysEmpty) {
    setWidth(1);
    TerminalLine line(terminal.get());
    line.show(QStringLiteral("48 %"));
    EXPECT_EQ(got(), QByteArray());
}

} // namespace
} // namespace kelvo
