#pragma once

#include "model/AddRecord.h"
#include "model/Convert.h"
#include "model/MailMerge.h"
#include "model/PrintOut.h"
#include "model/SaveAs.h"
#include "model/SendFax.h"
#include "model/SendMail.h"

#include <utility>

namespace flowloom {

// Calls `visitor` with the activity as its own class, chosen by its kind.
// Every overload of the visitor returns the same type.
template <typename A, typename Visitor>
    requires std::is_base_of_v<Activity, std::remove_const_t<A>>
decltype(auto) VisitActivity(A& activity, Visitor&& visitor) {
    constexpr bool isConst = std::is_const_v<A>;
    auto as = [&activity]<typename T>(std::type_identity<T>) -> std::conditional_t<isConst, const T&, T&> {
        return static_cast<std::conditional_t<isConst, const T&, T&>>(activity);
    };
    switch (activity.Kind()) {
    case ActivityKind::MailMerge: return std::forward<Visitor>(visitor)(as(std::type_identity<MailMerge>{}));
    case ActivityKind::SaveAs: return std::forward<Visitor>(visitor)(as(std::type_identity<SaveAs>{}));
    case ActivityKind::PrintOut: return std::forward<Visitor>(visitor)(as(std::type_identity<PrintOut>{}));
    case ActivityKind::Convert: return std::forward<Visitor>(visitor)(as(std::type_identity<Convert>{}));
    case ActivityKind::SendMail: return std::forward<Visitor>(visitor)(as(std::type_identity<SendMail>{}));
    case ActivityKind::SendFax: return std::forward<Visitor>(visitor)(as(std::type_identity<SendFax>{}));
    case ActivityKind::AddRecord: break;
    }
    return std::forward<Visitor>(visitor)(as(std::type_identity<AddRecord>{}));
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
