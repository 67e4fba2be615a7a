#include "model/ActivityKind.h"
#include "app/XmlDocument.h"

#include "support/TextCompare.h"

#include <algorithm>

namespace flowloom {

namespace {
constexpr std::array<std::string_view, 7> kTypeNames = {"MailMerge", "SaveAs",  "PrintOut", "Convert",
                                                         "SendMail",  "SendFax", "AddRecord"};
constexpr std::int32_t kFirstActivityItemType = 10;
}  // namespace

std::string_view ActivityTypeName(ActivityKind kind) noexcept { return kTypeNames[static_cast<std::size_t>(kind)]; }

std::optional<ActivityKind> ActivityKindOfName(std::string_view typeName) {
    // The type names are ASCII: an ASCII name of another length is none of
    // them, which tells most apart without comparing.
    const bool ascii = std::none_of(typeName.begin(), typeName.end(),
                                    [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
    for (ActivityKind kind : kActivityKinds) {
        const std::string_view name = ActivityTypeName(kind);
        if (ascii && name.size() != typeName.size()) continue;
        if (NameIs(typeName, name)) return kind;
    }
    return std::nullopt;
}

std::int32_t ItemTypeCode(ActivityKind kind) noexcept {
    return kFirstActivityItemType + static_cast<std::int32_t>(kind);
}

std::optional<ActivityKind> ActivityKindOfItemType(std::int32_t itemType) noexcept {
    const std::int32_t index = itemType - kFirstActivityItemType;
    if (index < 0 || index >= static_cast<std::int32_t>(kActivityKinds.size())) return std::nullopt;
    return kActivityKinds[static_cast<std::size_t>(index)];
}

}  // namespace flowloom
