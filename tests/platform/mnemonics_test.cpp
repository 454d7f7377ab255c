#include "platform/mnemonics.h"

#include <gtest/gtest.h>

namespace qh {
namespace {

using Captions = std::vector<std::string>;

TEST(Mnemonics, EachEntryOfALevelGetsALetterOfItsOwn) {
    const struct {
        const char* name;
        Captions captions, marked;
    } levels[] = {
        {"word starts first", {"File", "Edit", "Options", "Help"}, {"&File", "&Edit", "&Options", "&Help"}},
        {"a taken start falls to the next word, then to any letter",
         {"Today's Reminders", "Tasks", "Export for Printing", "Events", "Exit"},
         {"&Today's Reminders", "T&asks", "&Export for Printing", "E&vents", "E&xit"}},
        {"letters match whatever their case", {"Start", "stop"}, {"&Start", "s&top"}},
        {"separators stay and take nothing", {"New", "-", "Next"}, {"&New", "-", "N&ext"}},
        {"a caption's own letter is kept and reserved", {"Save", "&Send"}, {"S&ave", "&Send"}},
        {"a plain ampersand stays doubled and is no letter", {"R&&D", "Run"}, {"&R&&D", "R&un"}},
        {"no free letter left", {"A", "a", "A b"}, {"&A", "a", "A &b"}},
        {"digits serve as letters", {"1) Add a Class Schedule", "2) Add an Assignment"},
         {"&1) Add a Class Schedule", "&2) Add an Assignment"}},
    };
    for (const auto& level : levels) EXPECT_EQ(WithMnemonics(level.captions), level.marked) << level.name;
}

}  // namespace
}  // namespace qh
