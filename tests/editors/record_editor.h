#pragma once
// The task and event editors as a user drives them from the main window. Each keeps its
// records in one file, so their tests share the drive, the opening of a row and the runs
// of their two tables: the bytes each kind of save leaves, and the checks and questions.
#include <gtest/gtest.h>

#include <optional>

#include "editors/editor_form.h"
#include "support/main_window_fixture.h"

namespace qh {

// A showing's outcome by name in a failed check, for every editor's tests.
inline void PrintTo(EditorOutcome outcome, std::ostream* os) {
    *os << (outcome == EditorOutcome::Saved ? "Saved" : outcome == EditorOutcome::Deleted ? "Deleted" : "Cancelled");
}

namespace test {

// 2026-11-21, a Saturday: today and the calendar's date at the start.
template <class Window>
struct RecordEditor : LoadedMainWindow {
    using Step = std::function<void(Window&)>;
    // Opens the record of list row `row`, 0 for a new one.
    using Open = std::function<void(MainWindow&, int row)>;

    RecordEditor(std::string fileName, std::string windowName, Open open, const std::string& file)
        : fileName(std::move(fileName)), windowName(std::move(windowName)), open(std::move(open)) {
        if (!file.empty()) putDataFile(this->fileName, file);
        fake.clock.set(2026, 11, 21);
        load();
    }
    // Opens the record of `row` and drives the window with `step`.
    void run(int row, const Step& step) {
        drive<Window>(windowName, step);
        open(*window, row);
    }
    std::string file() { return dataFile(fileName); }

    std::string fileName, windowName;
    Open open;
};

// A record's fields with `change` made, as an edit leaves them.
template <class Fields, class Change>
Fields with(Fields fields, Change change) {
    change(fields);
    return fields;
}

// A drive holding `before`, the record of `row` opened and driven by `step`: the file then
// holds `after`.
template <class Window>
struct SaveCase {
    const char* name;
    std::string before;
    int row;
    std::function<void(Window&)> step;
    std::string after;
};

template <class Editor, class Window>
void expectEachSave(const std::vector<SaveCase<Window>>& cases) {
    for (const SaveCase<Window>& c : cases) {
        SCOPED_TRACE(c.name);
        Editor editor(c.before);
        editor.run(c.row, c.step);
        EXPECT_EQ(editor.file(), c.after);
    }
}

// The record of `row` driven by `step` with the message boxes answered by `answers`: the
// messages shown, whether the window stayed open and how the showing ended. A window left
// open is then hidden by no button of its own, a cancel; whatever did not save leaves the
// file as it was.
template <class Window>
struct QuestionCase {
    const char* name;
    int row;
    std::vector<MessageAnswer> answers;
    std::function<void(Window&)> step;
    std::vector<std::string> messages;
    bool staysOpen;
    EditorOutcome outcome;
};

template <class Editor, class Window>
void expectEachQuestion(const std::string& file, const std::vector<QuestionCase<Window>>& cases) {
    for (const QuestionCase<Window>& c : cases) {
        SCOPED_TRACE(c.name);
        Editor editor(file);
        editor.fake.messages.answers.assign(c.answers.begin(), c.answers.end());
        bool open = false;
        std::optional<EditorOutcome> outcome;
        editor.run(c.row, [&](Window& w) {
            c.step(w);
            open = w.visible;
            if (open) w.hide();
            outcome = w.outcome();
        });
        EXPECT_EQ(editor.messageTexts(), c.messages);
        EXPECT_EQ(open, c.staysOpen);
        EXPECT_EQ(outcome, c.outcome);
        if (c.outcome != EditorOutcome::Saved) {
            EXPECT_EQ(editor.file(), file);
        }
    }
}

}  // namespace test
}  // namespace qh
