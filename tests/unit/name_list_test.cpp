#include "support/name_list.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

TEST(NameListTest, Names_StandInTheOrderTheyCame) {
    NameList names{"a", "", "film.mov"};
    const QByteArray odd("x\0\n\xff", 4);
    names.append(odd);
    ASSERT_EQ(names.size(), 4U);
    EXPECT_EQ(names[0], "a");
    EXPECT_EQ(names[1], "");
    EXPECT_EQ(names[2], "film.mov");
    EXPECT_EQ(names[3], odd);
    EXPECT_EQ(names.bytes(), 13);
}

TEST(NameListTest, AnotherList_FollowsBehind) {
    NameList names;
    names.append(NameList{"one", "two"});
    names.append(NameList());
    names.append(NameList{"three"});
    EXPECT_EQ(names, (NameList{"one", "two", "three"}));
    EXPECT_NE(names, (NameList{"onet", "wo", "three"})) << "the same bytes";
    EXPECT_NE(names, (NameList{"one", "two"}));
}

} // namespace
} // namespace kelvo
