#include "adapters/system/detached_start.h"

#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <malloc.h>
#include <sys/wait.h>

#include <cerrno>
#include <string>
#include <vector>

namespace kelvo {
namespace {

TEST(DetachedStartTest, Program_HasASessionOfItsOwnAndNoStreams) {
    const QTemporaryDir folder;
    const QString report = folder.filePath(QStringLiteral("report"));
    const pid_t pid = startDetached(
        {"sh", "-c",
         "streams=$(readlink /proc/$$/fd/0 /proc/$$/fd/1 /proc/$$/fd/2 | tr '\\n' ' ')\n"
         "session=$(cut -d ' ' -f 6 /proc/$$/stat)\n"
         "printf '%s\\n' \"$streams\" \"$session\" \"$1\" $# >\"$0\"",
         report.toStdString(), " two  words "});
    ASSERT_GT(pid, 0);
    int status = -1;
    ASSERT_EQ(::waitpid(pid, &status, 0), pid);
    EXPECT_EQ(status, 0);
    QFile file(report);
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(file.readAll()).split(u'\n'),
              (QStringList{QStringLiteral("/dev/null /dev/null /dev/null "), QString::number(pid),
                           QStringLiteral(" two  words "), QStringLiteral("1"), QString()}));
}

TEST(DetachedStartTest, ProgramThatCannotBeStarted_IsTheSystemsReason) {
    EXPECT_EQ(startDetached({"/nowhere/program"}), -ENOENT);
    EXPECT_EQ(startDetached({"/dev/null"}), -EACCES);
}

TEST(DetachedStartTest, NothingIsKeptOfAStart) {
    const std::vector<std::string> missing{"/nowhere/program"};
    const auto keptBy = [&](int starts) {
        const auto before = static_cast<long>(::mallinfo2().uordblks);
        for (int i = 0; i < starts; ++i)
            (void)startDetached(missing);
        return static_cast<long>(::mallinfo2().uordblks) - before;
    };
    (void)keptBy(1);
    EXPECT_LT(keptBy(100), 16L * 1024);
}

} // namespace
} // namespace kelvo
