#include "model/Process.h"

#include "support/ReportError.h"
#include "support/TextCompare.h"
#include "support/VbStrings.h"
#include "model/Activities.h"
#include "model/Datasources.h"
#include "model/Documents.h"
#include "model/FieldValue.h"
#include "model/Groups.h"
#include "model/Processes.h"
#include "app/XmlDocument.h"

namespace flowloom {

namespace {

// The word at `index` of a ";"-separated list, without splitting it.
std::optional<std::string_view> WordOf(std::string_view words, std::size_t index) {
    for (std::size_t i = 0;; ++i) {
        const std::size_t end = words.find(';');
        if (i == index) return words.substr(0, end);
        if (end == std::string_view::npos) return std::nullopt;
        words.remove_prefix(end + 1);
    }
}

std::optional<std::int32_t> ReadWordList(std::string_view text, const char* words) {
    const std::string trimmed = vb::Trim(text);
    if (auto number = vb::ToNumber(trimmed)) return vb::CLng(*number);
    for (std::size_t i = 0; const auto word = WordOf(words, i); ++i)
        if (NameIs(trimmed, *word)) return static_cast<std::int32_t>(i);
    return std::nullopt;
}

}  // namespace

std::optional<std::int32_t> ReadProcessRecords(std::string_view text) {
    return ReadWordList(text, kProcessRecordsWords);
}

std::optional<std::int32_t> ReadOverwriteMode(std::string_view text) { return ReadWordList(text, kOverwriteWords); }

std::string WordAt(const char* words, std::int32_t index) {
    const auto word = index < 0 ? std::nullopt : WordOf(words, static_cast<std::size_t>(index));
    if (!word) RaiseStandardError(vberr::SubscriptOutOfRange);
    return std::string(*word);
}

std::shared_ptr<FieldValue> ReadFieldValue(const XmlElementView& element) {
    auto fieldValue = std::make_shared<FieldValue>();
    for (const MeasuredAttribute a : MeasuredAttributes(element)) {
        if (NameIs(a, "Name")) fieldValue->field = a.value();
        else if (NameIs(a, "Value")) fieldValue->value = vb::Replace(a.value(), "&quot;", "\"");
    }
    return fieldValue;
}

Process::Process(Passkey)
    : activities_(std::make_shared<flowloom::Activities>()),
      datasources_(std::make_shared<flowloom::Datasources>()),
      documents_(std::make_shared<flowloom::Documents>()) {}

std::shared_ptr<Process> Process::Create() {
    auto process = std::make_shared<Process>(Passkey{});
    process->activities_->SetProcess(process);
    return process;
}

Process::~Process() { Dispose(); }

std::shared_ptr<Datasource> Process::MainDataSource() const {
    if (!mainDataSource_) mainDataSource_ = datasources_ ? datasources_->GetMainDataSource(mainDataSourceName_) : nullptr;
    return mainDataSource_;
}

void Process::SetMainDataSource(const std::shared_ptr<Datasource>& datasource) {
    if (datasources_) datasources_->SetMainDataSource(datasource);
    mainDataSource_ = datasource;
    mainDataSourceName_ = datasource ? datasource->name() : std::string();
}

const std::string& Process::LogDatasourceName() const {
    if (logDatasourceName_.empty()) logDatasourceName_ = mainDataSourceName_;
    return logDatasourceName_;
}

std::shared_ptr<flowloom::Groups> Process::Groups() const {
    if (!groups_) groups_ = std::make_shared<flowloom::Groups>();
    return groups_;
}

std::shared_ptr<flowloom::FieldValues> Process::FieldValues() const {
    if (!fieldValues_) fieldValues_ = std::make_shared<flowloom::FieldValues>();
    return fieldValues_;
}

void Process::AddDocument(const std::shared_ptr<Document>& document) {
    if (!document) return;
    if (!addedDocuments_) addedDocuments_ = std::make_unique<KeyedCollection<Document>>();
    if (document->Object().IsObject()) invokedAppDocuments_.push_back(document->Object().Object());
    addedDocuments_->Add(document);
}

std::shared_ptr<Document> Process::DocumentByName(const std::string& name) const {
    return documents_ ? documents_->Item(CollectionPosition{name}) : nullptr;
}

void Process::Dispose() {
    mainDataSource_.reset();
    if (datasources_) datasources_->Dispose();
    if (activities_) activities_->Dispose();
    if (documents_) documents_->Dispose();
    parent_.reset();
    invokedAppDocuments_.clear();
}

void Process::LoadElement(const XmlElementView& node, const std::shared_ptr<Processes>& parent) {
    parent_ = parent;
    auto self = shared_from_this();
    ReadAttributes(node);
    // Children are read in a fixed order whatever their order in the file:
    // activities need the documents, a main datasource needs the datasources.
    if (XmlElementView child = node.child("Datasources")) {
        Guarded("Process", "LoadElement", [&] {
            // A collection that holds nothing yet is as good as a new one.
            if (!datasources_ || datasources_->Count() > 0) datasources_ = std::make_shared<flowloom::Datasources>();
            datasources_->LoadElement(child, self);
        });
    }
    if (XmlElementView child = node.child("Documents")) {
        if (!documents_ || documents_->Count() > 0) documents_ = std::make_shared<flowloom::Documents>();
        documents_->LoadElement(child);
    }
    if (XmlElementView child = node.child("Activities")) {
        // Every activity of a process's collection knows the process, also
        // those added after loading. An empty collection is as good as a new one.
        if (!activities_ || activities_->Count() > 0) activities_ = std::make_shared<flowloom::Activities>();
        activities_->SetProcess(self);
        activities_->LoadElement(child, self);
    }
    if (XmlElementView child = node.child("Groups")) ReadGroups(child);
    if (XmlElementView child = node.child("FieldValues")) ReadFieldValues(child);
}

void Process::ReadAttributes(const XmlElementView& node) {
    for (const MeasuredAttribute a : MeasuredAttributes(node)) {
        if (NameIs(a, "Name")) name_ = a.value();
        else if (NameIs(a, "MainDatasourceName")) mainDataSourceName_ = a.value();
        else if (NameIs(a, "ProcessRecords")) {
            try {
                if (auto records = ReadProcessRecords(a.value())) processRecords_ = *records;
            } catch (...) {
                // an out-of-range number leaves the value
            }
        } else if (NameIs(a, "AbortOnError")) abortOnError_ = vb::ReadBool(a.value());
        else if (NameIs(a, "OnErrorNotifyUser")) onErrorNotifyUser_ = vb::ReadBool(a.value());
        else if (NameIs(a, "LogDatasourceName")) logDatasourceName_ = a.value();
    }
}

void Process::ReadGroups(const XmlElementView& node) {
    groups_ = std::make_shared<flowloom::Groups>();
    groups_->LoadElement(node);
    // Only groups that the file defines may stay.
    auto parent = parent_.lock();
    for (std::int32_t i = groups_->Count(); i >= 1; --i) {
        std::shared_ptr<Group> group = groups_->Item(CollectionPosition{i});
        std::shared_ptr<Group> known;
        if (parent && parent->HasGroups() && group) known = parent->Groups()->Find(group->name);
        if (!known || known->name.empty()) groups_->Remove(CollectionPosition{i});
    }
}

void Process::ReadFieldValues(const XmlElementView& node) {
    fieldValues_ = std::make_shared<flowloom::FieldValues>();
    for (const XmlElementView& child : node.children()) {
        std::shared_ptr<FieldValue> fieldValue = ReadFieldValue(child);
        if (!fieldValues_->Contains(fieldValue->field)) fieldValues_->Add(fieldValue, fieldValue->field);
    }
}

}  // namespace flowloom
