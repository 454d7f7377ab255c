// Data/CalendarLinks.txt keeps each record's UID across exports and survives a damaged line.
#include <gtest/gtest.h>

#include "interchange/calendar_links.h"

namespace qh {
namespace {

TEST(CalendarLinks, AUidIsMadeOnceAndReadBackFromTheText) {
    CalendarLinks links;
    int made = 0;
    const auto make = [&] { return "uid-" + std::to_string(++made); };
    EXPECT_EQ(links.uidOf(LinkedKind::Event, 7, make), "uid-1");
    EXPECT_EQ(links.uidOf(LinkedKind::Task, 7, make), "uid-2");
    EXPECT_EQ(links.uidOf(LinkedKind::Event, 7, make), "uid-1");
    EXPECT_TRUE(links.changed());

    CalendarLinks read = CalendarLinks::parse(links.text());
    EXPECT_FALSE(read.changed());
    EXPECT_EQ(read.uidOf(LinkedKind::Task, 7, make), "uid-2");
    EXPECT_EQ(read.uidOf(LinkedKind::Assignment, 7, make), "uid-3");
    EXPECT_TRUE(read.changed());
}

TEST(CalendarLinks, LinesThatCannotBeReadArePassedOver) {
    const CalendarLinks links = CalendarLinks::parse(
        "Quillhollow calendar links 1\r\n"
        "Event\t3\tgood@x\tschool.ics\tab12\r\n"
        "Event\tx3\tbad-id@x\t\t\r\n"
        "Meeting\t4\tbad-kind@x\t\t\r\n"
        "Task\t5\t\t\t\r\n"
        "Task\t6\tshort-line@x\r\n"
        "Assignment\t9\tlast@x\t\t");
    EXPECT_EQ(links.size(), 2u);
    ASSERT_NE(links.find(LinkedKind::Event, 3), nullptr);
    EXPECT_EQ(*links.find(LinkedKind::Event, 3), (CalendarLink{"good@x", "school.ics", "ab12"}));
    EXPECT_EQ(links.find(LinkedKind::Assignment, 9)->uid, "last@x");
}

TEST(CalendarLinks, NewUidsDiffer) {
    const std::string a = NewCalendarUid(), b = NewCalendarUid();
    EXPECT_NE(a, b);
    EXPECT_EQ(a.size(), std::string("@quillhollow").size() + 32);
}

}  // namespace
}  // namespace qh
