// The picture Print Screen sends to the printer: the main window's image taken from the
// screen after its controls are brought up to date, on a loaded window without a display
// (QT_QPA_PLATFORM=offscreen). The goal is under 100 ms.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPixmap>

#include "platform/qt/form_view.h"
#include "platform/qt/qt_canvas.h"
#include "shell/main_window.h"
#include "support/fake_platform.h"

// Fontconfig keeps its configuration to the end of the process, as the Qt tests say too.
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig.so\n"; }

namespace qh {
namespace {

void BM_CaptureMainWindowImage(benchmark::State& state) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "bench";
    static char* argv[] = {name, nullptr};
    // Made once and never destroyed: a QApplication ended among the program's statics
    // ends after Qt's per-thread font caches, which it then cannot free.
    static const QApplication* application = new QApplication(argc, argv);
    benchmark::DoNotOptimize(application);

    FakePlatform fake;
    QtCanvasFactory canvases;
    Platform platform{fake.environment, fake.clock,   fake.locale,    fake.messages, fake.files,
                      fake.processes,   fake.dialogs, fake.windowing, canvases, fake.calendars};
    RecordStore store;
    MainWindow window(store, platform);
    window.Form_Load();
    FormRenderer renderer;
    renderer.show(window);
    QApplication::processEvents();
    for (auto _ : state) {
        renderer.syncAll();
        const QPixmap image = renderer.windowOf(window)->grab();
        benchmark::DoNotOptimize(image.cacheKey());
    }
}
BENCHMARK(BM_CaptureMainWindowImage)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qh
