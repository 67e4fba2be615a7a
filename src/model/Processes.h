#pragma once

#include "app/Tracked.h"
#include "model/Forward.h"
#include "app/XmlDocument.h"
#include "support/PackedText.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace flowloom {

class FileText;
enum class BackupRule;
struct SaveOutcome;

// The contents of one processes file: processes, databases, groups and
// options, with loading and saving. Always owned through a shared_ptr (use
// Create); Dispose breaks the back references and must be called when the
// object is given up (the destructor does it too).
class Processes : public std::enable_shared_from_this<Processes> {
    struct Passkey {};

public:
    static std::shared_ptr<Processes> Create();
    explicit Processes(Passkey);
    ~Processes();

    // Result of the last load.
    enum LoadState : std::int32_t { NotLoaded = 0, Loaded = 1, Failed = 2 };

    std::int32_t Version() const noexcept { return version_; }
    void SetVersion(std::int32_t version) { version_ = version; }

    std::shared_ptr<flowloom::Databases> Databases() const { return databases_; }
    void SetDatabases(std::shared_ptr<flowloom::Databases> databases) {
        databases_ = std::move(databases);
        ModelRevision::Bump();
    }
    std::shared_ptr<flowloom::Groups> Groups() const;  // created on first read
    void SetGroups(std::shared_ptr<flowloom::Groups> groups) {
        groups_ = std::move(groups);
        ModelRevision::Bump();
    }
    bool HasGroups() const noexcept { return groups_ != nullptr; }
    std::shared_ptr<flowloom::Options> Options() const { return options_; }
    void SetOptions(std::shared_ptr<flowloom::Options> options) {
        options_ = std::move(options);
        ModelRevision::Bump();
    }

    // The text of the document as it was loaded.
    const std::string& SourceXML() const;
    std::int32_t Complete() const noexcept { return complete_; }
    const std::string& ErrorString() const noexcept { return errorString_; }
    const std::string& ProcessesFile() const noexcept { return processesFile_; }
    void SetProcessesFile(std::string path) { processesFile_ = std::move(path); }
    const std::shared_ptr<void>& Application() const noexcept { return application_; }

    // Loads the file (the default file in the writable program folder when
    // the name is empty and none is set). A file of another version than 1
    // is converted and saved at once, and so is one that does not load as a
    // processes file (it is replaced by what the model holds). A file that
    // exists but cannot be read is reported and left alone.
    void Load(const std::string& fileName, std::shared_ptr<void> application = {});

    // What the version step of the last Load did to the file.
    struct LoadRewrite {
        bool attempted = false;  // it saved the file at once
        bool written = false;    // and the new content reached the file
        // When the file it replaced did not load as a processes file: why
        // not, and the backup that keeps what the file held.
        std::string notLoadedReason;
        std::string backup;
    };
    const LoadRewrite& LastLoadRewrite() const noexcept { return loadRewrite_; }

    // Writes the file (ProcessesFile when the name is empty) with a backup
    // of the old one (see SaveFileSafely; the backup stays when the new file
    // is shorter). True only when the new content reached the file; a
    // missing folder gives its message, any other failure is reported.
    bool Save(const std::string& fileName);
    // The serialised document as Save would write it.
    std::string XML();
    // The same text handed to `consumer` piece by piece, so that a large
    // document is never held whole; the consumer answers false to stop.
    // False when writing failed (reported) or the consumer stopped it.
    bool WriteXml(const std::function<bool(std::string_view)>& consumer);

    // Whether the model may have changed since the last Load or successful
    // Save (or since it was made): every edit of a model object counts, also
    // of objects outside this file, so "false" is certain and "true" a maybe.
    bool EditedSinceLoadOrSave() const noexcept { return ModelRevision::Current() != savedRevision_; }
    // Whether XML() equals `text` without regard to case (as EqualsNoCase);
    // the text is made and compared piece by piece and the comparison stops
    // at the first difference.
    bool XmlEqualsNoCase(std::string_view text);

    // Adds under the process's name; a name that exists gives the message
    // "Process <name> already exists." and nothing is added. Whether it was added.
    bool Add(const std::shared_ptr<Process>& process, const CollectionPosition& before = {},
             const CollectionPosition& after = {});
    // Unknown index or name is reported; the result is then empty.
    std::shared_ptr<Process> Item(const CollectionPosition& position) const;
    // Error 91 once disposed.
    std::int32_t Count() const;
    // False when the position names no process.
    bool Remove(const CollectionPosition& position);
    std::vector<std::shared_ptr<Process>> Snapshot() const { return processes_.Snapshot(); }
    // KeyExists: whether a process is stored under this name (without regard to case).
    bool Contains(std::string_view name) const { return processes_.Contains(name); }
    auto begin() const { return processes_.begin(); }
    auto end() const { return processes_.end(); }

    // The first database whose name equals `name` without regard to case.
    std::shared_ptr<Database> GetDatabaseByName(const std::string& name) const;

    void Dispose();
    bool Disposed() const noexcept { return disposed_; }

private:
    // Gives the text of a load back to the system behind its reader: up to
    // the end of the child last read, never past what the packer has packed.
    struct TextRelease {
        FileText* text = nullptr;  // null: nothing is given back
        const std::atomic<std::size_t>* packed = nullptr;
        // Up to `position` in the text, but not past `keepFrom` (an offset).
        void Before(const char* position, std::size_t keepFrom) const;
    };

    // Reads the model from a file's text, which it packs and gives back.
    void ReadLoadedText(FileText& text);
    void CheckLoadedDocument(XmlDocument& document, const XmlOutline& outline, const TextRelease& release);
    bool ReadRoot(const pugi::xml_node& root, const XmlOutline& outline, const TextRelease& release);
    // The root's children, parsed and read one at a time.
    bool ReadContents(const XmlOutline& outline, const TextRelease& release);
    void RewriteLoadedFile(bool replacesUnloaded);
    SaveOutcome SaveWith(const std::string& fileName, BackupRule rule);
    SaveOutcome WriteFile(const std::string& target, const std::string& text, BackupRule rule);
    // The text of XML(); with a consumer, in pieces (see ProcessesFileXml).
    std::string GenerateXml(const std::function<bool(std::string_view)>& consumer = {});

    KeyedCollection<Process> processes_;
    // The text of the last load, packed: only SourceXML reads it again, and
    // neither it nor a parsed document is held whole besides the model.
    PackedText loadedText_;
    std::shared_ptr<void> application_;
    std::string processesFile_;
    std::string errorString_;
    std::string notLoadedReason_;  // why the last Load's document did not load
    LoadRewrite loadRewrite_;
    std::int32_t complete_ = NotLoaded;
    mutable std::string sourceXml_;
    mutable bool sourceXmlReady_ = false;
    std::size_t lastXmlSize_ = 0;  // a size hint for the next XML text
    std::shared_ptr<flowloom::Databases> databases_;
    std::shared_ptr<flowloom::Options> options_;
    mutable std::shared_ptr<flowloom::Groups> groups_;
    // The edit count at the last Load or Save (see EditedSinceLoadOrSave).
    std::uint64_t savedRevision_ = ModelRevision::Current();
    bool disposed_ = false;
    Tracked<std::int32_t> version_ = 0;
};

// The default name of the processes file.
inline constexpr const char* kDefaultProcessesFileName = "velorinprocesses.xml";

}  // namespace flowloom
