#include "record_store/record_files.h"

#include "common/failure.h"
#include "record_store/damage_messages.h"
#include "record_store/record_tables.h"
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

void RecordFiles::reportFileError(const std::string& fileName, const char* action, FileProblem why) {
    ReportFileError(store_, platform_.messages, fileName, action, why);
}

CheckedRecords RecordFiles::checkedFile(const RecordLayout& layout) {
    FileSystem& files = platform_.files;
    const std::string path = dataFilePath(store_, std::string(layout.fileName));
    if (!files.exists(path)) {
        // A missing file holds no records; the first save makes it if this can't.
        if (!store_.DriveReadOnly) runFileStep([&] { files.createEmpty(path); });
        return {};
    }
    const std::int64_t size = files.sizeOf(path);
    // Past the most records a file holds nothing can be read: a huge file is not read whole.
    const std::size_t head = std::size_t(kMostRecords + 1) * std::size_t(layout.length);
    CheckedRecords checked = CheckRecords(layout, files.readHead(path, head), size);
    if (checked.damaged()) keepDamaged(layout, checked);
    return checked;
}

void RecordFiles::keepDamaged(const RecordLayout& layout, const CheckedRecords& checked) {
    const std::string name(layout.fileName);
    if (!toldDamaged_.insert(name).second) return;
    FileSystem& files = platform_.files;
    const std::string path = dataFilePath(store_, name);
    const std::string copyName = DamagedCopyName(name, platform_.clock.today());
    FileProblem why = store_.DriveReadOnly ? FileProblem::ReadOnly : FileProblem::Other;
    // A copy made earlier today holds the file as it was first found damaged: it stays.
    const bool kept = !store_.DriveReadOnly && runFileStep(
        [&] {
            const std::string copyPath = dataFilePath(store_, copyName);
            if (!files.exists(copyPath)) files.copy(path, copyPath);
        },
        why);
    const bool repaired =
        !checked.rewrite || (kept && runFileStep([&] { files.writeWhole(path, checked.records); }, why));
    if (!repaired) unsaveable_.insert(name);
    platform_.messages.show(DamagedFileText(name, checked, kept ? copyName : std::string(), repaired, why),
                            kDamagedFileTitle, MessageButtons::OK, MessageIcon::Exclamation);
}

bool RecordFiles::mayWrite(const RecordLayout& layout, int recordsAfter) {
    const std::string name(layout.fileName);
    std::string refusal;
    if (store_.DriveReadOnly)
        refusal = kReadOnlyText;
    else if (unsaveable_.count(name))
        refusal = DamagedRefusalText(name);
    else if (recordsAfter > kMostRecords)
        refusal = FullFileText(name);
    if (refusal.empty()) return true;
    platform_.messages.show(refusal, kFileWriteErrorTitle, MessageButtons::OK, MessageIcon::Exclamation);
    return false;
}

std::string RecordFiles::readRecords(const RecordLayout& layout, Int16& next, std::span<TextColumn* const> rowsFor,
                                     const std::function<void(const RecordView&)>& take) {
    const CheckedRecords checked = checkedFile(layout);
    for (TextColumn* column : rowsFor) column->reserve(column->count() + checked.count());
    next = 1;
    std::string leftOut;
    RecordView record(layout);
    const std::string_view records = checked.records;
    const std::size_t length = std::size_t(layout.length);
    for (int i = 0; i < checked.count(); ++i) {
        const std::string_view bytes = records.substr(std::size_t(i) * length, length);
        if (checked.readable[std::size_t(i)]) {
            record.reset(bytes);
            take(record);
        } else {
            leftOut += bytes;
        }
        next = toInt16(next + 1);  // at most kMostRecords + 1
    }
    return leftOut;
}

bool RecordFiles::saveOne(const RecordLayout& layout, Int16& next, Int16& changed, Int16 RecordNumber,
                          const std::function<Values()>& values) {
    if (!enterDataDirectory()) return false;
    if (!mayWrite(layout, RecordNumber == 0 ? next : 0)) return false;
    const Int16 remembered = next;
    if (RecordNumber != 0) next = RecordNumber;
    // When the write fails the counter is not put back: it stays on the overwritten
    // record until the next load, and the next append lands there.
    FileProblem why = FileProblem::Other;
    const bool written = runFileStep(
        [&] {
            const auto file =
                platform_.files.openRecords(dataFilePath(store_, std::string(layout.fileName)), layout.length);
            const Values fields = values();
            file->write(next, buildRecord(layout, fields));
            next = RecordNumber == 0 ? toInt16(next + 1) : remembered;
        },
        why);
    if (!written) {
        reportFileError(std::string(layout.fileName), "writing", why);
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
        const std::vector<TextColumn*> terms = kTermTable.columns(s);
        keptTerms_ =
            readRecords(kTermTable.layout, s.NextTermRecord, terms, [&](const RecordView& r) { r.appendTo(terms); });
        current = "Classes.txt";
        const std::vector<TextColumn*> classes = kClassTable.columns(s);
        keptClasses_ = readRecords(kClassTable.layout, s.NextClassRecord, classes,
                                   [&](const RecordView& r) { r.appendTo(classes); });
    });
    if (!read) reportFileError(current, "reading");
    return read;
}

bool RecordFiles::SaveTermsAndClasses() {
    if (!enterDataDirectory()) return false;
    RecordStore& s = store_;
    FileSystem& files = platform_.files;
    const auto records = [](const std::string& kept, const RecordLayout& layout) {
        return int(kept.size() / std::size_t(layout.length));
    };
    if (!mayWrite(kTermsLayout, s.TermNames.count() + records(keptTerms_, kTermsLayout)) ||
        !mayWrite(kClassesLayout, s.ClassNames.count() + records(keptClasses_, kClassesLayout)))
        return false;
    // The name the message shows is set only after the old file is let go, so a failure
    // there names the file before it: nothing for Terms.txt, Terms.txt for Classes.txt.
    std::string current;
    // The old file is replaced atomically rather than deleted first, so the drive being
    // pulled out mid-save never leaves it missing. A file that has gone missing since the
    // load still fails the save as its delete would have.
    auto letGoOf = [&](const std::string& path) {
        if (!files.exists(path)) throw FileFailure("Cannot delete " + path);
    };
    FileProblem why = FileProblem::Other;
    const bool written = runFileStep(
        [&] {
            const std::string termsPath = dataFilePath(s, "Terms.txt");
            letGoOf(termsPath);
            current = "Terms.txt";
            s.NextTermRecord = 1;
            std::string bytes;
            bytes.reserve(std::size_t(s.TermNames.count()) * std::size_t(kTermsLayout.length));
            for (int i = 1; i <= s.TermNames.count(); ++i) {
                bytes += buildRecord(kTermsLayout, kTermTable.valuesOf(kTermTable.rowOf(s, i)));
                s.NextTermRecord = toInt16(s.NextTermRecord + 1);
            }
            bytes += keptTerms_;
            files.writeWhole(termsPath, bytes);
            s.TermsChanged = kTrue;

            const std::string classesPath = dataFilePath(s, "Classes.txt");
            letGoOf(classesPath);
            current = "Classes.txt";
            s.NextClassRecord = 1;
            bytes.clear();
            bytes.reserve(std::size_t(s.ClassNames.count()) * std::size_t(kClassesLayout.length));
            for (int i = 1; i <= s.ClassNames.count(); ++i) {
                bytes += buildRecord(kClassesLayout, kClassTable.valuesOf(kClassTable.rowOf(s, i)));
                s.NextClassRecord = toInt16(s.NextClassRecord + 1);
            }
            bytes += keptClasses_;
            files.writeWhole(classesPath, bytes);
            s.ClassesChanged = kTrue;
        },
        why);
    if (!written) reportFileError(current, "writing", why);
    return written;
}

}  // namespace qh
