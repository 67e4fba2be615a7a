#pragma once

#include "model/AddRecord.h"
#include "model/Convert.h"
#include "model/MailMerge.h"
#include "model/PrintOut.h"
#include "model/SaveAs.h"
#include "model/SendFax.h"
#include "model/SendMail.h"

#include <type_traits>

namespace flowloom {

namespace visit_detail {
// The activity as class T, as const as it was given.
template <typename T, typename A>
auto& As(A& activity) {
    if constexpr (std::is_const_v<A>) return static_cast<const T&>(activity);
    else return static_cast<T&>(activity);
}
}  // namespace visit_detail

// Calls `visitor` with the activity as its own class, chosen by its kind.
// Every overload of the visitor returns the same type.
template <typename A, typename Visitor>
    requires std::is_same_v<std::remove_const_t<A>, Activity>
decltype(auto) VisitActivity(A& activity, Visitor&& visitor) {
    using visit_detail::As;
    switch (activity.Kind()) {
    case ActivityKind::MailMerge: return visitor(As<MailMerge>(activity));
    case ActivityKind::SaveAs: return visitor(As<SaveAs>(activity));
    case ActivityKind::PrintOut: return visitor(As<PrintOut>(activity));
    case ActivityKind::Convert: return visitor(As<Convert>(activity));
    case ActivityKind::SendMail: return visitor(As<SendMail>(activity));
    case ActivityKind::SendFax: return visitor(As<SendFax>(activity));
    case ActivityKind::AddRecord: break;
    }
    return visitor(As<AddRecord>(activity));
}

// A visitor made of lambdas, one per activity class.
template <typename... Visitors>
struct Overloaded : Visitors... {
    using Visitors::operator()...;
};
template <typename... Visitors>
Overloaded(Visitors...) -> Overloaded<Visitors...>;

// The activity as its own class when it is of that kind, else nothing.
template <typename T, typename A>
auto* ActivityAs(A* activity) noexcept {
    using Result = std::conditional_t<std::is_const_v<A>, const T, T>;
    return activity && activity->Kind() == T::kKind ? static_cast<Result*>(activity) : nullptr;
}

}  // namespace flowloom
