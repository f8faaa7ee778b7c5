#include "adapters/process/socket_folder.h"
#include "adapters/process/ssh_connection.h"
#include "adapters/system/private_places.h"
#include "ports/command_runner.h"
#include "ports/dispatch_queue.h"
#include "support/wait_until.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <thread>

namespace kelvo {
namespace {

const LoginTarget cTarget{.destination = QStringLiteral("mediauser@mac.local"),
                          .keyPath = QStringLiteral("/nowhere/id")};

/// A Mac that lets commands in when the test says so, and holds them until they are ended.
class HeldCommands final : public CommandRunner {
public:
    CommandResult run(const Command& command) override {
        std::unique_lock lock(fMutex);
        const CommandId id = ++fLast;
        fAsked.push_back(command);
        lock.unlock();
        command.started(id);
        lock.lock();
        fChanged.notify_all();
        fChanged.wait(lock, [&] { return fLetIn || fEnded >= id; });
        if (fEnded < id) {
            lock.unlock();
            command.received("\n");
            lock.lock();
            fChanged.wait(lock, [&] { return fEnded >= id; });
        }
        return {{}, {}, 143};
    }
    void cancel(CommandId command) override {
        const std::lock_guard lock(fMutex);
        fEnded = std::max(fEnded, command);
        fChanged.notify_all();
    }
    void letIn(bool in = true) {
        const std::lock_guard lock(fMutex);
        fLetIn = in;
        fChanged.notify_all();
    }
    void endAll() { cancel(1000); }
    std::vector<Command> asked() {
        const std::lock_guard lock(fMutex);
        return fAsked;
    }

private:
    std::mutex fMutex;
    std::condition_variable fChanged;
    std::vector<Command> fAsked;
    CommandId fLast = 0;
    CommandId fEnded = 0;
    bool fLetIn = false;
};

class Threads final : public BackgroundQueue {
public:
    void async(Work work) override { fThreads.emplace_back(std::move(work)); }
    void join() {
        for (std::thread& thread : fThreads)
            thread.join();
        fThreads.clear();
    }

private:
    std::vector<std::thread> fThreads;
};

class SshConnectionTest : public ::testing::Test {
protected:
    void TearDown() override {
        commands.endAll();
        threads.join();
    }

    std::vector<std::string> folders() const {
        std::vector<std::string> found;
        const QDir base(QString::fromStdString(temporaryFolderOfUser().path));
        for (const QString& name : base.entryList({QStringLiteral("ssh-*")}, QDir::Dirs))
            found.push_back(base.filePath(name).toStdString());
        return found;
    }
    void awaitCommands(std::size_t count) {
        ASSERT_TRUE(waitUntil([&] { return commands.asked().size() >= count; }));
    }

    HeldCommands commands;
    Threads threads;
    SshConnection connection{commands, threads};
};

TEST_F(SshConnectionTest, Nothing_IsOpenBeforeTheLoginWentWell) {
    EXPECT_EQ(connection.folder(0), QByteArray());
    connection.open(cTarget);
    EXPECT_EQ(connection.folder(0), QByteArray());
    EXPECT_FALSE(connection.hasStood());
    commands.letIn();
    const QByteArray folder = connection.folder(60);
    EXPECT_TRUE(connection.hasStood());
    ASSERT_FALSE(folder.isEmpty()) << "who waits is told";
    EXPECT_EQ(commands.asked().front().variables.at(cControlVariable), folder);
    struct stat entry {};
    ASSERT_EQ(::lstat(folder.constData(), &entry), 0);
    EXPECT_EQ(entry.st_mode & 07777U, 0700U);
}

TEST_F(SshConnectionTest, Closed_EndsTheCommandAndRemovesTheFolder) {
    commands.letIn();
    connection.open(cTarget);
    ASSERT_FALSE(connection.folder(60).isEmpty());
    connection.close();
    EXPECT_EQ(connection.folder(0), QByteArray());
    threads.join();
    EXPECT_EQ(folders(), std::vector<std::string>());
    connection.close();
}

TEST_F(SshConnectionTest, ClosedInMidLogin_NeverOpens) {
    connection.open(cTarget);
    awaitCommands(1);
    connection.close();
    commands.letIn();
    threads.join();
    EXPECT_EQ(connection.folder(0), QByteArray());
}

TEST_F(SshConnectionTest, OpenedAgain_EndsTheFirstAndLiesElsewhere) {
    commands.letIn();
    connection.open(cTarget);
    const QByteArray first = connection.folder(60);
    commands.letIn(false);
    connection.open(cTarget);
    EXPECT_EQ(connection.folder(0), QByteArray());
    commands.letIn();
    const QByteArray second = connection.folder(60);
    EXPECT_FALSE(second.isEmpty());
    EXPECT_NE(first, second);
    EXPECT_TRUE(waitUntil([&] { return folders().size() == 1; }));
}

TEST_F(SshConnectionTest, BrokenConnection_IsClosed) {
    commands.letIn();
    connection.open(cTarget);
    ASSERT_FALSE(connection.folder(60).isEmpty());
    commands.endAll();
    EXPECT_TRUE(waitUntil([&] { return connection.folder(0).isEmpty(); }));
    EXPECT_TRUE(connection.hasStood());
    commands.letIn(false);
    connection.open(cTarget);
    EXPECT_FALSE(connection.hasStood()) << "another one";
}

TEST_F(SshConnectionTest, LoginThatFails_KeepsNobodyWaiting) {
    connection.open(cTarget);
    awaitCommands(1);
    commands.endAll();
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(connection.folder(3600), QByteArray());
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::minutes(10));
    EXPECT_FALSE(connection.hasStood());
}

TEST_F(SshConnectionTest, AnotherKeyInTheFile_ClosesIt) {
    const QTemporaryDir folder;
    LoginTarget target = cTarget;
    target.keyPath = folder.filePath(QStringLiteral("id"));
    const auto write = [&](const char* text) {
        QFile file(target.keyPath);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(text);
    };
    write("one");
    commands.letIn();
    connection.open(target);
    EXPECT_FALSE(connection.folder(60).isEmpty());
    EXPECT_FALSE(connection.folder(0).isEmpty());
    write("another");
    EXPECT_EQ(connection.folder(0), QByteArray());
    threads.join();
}

TEST_F(SshConnectionTest, OddNames_StayWordsOfTheCommand) {
    connection.open(
        {.destination = QStringLiteral("a$(b)@c`d`"), .keyPath = QStringLiteral("/home/o'\"/id")});
    awaitCommands(1);
    const QString text = commands.asked().front().text;
    EXPECT_TRUE(text.contains(QStringLiteral("\"a\\$(b)@c\\`d\\`\""))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("\"/home/o'\\\"/id\""))) << text.toStdString();
}

// -- the folder

class SocketFolderTest : public ::testing::Test {
protected:
    SocketFolderTest() { ::setenv("XDG_RUNTIME_DIR", fBase.path().toLocal8Bit().constData(), 1); }
    ~SocketFolderTest() override {
        if (fBefore.isNull())
            ::unsetenv("XDG_RUNTIME_DIR");
        else
            ::setenv("XDG_RUNTIME_DIR", fBefore.constData(), 1);
    }
    QStringList names() const {
        return QDir(fBase.filePath(QStringLiteral("kelvo-mirror")))
            .entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    }

    const QByteArray fBefore = qgetenv("XDG_RUNTIME_DIR");
    QTemporaryDir fBase{QStringLiteral("/tmp/run-XXXXXX")};
};

TEST_F(SocketFolderTest, WhatAKilledProgramLeft_IsRemovedAndWhatIsInUseStays) {
    const QString old = fBase.filePath(QStringLiteral("kelvo-mirror/ssh-abcdef"));
    const QString other = fBase.filePath(QStringLiteral("kelvo-mirror/share"));
    ASSERT_TRUE(QDir().mkpath(old) && QDir().mkpath(other));
    ASSERT_EQ(
        ::chmod(fBase.filePath(QStringLiteral("kelvo-mirror")).toLocal8Bit().constData(), 0700), 0);
    QFile socket(old + QStringLiteral("/socket"));
    ASSERT_TRUE(socket.open(QFile::WriteOnly));

    const SocketFolder first(57);
    const SocketFolder second(57);
    EXPECT_FALSE(first.path().empty());
    EXPECT_FALSE(second.path().empty());
    EXPECT_TRUE(QDir(QString::fromStdString(first.path())).exists()) << "it is in use";
    EXPECT_FALSE(QDir(old).exists());
    EXPECT_TRUE(QDir(other).exists());
    EXPECT_EQ(names().size(), 3);
}

TEST_F(SocketFolderTest, FolderThatOthersMayEnter_IsNotTaken) {
    ASSERT_TRUE(QDir().mkpath(fBase.filePath(QStringLiteral("kelvo-mirror"))));
    ASSERT_EQ(
        ::chmod(fBase.filePath(QStringLiteral("kelvo-mirror")).toLocal8Bit().constData(), 0777), 0);
    EXPECT_EQ(SocketFolder(57).path(), "");
    EXPECT_EQ(names(), QStringList());
}

TEST_F(SocketFolderTest, PathTooLongForASocket_IsPassedOver) {
    const QTemporaryDir deep(fBase.filePath(QString(60, u'x') + QStringLiteral("-XXXXXX")));
    ::setenv("XDG_RUNTIME_DIR", deep.path().toLocal8Bit().constData(), 1);
    EXPECT_FALSE(SocketFolder(1).path().empty());
    const SocketFolder folder(57);
    EXPECT_LE(folder.path().size() + 1 + 57, 107U);
    EXPECT_FALSE(QString::fromStdString(folder.path()).startsWith(deep.path()));
    EXPECT_EQ(SocketFolder(200).path(), "") << "nowhere";
}

} // namespace
} // namespace kelvo
