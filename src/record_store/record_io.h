#pragma once
// Pieces shared by the file routines of the record store (not for other folders).
#include <utility>

#include "common/failure.h"

namespace qh {

// Runs the file step of a routine and says whether it went through. It traps what a
// file routine traps: failures of the file layer and the run-time errors of its own
// steps (a counter passing 32767, a date field that holds no date, a row that is not
// there). Anything else is left to the program's one handler.
// `why` is set to the reason the file layer gave when it failed.
template <class Step>
bool runFileStep(Step&& step, FileProblem& why) {
    try {
        step();
        return true;
    } catch (const FileFailure& failure) {
        why = failure.problem;
    } catch (const UntrappedFailure&) {
    }
    return false;
}

template <class Step>
bool runFileStep(Step&& step) {
    FileProblem why = FileProblem::Other;
    return runFileStep(std::forward<Step>(step), why);
}

}  // namespace qh
