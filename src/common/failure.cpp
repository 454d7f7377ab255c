#include "common/failure.h"

namespace qh {

std::string problemInWords(FileProblem problem) {
    switch (problem) {
        case FileProblem::NoSpace: return "no space left on the drive";
        case FileProblem::ReadOnly: return "the drive is read-only";
        case FileProblem::InUse: return "the file is in use";
        case FileProblem::Other: break;
    }
    return {};
}

}  // namespace qh
