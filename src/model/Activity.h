#pragma once

#include "app/SparseMembers.h"
#include "app/Tracked.h"
#include "model/ActivityKind.h"

#include "app/XmlElements.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace flowloom {

class Process;

// The shape every activity has: type name, key, parent process, description,
// Execute, Dispose and LoadElement. Execute does nothing in the designer: the
// model only holds what a run needs.
class Activity {
public:
    virtual ~Activity() = default;

    virtual ActivityKind Kind() const noexcept = 0;
    // "MailMerge", "SaveAs", "PrintOut", "Convert", "SendMail", "SendFax", "AddRecord".
    std::string ActivityType() const { return std::string(ActivityTypeName(Kind())); }

    // Made once from the type name and a random number, then kept; never saved.
    std::string Key() const;
    // The key written into `room`, without making a string.
    using KeyRoom = std::array<char, 32>;
    std::string_view KeyIn(KeyRoom& room) const;

    std::shared_ptr<Process> ParentProcess() const { return parent_.lock(); }
    void SetParentProcess(const std::shared_ptr<Process>& process) {
        parent_ = process;
        ModelRevision::Bump();
    }

    const std::string& Description() const noexcept { return description_; }
    void SetDescription(std::string text) { description_ = std::move(text); }

    virtual bool Execute() { return false; }
    // Releases the references; the end of the object's life does it as well.
    virtual void Dispose() { parent_.reset(); }
    // Keeps the process as the parent, then reads the attributes.
    virtual void LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process) = 0;

    // The name of the document this activity produces, for the activities
    // that have one; null for the others.
    virtual const std::string* ProducedDocumentName() const { return nullptr; }

protected:
    Activity() = default;
    Activity(const Activity&) = default;
    Activity& operator=(const Activity&) = default;

private:
    // The key's number, drawn on first read; the key itself is spelled out
    // when asked for, since the collection keeps it already.
    mutable std::int32_t keyNumber_ = 0;
    mutable bool keyDrawn_ = false;
    SparseString description_;
    std::weak_ptr<Process> parent_;
};

// A random fraction in [0, 1) from the one unseeded generator that keys use.
float NextRandomFraction();

}  // namespace flowloom
