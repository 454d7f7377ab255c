#pragma once
// The sums of the assignment editor's study sessions: the count in the caption, the total
// study time, the time left on the estimate and what it flags, and the line the session
// list shows. Pure functions over the window's session texts, so `RecalculateSessions`
// only puts their answers in its controls.
//
// A span is the text "00 : 30": hours from its first two characters, minutes from its
// last two (list_view/time_text.h reads it). Every number shown takes the last two
// characters of "0" followed by the number, which keeps a minus sign only where it falls
// within those two.
#include <string>
#include <string_view>

#include "common/column.h"
#include "platform/locale.h"

namespace qh {

// The most sessions one assignment holds.
inline constexpr int kMaxStudySessions = 99;

// `LabelStudySessions`: "Study Sessions: " and the count in two digits ("Study Sessions:
// 07"); the count is at most kMaxStudySessions, so two digits always suffice.
std::string StudySessionsCaption(int count);

// The hour and minute parts of the lengths, each summed on its own: 90 minutes of
// sessions "00 : 45" twice are 0 hours and 90 minutes here.
struct StudySessionSums {
    long long hours = 0;
    long long minutes = 0;
    long long totalMinutes() const { return hours * 60 + minutes; }
    bool operator==(const StudySessionSums&) const = default;
};
StudySessionSums SumStudySessions(const TextColumn& lengths);

// The estimate (`ComboEstTime`, read as a span) less the sessions' total, in minutes;
// negative when the sessions run over.
long long TimeLeftMinutes(std::string_view estimatedTime, const StudySessionSums& sums);

// `TextBoxTotalTime`: the hours (the hour sum plus whole hours of the minute sum), held at
// 99, " : ", the minutes left over: "99 : 15" for 120 hours 15 minutes.
std::string TotalTimeText(const StudySessionSums& sums);

// `TextBoxTimeLeft`: the minutes left divided by 60 (toward zero), " : ", the remainder
// (with the sign of the minutes left), each cut to two characters. Over the estimate the
// text is what the cut leaves: 30 minutes over "00 : 30", 5 over "00 : -5", 90 over
// "-1 : 30". That text stays as it is: estimateUsedUp carries the meaning.
std::string TimeLeftText(long long minutesLeft);

// `estimateUsedUp`: true when less than one minute is left, at 0 too.
bool EstimateUsedUp(long long minutesLeft);

// The background of `TextBoxTimeLeft`: "Honeydew" while `CheckBoxDone` is set,
// "MistyRose" while it is clear.
std::string_view TimeLeftBackColor(bool done);

// Everything `RecalculateSessions` shows, for the window's session lengths, the text of
// `ComboEstTime` and the state of `CheckBoxDone`. (The caller counts it as a change as well.)
struct StudySessionSummary {
    std::string caption;        // LabelStudySessions
    std::string totalTime;      // TextBoxTotalTime
    std::string timeLeft;       // TextBoxTimeLeft
    std::string timeLeftBack;   // its background colour name
    long long minutesLeft = 0;
    bool estimateUsedUp = false;
};
StudySessionSummary RecalculateSessions(const TextColumn& lengths, std::string_view estimatedTime, bool done);

// A line of `ListBoxStudySessions`: the length, four blanks, and the session date
// ("yyyy/MM/dd") as weekday name, ", ", abbreviated month, " ", day without a leading
// zero, ", ", four-digit year: "00 : 30    Friday, Nov 20, 2026". The names are the
// host's. A date text that is no date is the untrapped "Type mismatch".
std::string StudySessionLine(std::string_view length, std::string_view sessionDate, const Locale& locale);

}  // namespace qh
