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

struct FileFailure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// A whole number that does not fit the 16 bits the planner stores it in.
struct Overflow : UntrappedFailure {
    Overflow() : UntrappedFailure("Overflow") {}
};

}  // namespace qh
