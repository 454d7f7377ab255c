#include "editors/study_session_math.h"

#include <algorithm>

#include "common/text.h"
#include "list_view/time_text.h"

namespace qh {

std::string StudySessionsCaption(int count) { return "Study Sessions: " + twoDigits(count); }

StudySessionSums SumStudySessions(const TextColumn& lengths) {
    StudySessionSums sums;
    for (const std::string& length : lengths) {
        const Span span = ReadSpan(length);
        sums.hours += span.hours;
        sums.minutes += span.minutes;
    }
    return sums;
}

long long TimeLeftMinutes(std::string_view estimatedTime, const StudySessionSums& sums) {
    return ReadSpan(estimatedTime).totalMinutes() - sums.totalMinutes();
}

std::string TotalTimeText(const StudySessionSums& sums) {
    const long long hours = std::min<long long>(sums.hours + sums.minutes / 60, 99);
    return twoDigits(hours) + " : " + twoDigits(sums.minutes % 60);
}

std::string TimeLeftText(long long minutesLeft) {
    // Division and remainder both round toward zero, so both parts carry the sign.
    return twoDigits(minutesLeft / 60) + " : " + twoDigits(minutesLeft % 60);
}

bool EstimateUsedUp(long long minutesLeft) { return minutesLeft < 1; }

std::string_view TimeLeftBackColor(bool done) { return done ? "Honeydew" : "MistyRose"; }

StudySessionSummary RecalculateSessions(const TextColumn& lengths, std::string_view estimatedTime, bool done) {
    const StudySessionSums sums = SumStudySessions(lengths);
    StudySessionSummary summary;
    summary.caption = StudySessionsCaption(lengths.count());
    summary.totalTime = TotalTimeText(sums);
    summary.minutesLeft = TimeLeftMinutes(estimatedTime, sums);
    summary.timeLeft = TimeLeftText(summary.minutesLeft);
    summary.timeLeftBack = std::string(TimeLeftBackColor(done));
    summary.estimateUsedUp = EstimateUsedUp(summary.minutesLeft);
    return summary;
}

std::string StudySessionLine(std::string_view length, std::string_view sessionDate, const Locale& locale) {
    const Date date = dateFromText(sessionDate);
    const Ymd ymd = ymdOf(date);
    std::string year = std::to_string(ymd.year);
    year.insert(0, 4 - std::min<std::size_t>(4, year.size()), '0');
    std::string line(length);
    line += "    " + locale.dayName(weekdayOf(date)) + ", " + locale.shortMonthName(ymd.month) + " " +
            std::to_string(ymd.day) + ", " + year;
    return line;
}

}  // namespace qh
