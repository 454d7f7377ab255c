// sample_drive DRIVE [realistic|maximal]: makes a drive folder with a full set of planner
// records, dated around today. Start the program on it with ./run DRIVE.
#include <chrono>
#include <ctime>
#include <iostream>

#include "sample_drive.h"

namespace {

qh::Date localToday() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return qh::dateFromYmd(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
}

}  // namespace

int main(int argc, char** argv) {
    const std::string size = argc == 3 ? argv[2] : "realistic";
    if (argc < 2 || argc > 3 || (size != "realistic" && size != "maximal")) {
        std::cerr << "usage: sample_drive DRIVE [realistic|maximal]\n";
        return 2;
    }
    try {
        const auto started = std::chrono::steady_clock::now();
        const qh::sample::DriveSummary made = qh::sample::MakeSampleDrive(
            argv[1], size == "maximal" ? qh::sample::DriveSize::Maximal : qh::sample::DriveSize::Realistic,
            localToday());
        const auto seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
        const qh::sample::RecordCounts& r = made.records;
        std::cout << "Made a " << size << " drive in " << argv[1] << " (" << seconds << " s):\n"
                  << "  " << r.terms << " terms, " << r.classes << " classes, " << r.assignments << " assignments, "
                  << r.notes << " notes, " << r.studySessions << " study sessions, " << r.tasks << " tasks, "
                  << r.events << " events\n"
                  << "  active term \"" << made.activeTerm << "\": " << made.activeTermClasses << " classes, "
                  << made.activeTermAssignments << " assignments, " << made.activeTermSessions << " study sessions\n"
                  << "Start the planner on it with: ./run " << argv[1] << "\n";
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << "\n";
        return 1;
    }
    return 0;
}
