#include "record_store/codepage.h"

#include <gtest/gtest.h>

namespace qh {
namespace {

TEST(CodePage, AccentsRoundTripThroughOneByteEach) {
    EXPECT_EQ(toCodePage("caf\xC3\xA9 M\xC3\xBCller"), "caf\xE9 M\xFCller");
    EXPECT_EQ(fromCodePage("caf\xE9 M\xFCller"), "caf\xC3\xA9 M\xC3\xBCller");
    EXPECT_EQ(toCodePage("\xE2\x82\xAC \xE2\x80\x9Cq\xE2\x80\x9D \xC5\xB8"), "\x80 \x93q\x94 \x9F");
    EXPECT_EQ(fromCodePage("\x80\x99"), "\xE2\x82\xAC\xE2\x84\xA2");
}

TEST(CodePage, CharactersTheCodePageLacksBecomeQuestionMarks) {
    EXPECT_EQ(toCodePage("\xE4\xB8\xAD!"), "?!");      // a CJK character
    EXPECT_EQ(toCodePage("\xF0\x9F\x98\x80x"), "?x");  // outside the basic plane
    EXPECT_EQ(toCodePage("a\xC3"), "a?");              // cut-off sequence
    EXPECT_EQ(toCodePage("\x80\xC0\xAF"), "???");      // stray and overlong bytes
    EXPECT_EQ(toCodePage("\xED\xA0\x80"), "???");      // a surrogate
}

TEST(CodePage, EveryByteSurvivesALoadAndASave) {
    std::string all;
    for (int b = 0; b < 256; ++b) all += char(b);
    EXPECT_EQ(toCodePage(fromCodePage(all)), all);
}

TEST(CodePage, FieldsCountBytesOfTheFile) {
    EXPECT_EQ(fieldBytes("\xC3\xA9\xC3\xA9\xC3\xA9", 2), "\xE9\xE9");  // three characters, six UTF-8 bytes
    EXPECT_EQ(fieldBytes("ab", 5), "ab   ");
    EXPECT_EQ(fieldBytes("", 3), "   ");
}

}  // namespace
}  // namespace qh
