#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace flowloom {

// The closed set of activity classes. Readers, writer, verification, code
// generation, the canvas and the sheets switch on it (see VisitActivity)
// instead of comparing type names.
enum class ActivityKind : std::uint8_t { MailMerge, SaveAs, PrintOut, Convert, SendMail, SendFax, AddRecord };

// Every kind, in the order generated code groups activities.
inline constexpr std::array<ActivityKind, 7> kActivityKinds = {
    ActivityKind::MailMerge, ActivityKind::SaveAs,  ActivityKind::PrintOut, ActivityKind::Convert,
    ActivityKind::SendMail,  ActivityKind::SendFax, ActivityKind::AddRecord};

// The type name, which is also the element name in the file: "MailMerge", ...
std::string_view ActivityTypeName(ActivityKind kind) noexcept;
// The kind of a type name, compared without regard to case.
std::optional<ActivityKind> ActivityKindOfName(std::string_view typeName);
// The item type code of the kind, also its sheet kind and toolbar button:
// 10 MailMerge, 11 SaveAs, 12 PrintOut, 13 Convert, 14 SendMail, 15 SendFax,
// 16 AddRecord.
std::int32_t ItemTypeCode(ActivityKind kind) noexcept;
std::optional<ActivityKind> ActivityKindOfItemType(std::int32_t itemType) noexcept;

}  // namespace flowloom
