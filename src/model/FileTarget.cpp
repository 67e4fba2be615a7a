#include "model/FileTarget.h"

#include "support/VbStrings.h"

namespace flowloom {

void FileTarget::SetFolder(const std::string& folder) {
    folder_ = vb::RTrim(folder);
    folderTrailingBlanks_ = static_cast<std::uint32_t>(folder.size() - folder_.size());
}

void FileTarget::SetFile(const std::string& file) { file_ = file; }

void FileTarget::SetFullName(const TaggedValue& fullName) {
    if (fullName.IsObject()) return;
    if (!fullName_.Find() && fullName.IsEmpty()) return;  // no change
    fullName_.Get() = fullName;
}

const TaggedValue& FileTarget::StoredFullName() const noexcept {
    static const TaggedValue none;
    const TaggedValue* stored = fullName_.Find();
    return stored ? *stored : none;
}

bool FileTarget::HasFullName() const {
    const TaggedValue& stored = StoredFullName();
    return !stored.IsEmpty() && !stored.Text().empty();
}

std::string FileTarget::JoinedFullName() const {
    if (HasFullName()) return StoredFullName().Text();
    if (!folder_.empty() && folder_.back() == '\\') return folder_ + file_;
    return folder_ + "\\" + file_;
}

}  // namespace flowloom
