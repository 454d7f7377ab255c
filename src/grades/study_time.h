#pragma once
// How much to study on a date: the "Minimum" that can no longer wait (the time left on
// unfinished homework due by tomorrow, overdue work included) and the "Suggested" steady
// daily load, the highest average per day of any span of days that starts at the date and
// ends on or before the last due date. The suggestion shown is never below the minimum.
#include <vector>

#include "common/day_number.h"
#include "record_store/columns.h"

namespace qh {

// One unfinished, live assignment: its time left (estimate less study time, never below
// 0) and its due date. An assignment whose date field holds no date adds no load.
struct StudyLoad {
    long long minutes = 0;
    Date due = 0;
};
std::vector<StudyLoad> GatherStudyLoad(const RecordStore& store);

struct StudyAdvice {
    long long minimum = 0;    // M: due on or before date + 1
    long long suggested = 0;  // S: max over k >= 1 of (load due on or before date + k) / k, rounded down
};

// M and S for the loads. The span averages are evaluated where they can be largest: at a
// span of one day and at spans that end on a due date, since a span's average only falls
// while no more work comes due in it.
StudyAdvice AdviseStudy(const std::vector<StudyLoad>& loads, Date date);

}  // namespace qh
