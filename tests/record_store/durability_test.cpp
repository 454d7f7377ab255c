// The drive may be pulled out in the middle of any write. These cut writes short at
// seeded random byte offsets, inside single records and inside whole-file rewrites, and
// then read the drive again as the next start would: every record but the one being
// written stands, a whole file is either the old or the new one, and no load fails.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <optional>
#include <random>
#include <set>

#include "record_store/record_layout.h"
#include "shell/preferences.h"
#include "store_fixture.h"

namespace qh {
namespace {

using Row = std::vector<std::string>;
using Rows = std::vector<Row>;

constexpr int kTornWrites = 10000;
constexpr Int16 kActiveTerm = 1;

Rows rowsOf(std::initializer_list<const TextColumn*> columns) {
    Rows rows;
    const TextColumn& first = **columns.begin();
    for (int i = 1; i <= first.count(); ++i) {
        Row row;
        for (const TextColumn* column : columns) row.push_back((*column)(i));
        rows.push_back(row);
    }
    return rows;
}

// A file written one record at a time, and what the loads make of it.
struct RecordFileKind {
    const char* name;
    const RecordLayout& layout;
    // Puts a record's values (in file order) into the store's buffer and saves it.
    std::function<bool(RecordFiles&, RecordStore&, const Row&, Int16 RecordNumber)> save;
    // The load that reads the file (the store holds the terms and classes already).
    std::function<bool(RecordFiles&)> load;
    // The rows the load made of this file, and the row it makes of one record's values.
    std::function<Rows(const RecordStore&)> rows;
    std::function<std::optional<Row>(const Row& values, const RecordStore& loaded)> rowOf;
    // Next counter of the file.
    std::function<Int16&(RecordStore&)> next;
};

bool isLiveClassOfActiveTerm(const RecordStore& s, const std::string& link) {
    for (int i = 1; i <= s.ClassIDs.count(); ++i)
        if (int16OrZero(s.ClassIDs(i)) == int16OrZero(link) && int16OrZero(s.ClassTermLinks(i)) == kActiveTerm &&
            s.ClassNames(i) != kDeletedRecord)
            return true;
    return false;
}

bool isLoadedAssignment(const RecordStore& s, const std::string& link) {
    for (const std::string& id : s.AssignmentIDs)
        if (int16OrZero(id) == int16OrZero(link)) return true;
    return false;
}

std::optional<Row> rowUnlessDeleted(const Row& values, std::size_t description) {
    if (values[description] == kDeletedRecord) return std::nullopt;
    return values;
}

const RecordFileKind kAssignments{
    "Assignments.txt",
    kAssignmentsLayout,
    [](RecordFiles& files, RecordStore& s, const Row& v, Int16 number) {
        s.AssignmentRecord = {v[0], v[1], v[2], dateFromText(v[3]), v[4], v[5], v[6], v[7], v[8], v[9], v[10], v[11]};
        return files.SaveAssignment(number);
    },
    [](RecordFiles& files) { return files.LoadAssignments(); },
    [](const RecordStore& s) {
        return rowsOf({&s.AssignmentRecordNos, &s.AssignmentIDs, &s.AssignmentClassLinks, &s.AssignmentDates,
                       &s.AssignmentTypes, &s.AssignmentDifficulties, &s.AssignmentEstTimes, &s.AssignmentDescriptions,
                       &s.AssignmentDones, &s.AssignmentGrades, &s.AssignmentWeights, &s.AssignmentReminders});
    },
    [](const Row& v, const RecordStore& s) -> std::optional<Row> {
        if (v[7] == kDeletedRecord || !isLiveClassOfActiveTerm(s, v[2])) return std::nullopt;
        return v;
    },
    [](RecordStore& s) -> Int16& { return s.NextAssignmentRecord; }};

const RecordFileKind kNotes{"Notes.txt",
                            kNotesLayout,
                            [](RecordFiles& files, RecordStore& s, const Row& v, Int16 number) {
                                s.NoteRecord = {v[0], v[1], v[2]};
                                return files.SaveNote(number);
                            },
                            [](RecordFiles& files) { return files.LoadAssignments(); },
                            [](const RecordStore& s) {
                                return rowsOf({&s.NoteRecordNos, &s.NoteLinkIDs});
                            },
                            [](const Row& v, const RecordStore&) -> std::optional<Row> {
                                if (int16OrZero(v[1]) <= 0) return std::nullopt;
                                return Row{v[0], v[1]};
                            },
                            [](RecordStore& s) -> Int16& { return s.NextNoteRecord; }};

const RecordFileKind kSessions{
    "StudySessions.txt",
    kStudySessionsLayout,
    [](RecordFiles& files, RecordStore& s, const Row& v, Int16 number) {
        s.EditStudySessionRecordNos = {v[0]};
        s.EditStudySessionLinkIDs = {v[1]};
        s.EditStudySessionLengths = {v[2]};
        s.EditStudySessionDates = {v[3]};
        return files.SaveStudySession(number, 1);
    },
    [](RecordFiles& files) { return files.LoadAssignments(); },
    [](const RecordStore& s) {
        return rowsOf({&s.StudySessionRecordNos, &s.StudySessionLinkIDs, &s.StudySessionLengths, &s.StudySessionDates});
    },
    [](const Row& v, const RecordStore& s) -> std::optional<Row> {
        if (v[1] == "0" || !isLoadedAssignment(s, v[1])) return std::nullopt;
        return v;
    },
    [](RecordStore& s) -> Int16& { return s.NextStudySessionRecord; }};

const RecordFileKind kTasks{
    "Tasks.txt",
    kTasksLayout,
    [](RecordFiles& files, RecordStore& s, const Row& v, Int16 number) {
        s.TaskRecord = {v[0], v[1], v[4], v[2], v[3], v[5], v[6], v[7], v[8], v[9]};
        return files.SaveTask(number);
    },
    [](RecordFiles& files) { return files.LoadTasks(); },
    [](const RecordStore& s) {
        return rowsOf({&s.TaskRecordNos, &s.TaskIDs, &s.TaskDescriptions, &s.TaskDateExists, &s.TaskDates, &s.TaskTypes,
                       &s.TaskPriorities, &s.TaskDones, &s.TaskNotes, &s.TaskReminders});
    },
    [](const Row& v, const RecordStore&) { return rowUnlessDeleted(v, 2); },
    [](RecordStore& s) -> Int16& { return s.NextTaskRecord; }};

const RecordFileKind kEvents{
    "Events.txt",
    kEventsLayout,
    [](RecordFiles& files, RecordStore& s, const Row& v, Int16 number) {
        s.EventRecord = {v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8], v[9], v[10], v[11], v[12], v[13], v[14]};
        return files.SaveEvent(number);
    },
    [](RecordFiles& files) { return files.LoadEvents(); },
    [](const RecordStore& s) {
        return rowsOf({&s.EventRecordNos, &s.EventIDs, &s.EventDates, &s.EventDescriptions, &s.EventTypes,
                       &s.EventTimes, &s.EventRecurrences, &s.EventSameDates, &s.EventRepeatNumbers, &s.EventRepeatDays,
                       &s.EventRepeatDailies, &s.EventEnds, &s.EventEndDates, &s.EventNotes, &s.EventReminders});
    },
    [](const Row& v, const RecordStore&) { return rowUnlessDeleted(v, 3); },
    [](RecordStore& s) -> Int16& { return s.NextEventRecord; }};

// A small drive of every record file and the preferences, made once; each round puts back
// the files the round before changed.
class TornDrive {
public:
    TornDrive() {
        for (int i = 1; i <= 3; ++i) {
            terms_.push_back({std::to_string(i), "Term " + std::to_string(i), "2026/0" + std::to_string(i) + "/01",
                              "2026/0" + std::to_string(i + 4) + "/28"});
        }
        classes_ = {{"1", "1", "Biology", "Black", "MistyRose", "Room 4"},
                    {"2", "1", "Chemistry", "Navy", "AliceBlue", "Lab 2"},
                    {"3", "2", "History", "Black", "Wheat", ""},
                    {"4", "1", "Spanish", "Black", "Honeydew", "Señora Ruiz"}};
        const char* links[] = {"1", "2", "4"};
        for (int i = 1; i <= 6; ++i) {
            const std::string n = std::to_string(i);
            values_["Assignments.txt"].push_back({n, n, links[i % 3], "2026/11/" + std::to_string(10 + i), "Quiz",
                                                  "Easy", "00 : 30", "Chapter " + n, "False", " ", "5", "1 Day"});
            values_["Notes.txt"].push_back({n, n, "Note " + n + " about the chapter, ümlauts and all."});
            values_["Tasks.txt"].push_back(
                {n, n, "Task " + n, "True", "2026/11/2" + n, "Home", "Low", "False", "Some notes", "None"});
            values_["Events.txt"].push_back({n, n, "2026/12/0" + n, "Event " + n, "School", "3:30 pm", "Month", "True",
                                             "First", "Day", "FFFFFFF", "True", "2027/06/0" + n, "", "1 Day"});
        }
        for (int i = 1; i <= 9; ++i)
            values_["StudySessions.txt"].push_back(
                {std::to_string(i), std::to_string((i - 1) % 6 + 1), "00 : 45", "2026/11/0" + std::to_string(i)});

        // Each record's values from here on as a load reads them (a grade of " " reads "").
        for (auto& [name, rows] : values_) {
            const RecordLayout& layout = kindOf(name).layout;
            std::string bytes;
            for (Row& row : rows) {
                const std::string record = buildRecord(layout, row);
                row = parseRecord(layout, record);
                bytes += record;
            }
            baseline_[name] = bytes;
        }
        baseline_["Terms.txt"] = wholeFile(kTermsLayout, terms_);
        baseline_["Classes.txt"] = wholeFile(kClassesLayout, classes_);
        for (const auto& [name, bytes] : baseline_) d_.writeFile(name, bytes);
        EXPECT_TRUE(WritePreferences(d_.fake.platform, d_.store, {}, {"Term 1", "Monday", "No", 3}));
        baseline_["Preferences.ini"] = d_.bytesOf("Preferences.ini");
        loaded_ = load();
        for (const RecordFileKind* kind : {&kAssignments, &kNotes, &kSessions, &kTasks, &kEvents})
            baselineRows_[kind->name] = kind->rows(loaded_);
    }

    // Cuts the next write short after `offset` bytes of a new or changed record.
    void tearRecord(const RecordFileKind& kind, bool append, std::mt19937& dice) {
        const Rows& old = values_.at(kind.name);
        const Int16 number = append ? Int16(old.size() + 1) : Int16(1 + dice() % old.size());
        const Row values = changed(kind, append ? Row() : old[std::size_t(number - 1)], number, dice);
        const std::string record = buildRecord(kind.layout, values);
        const std::size_t offset = dice() % record.size();

        // All a save of one record needs of the store: where the files are, and its counter.
        RecordStore store;
        store.DataDirectory = loaded_.DataDirectory;
        kind.next(store) = Int16(old.size() + 1);
        RecordFiles files(store, d_.fake.platform);
        d_.fake.files.tearWrite(1, (long long)offset);
        EXPECT_FALSE(kind.save(files, store, values, append ? Int16(0) : number)) << kind.name;
        EXPECT_EQ(d_.fake.messages.shown.size(), 1u);
        d_.fake.messages.shown.clear();
        touched_.insert(kind.name);

        // On the drive: the old file with the record's first bytes written over it.
        std::string expected = baseline_.at(kind.name);
        const std::size_t at = std::size_t(number - 1) * std::size_t(kind.layout.length);
        if (append)
            expected += record.substr(0, offset);
        else
            expected.replace(at, offset, record, 0, offset);
        ASSERT_EQ(d_.bytesOf(kind.name), expected) << kind.name << " record " << number << " torn at " << offset;

        // Read again: the rows of every other record as they were, the torn one as the
        // rules read its bytes, a torn new record not at all.
        RecordStore again = reload(kind);
        Rows rows = baselineRows_.at(kind.name);
        if (!append) {
            const std::optional<Row> torn =
                kind.rowOf(parseRecord(kind.layout, expected.substr(at, record.size())), again);
            const std::optional<Row> before = kind.rowOf(old[std::size_t(number - 1)], loaded_);
            // Every record of the drive makes one row, so record n is row n.
            ASSERT_TRUE(before.has_value());
            rows.erase(rows.begin() + (number - 1));
            if (torn) rows.insert(rows.begin() + (number - 1), *torn);
        }
        EXPECT_EQ(kind.rows(again), rows) << kind.name << " record " << number << " torn at " << offset;
        EXPECT_EQ(kind.next(again), Int16(old.size() + 1)) << kind.name;
        // The other two files of an assignment stand, but for the sessions of an
        // assignment the torn write deleted.
        const bool ofAssignments = &kind == &kAssignments || &kind == &kNotes || &kind == &kSessions;
        for (const RecordFileKind* other : {&kAssignments, &kNotes, &kSessions}) {
            if (!ofAssignments || other == &kind) continue;
            Rows standing;
            for (const Row& values : values_.at(other->name))
                if (auto row = other->rowOf(values, again)) standing.push_back(*row);
            EXPECT_EQ(other->rows(again), standing) << other->name << " while " << kind.name << " was torn";
        }

        // A torn new record is no record: the next new record takes its place whole.
        if (append && dice() % 250 == 0) {
            d_.fake.messages.shown.clear();
            ASSERT_TRUE(kind.save(files, store, values, 0));
            EXPECT_EQ(d_.bytesOf(kind.name), baseline_.at(kind.name) + record);
        }
    }

    // Cuts Terms.txt (the first write of the save) or Classes.txt (the second) short.
    void tearTermsAndClasses(bool classes, std::mt19937& dice) {
        RecordStore store = loaded_;
        store.TermNames(1) = "Renamed " + std::to_string(dice() % 1000);
        store.TermStarts(2) = "2026.2.14";
        store.ClassNames(2) = "Organic Chemistry";
        for (TextColumn* column : {&store.ClassIDs, &store.ClassTermLinks, &store.ClassNames, &store.ClassForeColors,
                                   &store.ClassBackColors, &store.ClassNotes})
            column->append(column == &store.ClassIDs ? "5" : column == &store.ClassTermLinks ? "1" : "White");
        Rows newTerms;
        for (const Row& row : rowsOf({&store.TermIDs, &store.TermNames, &store.TermStarts, &store.TermEnds}))
            newTerms.push_back({row[0], row[1], dateText(dateFromText(repairDateSeparators(row[2]))), row[3]});
        const std::string terms = wholeFile(kTermsLayout, newTerms);
        const std::string classesBytes =
            wholeFile(kClassesLayout, rowsOf({&store.ClassIDs, &store.ClassTermLinks, &store.ClassNames,
                                              &store.ClassForeColors, &store.ClassBackColors, &store.ClassNotes}));
        const std::size_t offset = dice() % (classes ? classesBytes : terms).size();

        RecordFiles files(store, d_.fake.platform);
        d_.fake.files.tearWrite(classes ? 2 : 1, (long long)offset);
        EXPECT_FALSE(files.SaveTermsAndClasses());
        EXPECT_EQ(d_.fake.messages.shown.size(), 1u);
        d_.fake.messages.shown.clear();
        touched_.insert("Terms.txt");
        touched_.insert("Classes.txt");

        // Terms.txt is the new file once its own write went through, Classes.txt the old.
        EXPECT_EQ(d_.bytesOf("Terms.txt"), classes ? terms : baseline_.at("Terms.txt")) << "torn at " << offset;
        EXPECT_EQ(d_.bytesOf("Classes.txt"), baseline_.at("Classes.txt")) << "torn at " << offset;
        RecordStore again;
        again.DataDirectory = loaded_.DataDirectory;
        RecordFiles reread(again, d_.fake.platform);
        EXPECT_TRUE(reread.LoadTermsAndClasses());
        EXPECT_TRUE(d_.fake.messages.shown.empty());
        EXPECT_EQ(rowsOf({&again.TermIDs, &again.TermNames, &again.TermStarts, &again.TermEnds}),
                  classes ? newTerms : terms_);
        EXPECT_EQ(rowsOf({&again.ClassIDs, &again.ClassTermLinks, &again.ClassNames, &again.ClassForeColors,
                          &again.ClassBackColors, &again.ClassNotes}),
                  classes_);
    }

    // Cuts the rewrite of Preferences.ini short: the old options come back.
    void tearPreferences(std::mt19937& dice) {
        const PreferenceValues changedValues{"Term " + std::to_string(dice() % 100), "Saturday", "Yes", 9};
        const std::string text = PreferencesText({}, changedValues);
        d_.fake.files.tearWrite(1, (long long)(dice() % text.size()));
        EXPECT_FALSE(WritePreferences(d_.fake.platform, loaded_, {}, changedValues));
        EXPECT_TRUE(d_.fake.messages.shown.empty());
        touched_.insert("Preferences.ini");
        EXPECT_EQ(d_.bytesOf("Preferences.ini"), baseline_.at("Preferences.ini"));
        WindowPlacement window;
        PreferenceValues values;
        ReadPreferences(d_.fake.platform, loaded_, 1280, 1024, window, values);
        EXPECT_EQ(values.ActiveTerm, "Term 1");
        EXPECT_EQ(values.StartDayOfWeek, "Monday");
        EXPECT_EQ(values.CurrentTip, 3);
    }

    // Puts back what the last round changed.
    void restore() {
        for (const std::string& name : touched_) d_.writeFile(name, baseline_.at(name));
        touched_.clear();
        d_.fake.messages.shown.clear();
    }

    const std::string& baselineOf(const std::string& name) const { return baseline_.at(name); }

private:
    static const RecordFileKind& kindOf(const std::string& name) {
        for (const RecordFileKind* kind : {&kAssignments, &kNotes, &kSessions, &kTasks, &kEvents})
            if (name == kind->name) return *kind;
        throw std::logic_error("no record file " + name);
    }

    static std::string wholeFile(const RecordLayout& layout, const Rows& rows) {
        std::string bytes;
        for (const Row& row : rows) bytes += buildRecord(layout, row);
        return bytes;
    }

    // The values a student's change writes: a new record, or an old one edited or deleted.
    static Row changed(const RecordFileKind& kind, Row values, Int16 number, std::mt19937& dice) {
        const std::string n = std::to_string(number);
        const bool remove = dice() % 4 == 0;
        if (&kind == &kAssignments) {
            if (values.empty())
                values = {n, n, "2", "2026/12/01", "Test", "Hard", "02 : 00", "", "False", " ", "20", "3 Days"};
            values[7] = remove ? kDeletedRecord : "Changed " + n;
            values[8] = "True";
        } else if (&kind == &kNotes) {
            if (values.empty()) values = {n, "2", ""};
            values[1] = remove ? "0" : values[1];
            values[2] = remove ? "" : "A longer note, written again: " + std::string(dice() % 900, 'x');
        } else if (&kind == &kSessions) {
            if (values.empty())
                values = {n, "3", "01 : 15", "2026/11/20"};
            else if (remove)
                values[1] = "-1", values[2] = "";
        } else if (&kind == &kTasks) {
            if (values.empty()) values = {n, n, "", "False", "2026/11/30", "School", "High", "False", "", "None"};
            values[2] = remove ? kDeletedRecord : "Changed task " + n;
            values[8] = std::string(dice() % 845, 'n');
        } else {
            if (values.empty())
                values = {n,        n,     "2026/12/24", "",      "Holiday",    "None", "Year",  "True",
                          "Fourth", "Day", "FFFFFFF",    "False", "2031/12/24", "",     "7 Days"};
            values[3] = remove ? kDeletedRecord : "Changed event " + n;
            values[13] = std::string(dice() % 795, 'e');
        }
        return values;
    }

    // The store as the loads at start fill it, term 1 active.
    RecordStore load() {
        RecordStore store;
        store.DataDirectory = d_.store.DataDirectory;
        store.CurrentTermID = kActiveTerm;
        RecordFiles files(store, d_.fake.platform);
        EXPECT_TRUE(files.LoadTermsAndClasses() && files.LoadAssignments() && files.LoadTasks() && files.LoadEvents());
        EXPECT_TRUE(d_.fake.messages.shown.empty()) << d_.fake.messages.shown.front().text;
        return store;
    }

    // The file of `kind` loaded again, on the terms and classes of the start.
    RecordStore reload(const RecordFileKind& kind) {
        RecordStore store;
        store.DataDirectory = loaded_.DataDirectory;
        store.CurrentTermID = kActiveTerm;
        for (auto [to, from] : {std::pair{&store.ClassIDs, &loaded_.ClassIDs},
                                {&store.ClassTermLinks, &loaded_.ClassTermLinks},
                                {&store.ClassNames, &loaded_.ClassNames}})
            *to = *from;
        RecordFiles files(store, d_.fake.platform);
        EXPECT_TRUE(kind.load(files)) << kind.name;
        EXPECT_TRUE(d_.fake.messages.shown.empty()) << d_.fake.messages.shown.front().text;
        return store;
    }

    StoreOnDrive d_;
    Rows terms_, classes_;
    std::map<std::string, Rows> values_;
    std::map<std::string, std::string> baseline_;
    std::map<std::string, Rows> baselineRows_;  // of each record file, as the loads read it
    std::set<std::string> touched_;
    RecordStore loaded_;
};

TEST(Durability, WritesCutShortAnywhereLeaveEveryOtherRecordAndTheOldWholeFiles) {
    TornDrive drive;
    std::mt19937 dice(20261121);
    // Record writes by far the most. A torn Classes.txt comes seldom: its save writes
    // Terms.txt for real first, which waits for the disk.
    const RecordFileKind* const kinds[] = {&kAssignments, &kNotes, &kSessions, &kTasks, &kEvents};
    int records = 0, wholeFiles = 0;
    for (int round = 0; round < kTornWrites && !testing::Test::HasFatalFailure(); ++round) {
        drive.restore();
        const unsigned roll = dice() % 1000;
        if (roll < 820) {
            drive.tearRecord(*kinds[roll / 164], roll % 2 == 0, dice);
            ++records;
        } else if (roll < 900) {
            drive.tearTermsAndClasses(false, dice);
            ++wholeFiles;
        } else if (roll < 902) {
            drive.tearTermsAndClasses(true, dice);
            ++wholeFiles;
        } else {
            drive.tearPreferences(dice);
            ++wholeFiles;
        }
        if (testing::Test::HasFailure()) FAIL() << "round " << round;
    }
    EXPECT_EQ(records + wholeFiles, kTornWrites);
    EXPECT_GT(wholeFiles, 1000);
}

}  // namespace
}  // namespace qh
