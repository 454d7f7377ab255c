#include "record_store/damage_messages.h"

#include <map>

#include "common/text.h"

namespace qh {

const char* const kDamagedFileTitle = "Quillhollow - Damaged File";

std::string withThousands(long long number) {
    // Built forwards, a digit at a time: an insert into the middle of the text trips a
    // false alarm of the optimiser's overlap check in a release build.
    const std::string digits = std::to_string(number < 0 ? -number : number);
    std::string out = number < 0 ? "-" : "";
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) out += ',';
        out += digits[i];
    }
    return out;
}

std::string DamagedCopyName(const std::string& fileName, Date day) {
    const std::string stem = fileName.substr(0, fileName.rfind('.'));
    const Ymd ymd = ymdOf(day);
    return stem + ".damaged-" + std::to_string(ymd.year) + "-" + twoDigits(ymd.month) + "-" + twoDigits(ymd.day) +
           ".txt";
}

namespace {

std::string because(FileProblem why) {
    const std::string words = problemInWords(why);
    return words.empty() ? std::string() : " (" + words + ")";
}

}  // namespace

std::string DamagedFileText(const std::string& fileName, const CheckedRecords& checked, const std::string& copyName,
                            bool repaired, FileProblem why) {
    std::string text = fileName + " is damaged: " + withThousands(checked.readableCount()) + " of " +
                       withThousands(checked.recordsInFile) + " records could be read.";
    if (copyName.empty())
        return text + " No copy of it could be kept" + because(why) +
               ", so it is left as it is and changes to it cannot be saved.";
    text += " A copy of it was kept as " + copyName + ".";
    if (!repaired) text += " It could not be written anew" + because(why) + ", so changes to it cannot be saved.";
    return text;
}

std::string DamagedRefusalText(const std::string& fileName) {
    return fileName + " is damaged and could not be repaired: changes to it cannot be saved.";
}

std::string FullFileText(const std::string& fileName) {
    static const std::map<std::string, std::string> kinds{
        {"Terms.txt", "terms"},
        {"Classes.txt", "classes"},
        {"Assignments.txt", "assignments"},
        {"Notes.txt", "notes"},
        {"StudySessions.txt", "study sessions"},
        {"Tasks.txt", "tasks"},
        {"Events.txt", "events"},
    };
    const auto kind = kinds.find(fileName);
    return fileName + " is full: " + withThousands(kMostRecords) + " " +
           (kind == kinds.end() ? std::string("records") : kind->second) + ".";
}

}  // namespace qh
