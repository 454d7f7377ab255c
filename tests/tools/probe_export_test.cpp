// The File menu's pages and printing, driven from the probe as a user drives the window:
// each list and month sheet asks where to save, writes its page from the template beside
// the program and opens it; Print Screen prints only what the printer dialog allowed.
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "probe_session.h"
#include "record_store/record_tables.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

constexpr const char* kFilter = "HTML Files (*.html)|*.html|HTM Files (*.htm)|*.htm|All Files (*.*)|*.*";

std::size_t countOf(const std::string& text, const std::string& line) {
    std::size_t count = 0;
    for (std::size_t at = text.find(line); at != std::string::npos; at = text.find(line, at + 1)) ++count;
    return count;
}

// A drive with one term, one class, two assignments, a task and an event, and the page
// templates installed beside the program.
struct ExportDrive {
    FakePlatform fake;
    ExportDrive() {
        const std::string data = fake.dataDirectory();
        fake.writeBytes(data + "/Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/12/18"));
        fake.writeBytes(data + "/Classes.txt", classRecord(1, 1, "Algebra", "Black", "MistyRose"));
        fake.writeBytes(data + "/Assignments.txt",
                        assignmentRecord(1, 1, "2026/11/24", "Read <Hamlet> & notes", false) +
                            assignmentRecord(2, 1, "2026/11/25", "Quiz review", true));
        const TaskBuffer task{"1",     "1", "2026/11/23", "Return <library> books", "True", "None", "High",
                              "False", "",  "2 Days"};
        fake.writeBytes(data + "/Tasks.txt", buildRecord(kTasksLayout, kTaskTable.valuesOf(task)));
        const EventBuffer event{
            "1",      "1",       "2026/11/26", "Choir & band concert", "None", "None", "None", "False", "First",
            "Sunday", "FFFFFFF", "False",      "2026/11/26",           "",     "None"};
        fake.writeBytes(data + "/Events.txt", buildRecord(kEventsLayout, kEventTable.valuesOf(event)));
        std::filesystem::copy(
            std::string(QH_SOURCE_DIR) + "/templates", fake.exec,
            std::filesystem::copy_options::recursive | std::filesystem::copy_options::overwrite_existing);
    }
};

TEST(ProbeExport, EachListAndMonthSheetIsSavedWhereChosenAndOpened) {
    const struct {
        const char* mode;
        const char* menu;
        const char* title;
        const char* suggestedName;
        std::vector<std::string> inPage;
    } cases[] = {
        {"homework", "MenuExportList", "Export Assignment List to HTML File", "Homework List.html",
         {"Read &lt;Hamlet&gt; &amp; notes", "Quiz review", "Algebra", "Yes"}},
        {"sessions", "MenuExportList", "Export Study Sessions to HTML File", "Study Time List.html", {}},
        {"tasks", "MenuExportList", "Export Tasks to HTML File", "Task List.html", {"Return &lt;library&gt; books"}},
        {"reminders", "MenuExportList", "Export Reminder List to HTML File", "Reminder List.html",
         {"Return &lt;library&gt; books", "2 Days"}},
        {"events", "MenuExportList", "Export Event List to HTML File", "Event List.html", {"Choir &amp; band concert"}},
        {"homework", "MenuExportCalendar", "Export Assignments to HTML Calendar File",
         "November Homework Calendar.html",
         {"November 2026 Homework Calendar", "Read &lt;Hamlet&gt; &amp; notes"}},
        {"tasks", "MenuExportCalendar", "Export Tasks to HTML Calendar File", "November Task Calendar.html",
         {"November 2026 Task Calendar", "Return &lt;library&gt; books"}},
        {"events", "MenuExportCalendar", "Export Events to HTML Calendar File", "November Event Calendar.html",
         {"November 2026 Event Calendar", "Choir &amp; band concert"}},
    };
    ExportDrive drive;
    std::ostringstream out;
    ProbeSession session(drive.fake.drive, drive.fake.host, out);
    ASSERT_TRUE(session.action("clock 2026-11-21 09:05"));
    ASSERT_TRUE(session.action("start"));
    const std::string documents = session.window()->store.DocumentDirectory;
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.mode) + " " + c.menu);
        const std::string page = drive.fake.root + "/" + c.mode + " " + c.menu + ".html";
        out.str("");
        std::istringstream script(std::string("mode ") + c.mode + "\nfile " + page + "\nclick " + c.menu + "\n");
        ASSERT_TRUE(session.run(script)) << session.failedLine();
        EXPECT_EQ(out.str(), "Dialog save \"" + std::string(c.title) + "\" \"" + documents + "/" + c.suggestedName +
                                 "\" \"" + kFilter + "\"\nOpen \"" + page + "\"\n");
        const std::string written = drive.fake.bytesOf(page);
        ASSERT_FALSE(written.empty()) << page;
        // Every marker of the template was filled: no "~" or row marker is left for a reader.
        EXPECT_NE(written.find("Created on Saturday, November 21, 2026"), std::string::npos);
        EXPECT_EQ(written.find(">~<"), std::string::npos);
        for (const std::string& text : c.inPage) EXPECT_NE(written.find(text), std::string::npos) << text;
        for (const char* raw : {"<Hamlet>", "<library>", "Choir & band"})
            EXPECT_EQ(written.find(raw), std::string::npos);
    }
    // Cancelled, nothing is written and nothing opens.
    out.str("");
    std::istringstream cancelled("file cancel\nclick MenuExportList\n");
    ASSERT_TRUE(session.run(cancelled));
    EXPECT_EQ(countOf(out.str(), "Dialog save "), 1u);
    EXPECT_EQ(countOf(out.str(), "Open "), 0u);
}

// The printer lines answer the dialogs in turn; a click past them finds the dialog closed.
// What the print does with the answers is the print screen test's.
TEST(ProbeExport, PrintScreenPrintsOncePerAcceptedDialog) {
    ExportDrive drive;
    std::ostringstream out;
    ProbeSession session(drive.fake.drive, drive.fake.host, out);
    EXPECT_FALSE(session.action("printer 0"));
    std::string script = "printer 1\nprinter cancel\nprinter 3\n";
    for (int click = 0; click < 4; ++click) script += "click MenuPrintScreen\n";
    std::istringstream in(script);
    ASSERT_TRUE(session.run(in)) << session.failedLine();
    EXPECT_EQ(countOf(out.str(), "Printer dialog\n"), 4u);
    EXPECT_EQ(countOf(out.str(), "Printed window image\n"), 2u);
    EXPECT_EQ(countOf(out.str(), "Message: "), 0u) << out.str();
}

}  // namespace
}  // namespace qh
