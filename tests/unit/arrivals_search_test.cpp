// Which of the files that are there have arrived.
#include "fakes/fake_file_manager.h"
#include "passes/arrivals.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class ArrivalSearchTest : public ::testing::Test {
protected:
    void put(const QByteArray& path, qint64 afterBegin) {
        files.found.push_back({path, 7, began.addMSecs(afterBegin)});
    }

    QList<QByteArray> arrived(const NameList& names, bool unnamedToo,
                              const QByteArray& destination = "/in") {
        QList<QByteArray> paths;
        for (const Arrival& arrival : arrivalsOf(files, {.destination = destination,
                                                        .began = began,
                                                        .names = names,
                                                        .unnamedToo = unnamedToo}))
            paths << arrival.path;
        return paths;
    }

    FakeFileManager files;
    QDateTime began{QDate(2026, 11, 22), QTime(12, 0, 0, 500), Qt::UTC};
};

TEST_F(ArrivalSearchTest, ChangeBeforeThePass_IsNoArrivalButForALaggingClock) {
    put("/in/at", 0);
    put("/in/lag", -20);
    put("/in/before", -21);
    EXPECT_EQ(arrived({"at", "lag", "before"}, false), (QList<QByteArray>{"/in/lag", "/in/at"}));
    EXPECT_EQ(arrived({}, true), (QList<QByteArray>{"/in/lag", "/in/at"}));
}

TEST_F(ArrivalSearchTest, FileSystemThatCountsWholeSeconds_MayTellTheSecondOfTheBegin) {
    put("/in/same", -500);
    put("/in/earlier", -1500);
    put("/in/later", 500);
    put("/in/close", -499);
    EXPECT_EQ(arrived({"same", "earlier", "later", "close"}, false),
              (QList<QByteArray>{"/in/same", "/in/later"}));
    EXPECT_EQ(arrived({}, true), (QList<QByteArray>{"/in/same", "/in/later"}));
}

TEST_F(ArrivalSearchTest, LaggingClock_MayBeInTheSecondBeforeThePass) {
    began = QDateTime(QDate(2026, 11, 22), QTime(12, 0, 0, 3), Qt::UTC);
    put("/in/lag", -4);
    put("/in/whole", -1003); // a file system that counts whole seconds only
    put("/in/before", -24);
    EXPECT_EQ(arrived({"lag", "whole", "before"}, false),
              (QList<QByteArray>{"/in/whole", "/in/lag"}));
    EXPECT_EQ(arrived({}, true), (QList<QByteArray>{"/in/whole", "/in/lag"}));
}

TEST_F(ArrivalSearchTest, TooMany_KeepsTheFirstTenThousand) {
    for (int i = 0; i < 10'001; ++i)
        put("/in/" + QByteArray::number(99'999 - i), i);
    const auto found = arrived({}, true);
    ASSERT_EQ(found.size(), 10'000);
    EXPECT_EQ(found.front(), "/in/99999");
    EXPECT_EQ(found.back(), "/in/90000");
}

TEST_F(ArrivalSearchTest, FilesOfOneMoment_AreInTheOrderOfTheirNamesAndEachOnce) {
    put("/in/b", 1);
    put("/in/a", 1);
    put("/in/c", 0);
    EXPECT_EQ(arrived({"b", "a", "b"}, true), (QList<QByteArray>{"/in/c", "/in/a", "/in/b"}));
}

TEST_F(ArrivalSearchTest, Destination_IsAskedForWithoutItsClosingSlashes) {
    put("/in/a", 1);
    put("//a", 2);
    put("in/a", 3);
    EXPECT_EQ(arrived({"a"}, false, "/in//"), QList<QByteArray>{"/in/a"});
    EXPECT_EQ(arrived({"a"}, false, "//"), QList<QByteArray>{"//a"});
    EXPECT_EQ(arrived({"a"}, true, "in"), QList<QByteArray>());
}

TEST_F(ArrivalSearchTest, UnfinishedFiles_AreKnownByTheirNames) {
    for (const char* name : {"/in/.a.x7TQ0b", "/in/.kelvo-partial/a", "/in/.rsync-partial/a",
                             "/in/x/.~tmp~/a", "/in/.x7TQ0b", "/in/..x7TQ0b", "/in/.a.x7TQ0-",
                             "/in/.a-x7TQ0b", "/in/.a.-7TQ0b", "/in/ab.x7TQ0b", "/in/.~tmp"})
        put(name, 1);
    EXPECT_EQ(arrived({}, true),
              (QList<QByteArray>{"/in/..x7TQ0b", "/in/.a-x7TQ0b", "/in/.a.-7TQ0b", "/in/.a.x7TQ0-",
                                 "/in/.x7TQ0b", "/in/.~tmp", "/in/ab.x7TQ0b"}));
}

} // namespace
} // namespace kelvo
