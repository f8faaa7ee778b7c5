// What has arrived, found on a real disk after real pulls.
#include "adapters/process/posix_shell_runner.h"
#include "adapters/system/local_file_manager.h"
#include "fakes/recording_console.h"
#include "passes/arrivals.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <map>
#include <thread>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

class ArrivalsTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(QDir(fFolder.path()).mkpath(QStringLiteral("from/deep/er")));
        ASSERT_TRUE(QDir(fFolder.path()).mkpath(QStringLiteral("to")));
    }

    /// Qt does not find names that are not UTF-8.
    void TearDown() override { std::filesystem::remove_all(fFolder.path().toStdString()); }

    QByteArray at(const QByteArray& name) const { return fFolder.path().toUtf8() + '/' + name; }

    void put(const QByteArray& name, const QByteArray& content = "film") const {
        // Qt writes names in UTF-8 only.
        const std::filesystem::path path(at(name).toStdString());
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path) << content.toStdString();
    }

    /// Time enough for what comes to be told from what was there.
    void beginPass() {
        std::this_thread::sleep_for(60ms);
        fBegan = QDateTime::currentDateTimeUtc();
    }

    void rsync(const char* options) {
        const QString command =
            QStringLiteral("/usr/bin/rsync ") + QLatin1StringView(options) + QStringLiteral(" '") +
            fFolder.path() + QStringLiteral("/from/' '") + fFolder.path() + QStringLiteral("/to/'");
        EXPECT_EQ(fRunner.run({.text = command}).exitStatus, 0);
    }

    /// What arrived, by its way from the destination, with its size.
    std::map<QByteArray, qint64> arrived(const NameList& names, bool unnamedToo) {
        std::map<QByteArray, qint64> found;
        for (const Arrival& arrival : arrivalsOf(fFiles, {.destination = at("to/"),
                                                         .began = fBegan,
                                                         .names = names,
                                                         .unnamedToo = unnamedToo})) {
            EXPECT_TRUE(arrival.path.startsWith(at("to/"))) << arrival.path.toStdString();
            EXPECT_GE(arrival.arrived, fBegan.addMSecs(-20));
            EXPECT_TRUE(found.emplace(arrival.path.mid(at("to/").size()), arrival.size).second)
                << "twice: " << arrival.path.toStdString();
        }
        return found;
    }

    using Found = std::map<QByteArray, qint64>;

    QTemporaryDir fFolder;
    LocalFileManager fFiles;
    RecordingConsole fConsole;
    PosixShellRunner fRunner{fConsole};
    QDateTime fBegan;
};

TEST_F(ArrivalsTest, WhatRsyncBrings_IsFoundWithAndWithoutItsName) {
    put("to/old.mov");
    put("to/deep/old.mov");
    put("from/new.mov", "0123456789");
    put("from/deep/er/two\nlines \xff.mov", "01234");
    beginPass();
    rsync("-r --times");
    const Found both{{"new.mov", 10}, {"deep/er/two\nlines \xff.mov", 5}};
    EXPECT_EQ(arrived({}, true), both);
    EXPECT_EQ(arrived({"new.mov", "deep/er/two\nlines \xff.mov"}, false), both);
    EXPECT_EQ(arrived({"new.mov", "./new.mov"}, true), both) << "each once";
    EXPECT_EQ(arrived({}, false), Found());
    beginPass();
    rsync("-r --times");
    EXPECT_EQ(arrived({"new.mov"}, true), Found()) << "nothing came the second time";
}

TEST_F(ArrivalsTest, FileThatIsReplaced_Arrives) {
    put("to/deep/film.mov", "old");
    put("from/deep/film.mov", "new and longer");
    beginPass();
    rsync("-r --times");
    EXPECT_EQ(arrived({}, true), (Found{{"deep/film.mov", 14}}));
}

TEST_F(ArrivalsTest, ResumedPartialFile_ArrivesThoughItIsOld) {
    put("from/film.mov", QByteArray(300'000, 'x'));
    put("to/.kelvo-partial/film.mov", QByteArray(100'000, 'x'));
    beginPass();
    rsync("-r --times --no-whole-file --partial-dir=.kelvo-partial");
    EXPECT_EQ(arrived({}, true), (Found{{"film.mov", 300'000}}));
}

TEST_F(ArrivalsTest, UnfinishedFiles_HaveNotArrived) {
    beginPass();
    put("to/.kelvo-partial/half.mov");
    put("to/deep/.rsync-partial/half.mov");
    put("to/.~tmp~/half.mov");
    put("to/.film.mov.x7TQ0b");
    put("to/.hidden.mov");
    put("to/film.mov.x7TQ0b");
    EXPECT_EQ(arrived({}, true), (Found{{".hidden.mov", 4}, {"film.mov.x7TQ0b", 4}}));
}

TEST_F(ArrivalsTest, HostileNames_LeadNowhere) {
    beginPass();
    put("secret");
    put("to/film.mov");
    put("outside/film.mov");
    ASSERT_TRUE(QDir(fFolder.path()).mkpath(QStringLiteral("to/folder")));
    ASSERT_EQ(::symlink(at("secret").constData(), at("to/link").constData()), 0);
    ASSERT_EQ(::symlink(at("outside").constData(), at("to/way").constData()), 0);
    ASSERT_EQ(::mkfifo(at("to/pipe").constData(), 0600), 0);
    EXPECT_EQ(arrived({"../secret", at("secret"), "folder/../../secret", "link", "way/film.mov",
                       "pipe", "folder", "", ".", "/", "film.mov/", QByteArray("film.mov\0x", 10),
                       "not there", "film.mov/x"},
                      true),
              (Found{{"film.mov", 4}}));
}

TEST_F(ArrivalsTest, DestinationThatIsNoPath_HoldsNothing) {
    for (const char* destination : {"", "to", "/not/there/at/all"})
        EXPECT_TRUE(arrivalsOf(fFiles, {.destination = destination,
                                        .began = QDateTime::currentDateTimeUtc(),
                                        .names = {},
                                        .unnamedToo = true})
                        .empty());
}

TEST_F(ArrivalsTest, DestinationThatIsALink_IsEntered) {
    beginPass();
    put("elsewhere/film.mov");
    ASSERT_TRUE(QDir(fFolder.path()).rmdir(QStringLiteral("to")));
    ASSERT_EQ(::symlink(at("elsewhere").constData(), at("to").constData()), 0);
    EXPECT_EQ(arrived({}, true), (Found{{"film.mov", 4}}));
    EXPECT_EQ(arrived({"film.mov"}, false), (Found{{"film.mov", 4}}));
}

TEST_F(ArrivalsTest, Order_IsThatInWhichTheyCame) {
    beginPass();
    for (const char* name : {"to/c", "to/a", "to/b"}) {
        put(name);
        std::this_thread::sleep_for(30ms);
    }
    const auto arrivals = arrivalsOf(
        fFiles, {.destination = at("to"), .began = fBegan, .names = {"b"}, .unnamedToo = true});
    ASSERT_EQ(arrivals.size(), 3U);
    EXPECT_EQ(arrivals[0].path, at("to/c"));
    EXPECT_EQ(arrivals[1].path, at("to/a"));
    EXPECT_EQ(arrivals[2].path, at("to/b"));
}

} // namespace
} // namespace kelvo
