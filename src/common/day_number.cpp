#include "common/day_number.h"

#include <charconv>
#include <chrono>
#include <cstdio>

#include "common/failure.h"

namespace qh {
namespace {

using namespace std::chrono;

constexpr sys_days kEpoch = sys_days{year{1899} / December / 30};

int floorDiv(int a, int b) { return (a >= 0) ? a / b : -((-a + b - 1) / b); }

void checkYear(int y) {
    if (y < 100 || y > 9999) throw Overflow();
}

}  // namespace

long long Moment::secondsSince(const Moment& earlier) const {
    return (static_cast<long long>(date) - earlier.date) * 86400LL + (seconds - earlier.seconds);
}

int daysInMonth(int y, int m) {
    return static_cast<int>(unsigned(year_month_day_last{year{y} / month{unsigned(m)} / last}.day()));
}

Date dateFromYmd(int y, int m, int d) {
    checkYear(y);
    const auto days = sys_days{year{y} / month{unsigned(m)} / day{unsigned(d)}};
    return static_cast<Date>((days - kEpoch).count());
}

Date dateSerial(int y, int m, int d) {
    const int months0 = m - 1;
    y += floorDiv(months0, 12);
    m = months0 - floorDiv(months0, 12) * 12 + 1;
    const Date first = dateFromYmd(y, m, 1);
    const long long result = static_cast<long long>(first) + (d - 1);
    const Ymd check = ymdOf(static_cast<Date>(result));
    checkYear(check.year);
    return static_cast<Date>(result);
}

Ymd ymdOf(Date date) {
    const year_month_day ymd{kEpoch + days{date}};
    return {int(ymd.year()), int(unsigned(ymd.month())), int(unsigned(ymd.day()))};
}

int yearOf(Date date) { return ymdOf(date).year; }
int monthOf(Date date) { return ymdOf(date).month; }
int dayOf(Date date) { return ymdOf(date).day; }

int weekdayOf(Date date) {
    return static_cast<int>(weekday{kEpoch + days{date}}.c_encoding()) + 1;
}

Date addMonths(Date date, int months) {
    const Ymd ymd = ymdOf(date);
    const int total = ymd.month - 1 + months;
    const int y = ymd.year + floorDiv(total, 12);
    const int m = total - floorDiv(total, 12) * 12 + 1;
    checkYear(y);
    const int d = std::min(ymd.day, daysInMonth(y, m));
    return dateFromYmd(y, m, d);
}

Date addYears(Date date, int years) { return addMonths(date, years * 12); }

std::string dateText(Date date) {
    const Ymd ymd = ymdOf(date);
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "%04d/%02d/%02d", ymd.year, ymd.month, ymd.day);
    return buffer;
}

std::optional<Date> parseDateText(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    int parts[3] = {0, 0, 0};
    const char* p = text.data();
    const char* end = text.data() + text.size();
    for (int i = 0; i < 3; ++i) {
        if (i > 0) {
            if (p == end || *p != '/') return std::nullopt;
            ++p;
        }
        const char* start = p;
        auto [next, error] = std::from_chars(p, end, parts[i]);
        if (error != std::errc() || next == start || next - start > (i == 0 ? 4 : 2)) return std::nullopt;
        p = next;
    }
    if (p != end) return std::nullopt;
    const int y = parts[0], m = parts[1], d = parts[2];
    if (y < 100 || y > 9999 || m < 1 || m > 12 || d < 1 || d > daysInMonth(y, m)) return std::nullopt;
    return dateFromYmd(y, m, d);
}

Date dateFromText(std::string_view text) {
    if (auto date = parseDateText(text)) return *date;
    throw TypeMismatch();
}

std::string repairDateSeparators(std::string text) {
    for (char& c : text)
        if (c == '.') c = '/';
    for (char& c : text)
        if (c == '-') c = '/';
    return text;
}

}  // namespace qh
