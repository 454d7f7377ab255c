#pragma once
// The drives the benchmarks measure on: a sample drive written to a temporary folder and
// read through the program's real file layer (every record written is synced, as on the
// drive), with the test fakes standing in for the toolkit; and the main window loaded on
// the maximal one, where the window's own work is measured.
#include <filesystem>
#include <memory>
#include <string>

#include "platform/fake/fake_platform.h"
#include "platform/posix_file_system.h"
#include "sample_drive.h"
#include "shell/main_window.h"

namespace qh {

struct SampleDriveOnDisk {
    FakePlatform fake;
    PosixFileSystem files;
    Platform platform{fake.environment, fake.clock,    fake.locale,    fake.messages, files,
                      fake.processes,   fake.dialogs,  fake.windowing, fake.canvases, fake.calendars};

    // The exec folder gets the page templates, as the program finds them beside itself.
    explicit SampleDriveOnDisk(sample::DriveSize size) {
        sample::MakeSampleDrive(fake.drive, size, fake.clock.today());
        std::filesystem::copy(std::string(QH_SOURCE_DIR) + "/templates", fake.exec,
                              std::filesystem::copy_options::recursive |
                                  std::filesystem::copy_options::overwrite_existing);
    }
};

struct LoadedMaximalDrive : SampleDriveOnDisk {
    RecordStore store;
    std::unique_ptr<MainWindow> window;

    LoadedMaximalDrive() : SampleDriveOnDisk(sample::DriveSize::Maximal) {
        window = std::make_unique<MainWindow>(store, platform);
        window->Form_Load();
    }
};

}  // namespace qh
