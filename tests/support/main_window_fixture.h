#pragma once
// A main window loaded on a fake platform and a fresh drive, as a test starts it.
#include <functional>
#include <memory>

#include "platform/form.h"
#include "record_store/columns.h"
#include "shell/main_window.h"
#include "support/fake_platform.h"

namespace qh {

struct LoadedMainWindow {
    FakePlatform fake;
    RecordStore store;
    std::unique_ptr<MainWindow> window;

    // Writes record files into the data directory before the load: bare name -> bytes.
    void putDataFile(const std::string& name, const std::string& bytes) {
        fake.writeBytes(fake.dataDirectory() + "/" + name, bytes);
    }
    MainWindow& load() {
        window = std::make_unique<MainWindow>(store, fake.platform);
        window->Form_Load();
        return *window;
    }
    // The bytes of a record file in the data directory: bare name -> bytes.
    std::string dataFile(const std::string& name) { return fake.bytesOf(fake.dataDirectory() + "/" + name); }
    // The texts of the messages shown so far, in order.
    std::vector<std::string> messageTexts() const {
        std::vector<std::string> texts;
        for (const ShownMessage& shown : fake.messages.shown) texts.push_back(shown.text);
        return texts;
    }
    // The next showing of window `name` is driven by `user`, given the window as its class.
    template <class Window>
    void drive(const std::string& name, std::function<void(Window&)> user) {
        fake.windowing.modalUsers[name].push_back([user](Form& form) { user(static_cast<Window&>(form)); });
    }
};

// A Terms.txt record: ID, name, start and end as the file holds them.
std::string termRecord(int id, const std::string& name, const std::string& start, const std::string& end);
// A Classes.txt record.
std::string classRecord(int id, int termLink, const std::string& name, const std::string& fore = "White",
                        const std::string& back = "Black");
// An Assignments.txt record.
std::string assignmentRecord(int recordNo, int classLink, const std::string& date, const std::string& description,
                             bool done, const std::string& estTime = "01 : 00");

}  // namespace qh
