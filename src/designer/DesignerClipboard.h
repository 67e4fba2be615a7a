#pragma once

#include <memory>
#include <string>
#include <variant>

namespace flowloom {
class Activity;
class Datasource;
class Process;
}  // namespace flowloom

namespace flowloom::designer {

// The window's own clipboard: the copy last made of a process, a datasource
// or an activity (not the system clipboard).
class Clipboard {
public:
    using Content = std::variant<std::monostate, std::shared_ptr<Process>, std::shared_ptr<Datasource>,
                                 std::shared_ptr<Activity>>;

    bool Empty() const noexcept { return std::holds_alternative<std::monostate>(content_); }
    // "Process", "Datasource", the activity's type ("SaveAs", ...); "" when empty.
    std::string TypeName() const;
    // The copy's name: `name` of a process or datasource, the Description of an activity.
    std::string Name() const;
    const Content& Get() const noexcept { return content_; }
    void Set(Content content) { content_ = std::move(content); }
    void Clear() { content_ = std::monostate{}; }

private:
    Content content_;
};

}  // namespace flowloom::designer
