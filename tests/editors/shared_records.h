#pragma once
// Records of the three kinds with every shared field filled, texts in UTF-8 with
// characters the code page has (é, –, “ ”, €, Ø) and notes of several lines. The byte
// references in shared_files/ hold them as written.
#include "editors/shared_record_file.h"

namespace qh::test {

inline SharedAssignment filledAssignment() {
    return {"Biologie Avancée",
            "Read chapter 4 \u2013 cells, membranes and the \u201Cfluid mosaic\u201D model",
            dateFromYmd(2026, 12, 3),
            "Test",
            "Hard",
            "01 : 30",
            "15",
            "Pages 80\u201395.\r\nLearn the diagram.\r\nBring the \u20AC for the lab fee."};
}

// No deadline: the file carries "today" (2026/11/21) in place of the picked date.
inline SharedTask filledTask() {
    return {"Call grandma: ask about \"the trip\"",         false, dateFromYmd(2027, 1, 2), "Family", "High",
            "Before Sunday.\r\nNumber is in the blue book."};
}

inline SharedEvent filledEvent() {
    SharedEvent e;
    e.name = "Chess club at the library, second Tuesday, bring the clock and board";
    e.firstDate = dateFromYmd(2026, 12, 8);
    e.type = "Recreation";
    e.time = "4:30 pm";
    e.recurrence = "Month";
    e.monthlyThisDate = false;
    e.monthlyNumber = "Second";
    e.monthlyDay = "Tuesday";
    e.yearlyThisDate = true;  // the yearly panel is not what a monthly event writes
    e.yearlyNumber = "Last";
    e.yearlyDay = "Day";
    e.weekdays = {true, false, true, false, false, false, false};
    e.endOn = true;
    e.endDate = dateFromYmd(2027, 6, 8);
    e.notes = "Room 2B.\r\nAsk Mr. \u00D8deg\u00E5rd for the key.";
    return e;
}

inline const Date kSharedToday = dateFromYmd(2026, 11, 21);

// The file of the filled record of a kind, and whether bytes read as a file of a kind.
inline std::string filledFile(SharedKind kind) {
    switch (kind) {
        case SharedKind::Assignment:
            return sharedFileBytes(filledAssignment());
        case SharedKind::Task:
            return sharedFileBytes(filledTask(), kSharedToday);
        case SharedKind::Event:
            break;
    }
    return sharedFileBytes(filledEvent());
}

inline bool readsAs(SharedKind kind, std::string_view bytes) {
    switch (kind) {
        case SharedKind::Assignment:
            return readSharedAssignment(bytes).has_value();
        case SharedKind::Task:
            return readSharedTask(bytes).has_value();
        case SharedKind::Event:
            break;
    }
    return readSharedEvent(bytes).has_value();
}

}  // namespace qh::test
