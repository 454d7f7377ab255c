#pragma once
// The program's application object and its one handler of last resort: a failure that
// no routine of the planner traps (qh::UntrappedFailure or any other exception) and that
// escapes an event handler ends here. It is reported clearly and the run ends at once,
// without any further handler running or anything more being written.
#include <QApplication>
#include <functional>
#include <string>

namespace qh {

// The planner draws with its own fixed colours, so its widgets must not take a desktop's
// dark or odd theme: one style (Fusion) and a light palette of its own, the same on every
// desktop. Set at the start of the run, before any window.
void applyPlannerLook(QApplication& app);

class Application : public QApplication {
public:
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

    // Shows the report and ends the run. Tests replace the ending step so that they can
    // see the report without losing their process.
    // It is handed the action the planner was answering (Form::actionInProgress).
    using FailureReport = std::function<void(const std::string& action)>;
    // An empty report puts back the usual one.
    void setFailureReport(FailureReport report) {
        report_ = report ? std::move(report) : FailureReport(&Application::showAndEnd);
    }

    // What the run still does before a failure is reported and the run ends.
    void setLastStep(std::function<void()> step) { lastStep_ = std::move(step); }

    // Reports a failure caught outside the event loop (the start of the run) the same way.
    void fail(const std::string& what);
    // The text of the report, naming the action the planner was answering (see
    // Form::actionInProgress), or its start when there was none.
    static std::string reportText(const std::string& action);
    bool failing() const { return failing_; }

private:
    static void showAndEnd(const std::string& action);
    FailureReport report_;
    std::function<void()> lastStep_;
    bool failing_ = false;
};

}  // namespace qh
