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
    fullName_ = fullName;
}

std::string FileTarget::JoinedFullName() const {
    if (HasFullName()) return fullName_.Text();
    if (!folder_.empty() && folder_.back() == '\\') return folder_ + file_;
    return folder_ + "\\" + file_;
}

}  // namespace flowloom
