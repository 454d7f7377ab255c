#include "record_store/record_files.h"

#include "common/failure.h"
#include "record_store/record_bindings.h"
#include "record_store/record_io.h"
#include "record_store/storage_locations.h"

namespace qh {

bool RecordFiles::enterDataDirectory() {
    try {
        EnterDirectory(platform_, store_.DataDirectory);
        return true;
    } catch (const FileFailure&) {
        ReportDirectoryError(platform_.messages);
        return false;
    }
}

void RecordFiles::reportFileError(const std::string& fileName, const char* action) {
    ReportFileError(store_, platform_.messages, fileName, action);
}

void RecordFiles::readRecords(const RecordLayout& layout, Int16& next, std::span<TextColumn* const> rowsFor,
                              const std::function<void(const RecordView&)>& take) {
    const auto file = platform_.files.openRecords(dataFilePath(store_, std::string(layout.fileName)), layout.length);
    if (!rowsFor.empty()) {
        const int records = file->recordCount();
        for (TextColumn* column : rowsFor) column->reserve(column->count() + records);
    }
    next = 1;
    std::string bytes;
    RecordView record(layout);
    while (file->read(next, bytes)) {
        record.reset(bytes);
        take(record);
        next = toInt16(next + 1);  // a file of 32767 records overflows here: an error reading it
    }
}

bool RecordFiles::saveOne(const RecordLayout& layout, Int16& next, Int16& changed, Int16 RecordNumber,
                          const std::function<Values()>& values) {
    if (!enterDataDirectory()) return false;
    const Int16 remembered = next;
    if (RecordNumber != 0) next = RecordNumber;
    // When the write fails the counter is not put back: it stays on the overwritten
    // record until the next load, and the next append lands there.
    const bool written = runFileStep([&] {
        const auto file =
            platform_.files.openRecords(dataFilePath(store_, std::string(layout.fileName)), layout.length);
        const Values fields = values();
        file->write(next, buildRecord(layout, fields));
        next = RecordNumber == 0 ? toInt16(next + 1) : remembered;
    });
    if (!written) {
        reportFileError(std::string(layout.fileName), "writing");
        return false;
    }
    changed = kTrue;
    return true;
}

bool RecordFiles::LoadTermsAndClasses() {
    if (!enterDataDirectory()) return false;
    RecordStore& s = store_;
    std::string current = "Terms.txt";
    const bool read = runFileStep([&] {
        const std::vector<TextColumn*> terms = kTermBinding.columns(s);
        readRecords(kTermBinding.layout, s.NextTermRecord, terms, [&](const RecordView& r) { r.appendTo(terms); });
        current = "Classes.txt";
        const std::vector<TextColumn*> classes = kClassBinding.columns(s);
        readRecords(kClassBinding.layout, s.NextClassRecord, classes,
                    [&](const RecordView& r) { r.appendTo(classes); });
    });
    if (!read) reportFileError(current, "reading");
    return read;
}

bool RecordFiles::SaveTermsAndClasses() {
    if (!enterDataDirectory()) return false;
    RecordStore& s = store_;
    FileSystem& files = platform_.files;
    // The name the message shows is set only after the old file is let go, so a failure
    // there names the file before it: nothing for Terms.txt, Terms.txt for Classes.txt.
    std::string current;
    // The old file is replaced atomically rather than deleted first, so the drive being
    // pulled out mid-save never leaves it missing. A file that has gone missing since the
    // load still fails the save as its delete would have.
    auto letGoOf = [&](const std::string& path) {
        if (!files.exists(path)) throw FileFailure("Cannot delete " + path);
    };
    const bool written = runFileStep([&] {
        const std::string termsPath = dataFilePath(s, "Terms.txt");
        letGoOf(termsPath);
        current = "Terms.txt";
        s.NextTermRecord = 1;
        std::string bytes;
        bytes.reserve(std::size_t(s.TermNames.count()) * std::size_t(kTermsLayout.length));
        for (int i = 1; i <= s.TermNames.count(); ++i) {
            bytes += buildRecord(kTermsLayout, kTermBinding.valuesOfRow(s, i));
            s.NextTermRecord = toInt16(s.NextTermRecord + 1);
        }
        files.writeWhole(termsPath, bytes);
        s.TermsChanged = kTrue;

        const std::string classesPath = dataFilePath(s, "Classes.txt");
        letGoOf(classesPath);
        current = "Classes.txt";
        s.NextClassRecord = 1;
        bytes.clear();
        bytes.reserve(std::size_t(s.ClassNames.count()) * std::size_t(kClassesLayout.length));
        for (int i = 1; i <= s.ClassNames.count(); ++i) {
            bytes += buildRecord(kClassesLayout, kClassBinding.valuesOfRow(s, i));
            s.NextClassRecord = toInt16(s.NextClassRecord + 1);
        }
        files.writeWhole(classesPath, bytes);
        s.ClassesChanged = kTrue;
    });
    if (!written) reportFileError(current, "writing");
    return written;
}

}  // namespace qh
