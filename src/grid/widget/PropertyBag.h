#pragma once

#include <map>
#include <optional>
#include <string>

namespace flowloom::grid {

// Where a control keeps its design-time settings: text by key. A key that
// holds its default is not written.
class PropertyBag {
public:
    virtual ~PropertyBag() = default;
    virtual std::optional<std::string> ReadProperty(const std::string& key) const = 0;
    virtual void WriteProperty(const std::string& key, const std::string& value) = 0;
};

class MemoryPropertyBag : public PropertyBag {
public:
    std::optional<std::string> ReadProperty(const std::string& key) const override {
        const auto found = values_.find(key);
        return found == values_.end() ? std::nullopt : std::optional<std::string>(found->second);
    }
    void WriteProperty(const std::string& key, const std::string& value) override { values_[key] = value; }
    const std::map<std::string, std::string>& Values() const noexcept { return values_; }

private:
    std::map<std::string, std::string> values_;
};

}  // namespace flowloom::grid
