#include "common/column.h"

#include <gtest/gtest.h>

#include "common/int16.h"

namespace qh {
namespace {

TEST(Column, IsOneBasedAndRefusesRowsOutsideIt) {
    TextColumn names{"a", "b", "c"};
    EXPECT_EQ(names(1), "a");
    EXPECT_EQ(names(3), "c");
    EXPECT_THROW(names(0), UntrappedFailure);
    EXPECT_THROW(names(4), UntrappedFailure);
    names.removeAt(2);
    EXPECT_EQ(names.count(), 2);
    EXPECT_EQ(names(2), "c");
    EXPECT_EQ(names.valueOr(7, "none"), "none");
}

TEST(Int16, OverflowIsAnErrorAndTextsReadLikeRecordFields) {
    EXPECT_EQ(toInt16(32767), 32767);
    EXPECT_THROW(toInt16(32768), Overflow);
    EXPECT_THROW(toInt16(-32769), Overflow);
    EXPECT_EQ(parseInt16("  12 "), 12);
    EXPECT_EQ(parseInt16("-1"), -1);
    EXPECT_FALSE(parseInt16("abc"));
    EXPECT_FALSE(parseInt16("1.5"));
    EXPECT_FALSE(parseInt16("40000"));
    EXPECT_EQ(int16OrZero("x"), 0);
}

}  // namespace
}  // namespace qh
