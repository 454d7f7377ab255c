#pragma once
// The kinds of failure the planner knows.
//
// An UntrappedFailure is what the planner leaves untrapped (a subscript out of range, an
// unknown colour name, an overflow outside a file routine); the common ones have a type
// each below. It travels up to the one handler at the event-dispatch boundary, which
// reports it and ends the run.
//
// A FileFailure is raised by the file layer and always caught by the file routine that
// called it, which turns it into the directory or file message. A routine that saves
// returns whether it did, and its caller either acts on a refusal or passes it up.
//
// A fault of the code itself that no student's action can cause (a record built from the
// wrong number of values) is a std::logic_error, which the tests meet first.
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

// The planner's untrapped failures by kind, each with the one text it is reported by.
// A whole number that does not fit the 16 bits the planner stores it in, or a date
// outside the years it counts.
struct Overflow : UntrappedFailure {
    Overflow() : UntrappedFailure("Overflow") {}
};
// A row or line asked for that a list, a column or a combo box does not have.
struct SubscriptOutOfRange : UntrappedFailure {
    SubscriptOutOfRange() : UntrappedFailure("Subscript out of range") {}
};
// A text read as a date, a number or a colour that is none.
struct TypeMismatch : UntrappedFailure {
    TypeMismatch() : UntrappedFailure("Type mismatch") {}
};

}  // namespace qh
