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

namespace qh {
namespace {

void BM_CaptureMainWindowImage(benchmark::State& state) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "bench";
    static char* argv[] = {name, nullptr};
    static QApplication application(argc, argv);

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
