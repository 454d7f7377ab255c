#include "list_view/record_index.h"

#include <gtest/gtest.h>

#include <random>

namespace qh {
namespace {

TEST(IdNumber, ReadsEveryTextAsTheRecordReadersDo) {
    const char* texts[] = {"",   "0",  "7",  "00012", "32767", "32768",  "99999",  "123456", "-1",
                           " 5", "5 ", "+3", "1a",    "abc",   "-32768", "-32769", "1.0",    "\t9"};
    for (const char* text : texts) EXPECT_EQ(IdNumber(text), int16OrZero(text)) << '"' << text << '"';
    std::mt19937 engine(5);
    const std::string alphabet = "0123456789 -+a";
    for (int round = 0; round < 5000; ++round) {
        std::string text;
        for (int n = std::uniform_int_distribution<int>(0, 7)(engine); n > 0; --n)
            text += alphabet[std::size_t(std::uniform_int_distribution<int>(0, int(alphabet.size()) - 1)(engine))];
        EXPECT_EQ(IdNumber(text), int16OrZero(text)) << '"' << text << '"';
    }
}

TEST(RowsById, VisitsEveryRowOfAnIdInRecordOrder) {
    const TextColumn ids{"3", "1", "3", "x", "0", "3", "-1"};
    const RowsById index(ids);
    const auto rowsOf = [&](Int16 id) {
        std::vector<int> rows;
        index.forEach(id, [&](int row) { rows.push_back(row); });
        return rows;
    };
    EXPECT_EQ(rowsOf(3), (std::vector<int>{1, 3, 6}));
    EXPECT_EQ(rowsOf(0), (std::vector<int>{4, 5}));  // a text that is no number reads 0
    EXPECT_EQ(rowsOf(-1), (std::vector<int>{7}));
    EXPECT_TRUE(rowsOf(2).empty());
    EXPECT_FALSE(index.contains(32767));
}

}  // namespace
}  // namespace qh
