// The probe scripts of tests/tools/scripts, each with everything it must print and the
// files it must leave on the drive, as a student works the planner from a fresh drive.
//
// NAME.probe runs on a drive of its own. Two comment lines, which the probe itself passes
// over, steer the run:
//   # drive: SEED   the drive starts as a copy of the folder drives/SEED (several such
//                   lines lay their seeds one over the other)
//   # restart       the planner is quit and started again on the same drive
// The drive's folder is written DRIVE in the scripts and in what they print, the source
// tree SOURCE. NAME.out holds what every run printed, a line the probe refused ending it;
// each file under NAME.after/K/ (named as on the drive) must be on the drive with those
// bytes after run K. Those files and the seeds are kept as text: one line a record of a
// record file (else one a line of the file), ended by "$"; "\0{N}" stands for N NULs,
// "\ {N}" for N spaces, and "\r", "\n" and "\\" for those bytes. With QH_WRITE_REFERENCES
// set in the environment the .out files and the files under .after/ are written anew from
// the runs.
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "probe_session.h"
#include "record_store/record_tables.h"
#include "support/fake_platform.h"
#include "support/reference_files.h"

namespace qh {
namespace {

namespace fs = std::filesystem;

const fs::path kScripts = fs::path(QH_SOURCE_DIR) / "tests/tools/scripts";

std::string replaced(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

// The length of a record of the file, or 0 for a file of lines.
std::size_t recordLength(const fs::path& file) {
    for (const RecordLayout* layout : {&kTermsLayout, &kClassesLayout, &kAssignmentsLayout, &kNotesLayout,
                                       &kStudySessionsLayout, &kTasksLayout, &kEventsLayout})
        if (file.filename() == layout->fileName) return std::size_t(layout->length);
    return 0;
}

// The text form of a file's bytes, a line a record (`recordLength` > 0) or a line a line.
std::string asText(const std::string& bytes, std::size_t recordLength) {
    std::string text;
    for (std::size_t at = 0; at < bytes.size();) {
        const char c = bytes[at];
        std::size_t run = 1;
        while (at + run < bytes.size() && bytes[at + run] == c && (!recordLength || (at + run) % recordLength)) ++run;
        if (c == '\0') {
            text += "\\0{" + std::to_string(run) + "}";
        } else if (c == ' ' && run >= 8) {
            text += "\\ {" + std::to_string(run) + "}";
        } else {
            run = 1;
            text += c == '\\' ? "\\\\" : c == '\r' ? "\\r" : c == '\n' ? "\\n" : std::string(1, c);
        }
        at += run;
        if (recordLength ? at % recordLength == 0 : c == '\n') text += "$\n";
    }
    if (!text.empty() && !text.ends_with("$\n")) text += "$\n";
    return text;
}

// The bytes the text form stands for.
std::string asBytes(const std::string& text) {
    std::string bytes;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        line.pop_back();  // the "$"
        for (std::size_t at = 0; at < line.size(); ++at) {
            if (line[at] != '\\') {
                bytes += line[at];
                continue;
            }
            const char c = line[++at];
            if (c == '0' || c == ' ') {
                const std::size_t close = line.find('}', at);
                bytes.append(std::stoul(line.substr(at + 2, close - at - 2)), c == '0' ? '\0' : ' ');
                at = close;
            } else {
                bytes += c == 'r' ? '\r' : c == 'n' ? '\n' : c;
            }
        }
    }
    return bytes;
}

// Each file under `from` (text) put on the drive as its bytes.
void seedDrive(const fs::path& from, const std::string& drive) {
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(from))
        if (entry.is_regular_file())
            test::WriteBytes(drive + "/" + fs::relative(entry.path(), from).string(),
                             asBytes(test::ReadBytes(entry.path().string())));
}

// Each file under `expected` is on the drive with the bytes its text stands for.
void expectDriveFiles(const fs::path& expected, const std::string& drive) {
    if (!fs::exists(expected)) return;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(expected)) {
        if (!entry.is_regular_file()) continue;
        const std::string bytes = test::ReadBytes(drive + "/" + fs::relative(entry.path(), expected).string());
        EXPECT_EQ(test::DiffWithFile(entry.path().string(), asText(bytes, recordLength(entry.path()))), "");
    }
}

// Runs the script's runs in turn on a fresh drive; what they printed.
std::string runScript(const fs::path& script) {
    FakePlatform fake;
    fs::copy(fs::path(QH_SOURCE_DIR) / "templates", fake.exec,
             fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    std::istringstream lines(
        replaced(replaced(test::ReadBytes(script.string()), "DRIVE", fake.drive), "SOURCE", QH_SOURCE_DIR));
    std::vector<std::string> runs(1);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("# drive: ")) seedDrive(kScripts / "drives" / line.substr(9), fake.drive);
        if (line == "# restart")
            runs.emplace_back();
        else
            runs.back() += line + "\n";
    }
    std::ostringstream out;
    for (std::size_t run = 0; run < runs.size(); ++run) {
        if (run > 0) out << "# restart\n";
        ProbeSession session(fake.drive, fake.host, out);
        std::istringstream in(runs[run]);
        const bool ran = session.run(in);
        expectDriveFiles(fs::path(script).replace_extension(".after") / std::to_string(run + 1), fake.drive);
        if (!ran) {
            out << "Refused line " << session.failedLineNumber() << ": " << session.failedLine() << "\n";
            break;
        }
    }
    return replaced(replaced(out.str(), fake.drive, "DRIVE"), QH_SOURCE_DIR, "SOURCE");
}

TEST(ProbeScripts, EachPrintsItsOutputAndLeavesItsFiles) {
    int scripts = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(kScripts)) {
        if (entry.path().extension() != ".probe") continue;
        SCOPED_TRACE(entry.path().filename().string());
        ++scripts;
        const std::string printed = runScript(entry.path());
        EXPECT_EQ(test::DiffWithFile(fs::path(entry.path()).replace_extension(".out").string(), printed), "");
    }
    EXPECT_GT(scripts, 0);
}

TEST(ProbeScripts, ALineTheProbeDoesNotUnderstandIsRefused) {
    FakePlatform fake;
    std::ostringstream out;
    ProbeSession session(fake.drive, fake.host, out);
    EXPECT_FALSE(session.action("fly away"));
    EXPECT_FALSE(session.action("cell 42"));
    EXPECT_FALSE(session.action("key picCalendar Sideways"));
    EXPECT_FALSE(session.action("key LabelMonth Right"));  // a label takes no keys
    EXPECT_FALSE(session.action("wheel picGrid"));
    EXPECT_TRUE(session.action("cell 41"));
}

// The seeds and the expected files are read as the bytes they stand for.
TEST(ProbeScripts, TheTextOfAFileGivesItsBytesBack) {
    const std::string record =
        std::string("1    Say \"Hi\"\\") + std::string(30, ' ') + "x\r\n" + std::string(20, '\0');
    EXPECT_EQ(asText(record, 0), "1    Say \"Hi\"\\\\\\ {30}x\\r\\n$\n\\0{20}$\n");
    for (const std::size_t length : {std::size_t(0), record.size(), std::size_t(7)})
        EXPECT_EQ(asBytes(asText(record + record, length)), record + record) << length;
}

}  // namespace
}  // namespace qh
