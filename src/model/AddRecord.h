#pragma once

#include "app/Tracked.h"
#include "model/Activity.h"
#include "model/Forward.h"

#include <memory>
#include <string>

namespace flowloom {

// Adds a record to a table, for instance to log what was sent.
class AddRecord : public Activity {
public:
    static constexpr ActivityKind kKind = ActivityKind::AddRecord;
    ActivityKind Kind() const noexcept override { return kKind; }

    // Falls back on the process's main datasource and keeps it.
    const std::string& DatasourceName() const;
    void SetDatasourceName(std::string value) { datasourceName_ = std::move(value); }
    // Never gives an object back, as for a MailMerge.
    std::shared_ptr<flowloom::Datasource> Datasource() const { return nullptr; }
    void SetDatasource(std::shared_ptr<flowloom::Datasource> datasource) {
        datasource_ = std::move(datasource);
        ModelRevision::Bump();
    }
    std::shared_ptr<flowloom::FieldValues> FieldValues() const;  // created on first read
    void SetFieldValues(std::shared_ptr<flowloom::FieldValues> values) {
        fieldValues_ = std::move(values);
        ModelRevision::Bump();
    }
    bool HasFieldValues() const noexcept { return fieldValues_ != nullptr; }
    const std::string& Database() const noexcept { return database_; }
    void SetDatabase(std::string value) { database_ = std::move(value); }
    const std::string& Tablename() const noexcept { return tablename_; }
    void SetTablename(std::string value) { tablename_ = std::move(value); }

    void Dispose() override;
    void LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process) override;

private:
    mutable TrackedString datasourceName_;  // falls back on the main datasource
    std::shared_ptr<flowloom::Datasource> datasource_;
    mutable std::shared_ptr<flowloom::FieldValues> fieldValues_;
    TrackedString database_;
    TrackedString tablename_;
};

// "[name]": trimmed, with the brackets it lacks.
std::string EncloseInBrackets(const std::string& name);

}  // namespace flowloom
