#pragma once

#include "app/SparseMembers.h"
#include "app/Tracked.h"
#include "app/TaggedValue.h"

#include <cstdint>
#include <string>

namespace flowloom {

// Where an activity writes or finds its file: Folder, File and FullName,
// each with the text as it was set (the raw value), which is what the file
// keeps; the full name read derives from folder and file when none is set.
// The raw values are kept as what they add (a folder's trailing blanks), not
// as second copies: a large file has thousands of these.
class FileTarget {
public:
    // Trailing blanks removed; the raw folder keeps the text as given.
    void SetFolder(const std::string& folder);
    void SetFile(const std::string& file);
    // A value that is an object is ignored.
    void SetFullName(const TaggedValue& fullName);

    const std::string& Folder() const noexcept { return folder_; }
    const std::string& File() const noexcept { return file_; }
    const TaggedValue& StoredFullName() const noexcept;
    bool HasFullName() const;
    // The stored full name, else folder and file joined with one backslash.
    std::string JoinedFullName() const;

    std::string RawFolder() const { return folder_ + std::string(folderTrailingBlanks_, ' '); }
    const std::string& RawFile() const noexcept { return file_; }
    std::string RawFullName() const { return StoredFullName().Text(); }

private:
    TrackedString folder_;
    TrackedString file_;
    LazyPart<TrackedObject<TaggedValue>> fullName_;  // seldom given: the folder and file are
    Tracked<std::uint32_t> folderTrailingBlanks_ = 0;  // what RTrim took from the folder as set
};

// The overwrite mode of a target file (0 "Yes", 1 "Confirm", 2 "No"), with
// the mark that it was ever set: only then does the file hold it.
class OverwriteMode {
public:
    explicit OverwriteMode(std::int32_t initial) : value_(initial) {}
    std::int32_t Value() const noexcept { return value_; }
    void Set(std::int32_t value) {
        value_ = value;
        set_ = true;
    }
    bool WasSet() const noexcept { return set_; }
    // Back to "never set": the file leaves the mode out again.
    void ClearSet() noexcept { set_ = false; }

private:
    Tracked<std::int32_t> value_;
    Tracked<bool> set_ = false;
};

}  // namespace flowloom
