// The drive may be pulled out in the middle of any write. These cut writes short at
// seeded random byte offsets, inside single records and inside whole-file rewrites, and
// then read the drive again as the next start would: every record but the one being
// written stands, a whole file is either the old or the new one, and no load fails; a
// new record cut short is told as a damaged file and dropped from it.
//
// QH_TORN_WRITES sets the number of cut writes (10,000 by default) and QH_TORN_SEED the
// seed of the dice, so that a long run (fuzz/torn_writes) can try many more.
#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <random>
#include <set>

#include "shell/preferences.h"
#include "store_fixture.h"

namespace qh {
namespace {

using Row = std::vector<std::string>;
using Rows = std::vector<Row>;
using S = RecordStore;
using Columns = std::vector<TextColumn S::*>;

long long fromEnvironment(const char* name, long long otherwise) {
    const char* value = std::getenv(name);
    return value && *value ? std::atoll(value) : otherwise;
}

Rows rowsOf(const S& s, const Columns& columns) {
    Rows rows(std::size_t((s.*columns[0]).count()));
    for (std::size_t i = 0; i < rows.size(); ++i)
        for (auto column : columns) rows[i].push_back((s.*column)(int(i + 1)));
    return rows;
}

std::string wholeFile(const RecordLayout& layout, const Rows& rows) {
    std::string bytes;
    for (const Row& row : rows) bytes += buildRecord(layout, row);
    return bytes;
}

const Columns kTermColumns{&S::TermIDs, &S::TermNames, &S::TermStarts, &S::TermEnds};
const Columns kClassColumns{&S::ClassIDs,        &S::ClassTermLinks,  &S::ClassNames,
                            &S::ClassForeColors, &S::ClassBackColors, &S::ClassNotes};

// A small drive of every record file and the preferences, made once; each round puts back
// the files the round before changed.
class TornDrive {
public:
    TornDrive() {
        for (const std::string n : {"1", "2", "3"})
            terms_.push_back({n, "Term " + n, "2026/0" + n + "/01", "2026/09/28"});
        classes_ = {{"1", "1", "Biology", "Black", "MistyRose", "Room 4"},
                    {"2", "1", "Chemistry", "Navy", "AliceBlue", "Lab 2"},
                    {"3", "2", "History", "Black", "Wheat", ""},
                    {"4", "1", "Spanish", "Black", "Honeydew", "Señora Ruiz"}};
        // Every record is one the loads of term 1 take; no two values of a record are alike.
        const char* links[] = {"1", "2", "4"};
        for (int i = 1; i <= 9; ++i) {
            const std::string n = std::to_string(i), id = std::to_string(i + 30);
            values_["StudySessions.txt"].push_back({n, std::to_string((i - 1) % 6 + 31), "00 : 45", "2026/11/0" + n});
            if (i > 6) continue;
            values_["Assignments.txt"].push_back({n, id, links[i % 3], "2026/11/1" + n, "Quiz", "Easy", "00 : 30",
                                                  "Chapter " + n, "False", " ", "5", "1 Day"});
            values_["Notes.txt"].push_back({n, id, "Note " + n + " about the chapter, ümlauts and all."});
            values_["Tasks.txt"].push_back(
                {n, id, "Task " + n, "True", "2026/11/2" + n, "Home", "Low", "False", "Some notes", "None"});
            values_["Events.txt"].push_back({n, id, "2026/12/0" + n, "Event " + n, "School", "3:30 pm", "Month", "True",
                                             "First", "Day", "FFFFFFF", "False", "2027/06/0" + n, "", "1 Day"});
        }
        baseline_["Terms.txt"] = wholeFile(kTermsLayout, terms_);
        baseline_["Classes.txt"] = wholeFile(kClassesLayout, classes_);
        for (const OneRecordFile& kind : kOneRecordFiles) {
            const std::string name(kind.layout.fileName);
            baseline_[name] = wholeFile(kind.layout, values_[name]);
            // From here on each record's values as a load reads them (a grade of " " reads "").
            for (Row& row : values_[name]) row = parseRecord(kind.layout, buildRecord(kind.layout, row));
        }
        for (const auto& [name, bytes] : baseline_) d_.writeFile(name, bytes);
        EXPECT_TRUE(WritePreferences(d_.fake.platform, d_.store, {}, {"Term 1", "Monday", "No", 3}));
        baseline_["Preferences.ini"] = d_.bytesOf("Preferences.ini");
        loaded_ = load();
        // Each value lands in its own column (a note's text stays on disk).
        for (const OneRecordFile& kind : kOneRecordFiles) {
            Rows expected = values_[std::string(kind.layout.fileName)];
            for (Row& row : expected) row.resize(kind.columns.size());
            EXPECT_EQ(rowsOf(loaded_, kind.columns), expected) << kind.layout.fileName;
        }
    }

    // Cuts a save of one record, new or changed, short after a random number of bytes.
    void tearRecord(const OneRecordFile& kind, bool append, std::mt19937& dice) {
        const std::string name(kind.layout.fileName);
        const Rows& old = values_.at(name);
        const Int16 number = append ? Int16(old.size() + 1) : Int16(1 + dice() % old.size());
        // A copy of the first record for a new one; a change or a delete for an old one.
        Row values = old[append ? 0 : std::size_t(number - 1)];
        values[0] = std::to_string(number);
        values[kind.edited] = dice() % 4 == 0 ? kind.goneValue : "Changed " + std::string(dice() % 900, 'x');
        const std::string record = buildRecord(kind.layout, values);
        const std::size_t offset = dice() % record.size();
        const std::string where =
            name + " record " + std::to_string(number) + " torn at " + std::to_string(offset);

        // All a save of one record needs of the store: where the files are, and its counter.
        S store;
        store.DataDirectory = loaded_.DataDirectory;
        store.*kind.next = Int16(old.size() + 1);
        RecordFiles files(store, d_.fake.platform);
        d_.fake.files.tearWrite(1, (long long)offset);
        EXPECT_FALSE(kind.save(files, store, values, append ? Int16(0) : number)) << where;
        EXPECT_EQ(d_.fake.messages.shown.size(), 1u) << where;
        d_.fake.messages.shown.clear();
        touched_.insert(name);

        // On the drive: the old file with the record's first bytes written over it.
        std::string expected = baseline_.at(name);
        if (append)
            expected += record.substr(0, offset);
        else
            expected.replace(std::size_t(number - 1) * record.size(), offset, record, 0, offset);
        ASSERT_EQ(d_.bytesOf(name), expected) << where;

        // Read again: every other record gives the row it gave before, save the sessions
        // of an assignment the torn write may have deleted. A new record cut short is a
        // part record at the end: the file is told damaged and written anew without it; a
        // change cut short may leave a record whose fields don't read, told the same way.
        const S again = load(name);
        if (append) {
            ASSERT_EQ(d_.bytesOf(name), baseline_.at(name)) << where;
        }
        for (const OneRecordFile& other : kOneRecordFiles) {
            const bool sessionsOfTheAssignment = &kind == &kAssignmentFile && &other == &kStudySessionFile;
            const std::size_t key = &other == &kind ? 0 : sessionsOfTheAssignment ? 1 : 99;
            auto standing = [&](const S& s) {
                Rows rows = rowsOf(s, other.columns);
                std::erase_if(rows, [&](const Row& row) { return key < 99 && row[key] == values[key]; });
                return rows;
            };
            EXPECT_EQ(standing(again), standing(loaded_)) << other.layout.fileName << " when " << where;
        }
        EXPECT_EQ(again.*kind.next, Int16(old.size() + 1)) << where;

        // A torn new record is no record: the next new record takes its place whole.
        if (append && dice() % 250 == 0) {
            ASSERT_TRUE(kind.save(files, store, values, 0));
            EXPECT_EQ(d_.bytesOf(name), baseline_.at(name) + record);
        }
    }

    // Cuts Terms.txt (the first write of the save) or Classes.txt (the second) short.
    void tearTermsAndClasses(bool classes, std::mt19937& dice) {
        S store = loaded_;
        store.TermNames(1) = "Renamed " + std::to_string(dice() % 1000);
        store.ClassNames(2) = "Organic Chemistry";
        const Rows newTerms = rowsOf(store, kTermColumns);
        const std::string terms = wholeFile(kTermsLayout, newTerms);
        const std::size_t size =
            classes ? wholeFile(kClassesLayout, rowsOf(store, kClassColumns)).size() : terms.size();
        const std::size_t offset = dice() % size;
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
        const S again = load();
        EXPECT_EQ(rowsOf(again, kTermColumns), classes ? newTerms : terms_);
        EXPECT_EQ(rowsOf(again, kClassColumns), classes_);
    }

    // Cuts the rewrite of Preferences.ini short: the old options come back.
    void tearPreferences(std::mt19937& dice) {
        const PreferenceValues changed{"Term " + std::to_string(dice() % 100), "Saturday", "Yes", 9};
        d_.fake.files.tearWrite(1, (long long)(dice() % PreferencesText({}, changed).size()));
        EXPECT_FALSE(WritePreferences(d_.fake.platform, loaded_, {}, changed));
        EXPECT_TRUE(d_.fake.messages.shown.empty());
        touched_.insert("Preferences.ini");
        EXPECT_EQ(d_.bytesOf("Preferences.ini"), baseline_.at("Preferences.ini"));
        WindowPlacement window;
        PreferenceValues values;
        ReadPreferences(d_.fake.platform, loaded_, 1280, 1024, window, values);
        EXPECT_EQ(values.ActiveTerm, "Term 1");
        EXPECT_EQ(values.CurrentTip, 3);
    }

    // Puts back what the last round changed.
    void restore() {
        for (const std::string& name : touched_) d_.writeFile(name, baseline_.at(name));
        touched_.clear();
    }

private:
    // The store as the loads at start fill it, term 1 active; no load may fail, and only
    // `damaged` (if any) may be told damaged, once.
    S load(const std::string& damaged = {}) {
        S store;
        store.DataDirectory = d_.store.DataDirectory;
        store.CurrentTermID = 1;
        RecordFiles files(store, d_.fake.platform);
        EXPECT_TRUE(files.LoadTermsAndClasses() && files.LoadAssignments() && files.LoadTasks() && files.LoadEvents());
        auto& shown = d_.fake.messages.shown;
        if (!damaged.empty() && shown.size() == 1 && shown[0].text.starts_with(damaged + " is damaged: ")) shown.clear();
        EXPECT_TRUE(shown.empty()) << shown.front().text;
        shown.clear();
        return store;
    }

    StoreOnDrive d_;
    Rows terms_, classes_;
    std::map<std::string, Rows> values_;
    std::map<std::string, std::string> baseline_;
    std::set<std::string> touched_;
    S loaded_;
};

TEST(Durability, WritesCutShortAnywhereLeaveEveryOtherRecordAndTheOldWholeFiles) {
    TornDrive drive;
    const long long rounds = fromEnvironment("QH_TORN_WRITES", 10000);
    std::mt19937 dice(unsigned(fromEnvironment("QH_TORN_SEED", 20261121)));
    // Record writes by far the most. A torn Classes.txt comes seldom: its save writes
    // Terms.txt for real first, which waits for the disk.
    for (int round = 0; round < rounds && !testing::Test::HasFailure(); ++round) {
        drive.restore();
        const unsigned roll = dice() % 1000;
        if (roll < 820)
            drive.tearRecord(kOneRecordFiles[roll / 164], roll % 2 == 0, dice);
        else if (roll < 902)
            drive.tearTermsAndClasses(roll >= 900, dice);
        else
            drive.tearPreferences(dice);
        if (testing::Test::HasFailure()) FAIL() << "round " << round;
    }
}

}  // namespace
}  // namespace qh
