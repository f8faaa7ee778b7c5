#include "adapters/process/command_processes.h"
#include "adapters/process/command_table.h"
#include "adapters/process/shell_child.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdint>

namespace kelvo {
namespace {

using Row = std::array<std::uint64_t, 4>;
using Rows = std::array<Row, 64>;

class CommandTableTest : public ::testing::Test {
protected:
    /// One that was started long ago, as far as the table can tell.
    static ShellChild child(pid_t pid, ino_t output, ino_t errors) {
        ShellChild made;
        made.pid = pid;
        made.pipes = {output, errors};
        return made;
    }
    static Row rowOf(const ShellChild& child) {
        return {static_cast<std::uint64_t>(child.pid), startOf(child.pid), child.pipes[0],
                child.pipes[1]};
    }
    /// As a sentinel reads it.
    Rows rows() const {
        Rows found{};
        EXPECT_EQ(::pread(table.descriptor(), found.data(), sizeof found, 0),
                  ssize_t{sizeof found});
        return found;
    }

    CommandTable table;
};

TEST_F(CommandTableTest, Size_IsAlwaysThatOfAllRows) {
    struct stat status {};
    ASSERT_EQ(::fstat(table.descriptor(), &status), 0);
    EXPECT_EQ(status.st_size, off_t{sizeof(Rows)});
    EXPECT_EQ(rows(), Rows{});
}

TEST_F(CommandTableTest, CommandsBesideEachOther_HaveARowEachUntilTheyEnd) {
    const ShellChild one = child(::getpid(), 11, 12);
    const ShellChild other = child(::getppid(), 21, 22);
    table.add(one);
    table.add(other);
    Rows expected{rowOf(one), rowOf(other)};
    EXPECT_EQ(rows(), expected);
    table.remove(one.pid);
    expected[0] = {};
    EXPECT_EQ(rows(), expected);
    table.remove(one.pid);
    EXPECT_EQ(rows(), expected) << "none of that number is left";
    table.add(one);
    expected[0] = rowOf(one);
    EXPECT_EQ(rows(), expected);
}

TEST_F(CommandTableTest, CommandBeyondTheLastRow_TakesNobodysPlace) {
    for (int i = 0; i < 64; ++i)
        table.add(child(::getpid(), static_cast<ino_t>(i), 0));
    const Rows full = rows();
    EXPECT_EQ(full.back()[2], 63U);
    table.add(child(::getppid(), 99, 99));
    EXPECT_EQ(rows(), full);
}

} // namespace
} // namespace kelvo
