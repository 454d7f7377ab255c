// A termination signal ends the real program as File > Exit does: run on a temporary
// drive without a display, it is sent the signal once its .PID file is there, and must
// end with status 0, its preferences written whole and its .PID file gone.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "platform/qt/termination_signals.h"
#include "qt_test_support.h"
#include "shell/preferences.h"

extern char** environ;

namespace qh {
namespace {

namespace fs = std::filesystem;

std::string readFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

void writeFile(const fs::path& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

// A drive with a Preferences.ini of the program's own making but for its choices, plus a
// line the program never writes, so a file written anew is told from the one left alone.
class SignalledRun {
public:
    SignalledRun() {
        drive_ = fs::path(folder_.path().toStdString()) / "drive";
        host_ = fs::path(folder_.path().toStdString()) / "host";
        runtime_ = fs::path(folder_.path().toStdString()) / "runtime";
        for (const fs::path& dir : {drive_ / "exec", dataDirectory(), host_, runtime_}) fs::create_directories(dir);
        fs::permissions(runtime_, fs::perms::owner_all, fs::perm_options::replace);
        WindowPlacement window{0, 1500, 1200, 9600, 7215};
        PreferenceValues chosen{"", "Saturday", "No", 3};
        writeFile(preferences(), PreferencesText(window, chosen) + "Left behind by an older copy\r\n");
    }
    fs::path dataDirectory() const { return drive_ / "Documents" / "Quillhollow" / "Data"; }
    fs::path preferences() const { return dataDirectory() / "Preferences.ini"; }
    std::string suppressions() const {
        const fs::path file = fs::path(folder_.path().toStdString()) / "leaks.supp";
        writeFile(file, "leak:libfontconfig.so\n");
        return file.string();
    }
    fs::path pidFile(pid_t pid) const { return host_ / (std::to_string(pid) + ".PID"); }

    // Starts the program, sends `signal` once the program has written its .PID file and
    // returns the wait status, or -1 when the program did not start or did not end.
    // Without the drive the program shows its one message and waits for its OK: the signal
    // is sent once the program catches it.
    int run(int signal, bool onDrive = true) {
        std::vector<std::string> settings = {"U3_DEVICE_PATH=" + drive_.string(),
                                             "U3_DEVICE_EXEC_PATH=" + (drive_ / "exec").string(),
                                             "U3_DEVICE_DOCUMENT_PATH=" + (drive_ / "Documents").string(),
                                             "U3_HOST_EXEC_PATH=" + (onDrive ? host_.string() : std::string()),
                                             "XDG_RUNTIME_DIR=" + runtime_.string(),  // its own one-copy lock
                                             "QT_QPA_PLATFORM=offscreen",
                                             // A sanitizer build: fontconfig's configuration is
                                             // kept for the life of the process by design.
                                             "LSAN_OPTIONS=suppressions=" + suppressions()};
        for (char** variable = environ; *variable; ++variable) {
            const std::string entry = *variable;
            const std::string name = entry.substr(0, entry.find('=') + 1);
            bool replaced = false;
            for (const std::string& setting : settings) replaced = replaced || setting.rfind(name, 0) == 0;
            if (!replaced) settings.push_back(entry);
        }
        std::vector<char*> envp;
        for (std::string& setting : settings) envp.push_back(setting.data());
        envp.push_back(nullptr);
        const std::string exec = (drive_ / "exec").string();
        const pid_t child = ::fork();
        if (child == 0) {
            if (::chdir(exec.c_str()) == 0) {
                char program[] = QH_PROGRAM;
                char* argv[] = {program, nullptr};
                ::execve(program, argv, envp.data());
            }
            ::_exit(127);
        }
        if (child < 0) return -1;
        pid_ = child;
        int status = -1;
        const auto ready = [&] { return onDrive ? fs::exists(pidFile(child)) : catches(child, signal); };
        if (waitUntil(ready, child, status)) {
            ::kill(child, signal);
            waitUntil([] { return false; }, child, status);
        }
        if (ended_) return status;
        ::kill(child, SIGKILL);
        ::waitpid(child, &status, 0);
        return -1;
    }
    pid_t pid() const { return pid_; }

private:
    // Whether the process has a handler for the signal (its SigCgt mask in /proc).
    static bool catches(pid_t process, int signal) {
        std::ifstream status("/proc/" + std::to_string(process) + "/status");
        for (std::string line; std::getline(status, line);)
            if (line.rfind("SigCgt:", 0) == 0) return (std::stoull(line.substr(7), nullptr, 16) >> (signal - 1)) & 1;
        return false;
    }

    // Polls `done` for up to a minute (a sanitizer build starts slowly). False when the
    // time ran out or the child ended first, which sets ended_ and `status`.
    template <class Done>
    bool waitUntil(Done done, pid_t child, int& status) {
        for (int tenth = 0; tenth < 600; ++tenth) {
            if (done()) return true;
            if (::waitpid(child, &status, WNOHANG) == child) {
                ended_ = true;
                return false;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        }
        return false;
    }

    QTemporaryDir folder_;
    fs::path drive_, host_, runtime_;
    pid_t pid_ = 0;
    bool ended_ = false;
};

class TerminationSignal : public ::testing::TestWithParam<int> {};

TEST_P(TerminationSignal, EndsTheRunAsFileExitDoes) {
    SignalledRun planner;
    const int status = planner.run(GetParam());
    ASSERT_NE(status, -1) << "the program did not start or did not end";
    ASSERT_TRUE(WIFEXITED(status)) << "ended by signal " << (WIFSIGNALED(status) ? WTERMSIG(status) : 0);
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_FALSE(fs::exists(planner.pidFile(planner.pid())));

    // Written anew and whole: the choices of the run read back, and the text is exactly
    // what the writer makes of them.
    const std::string written = readFile(planner.preferences());
    WindowPlacement window;
    PreferenceValues values;
    ReadPreferencesText(written, 1 << 14, 1 << 14, window, values);
    EXPECT_EQ(values.StartDayOfWeek, "Saturday");
    EXPECT_EQ(values.ShowTipsAtStartup, "No");
    EXPECT_EQ(values.CurrentTip, 3);
    EXPECT_EQ(written, PreferencesText(window, values));
}

// Before the main window exists, while the "launch from the drive" message waits for its
// OK, a signal still ends the run; no .PID file is left.
TEST_P(TerminationSignal, EndsTheRunWhileAMessageBeforeTheMainWindowIsShown) {
    SignalledRun planner;
    const int status = planner.run(GetParam(), false);
    ASSERT_NE(status, -1) << "the program did not start or did not end";
    ASSERT_TRUE(WIFEXITED(status)) << "ended by signal " << (WIFSIGNALED(status) ? WTERMSIG(status) : 0);
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_FALSE(fs::exists(planner.pidFile(planner.pid())));
}

INSTANTIATE_TEST_SUITE_P(Signals, TerminationSignal, ::testing::Values(SIGTERM, SIGINT, SIGHUP),
                         [](const ::testing::TestParamInfo<int>& info) { return std::string(sigabbrev_np(info.param)); });

// The close is run by the event loop, once; a second signal while it runs ends the
// process by that signal's own default action.
TEST(TerminationSignals, TheSecondSignalDuringTheCloseEndsTheRunAtOnce) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            testApplication();
            TerminationSignals terminations;
            int closes = 0;
            terminations.listen([&] {
                ++closes;
                std::raise(SIGHUP);  // still closing
                std::_Exit(40 + closes);
            });
            std::raise(SIGTERM);
            QElapsedTimer waited;
            waited.start();
            while (waited.elapsed() < 10000) QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
            std::_Exit(2);
        },
        ::testing::KilledBySignal(SIGHUP), "");
}

TEST(TerminationSignals, TheFirstSignalClosesFromTheEventLoopOnce) {
    testApplication();
    TerminationSignals terminations;
    int closes = 0;
    std::raise(SIGINT);  // before anyone listens: waits for the listener
    QCoreApplication::processEvents();
    terminations.listen([&] { ++closes; });
    EXPECT_EQ(closes, 0) << "the close ran inside the handler";
    QElapsedTimer waited;
    waited.start();
    while (closes == 0 && waited.elapsed() < 10000) QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    EXPECT_EQ(closes, 1);
}

}  // namespace
}  // namespace qh
