#pragma once
// The two kinds of failure the planner knows.
//
// An UntrappedFailure is what the planner leaves untrapped (a subscript out of range, an
// unknown colour name, an overflow outside a file routine). It travels up to the one
// handler at the event-dispatch boundary, which reports it and ends the run.
//
// A FileFailure is raised by the file layer and always caught by the file routine that
// called it, which turns it into the directory or file message.
#include <stdexcept>
#include <string>

namespace qh {

struct UntrappedFailure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Why the system refused a file operation, as far as the planner tells the student.
enum class FileProblem {
    Other,
    NoSpace,   // no space left on the drive
    ReadOnly,  // the drive (or the file) may not be written
    InUse,     // another program holds the file
};

struct FileFailure : std::runtime_error {
    explicit FileFailure(const std::string& what, FileProblem why = FileProblem::Other)
        : std::runtime_error(what), problem(why) {}
    FileProblem problem;
};

// The reason in the student's words: "no space left on the drive", "the drive is
// read-only", "the file is in use"; empty for any other failure.
std::string problemInWords(FileProblem problem);

// A whole number that does not fit the 16 bits the planner stores it in.
struct Overflow : UntrappedFailure {
    Overflow() : UntrappedFailure("Overflow") {}
};

}  // namespace qh
