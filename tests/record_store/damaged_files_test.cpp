// A drive that a hex editor, a bad sector or a pulled stick has damaged: the planner
// starts, says which file, keeps the original aside, shows every record it can find, and
// a save afterwards changes only the record meant.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "record_store/damage_messages.h"
#include "record_store/record_tables.h"
#include "store_fixture.h"

namespace qh {
namespace {

using Row = std::vector<std::string>;
using S = RecordStore;

constexpr int kRecords = 5;

// One record file of the drive: record n's values, the field a change rewrites, and the
// column the loads fill with one row per record shown.
struct Kind {
    const RecordLayout& layout;
    std::function<Row(int n)> values;
    std::size_t dateField;  // SIZE_MAX: no date
    TextColumn S::*shown;
    // Saves `values` over record `number` (0: none of its own, Terms and Classes are
    // saved whole from the columns).
    std::function<bool(RecordFiles&, S&, const Row&, Int16 number)> save;
    std::size_t colourField = 3;  // of a class
};

const std::string N(int n) { return std::to_string(n); }

// A save of one record of the file, its edited value changed.
std::function<bool(RecordFiles&, S&, const Row&, Int16)> changing(const OneRecordFile& file) {
    return [&file](RecordFiles& f, S& s, const Row& values, Int16 number) {
        Row changed = values;
        changed[file.edited] = "Changed";
        return file.save(f, s, changed, number);
    };
}

// clang-format off
const Kind kKinds[] = {
    {kTermsLayout, [](int n) { return Row{N(n), "Term " + N(n), "2026/08/31", "2026/12/18"}; }, 2, &S::TermIDs,
     [](RecordFiles& f, S& s, const Row&, Int16) { s.TermNames(1) = "Renamed"; return f.SaveTermsAndClasses(); }},
    {kClassesLayout, [](int n) { return Row{N(n + 9), "1", "Class " + N(n), "Black", "MistyRose", ""}; }, SIZE_MAX,
     &S::ClassIDs,
     [](RecordFiles& f, S& s, const Row&, Int16) { s.ClassNames(1) = "Renamed"; return f.SaveTermsAndClasses(); }},
    {kAssignmentsLayout, [](int n) { return Row{N(n), N(n), "10", "2026/11/30", "Quiz", "Easy", "00 : 30",
                                                "Chapter " + N(n), "False", "", "5", "None"}; },
     3, &S::AssignmentRecordNos, changing(kAssignmentFile)},
    {kNotesLayout, [](int n) { return Row{N(n), N(n), "Note " + N(n)}; }, SIZE_MAX, &S::NoteRecordNos,
     changing(kOneRecordFiles[1])},
    {kStudySessionsLayout, [](int n) { return Row{N(n), N(n), "00 : 45", "2026/11/0" + N(n)}; }, 3,
     &S::StudySessionRecordNos, changing(kStudySessionFile)},
    {kTasksLayout, [](int n) { return Row{N(n), N(n), "Task " + N(n), "True", "2026/11/2" + N(n), "Home", "Low",
                                          "False", "", "None"}; },
     4, &S::TaskRecordNos, changing(kTaskFile)},
    {kEventsLayout, [](int n) { return Row{N(n), N(n), "2026/12/0" + N(n), "Event " + N(n), "School", "", "None",
                                           "True", "", "", "", "False", "2027/06/01", "", "None"}; },
     2, &S::EventRecordNos, changing(kEventFile)},
};
// clang-format on

std::string goodFile(const Kind& kind, int records = kRecords) {
    std::string bytes;
    for (int n = 1; n <= records; ++n) bytes += buildRecord(kind.layout, kind.values(n));
    return bytes;
}


// A damage: the file it makes of the good one, and what a load should make of it.
struct Damage {
    const char* what;
    std::function<bool(const Kind&)> applies;
    std::function<std::string(const Kind&, const std::string& good)> make;
    int readable;      // records shown
    long long inFile;  // records the message counts
    bool fieldDamage;  // record 2 stays in the file as it was
};

bool always(const Kind&) { return true; }
bool dated(const Kind& k) { return k.dateField != SIZE_MAX; }

std::string recordAt(const Kind& k, const std::string& bytes, int n) {
    return bytes.substr(std::size_t(n - 1) * std::size_t(k.layout.length), std::size_t(k.layout.length));
}

// The good file with one field of its second record holding `value`.
std::function<std::string(const Kind&, const std::string&)> secondRecordWith(std::size_t Kind::*field,
                                                                             const std::string& value) {
    return [field, value](const Kind& k, const std::string& good) {
        Row values = k.values(2);
        values[k.*field] = value;
        return recordAt(k, good, 1) + rawRecord(k.layout, values) + good.substr(2 * std::size_t(k.layout.length));
    };
}

const Damage kDamages[] = {
    {"a record cut short", always,
     [](const Kind& k, const std::string& good) { return good + recordAt(k, good, 1).substr(0, 17); }, 5, 6, false},
    {"a record's length inserted", always,
     [](const Kind& k, const std::string& good) {
         return good.substr(0, 2 * std::size_t(k.layout.length)) + std::string(std::size_t(k.layout.length), 'x') +
                good.substr(2 * std::size_t(k.layout.length));
     },
     5, 6, false},
    {"37 bytes inserted", always,
     [](const Kind& k, const std::string& good) {
         return good.substr(0, std::size_t(k.layout.length) + 3) + std::string(37, '\x7f') +
                good.substr(std::size_t(k.layout.length) + 3);
     },
     4, 6, false},
    {"all NULs", always, [](const Kind&, const std::string& good) { return std::string(good.size(), '\0'); }, 0, 5,
     false},
    {"line ends after records", always,
     [](const Kind& k, const std::string&) {
         std::string bytes;
         for (int n = 1; n <= kRecords; ++n) bytes += buildRecord(k.layout, k.values(n)) + "\r\n";
         return bytes;
     },
     5, 6, false},
    {"a date that is no date", dated, secondRecordWith(&Kind::dateField, "soon"), 4, 5, true},
    {"the year 1500", dated, secondRecordWith(&Kind::dateField, "1500/06/01"), 4, 5, true},
    {"the year 3200", dated, secondRecordWith(&Kind::dateField, "3200/06/01"), 4, 5, true},
    {"an unknown colour", [](const Kind& k) { return &k.layout == &kClassesLayout; },
     secondRecordWith(&Kind::colourField, "Plaid"), 4, 5, true},
};

// The drive: every file good, then one damaged.
struct Drive : StoreOnDrive {
    explicit Drive(const Kind* damaged = nullptr, const std::string& bytes = {}) {
        fake.clock.set(2026, 11, 25);
        for (const Kind& kind : kKinds) writeFile(std::string(kind.layout.fileName), goodFile(kind));
        if (damaged) writeFile(std::string(damaged->layout.fileName), bytes);
    }
    bool loadAll() {
        const bool termsAndClasses = files.LoadTermsAndClasses();
        store.CurrentTermID = 1;
        return termsAndClasses && files.LoadAssignments() && files.LoadTasks() && files.LoadEvents();
    }
};

std::string copyName(const Kind& kind) {
    const std::string name(kind.layout.fileName);
    return name.substr(0, name.find('.')) + ".damaged-2026-11-25.txt";
}

// Every record of the file numbered (where the file numbers them) by its place.
void expectInPlace(const Kind& kind, const std::string& bytes, const std::string& where) {
    ASSERT_EQ(bytes.size() % std::size_t(kind.layout.length), 0u) << where;
    if (kind.layout.fields[0].name != "RecordNo") return;
    for (std::size_t at = 0, n = 1; at < bytes.size(); at += std::size_t(kind.layout.length), ++n)
        EXPECT_EQ(parseRecord(kind.layout, bytes.substr(at, std::size_t(kind.layout.length)))[0], N(int(n))) << where;
}

TEST(DamagedFiles, EveryFileAndDamageStartsNamesTheFileKeepsTheOriginalAndSavesInPlace) {
    for (const Kind& kind : kKinds) {
        const std::string name(kind.layout.fileName);
        for (const Damage& damage : kDamages) {
            if (!damage.applies(kind)) continue;
            const std::string where = name + " with " + damage.what;
            const std::string damagedBytes = damage.make(kind, goodFile(kind));
            Drive d(&kind, damagedBytes);
            ASSERT_TRUE(d.loadAll()) << where;
            ASSERT_EQ(d.fake.messages.shown.size(), 1u) << where;
            EXPECT_EQ(d.fake.messages.shown[0].title, kDamagedFileTitle);
            EXPECT_EQ(d.fake.messages.shown[0].text,
                      name + " is damaged: " + N(damage.readable) + " of " + N(int(damage.inFile)) +
                          " records could be read. A copy of it was kept as " + copyName(kind) + ".")
                << where;
            EXPECT_EQ(d.bytesOf(copyName(kind)), damagedBytes) << where;
            EXPECT_EQ((d.store.*kind.shown).count(), damage.readable) << where;
            const std::string repaired = d.bytesOf(name);
            expectInPlace(kind, repaired, where);
            if (damage.fieldDamage) {
                EXPECT_EQ(repaired, damagedBytes) << where;
            }

            // A second load of the run tells nothing more.
            d.fake.messages.shown.clear();
            const std::string data = d.store.DataDirectory;
            d.store = S{};
            d.store.DataDirectory = data;
            ASSERT_TRUE(d.loadAll()) << where;
            EXPECT_TRUE(d.fake.messages.shown.empty()) << where;
            if (damage.readable == 0) continue;

            // A change to the first record shown lands on it and nowhere else. Terms and
            // classes are saved whole, those left out of the lists after the others.
            const bool whole = &kind.layout == &kTermsLayout || &kind.layout == &kClassesLayout;
            const int number = whole ? 1 : std::stoi((d.store.*kind.shown)(1));
            const Row values = parseRecord(kind.layout, recordAt(kind, repaired, number));
            ASSERT_TRUE(kind.save(d.files, d.store, values, Int16(number))) << where;
            const std::string saved = d.bytesOf(name);
            const std::size_t length = std::size_t(kind.layout.length);
            ASSERT_EQ(saved.size(), repaired.size()) << where;
            if (whole) {
                for (std::size_t at = length; at < saved.size(); at += length)
                    EXPECT_NE(saved.find(repaired.substr(at, length)), std::string::npos) << where;
                EXPECT_NE(saved.substr(0, length), repaired.substr(0, length)) << where;
                continue;
            }
            for (std::size_t at = 0; at < saved.size(); at += length) {
                const bool meant = at == std::size_t(number - 1) * length;
                EXPECT_EQ(saved.substr(at, length) != repaired.substr(at, length), meant)
                    << where << ", record at " << at / length + 1;
            }
        }
    }
}

TEST(DamagedFiles, MoreRecordsThanTheNumbersReachKeepTheMostAFileHolds) {
    for (const Kind* kind : {&kKinds[0], &kKinds[4]}) {
        const std::string name(kind->layout.fileName);
        std::string bytes = goodFile(*kind, 1);
        while (bytes.size() < std::size_t(kMostRecords + 4) * std::size_t(kind->layout.length)) bytes += bytes;
        bytes.resize(std::size_t(kMostRecords + 4) * std::size_t(kind->layout.length));
        Drive d(kind, bytes);
        ASSERT_TRUE(d.loadAll()) << name;
        ASSERT_EQ(d.fake.messages.shown.size(), 1u) << name;
        EXPECT_EQ(d.fake.messages.shown[0].text, name +
                                                     " is damaged: 32,766 of 32,770 records could be read. "
                                                     "A copy of it was kept as " +
                                                     copyName(*kind) + ".");
        EXPECT_EQ(d.bytesOf(name).size(), std::size_t(kMostRecords) * std::size_t(kind->layout.length)) << name;
        expectInPlace(*kind, d.bytesOf(name), name);
    }
}

TEST(DamagedFiles, AFileOf200MegabytesIsReadNoFurtherThanTheMostRecordsAndKeptAside) {
    const Kind& tasks = kKinds[5];
    Drive d(&tasks, goodFile(tasks));
    const std::string path = d.path("Tasks.txt");
    std::filesystem::resize_file(path, 200ull << 20);  // sparse: NULs past the records
    ASSERT_TRUE(d.loadAll());
    ASSERT_EQ(d.fake.messages.shown.size(), 1u);
    EXPECT_EQ(d.fake.messages.shown[0].text,
              "Tasks.txt is damaged: 5 of 209,716 records could be read. "
              "A copy of it was kept as Tasks.damaged-2026-11-25.txt.");
    EXPECT_EQ(d.store.TaskRecordNos, (TextColumn{"1", "2", "3", "4", "5"}));
    EXPECT_EQ(d.bytesOf("Tasks.txt"), goodFile(tasks));
    EXPECT_EQ(std::filesystem::file_size(d.path("Tasks.damaged-2026-11-25.txt")), 200ull << 20);
    std::filesystem::remove(d.path("Tasks.damaged-2026-11-25.txt"));
}

// A drive that refuses writes, and how the messages name the reason.
const struct RefusingDrive {
    FileProblem why;
    const char* words;
} kRefusingDrives[] = {{FileProblem::NoSpace, "no space left on the drive"},
                       {FileProblem::ReadOnly, "the drive is read-only"},
                       {FileProblem::InUse, "the file is in use"}};

TEST(DamagedFiles, ADamagedFileThatCannotBeKeptAsideIsLeftAsItIsAndItsSavesRefused) {
    const Kind& tasks = kKinds[5];
    for (const RefusingDrive& drive : {kRefusingDrives[0], kRefusingDrives[1]}) {
        const std::string damaged = goodFile(tasks) + "cut";
        Drive d(&tasks, damaged);
        d.fake.files.refuseWrites(drive.why);
        ASSERT_TRUE(d.loadAll());
        ASSERT_EQ(d.fake.messages.shown.size(), 1u);
        EXPECT_EQ(d.fake.messages.shown[0].text,
                  std::string("Tasks.txt is damaged: 5 of 6 records could be read. No copy of it could be kept (") +
                      drive.words + "), so it is left as it is and changes to it cannot be saved.");
        EXPECT_EQ(d.bytesOf("Tasks.txt"), damaged);
        EXPECT_EQ(d.store.TaskRecordNos.count(), 5);
        d.fake.files.refuseWrites(FileProblem::Other);
        d.fake.messages.shown.clear();
        EXPECT_FALSE(tasks.save(d.files, d.store, tasks.values(1), 1));
        EXPECT_EQ(d.fake.messages.shown.at(0).text, DamagedRefusalText("Tasks.txt"));
        EXPECT_EQ(d.bytesOf("Tasks.txt"), damaged);
    }
}

TEST(DamagedFiles, AWriteRefusedSaysWhyWithWriteInTheTitle) {
    const Kind& events = kKinds[6];
    for (const RefusingDrive& drive : kRefusingDrives) {
        Drive d;
        ASSERT_TRUE(d.loadAll());
        d.fake.files.refuseWrites(drive.why);
        EXPECT_FALSE(events.save(d.files, d.store, events.values(1), 0));
        ASSERT_EQ(d.fake.messages.shown.size(), 1u);
        EXPECT_EQ(d.fake.messages.shown[0].title, "Quillhollow - File Write Error");
        EXPECT_EQ(d.fake.messages.shown[0].text, fileErrorText("Events.txt", "writing", drive.why));
        EXPECT_NE(d.fake.messages.shown[0].text.find(std::string("Events.txt (") + drive.words + ")"),
                  std::string::npos);
        EXPECT_EQ(d.bytesOf("Events.txt"), goodFile(events));
    }
}

}  // namespace
}  // namespace qh
