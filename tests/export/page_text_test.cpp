#include "export/page_text.h"

#include <gtest/gtest.h>

namespace qh {
namespace {

TEST(PageText, EscapingMakesMarkupTextAndEscapesEachCharacterOnce) {
    const std::pair<const char*, const char*> cases[] = {
        {"Read <Hamlet> & take \"notes\"", "Read &lt;Hamlet&gt; &amp; take &quot;notes&quot;"},
        {"<script>alert(1)</script>", "&lt;script&gt;alert(1)&lt;/script&gt;"},
        {"already &lt; escaped", "already &amp;lt; escaped"},
        {"it's fine ~ INSERT", "it's fine ~ INSERT"},
        {"", ""},
    };
    for (const auto& [text, escaped] : cases) EXPECT_EQ(EscapeHtml(text), escaped) << text;
}

TEST(PageText, MarkersAreFoundAndReplacedWithoutRegardToCase) {
    EXPECT_TRUE(ContainsIgnoringCase("<!-- insert here -->", "INSERT"));
    EXPECT_TRUE(ContainsIgnoringCase("x InSeRt", "INSERT"));
    EXPECT_FALSE(ContainsIgnoringCase("INSER", "INSERT"));
    EXPECT_EQ(ReplaceIgnoringCase("a XRedBG b xredbg", "xredbg", "xblackbg"), "a xblackbg b xblackbg");
    // The replacement is not searched again.
    EXPECT_EQ(ReplaceIgnoringCase("~~", "~", "~x~"), "~x~~x~");
    EXPECT_EQ(ReplaceIgnoringCase("none here", "~", "x"), "none here");
}

TEST(PageText, TemplateLinesDropTheirEnds) {
    const std::vector<std::string_view> lines = TemplateLines("a\r\nb\n\nc");
    EXPECT_EQ(lines, (std::vector<std::string_view>{"a", "b", "", "c"}));
    EXPECT_TRUE(TemplateLines("").empty());
    EXPECT_EQ(TemplateLines("only\n").size(), 1u);
}

TEST(PageText, FirstCharactersKeepsWholeCharacters) {
    EXPECT_EQ(FirstCharacters("History & Civics", 14), "History & Civi");
    EXPECT_EQ(FirstCharacters("Économie", 2), "Éc");
    EXPECT_EQ(FirstCharacters("ab", 14), "ab");
}

}  // namespace
}  // namespace qh
