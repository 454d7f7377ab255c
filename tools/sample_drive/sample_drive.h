#pragma once
// A sample drive for trying the planner out and for measuring it: the folders of a smart
// drive and a full set of record files, written by the planner's own save routines.
//
//   DRIVE/exec                              the program's folder (./run copies it there)
//   DRIVE/Documents/Quillhollow/Data        the seven record files and Preferences.ini
//   DRIVE/Documents/Quillhollow/Data/Backup the backup folder, empty
//
// A realistic drive holds what a student gathers in two years: four terms of six
// classes, 800 assignments each with a note, 3,000 study sessions, 300 tasks and 150
// events of every kind of repetition, with a few records deleted as the editors delete
// them. Its dates lie around `today`, the newest term holds today and is the active one.
//
// A maximal drive fills every record file to 32,766 records, the most the planner loads:
// each load counts its records in a 16-bit counter that ends one past the last record, so
// a 32,767th record would make the load pass 32,767 and report an error reading the file.
// The newest term has 24 classes and holds every assignment, note and session.
//
// The same size, today and seed give the same bytes.
#include <cstdint>
#include <string>

#include "common/day_number.h"

namespace qh::sample {

enum class DriveSize { Realistic, Maximal };

inline constexpr std::uint32_t kDefaultSeed = 20261121;
inline constexpr int kMaximalRecords = 32766;

// Records of each file, tombstones included: the file's length in records.
struct RecordCounts {
    int terms = 0, classes = 0, assignments = 0, notes = 0, studySessions = 0, tasks = 0, events = 0;
    bool operator==(const RecordCounts&) const = default;
};

// What the drive holds, as the planner will find it at start.
struct DriveSummary {
    RecordCounts records;
    std::string activeTerm;         // the newest term, named in Preferences.ini
    int activeTermClasses = 0;      // live classes of the active term
    int activeTermAssignments = 0;  // live assignments of its live classes
    int activeTermSessions = 0;     // live sessions of those assignments
    int liveNotes = 0;              // notes with a link above 0, all terms
    int liveTasks = 0, liveEvents = 0;
    int eventsOfKind[8] = {};  // live events by EventKind (sample_content.h)
};

// Makes the drive in the folder `drive` (made when missing). Throws std::runtime_error
// when the folder already holds planner data, or when a save fails (with the message the
// planner showed).
DriveSummary MakeSampleDrive(const std::string& drive, DriveSize size, Date today, std::uint32_t seed = kDefaultSeed);

}  // namespace qh::sample
