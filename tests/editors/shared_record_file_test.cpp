// The shared record line: its bytes against reference files, the way back to the fields,
// what is refused, and the names the save dialog offers.
#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <sstream>

#include "editors/shared_records.h"
#include "support/fake_platform.h"

namespace qh {
namespace {

using test::filledAssignment;
using test::filledEvent;
using test::filledFile;
using test::filledTask;
using test::kSharedToday;
using test::readsAs;

std::string referenceBytes(const std::string& name) {
    std::ifstream in(std::string(QH_SOURCE_DIR) + "/tests/editors/shared_files/" + name, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

// The bytes as lines of 40 positions each, numbered from 1, with the control characters
// and the bytes above 0x7F spelt out, so that a mismatch shows as a diff of the lines
// with the positions at fault.
std::string readable(const std::string& bytes) {
    std::ostringstream out;
    for (std::size_t at = 0; at < bytes.size(); at += 40) {
        out << at + 1 << ":";
        for (unsigned char c : bytes.substr(at, 40)) {
            if (c >= 0x20 && c < 0x7F)
                out << c;
            else
                out << "<" << std::hex << int(c) << std::dec << ">";
        }
        out << "\n";
    }
    return out.str();
}

TEST(SharedFileWrite, EachKindMatchesItsReferenceByteForByte) {
    const std::pair<const char*, std::string> kinds[] = {{"assignment", sharedFileBytes(filledAssignment())},
                                                         {"task", sharedFileBytes(filledTask(), kSharedToday)},
                                                         {"event", sharedFileBytes(filledEvent())}};
    for (const auto& [name, written] : kinds) {
        SCOPED_TRACE(name);
        const std::string expected = referenceBytes(std::string(name) + ".txt");
        ASSERT_FALSE(expected.empty());
        EXPECT_EQ(readable(written), readable(expected));
        EXPECT_TRUE(written == expected);  // byte for byte; the line above shows where not
    }
}

TEST(SharedFileRoundTrip, GivesBackEveryFieldWithTheNotesLineBreaks) {
    SharedAssignment assignment = filledAssignment();
    assignment.description = "Read chapter 4";  // within its width
    assignment.notes = "first\r\nsecond\r\nthird";
    EXPECT_EQ(readSharedAssignment(sharedFileBytes(assignment)), assignment);

    SharedTask task = filledTask();
    task.deadline = true;
    task.notes = "one\r\ntwo\r\nthree\nlone line feed";
    EXPECT_EQ(readSharedTask(sharedFileBytes(task, kSharedToday)), task);

    // A task without a deadline comes back with today's date and the box off.
    task.deadline = false;
    const auto undated = readSharedTask(sharedFileBytes(task, kSharedToday));
    ASSERT_TRUE(undated);
    EXPECT_EQ(undated->date, kSharedToday);
    EXPECT_FALSE(undated->deadline);
}

// Each recurrence gives back its own rule; the rule fields it doesn't use come back as a
// new event form holds them.
TEST(SharedFileRoundTrip, EventsOfEachRecurrenceGiveBackTheirRule) {
    SharedEvent monthly = filledEvent();
    monthly.name = "Chess club";
    monthly.notes = "one\r\ntwo\r\nthree";
    SharedEvent expected = monthly;
    expected.yearlyNumber = "Second";
    expected.yearlyDay = "Tuesday";
    expected.weekdays = {};
    EXPECT_EQ(readSharedEvent(sharedFileBytes(monthly)), expected);

    SharedEvent yearly = monthly;
    yearly.recurrence = "Year";
    yearly.yearlyThisDate = false;
    yearly.endOn = false;
    expected = yearly;
    expected.monthlyThisDate = true;
    expected.monthlyNumber = "Last";
    expected.monthlyDay = "Day";
    expected.weekdays = {};
    EXPECT_EQ(readSharedEvent(sharedFileBytes(yearly)), expected);

    SharedEvent daily = SharedEvent{};
    daily.name = "Run";
    daily.firstDate = dateFromYmd(2026, 11, 23);
    daily.endDate = dateFromYmd(2026, 12, 7);
    daily.recurrence = "Day";
    daily.weekdays = {true, false, false, true, false, false, true};
    daily.endOn = true;
    EXPECT_EQ(readSharedEvent(sharedFileBytes(daily)), daily);
}

TEST(SharedFileWidth, TextsAreCutAtTheirWidthInCodePageBytes) {
    SharedTask task = filledTask();
    // 59 letters and an "é": two bytes of UTF-8 but one of the file, so it still fits.
    task.description = std::string(59, 'a') + "\u00E9" + "cut off";
    task.notes = std::string(844, 'n') + "\u2192";  // an arrow, which the code page lacks
    const std::string bytes = sharedFileBytes(task, kSharedToday);
    ASSERT_EQ(bytes.size(), 951u);
    EXPECT_EQ(bytes.substr(4, 60), std::string(59, 'a') + "\xE9");
    EXPECT_EQ(bytes.substr(948), "?\r\n");
    const auto read = readSharedTask(bytes);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->description, std::string(59, 'a') + "\u00E9");
}

std::string replaced(std::string bytes, std::size_t start, std::string_view with) {
    return bytes.replace(start - 1, with.size(), with);
}

// Lines each reader must refuse, made from a valid file of the kind.
TEST(SharedFileRead, RefusesWhatIsNotAFileOfTheKind) {
    constexpr auto A = SharedKind::Assignment;
    constexpr auto T = SharedKind::Task;
    constexpr auto E = SharedKind::Event;
    const struct {
        const char* name;
        SharedKind kind;
        std::function<std::string(std::string)> damage;  // from the valid file's bytes
    } rows[] = {
        {"EventMarkerOnATaskLengthLine", T, [](std::string b) { return replaced(b, 1, "EVEN"); }},
        {"TaskMarkerOnAnEventLengthLine", E, [](std::string b) { return replaced(b, 1, "TASK "); }},
        {"LowerCaseMarker", A, [](std::string b) { return replaced(b, 1, "assignment"); }},
        {"OneByteShort", E, [](std::string b) { return b.erase(954, 1); }},
        {"OneByteLong", T, [](std::string b) { return b.insert(900, "x"); }},
        {"AnotherKindsFile", A, [](std::string) { return filledFile(T); }},
        {"Empty", T, [](std::string) { return std::string(); }},
        {"OnlyALineEnd", E, [](std::string) { return std::string("\r\n"); }},
        {"CarriageReturnInsideTheLine", A, [](std::string b) { return replaced(b, 500, "\r"); }},
        {"NulInTheNotes", E, [](std::string b) { return replaced(b, 200, std::string(1, '\0')); }},
        {"DueDateMonth13", A, [](std::string b) { return replaced(b, 86, "2026/13/01"); }},
        {"DueDateBlank", A, [](std::string b) { return replaced(b, 86, std::string(15, ' ')); }},
        {"TaskDateWords", T, [](std::string b) { return replaced(b, 70, "tomorrow  "); }},
        {"DeadlineNeitherTrueNorFalse", T, [](std::string b) { return replaced(b, 65, "Yes  "); }},
        {"EventFirstDate30February", E, [](std::string b) { return replaced(b, 66, "2027/02/30"); }},
        {"EventEndDateBlank", E, [](std::string b) { return replaced(b, 146, std::string(15, ' ')); }},
        {"UnknownRecurrence", E, [](std::string b) { return replaced(b, 101, "Week "); }},
        {"MonthlyFromLateIn9999", E, [](std::string b) { return replaced(b, 66, "9999/08/01"); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        ASSERT_TRUE(readsAs(row.kind, filledFile(row.kind)));
        EXPECT_FALSE(readsAs(row.kind, row.damage(filledFile(row.kind))));
    }
}

TEST(SharedFileRead, TakesTheFirstLineAndToleratesWhatTheWriterLeavesOpen) {
    const std::string task = sharedFileBytes(filledTask(), kSharedToday);
    EXPECT_TRUE(readSharedTask(task + "TASK and anything after the first line"));
    EXPECT_TRUE(readSharedTask(task.substr(0, 949)));  // no line end at all
    EXPECT_TRUE(readSharedTask(task.substr(0, 950)));  // a CR without its LF
    const auto lowerCase = readSharedTask(replaced(task, 65, "true "));
    ASSERT_TRUE(lowerCase);
    EXPECT_TRUE(lowerCase->deadline);
    const auto oneDigitMonth = readSharedTask(replaced(task, 70, "2026/1/5  "));
    ASSERT_TRUE(oneDigitMonth);
    EXPECT_EQ(oneDigitMonth->date, dateFromYmd(2026, 1, 5));
}

TEST(SharedFileName, IsTheTrimmedNameCutAndMadeSafe) {
    const struct {
        const char* name;
        std::string description;
        std::string expected;
    } rows[] = {
        {"Colon", "Math: test", "Math  test.txt"},
        {"Quote", "The \"big\" game", "The 'big' game.txt"},
        {"EveryUnsafeCharacter", "a*b|c\\d:e<f>g?h/i", "a b c d e f g h i.txt"},
        {"SeventyCharactersCutToForty", std::string(40, 'x') + std::string(30, 'y'), std::string(40, 'x') + ".txt"},
        {"TrimmedBeforeTheCut", "   " + std::string(45, 'z') + "  ", std::string(40, 'z') + ".txt"},
        {"FortyCharactersNotBytes", std::string(39, 'e') + "\u00E9\u00E9", std::string(39, 'e') + "\u00E9.txt"},
    };
    for (const auto& row : rows) EXPECT_EQ(sharedFileName(row.description), row.expected) << row.name;
}

TEST(SharedFileName, AssignmentNamesEndWithTheDueDate) {
    const FakeLocale locale;
    EXPECT_EQ(sharedAssignmentFileName("  Essay: \"Hamlet\"  ", dateFromYmd(2026, 12, 3), locale),
              "Essay  'Hamlet', Dec 3.txt");
    EXPECT_EQ(sharedAssignmentFileName(std::string(70, 'q'), dateFromYmd(2027, 9, 30), locale),
              std::string(40, 'q') + ", Sep 30.txt");
}

}  // namespace
}  // namespace qh
