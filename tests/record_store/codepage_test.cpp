#include "record_store/codepage.h"

#include <gtest/gtest.h>

namespace qh {
namespace {

TEST(CodePage, CharactersTakeOneByteEachAndThoseTheCodePageLacksBecomeQuestionMarks) {
    const struct {
        const char *utf8, *bytes;
    } cases[] = {
        {"caf\xC3\xA9 M\xC3\xBCller", "caf\xE9 M\xFCller"},
        {"\xE2\x82\xAC \xE2\x80\x9Cq\xE2\x80\x9D \xC5\xB8 \xE2\x84\xA2", "\x80 \x93q\x94 \x9F \x99"},
        {"\xE4\xB8\xAD!", "?!"},      // a CJK character
        {"\xF0\x9F\x98\x80x", "?x"},  // outside the basic plane
        {"a\xC3", "a?"},              // cut-off sequence
        {"\x80\xC0\xAF", "???"},      // stray and overlong bytes
        {"\xED\xA0\x80", "???"},      // a surrogate
    };
    for (const auto& c : cases) EXPECT_EQ(toCodePage(c.utf8), c.bytes) << c.utf8;
    EXPECT_EQ(fromCodePage(cases[0].bytes), cases[0].utf8);
    EXPECT_EQ(fromCodePage(cases[1].bytes), cases[1].utf8);
}

TEST(CodePage, EveryByteSurvivesALoadAndASaveAndFieldsCountBytesOfTheFile) {
    std::string all;
    for (int b = 0; b < 256; ++b) all += char(b);
    EXPECT_EQ(toCodePage(fromCodePage(all)), all);
    EXPECT_EQ(fieldBytes("\xC3\xA9\xC3\xA9\xC3\xA9", 2), "\xE9\xE9");  // three characters, six UTF-8 bytes
    EXPECT_EQ(fieldBytes("ab", 5), "ab   ");
}

}  // namespace
}  // namespace qh
