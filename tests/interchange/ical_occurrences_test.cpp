// The events of an exported calendar fall on the planner's days: an independent reader
// (python3-recurring-ical-events) expands the written file over three years, and its
// days must be the days the planner's own event list shows, for every rule the event
// editor writes, from first dates that test the month ends, 29 February and the last
// weekdays, with and without an end date and a time of day.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <set>

#include "editors/event_rule_fit.h"
#include "interchange/ical_export_items.h"
#include "platform/fake/fake_platform.h"
#include "platform/ical/ical_codec.h"
#include "recurrence/event_records.h"
#include "recurrence/expansion.h"

namespace qh {
namespace {

constexpr const char* kOracle = "/usr/bin/python3";

std::string runOracle(const std::string& file, const std::string& first, const std::string& last) {
    const std::string command = std::string(kOracle) + " " + QH_SOURCE_DIR + "/tests/interchange/expand_ics.py '" +
                                file + "' " + first + " " + last;
    std::string out;
    FILE* pipe = ::popen(command.c_str(), "r");
    if (!pipe) return out;
    char buffer[4096];
    while (std::size_t n = std::fread(buffer, 1, sizeof buffer, pipe)) out.append(buffer, n);
    EXPECT_EQ(::pclose(pipe), 0) << "the reader failed on " << file;
    return out;
}

const char* weekdayName(Date date) {
    static constexpr const char* kNames[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                             "Thursday", "Friday", "Saturday"};
    return kNames[weekdayOf(date) - 1];
}

// Every rule form the event editor lets start on `first` (an ordinal rule must fit it).
std::vector<test::EventFields> rulesFrom(Date first) {
    std::vector<test::EventFields> out;
    const std::string date = dateText(first);
    out.push_back({.date = date, .recurrence = "None"});
    for (const char* days : {"TFTFTFF", "FFFFFFT", "TTTTTTT"})
        out.push_back({.date = date, .recurrence = "Day", .repeatDaily = days});
    for (const char* recurrence : {"Month", "Year"}) {
        out.push_back({.date = date, .recurrence = recurrence, .sameDate = "True"});
        for (const char* ordinal : {"First", "Second", "Third", "Fourth", "Last"})
            for (const char* day : {"Day", weekdayName(first)})
                if (RuleFitsStartDate(ordinal, day, first))
                    out.push_back({.date = date, .recurrence = recurrence, .sameDate = "False",
                                   .repeatNumber = ordinal, .repeatDay = day});
    }
    return out;
}

TEST(ICalendarOccurrences, AReaderExpandsTheFileToThePlannersDays) {
    if (!std::filesystem::exists(kOracle)) GTEST_SKIP() << "python3-recurring-ical-events is not installed";
    RecordStore store;
    const Date firsts[] = {dateFromYmd(2026, 11, 26), dateFromYmd(2026, 11, 30), dateFromYmd(2026, 12, 24),
                           dateFromYmd(2026, 12, 27), dateFromYmd(2027, 1, 29),  dateFromYmd(2027, 1, 31),
                           dateFromYmd(2027, 3, 30),  dateFromYmd(2028, 2, 29),  dateFromYmd(2026, 10, 25),
                           dateFromYmd(2026, 11, 1),  dateFromYmd(2026, 12, 2),  dateFromYmd(2027, 3, 3),
                           dateFromYmd(2027, 4, 4),   dateFromYmd(2027, 2, 28),  dateFromYmd(2026, 12, 31),
                           dateFromYmd(2027, 5, 15),  dateFromYmd(2027, 6, 8)};
    int variant = 0;
    for (Date first : firsts) {
        for (test::EventFields fields : rulesFrom(first)) {
            // Every third rule ends, some before their next day, most some months on.
            if (variant % 3 == 1) {
                fields.ends = "True";
                fields.endDate = dateText(first + (variant % 2 ? 200 : 3));
            }
            const int row = test::addEvent(store, fields);
            if (variant % 2) store.EventTimes(row) = "9:30 pm";
            ++variant;
        }
    }

    CalendarLinks links;
    int next = 0;
    const ICalendarItems items =
        CalendarItemsOf(store, {.tasks = false, .assignments = false}, links, [&] { return "e" + std::to_string(++next); });
    IcalCodec codec(kFakeTimeZone);
    const std::string file = std::filesystem::temp_directory_path() / "quillhollow-occurrences.ics";
    std::ofstream(file, std::ios::binary) << codec.write(items.items);

    const Date windowStart = dateFromYmd(2026, 10, 1);
    std::set<std::string> planner;
    Date yearStart = windowStart;
    for (int year = 0; year < 3; ++year) {
        const EventRows rows = ExpandEvents(store, yearStart, "Year", "All");
        for (int i = 1; i <= rows.ListEventRows.count(); ++i)
            planner.insert("e" + std::to_string(rows.ListEventRows(i)) + " " + dateText(rows.ListEventDates(i)));
        yearStart = EventRangeEnd(yearStart, "Year") + 1;
    }
    const std::string lines = runOracle(file, "2026-10-01", dateText(yearStart - 1).replace(4, 1, "-").replace(7, 1, "-"));
    std::set<std::string> reader;
    for (std::size_t at = 0; at < lines.size();) {
        std::size_t end = lines.find('\n', at);
        if (end == std::string::npos) end = lines.size();
        if (end > at) reader.insert(lines.substr(at, end - at));
        at = end + 1;
    }
    std::vector<std::string> onlyPlanner, onlyReader;
    std::set_difference(planner.begin(), planner.end(), reader.begin(), reader.end(), std::back_inserter(onlyPlanner));
    std::set_difference(reader.begin(), reader.end(), planner.begin(), planner.end(), std::back_inserter(onlyReader));
    EXPECT_GT(planner.size(), 1000u);
    const auto show = [](const std::vector<std::string>& v) {
        std::string s;
        for (std::size_t i = 0; i < v.size() && i < 20; ++i) s += v[i] + "\n";
        return s;
    };
    EXPECT_TRUE(onlyPlanner.empty()) << onlyPlanner.size() << " days the reader lacks:\n" << show(onlyPlanner);
    EXPECT_TRUE(onlyReader.empty()) << onlyReader.size() << " days the planner lacks:\n" << show(onlyReader);
    std::filesystem::remove(file);
}

}  // namespace
}  // namespace qh
