#pragma once
// Pieces shared by the file routines of the record store (not for other folders).
#include "common/failure.h"

namespace qh {

// Runs the file step of a routine and says whether it went through. It traps what a
// file routine traps: failures of the file layer and the run-time errors of its own
// steps (a counter passing 32767, a date field that holds no date, a row that is not
// there). Anything else is left to the program's one handler.
template <class Step>
bool runFileStep(Step&& step) {
    try {
        step();
        return true;
    } catch (const FileFailure&) {
    } catch (const UntrappedFailure&) {
    }
    return false;
}

}  // namespace qh
