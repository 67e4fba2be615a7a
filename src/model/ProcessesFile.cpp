// The life cycle of the processes file: Load with its version step, and Save.
#include "model/Processes.h"

#include "app/ErrorNumbers.h"
#include "model/xml/CProcessesXMLDoc.h"
#include "model/xml/UpdateVersion.h"
#include "support/AppPaths.h"
#include "support/FileText.h"
#include "support/FileErrors.h"
#include "support/Prompts.h"
#include "support/ReportError.h"
#include "support/SafeSave.h"
#include "support/VbStrings.h"

#include <algorithm>
#include <filesystem>
#include <thread>

namespace flowloom {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void RaiseCannotRead(const std::string& path, const std::error_code& error) {
    throw VbError(FileErrorNumber(error, false), "Cannot read '" + path + "': " + error.message());
}

bool IsMissing(const std::error_code& error) {
    return error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory;
}

// Whether a regular file of that name exists; a path that cannot even be
// looked at is an error, not a missing file.
bool RegularFileExists(const std::string& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (error && !IsMissing(error)) RaiseCannotRead(path, error);
    return fs::is_regular_file(status);
}

// "FILE.NNNNNNNNN.bak": the last nine digits of the time as a serial day.
std::string BackupSuffix() {
    std::string suffix = ".";
    suffix += vb::Right(vb::SerialNowText(), 9);
    suffix += ".bak";
    return suffix;
}

}  // namespace

void Processes::Load(const std::string& fileName, std::shared_ptr<void> application) {
    loadRewrite_ = {};
    notLoadedReason_.clear();
    try {
        application_ = std::move(application);
        if (!fileName.empty()) processesFile_ = fileName;
        bool exists = true;
        if (processesFile_.empty()) {
            processesFile_ = (WritableProgramFolder() / kDefaultProcessesFileName).string();
            exists = RegularFileExists(processesFile_);
        } else if (!RegularFileExists(processesFile_)) {
            throw VbError(errnum::ProcessesFileDoesNotExist,
                          errnum::Description(errnum::ProcessesFileDoesNotExist, {processesFile_}), "Velorin");
        }
        if (exists) {
            sourceXmlReady_ = false;
            sourceXml_.clear();
            loadedText_ = {};
            // A file that exists but cannot be read ends the Load with its
            // reason: taken for one that does not parse, the version step
            // would replace it.
            std::error_code error;
            std::optional<FileText> text = FileText::Read(processesFile_, error);
            if (!text) {
                complete_ = Failed;
                RaiseCannotRead(processesFile_, error);
            }
            ReadLoadedText(*text);
        }
        // Old files are converted and written back at once; a new one is created.
        if (version_ != 1) {
            UpdateVersion(*this);
            RewriteLoadedFile(exists && complete_ != Loaded);
        }
    } catch (...) {
        ReportPendingError("Processes", "Load");
    }
    // Whatever the Load made of the file, from here on only edits change it.
    savedRevision_ = ModelRevision::Current();
}

// The save of the version step. A file that did not load as a processes file
// is replaced by what the model holds, which is not its content: its backup
// then stays whatever the lengths, as the only copy of what it held.
void Processes::RewriteLoadedFile(bool replacesUnloaded) {
    loadRewrite_.attempted = true;
    const SaveOutcome outcome = SaveWith({}, replacesUnloaded ? BackupRule::Keep : BackupRule::KeepWhenShorter);
    loadRewrite_.written = outcome.written;
    if (!replacesUnloaded || !outcome.written) return;
    loadRewrite_.notLoadedReason = notLoadedReason_.empty() ? "it did not load" : notLoadedReason_;
    loadRewrite_.backup = outcome.backup.string();
}

void Processes::ReadLoadedText(FileText& text) {
    const std::string_view bytes = text.View();
    lastXmlSize_ = bytes.size();
    std::atomic<std::size_t> packed{0};
    // The text is packed beside the reading, which gives back what both
    // have passed: a large file is not held whole next to its model.
    std::jthread packer([this, bytes, &packed] {
        try {
            loadedText_ = PackedText::Pack(bytes, &packed);
        } catch (...) {
            loadedText_ = {};  // out of memory: SourceXML stays empty
        }
    });
    XmlDocument document;
    XmlOutline outline;
    std::string converted;
    document.LoadOutline(bytes, converted, outline);
    // A text converted from another encoding is read from its copy.
    CheckLoadedDocument(document, outline, TextRelease{converted.empty() ? &text : nullptr, &packed});
}

void Processes::TextRelease::Before(const char* position, std::size_t keepFrom) const {
    if (!text) return;
    // A megabyte at a time: each give-back is a system call that also
    // clears the other thread's view of those pages.
    constexpr std::size_t kStep = std::size_t{1} << 20;
    const std::size_t offset = static_cast<std::size_t>(position - text->View().data());
    const std::size_t end = std::min({offset, keepFrom, packed->load(std::memory_order_acquire)});
    if (end >= text->Released() + kStep) text->ReleaseBefore(end);
}

void Processes::CheckLoadedDocument(XmlDocument& document, const XmlOutline& outline, const TextRelease& release) {
    try {
        if (!document.DocumentElement()) {
            const XmlParseError& error = document.ParseError();
            errorString_ = "Error: Line " + std::to_string(error.line) + "\r\n" + error.reason + "\r\n" + error.srcText;
            notLoadedReason_ = errorString_;
            complete_ = Failed;
            return;
        }
        // A root of another name fails in ReadRoot, as a call on nothing.
        if (std::string_view(document.DocumentElement().name()) != "Processes")
            notLoadedReason_ = "The top level node is not 'Processes'";
        complete_ = ReadRoot(document.Native().child("Processes"), outline, release) ? Loaded : Failed;
    } catch (...) {
        if (notLoadedReason_.empty()) notLoadedReason_ = PendingError().Description();
        ReportPendingError("Processes", "CheckLoadedDocument");
    }
}

bool Processes::Save(const std::string& fileName) { return SaveWith(fileName, BackupRule::KeepWhenShorter).written; }

SaveOutcome Processes::SaveWith(const std::string& fileName, BackupRule rule) {
    try {
        const std::string text = GenerateXml();
        const std::string target = fileName.empty() ? processesFile_ : fileName;
        const fs::path folder = fs::path(target).parent_path();
        std::error_code ec;
        if (!fs::is_directory(folder.empty() ? fs::path(".") : folder, ec)) {
            MsgBox("The folder '" + folder.string() + "' does not exist.", msgbox::Exclamation);
            return {};
        }
        SaveOutcome outcome = WriteFile(target, text, rule);
        savedRevision_ = ModelRevision::Current();  // the file now holds the model
        return outcome;
    } catch (...) {
        ReportPendingError("Processes", "Processes.Save");
        return {};
    }
}

SaveOutcome Processes::WriteFile(const std::string& target, const std::string& text, BackupRule rule) {
    // A new file shorter than the old one keeps its backup: the safety net
    // against a truncated save.
    SaveOutcome outcome = SaveFileSafely(target, text, BackupSuffix(), rule);
    if (!outcome.written) throw VbError(outcome.errorNumber, outcome.cause);
    return outcome;
}

}  // namespace flowloom
