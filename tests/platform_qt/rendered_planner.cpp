#include "rendered_planner.h"

#include <QApplication>
#include <QTest>

#include "editors/editor_windows.h"
#include "qt_test_support.h"

namespace qh {

RenderedPlanner::RenderedPlanner() {
    testApplication();
    putDataFile("Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/12/18"));
    putDataFile("Classes.txt", classRecord(1, 1, "Algebra", "Black", "MistyRose"));
    putDataFile("Preferences.ini", "[Options]\r\nActiveTerm=Fall 2026\r\n");
    fake.clock.set(2026, 11, 21);
    load();
    renderer.quitWhenLastWindowCloses = false;
    renderer.show(*window);
    activate(mainFrame());
}

void RenderedPlanner::onScreen(const std::string& name, const std::function<void(FormWindow&)>& user) {
    fake.windowing.modalUsers[name].push_back([this, user](Form& form) {
        // Shown as the renderer's own modal showing does: the model applied, then active.
        FormWindow& frame = renderer.windowFor(form);
        renderer.syncAll();
        activate(frame);
        frame.focusFirstField();
        user(frame);
        renderer.syncAll();
        if (FormWindow* owner = renderer.windowOf(*window)) activate(*owner);
    });
}

std::vector<Form*> RenderedPlanner::forms() {
    std::vector<Form*> all{window.get()};
    for (Form* editor : window->editors->windows()) all.push_back(editor);
    return all;
}

void activate(FormWindow& frame) {
    frame.activateWindow();
    QApplication::setActiveWindow(&frame);
    (void)QTest::qWaitForWindowActive(&frame);
}

}  // namespace qh
