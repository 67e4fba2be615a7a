#pragma once

#include "app/Tracked.h"
#include "model/Forward.h"

#include "app/XmlElements.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace flowloom {

// Kinds of the activity that produces a document (see ActivityForDocument).
namespace dockind {
inline constexpr std::int32_t Other = 0;
inline constexpr std::int32_t Word = 1;
inline constexpr std::int32_t Excel = 2;
inline constexpr std::int32_t MailBody = 3;
inline constexpr std::int32_t Html = 4;
inline constexpr std::int32_t Text = 5;
}  // namespace dockind

// One named piece of work: activities in order, the datasources that feed
// them, the documents they pass on, the groups that may use it and fixed
// field values. Always owned through a shared_ptr (use Create).
class Process : public std::enable_shared_from_this<Process> {
    struct Passkey {};

public:
    static std::shared_ptr<Process> Create();
    explicit Process(Passkey);
    ~Process();

    // The one default of AbortOnError and OnErrorNotifyUser.
    static constexpr bool DefaultErrorSetting = true;

    const std::string& name() const noexcept { return name_; }
    void SetName(std::string name) { name_ = std::move(name); }

    std::shared_ptr<Processes> Parent() const { return parent_.lock(); }
    void SetParent(const std::shared_ptr<Processes>& parent) {
        parent_ = parent;
        ModelRevision::Bump();
    }

    const std::string& MainDataSourceName() const noexcept { return mainDataSourceName_; }
    void SetMainDataSourceName(std::string name) { mainDataSourceName_ = std::move(name); }
    // Fills the cache from Datasources on first read.
    std::shared_ptr<Datasource> MainDataSource() const;
    // Registers the datasource, caches it and takes its name.
    void SetMainDataSource(const std::shared_ptr<Datasource>& datasource);

    std::int32_t ProcessRecords() const noexcept { return processRecords_; }
    void SetProcessRecords(std::int32_t value) { processRecords_ = value; }
    bool AbortOnError() const noexcept { return abortOnError_; }
    void SetAbortOnError(bool value) { abortOnError_ = value; }
    bool OnErrorNotifyUser() const noexcept { return onErrorNotifyUser_; }
    void SetOnErrorNotifyUser(bool value) { onErrorNotifyUser_ = value; }

    // Falls back on MainDataSourceName on first read and keeps it.
    const std::string& LogDatasourceName() const;
    void SetLogDatasourceName(std::string name) { logDatasourceName_ = std::move(name); }

    void SetShowProgressBar(bool value) { showProgressBar_ = value; }
    void SetConfirmIfMoreThan(std::int32_t value) { confirmIfMoreThan_ = value; }
    std::int32_t MailMergeType() const noexcept { return 0; }

    std::shared_ptr<flowloom::Activities> Activities() const { return activities_; }
    std::shared_ptr<flowloom::Datasources> Datasources() const { return datasources_; }
    std::shared_ptr<flowloom::Documents> Documents() const { return documents_; }
    // Created on first read.
    std::shared_ptr<flowloom::Groups> Groups() const;
    bool HasGroups() const noexcept { return groups_ != nullptr; }
    std::shared_ptr<flowloom::FieldValues> FieldValues() const;
    void SetFieldValues(std::shared_ptr<flowloom::FieldValues> values) {
        fieldValues_ = std::move(values);
        ModelRevision::Bump();
    }
    bool HasFieldValues() const noexcept { return fieldValues_ != nullptr; }

    // The live documents of invoked applications of a run, and the documents
    // added for a run.
    const std::vector<std::shared_ptr<void>>& InvokedAppDocuments() const noexcept { return invokedAppDocuments_; }
    void AddDocument(const std::shared_ptr<Document>& document);

    // Documents.Item(name); reports an unknown name and gives nothing.
    std::shared_ptr<Document> DocumentByName(const std::string& name) const;

    // The first activity whose OutputDocumentName equals `name` (without
    // regard to case), with the kind of document it makes. The narrow
    // variant (for PrintOut) knows only Word and Excel; the wide one also the
    // mail body, HTML and text. An empty name gives {0, nothing}.
    std::pair<std::int32_t, std::shared_ptr<Activity>> ActivityForDocument(const std::string& name, bool wide) const;
    std::int32_t DocumentKind(const std::string& name, bool wide) const { return ActivityForDocument(name, wide).first; }

    // Whether a MailMerge names a PrecededBy or SucceededBy document that exists.
    bool HasPrecedingOrSucceedingDocument() const;

    void Dispose();
    void LoadElement(const XmlElementView& node, const std::shared_ptr<Processes>& parent);

private:
    void ReadAttributes(const XmlElementView& node);
    void ReadGroups(const XmlElementView& node);
    void ReadFieldValues(const XmlElementView& node);

    TrackedString name_;
    std::weak_ptr<Processes> parent_;
    TrackedString mainDataSourceName_;
    mutable std::shared_ptr<Datasource> mainDataSource_;  // cached on first read
    Tracked<std::int32_t> processRecords_ = 0;
    Tracked<bool> abortOnError_ = DefaultErrorSetting;
    Tracked<bool> onErrorNotifyUser_ = DefaultErrorSetting;
    mutable TrackedString logDatasourceName_;  // falls back on the main datasource's name
    Tracked<bool> showProgressBar_ = true;
    Tracked<std::int32_t> confirmIfMoreThan_ = 100;
    std::shared_ptr<flowloom::Activities> activities_;
    std::shared_ptr<flowloom::Datasources> datasources_;
    std::shared_ptr<flowloom::Documents> documents_;
    mutable std::shared_ptr<flowloom::Groups> groups_;  // created on first read
    mutable std::shared_ptr<flowloom::FieldValues> fieldValues_;  // created on first read
    std::vector<std::shared_ptr<void>> invokedAppDocuments_;
    std::unique_ptr<KeyedCollection<Document>> addedDocuments_;
};

// "Current;All;Selected" and "Yes;Confirm;No": the words the file uses for
// the two enumerations.
inline constexpr const char* kProcessRecordsWords = "Current;All;Selected";
inline constexpr const char* kOverwriteWords = "Yes;Confirm;No";

// Reads a process-records value: a number as it is, else the word (without
// regard to case); nullopt for any other word.
std::optional<std::int32_t> ReadProcessRecords(std::string_view text);
// Reads an overwrite mode the same way ("Yes" 0, "Confirm" 1, "No" 2).
std::optional<std::int32_t> ReadOverwriteMode(std::string_view text);
// The word at an index of a ";"-separated list (error 9 when out of range).
std::string WordAt(const char* words, std::int32_t index);

// A FieldValue element: Name gives field, Value gives value with "&quot;"
// turned back into a double quote.
std::shared_ptr<FieldValue> ReadFieldValue(const XmlElementView& element);

}  // namespace flowloom
