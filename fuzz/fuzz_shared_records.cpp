// A shared record file of any bytes, given to the reader of each kind: no reader fails
// on it; reading only the head the file layer hands over (one line and its end) decides
// as reading the whole file does; and a record read is written back as a line of the
// kind's length that reads as the same record.
#include <string_view>

#include "editors/recurrence_panel_defaults.h"
#include "editors/shared_record_file.h"
#include "recurrence/event_rule.h"
#include "memory_drive.h"

using namespace qh;
using namespace qh::fuzz;

namespace {

std::string_view head(std::string_view bytes, SharedKind kind) {
    return bytes.substr(0, std::size_t(sharedKindTexts(kind).lineLength) + 2);
}

template <class Record, class Write>
void check(std::string_view bytes, SharedKind kind, std::optional<Record> (*read)(std::string_view), Write write) {
    const auto record = read(bytes);
    require(read(head(bytes, kind)) == record, "the head of a file reads as the whole file");
    if (!record) return;
    const std::string written = write(*record);
    require(written.size() == std::size_t(sharedKindTexts(kind).lineLength) + 2 && written.ends_with("\r\n") &&
                written.find('\r') == written.size() - 2,
            "a record is written as one line of the kind's length");
    require(read(written) == record, "a record read is written back as the same record");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    check(bytes, SharedKind::Assignment, &readSharedAssignment,
          [](const SharedAssignment& a) { return sharedFileBytes(a); });
    // An undated task is written with "today": here the date it was read with.
    check(bytes, SharedKind::Task, &readSharedTask, [](const SharedTask& t) { return sharedFileBytes(t, t.date); });
    check(bytes, SharedKind::Event, &readSharedEvent, [](const SharedEvent& e) {
        require(ProposedEndDate(recurrenceOf(e.recurrence), e.firstDate) >= e.firstDate,
                "a read event has an end date to propose");
        return sharedFileBytes(e);
    });
    return 0;
}
