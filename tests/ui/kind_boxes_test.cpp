#include "ui/widgets/kind_boxes.h"

#include <QCheckBox>
#include <QGuiApplication>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <set>

namespace kelvo {
namespace {

QList<QCheckBox*> boxesOf(const KindBoxes& kinds) {
    return kinds.findChildren<QCheckBox*>();
}

TEST(KindBoxesTest, Boxes_AreNamedAfterTheirKindsAndStandInColumns) {
    KindBoxes kinds;
    kinds.resize(220, 400);
    kinds.show();
    QCoreApplication::processEvents();
    const auto boxes = boxesOf(kinds);
    ASSERT_EQ(boxes.size(), static_cast<qsizetype>(cMovieKinds.size()));
    std::set<int> columns;
    std::set<int> rows;
    for (qsizetype place = 0; place < boxes.size(); ++place) {
        const QCheckBox* box = boxes[place];
        EXPECT_EQ(box->text(),
                  QString(u'.' + cMovieKinds[static_cast<std::size_t>(place)].suffix.toString()));
        EXPECT_EQ(box->width(), boxes[0]->width());
        EXPECT_GE(box->width(), box->sizeHint().width());
        columns.insert(box->x());
        rows.insert(box->y());
    }
    EXPECT_GT(columns.size(), 1U);
    EXPECT_EQ(rows.size(), (boxes.size() + columns.size() - 1) / columns.size())
        << "each row is full";
    const int before = boxes[0]->minimumWidth();
    QFont large = kinds.font();
    large.setPixelSize(40);
    kinds.setFont(large);
    for (const QCheckBox* box : boxes) {
        EXPECT_GT(box->minimumWidth(), before);
        EXPECT_GE(box->minimumWidth(), box->sizeHint().width());
    }
}

TEST(KindBoxesTest, Kinds_AreTickedAndTellWhenAPersonTicksThem) {
    KindBoxes kinds;
    QSignalSpy ticked(&kinds, &KindBoxes::kindTicked);
    const auto boxes = boxesOf(kinds);
    MovieKinds some;
    some.set(1);
    kinds.setKinds(some, false);
    EXPECT_TRUE(ticked.isEmpty());
    for (qsizetype place = 0; place < boxes.size(); ++place) {
        EXPECT_EQ(boxes[place]->isChecked(), place == 1) << place;
        EXPECT_TRUE(boxes[place]->isEnabled()) << place;
    }
    boxes.last()->click();
    boxes[1]->click();
    ASSERT_EQ(ticked.size(), 2);
    EXPECT_EQ(ticked[0][0].value<std::size_t>(), cMovieKinds.size() - 1);
    EXPECT_TRUE(ticked[0][1].toBool());
    EXPECT_EQ(ticked[1][0].value<std::size_t>(), 1U);
    EXPECT_FALSE(ticked[1][1].toBool());
    kinds.setKinds(some, true);
    for (std::size_t place = 0; place < cMovieKinds.size(); ++place) {
        const QCheckBox* box = boxes[static_cast<qsizetype>(place)];
        EXPECT_EQ(box->isEnabled(), !cMovieKinds[place].comesAnyway) << place;
        EXPECT_EQ(box->isChecked(), cMovieKinds[place].comesAnyway || place == 1) << place;
    }
    kinds.setKinds(std::nullopt, false);
    for (const QCheckBox* box : boxes)
        EXPECT_FALSE(box->isChecked() || box->isEnabled());
}

TEST(KindBoxesTest, MirroredWindow_LeavesTheDotBeforeTheLetters) {
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const KindBoxes kinds;
    QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
    for (const QCheckBox* box : boxesOf(kinds))
        EXPECT_TRUE(box->text().startsWith(QString(QChar(0x200e)) + u'.'));
}

} // namespace
} // namespace kelvo
