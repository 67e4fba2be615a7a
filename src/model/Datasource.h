#pragma once

#include "app/SparseMembers.h"
#include "app/Tracked.h"
#include "app/XmlElements.h"

#include <cstdint>
#include <memory>
#include <string>

namespace flowloom {

class Process;

// Where the records of a process come from: a table, query, form or report
// of an Access database. Owned through a shared_ptr: a main datasource
// registers itself with its process while it reads.
class Datasource : public std::enable_shared_from_this<Datasource> {
public:
    TrackedString Type_;       // saved as Type
    TrackedString Database;    // name of a Database
    TrackedString ObjectName;
    Tracked<std::int32_t> Records = 0;  // 0 current, 1 all, 2 selected
    SparseString SubFormFullName;  // saved as SubformFullName
    SparseString SaveXmlToFolder;

    // Falls back on ObjectName on first read and keeps it.
    const std::string& name() const;
    // The stored name, without the fallback.
    const std::string& StoredName() const noexcept { return name_; }
    void SetName(std::string value) { name_ = std::move(value); }

    std::int32_t RecordCount() const noexcept { return 0; }
    std::shared_ptr<Process> ParentProcess() const { return parent_.lock(); }
    void SetParentProcess(const std::shared_ptr<Process>& process) { parent_ = process; }

    // Reads the attributes; a main datasource registers itself with the process.
    void LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process);
    void Dispose();

private:
    mutable TrackedString name_;  // falls back on ObjectName on first read
    std::weak_ptr<Process> parent_;
};

}  // namespace flowloom
