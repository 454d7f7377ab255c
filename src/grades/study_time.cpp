#include "grades/study_time.h"

#include <algorithm>

#include "common/flag_text.h"
#include "list_view/list_rows.h"
#include "list_view/record_index.h"

namespace qh {

std::vector<StudyLoad> GatherStudyLoad(const RecordStore& store) {
    std::vector<StudyLoad> loads;
    const StudyTimeByLink studied(store);
    const std::string none;
    for (int i = 1; i <= store.AssignmentRecordNos.count(); ++i) {
        if (store.AssignmentDescriptions.valueOr(i, none) == kDeletedRecord) continue;
        if (isTrueFlag(store.AssignmentDones.valueOr(i, none))) continue;
        const auto due = parseDateText(store.AssignmentDates.valueOr(i, none));
        if (!due) continue;
        const Span spent = studied.of(IdNumber(store.AssignmentIDs.valueOr(i, none)));
        const long long estimate = ReadSpan(store.AssignmentEstTimes.valueOr(i, none)).totalMinutes();
        loads.push_back({std::max(0LL, estimate - spent.totalMinutes()), *due});
    }
    return loads;
}

StudyAdvice AdviseStudy(const std::vector<StudyLoad>& loads, Date date) {
    std::vector<StudyLoad> byDue = loads;
    std::stable_sort(byDue.begin(), byDue.end(), [](const StudyLoad& a, const StudyLoad& b) { return a.due < b.due; });
    StudyAdvice advice;
    // Load due on or before date + k, for rising k.
    std::size_t next = 0;
    long long due = 0;
    const auto takeUpTo = [&](long long k) {
        while (next < byDue.size() && byDue[next].due <= date + k) due += byDue[next++].minutes;
    };
    takeUpTo(1);
    advice.minimum = due;
    advice.suggested = due;  // the span of one day
    while (next < byDue.size()) {
        const long long k = static_cast<long long>(byDue[next].due) - date;
        takeUpTo(k);
        advice.suggested = std::max(advice.suggested, due / k);
    }
    return advice;
}

}  // namespace qh
