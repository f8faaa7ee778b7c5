// How far a pass has come, beside what the Sync tab says of it.
#include "support/work_state.h"
#include "ui/widgets/elided_label.h"
#include "ui/widgets/progress_view.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QTest>
#include <QTimerEvent>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class ProgressViewTest : public ::testing::Test {
protected:
    ProgressViewTest() {
        view.resize(800, 100);
        view.show();
    }

    QProgressBar& bar() { return *view.findChild<QProgressBar*>(); }
    QString step() {
        return view.findChild<ElidedLabel*>(QStringLiteral("progressStep"))->fullText();
    }
    /// From where to where the bar is filled, in points; an empty bar gives -1.
    std::pair<int, int> filled() {
        const QImage image = bar().grab().toImage();
        const QRgb colour = bar().palette().color(QPalette::Highlight).rgb();
        std::pair<int, int> found(-1, -1);
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, image.height() / 2) != colour)
                continue;
            if (found.first < 0)
                found.first = x;
            found.second = x;
        }
        return found;
    }
    void nextStep() {
        QTimerEvent event(0);
        QCoreApplication::sendEvent(&bar(), &event);
    }

    ProgressView view;
};

TEST_F(ProgressViewTest, UnknownShare_IsABlockThatWandersRoundAndRound) {
    view.showWork({.phase = WorkPhase::Running});
    const int block = bar().width() / 8;
    EXPECT_EQ(filled(), std::pair(0, block - 1));
    nextStep();
    EXPECT_EQ(filled(), std::pair(block, 2 * block - 1));
    for (int i = 0; i < 6; ++i)
        nextStep();
    EXPECT_EQ(filled(), std::pair(7 * block, 8 * block - 1));
    nextStep();
    EXPECT_EQ(filled().first, 0) << "and again";
    bar().setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(filled().second, bar().width() - 1);
}

TEST_F(ProgressViewTest, Block_MovesByItselfUntilTheShareIsKnown) {
    view.showWork({.phase = WorkPhase::Running});
    (void)bar().grab();
    const int block = bar().width() / 8;
    EXPECT_TRUE(QTest::qWaitFor([&] { return filled().first >= block; }, 30'000));
    view.showWork({.phase = WorkPhase::Running, .share = 0.5});
    const auto half = filled();
    nextStep();
    EXPECT_EQ(filled(), half);
    view.showWork({.phase = WorkPhase::Running});
    const auto before = filled();
    nextStep();
    EXPECT_NE(filled(), before) << "unknown again, it goes on";
}

TEST_F(ProgressViewTest, Share_IsNeverMoreThanAllNorLessThanNothing) {
    for (const auto& [share, value] :
         {std::pair(0.25, 250), std::pair(-1.0, 0), std::pair(2.0, 1000), std::pair(0.0, 0)}) {
        view.showWork({.phase = WorkPhase::Running, .share = share});
        EXPECT_EQ(bar().value() * 1000 / bar().maximum(), value) << share;
    }
    view.showWork({.phase = WorkPhase::Resting, .share = 0.5});
    EXPECT_EQ(bar().value(), 0) << "what is over is not half done";
    EXPECT_GT(bar().maximum(), 0) << "and nothing moves";
    EXPECT_FALSE(bar().isVisible());
    EXPECT_FALSE(bar().isTextVisible()) << "the figure beside it says it";
    EXPECT_EQ(bar().accessibleName(), u"Progress of the pass");
}

TEST_F(ProgressViewTest, Step_IsWhatTheStatusLineDoesNotSay) {
    const auto shown = [this](WorkPhase phase) {
        view.showWork({.phase = phase,
                       .headline = QStringLiteral("headline"),
                       .step = QStringLiteral("step")});
        return step();
    };
    EXPECT_EQ(shown(WorkPhase::Running), u"step");
    for (const WorkPhase phase : {WorkPhase::Missing, WorkPhase::Finishing, WorkPhase::Cancelling})
        EXPECT_EQ(shown(phase), u"headline");
    for (const WorkPhase phase : {WorkPhase::Off, WorkPhase::Resting})
        EXPECT_EQ(shown(phase), u"The movie that is being copied will stand here.");
    view.showWork({.phase = WorkPhase::Running});
    EXPECT_EQ(step(), QString()) << "a pass that runs leaves no hint";
}

TEST_F(ProgressViewTest, Figure_HasRoomForWiderDigitsAndNoneWhenThereIsNone) {
    auto* speed = view.findChild<QLabel*>(QStringLiteral("progressSpeed"));
    const auto roomFor = [&](const char* text) {
        view.showWork({.phase = WorkPhase::Running, .speed = QString::fromLatin1(text)});
        return speed->minimumWidth();
    };
    const int ones = roomFor("11.1 MB/s");
    EXPECT_EQ(ones, speed->fontMetrics().horizontalAdvance(QStringLiteral("00.0 MB/s")));
    EXPECT_EQ(roomFor("22.2 MB/s"), ones);
    EXPECT_EQ(roomFor("9 MB/s"), ones) << "it does not shrink";
    EXPECT_GT(roomFor("222.2 MB/s"), ones);
    EXPECT_EQ(roomFor(""), 0);
    EXPECT_FALSE(speed->isVisible());
    EXPECT_LT(roomFor("1 MB/s"), ones) << "the next pass begins anew";
    EXPECT_EQ(speed->textFormat(), Qt::PlainText);
}

TEST_F(ProgressViewTest, Room_IsTheSameWithAndWithoutAPass) {
    const QSize before = view.sizeHint();
    const int height = view.heightForWidth(800);
    view.showWork({.phase = WorkPhase::Running, .share = 0.5});
    EXPECT_EQ(view.sizeHint().height(), before.height());
    EXPECT_EQ(view.heightForWidth(800), height);
    EXPECT_LT(bar().height(), 2 * view.fontMetrics().height());
    EXPECT_EQ(bar().width(), view.width());
}

} // namespace
} // namespace kelvo
