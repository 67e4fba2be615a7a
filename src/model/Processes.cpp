#include "model/Processes.h"

#include "support/FileText.h"
#include "support/ReportError.h"
#include "support/TextCompare.h"
#include "support/VbStrings.h"
#include "model/Databases.h"
#include "model/Groups.h"
#include "model/Process.h"
#include "model/xml/CProcessesXMLDoc.h"
#include "model/xml/PrefixComparison.h"
#include "options/Options.h"
#include "support/Prompts.h"

#include <algorithm>

namespace flowloom {

Processes::Processes(Passkey)
    : databases_(std::make_shared<flowloom::Databases>()), options_(std::make_shared<flowloom::Options>()) {}

std::shared_ptr<Processes> Processes::Create() { return std::make_shared<Processes>(Passkey{}); }

Processes::~Processes() {
    if (!disposed_) Dispose();
}

std::shared_ptr<flowloom::Groups> Processes::Groups() const {
    if (!groups_) groups_ = std::make_shared<flowloom::Groups>();
    return groups_;
}

const std::string& Processes::SourceXML() const {
    // Made on first read: most loads never ask for it.
    if (!sourceXmlReady_ && loadedText_.TextSize() > 0) {
        XmlDocument document;
        const std::optional<std::string> text = loadedText_.Unpack();
        if (text && document.LoadXml(*text)) sourceXml_ = document.XML(text->size());
        sourceXmlReady_ = true;
    }
    return sourceXml_;
}

bool Processes::ReadRoot(const pugi::xml_node& root, const XmlOutline& outline, const TextRelease& release) {
    // A root of another name is no "Processes" node at all: reading its
    // attributes fails like a call on nothing.
    if (!root) RaiseStandardError(vberr::ObjectRequired);
    for (const pugi::xml_attribute& a : root.attributes()) {
        if (NameIs(a, "Version")) {
            version_ = vb::CLng(vb::Val(a.value()));
            break;
        }
    }
    if (std::string_view(root.name()) != "Processes") {
        errorString_ = "The top level node is not 'Processes'";
        return false;
    }
    return ReadContents(outline, release);
}

bool Processes::ReadContents(const XmlOutline& outline, const TextRelease& release) {
    // One child of the root is read at a time, straight from the checked
    // text: a large file is never held as a tree besides its model.
    XmlElements elements;
    const auto read = [&](const XmlOutline::Child& child) {
        if (!elements.Read(child.text)) RaiseStandardError(vberr::ObjectRequired);  // the check let it pass, so it reads
        return elements.Root();
    };
    // The first child of a name, as the tree's child() would find it.
    const auto first = [&](std::string_view name) -> const XmlOutline::Child* {
        for (const auto& child : outline.children)
            if (child.name == name) return &child;
        return nullptr;
    };
    // The text behind each process read is given back, but not that of the
    // children read after the processes.
    const XmlOutline::Child* databasesChild = first("Databases");
    const XmlOutline::Child* optionsChild = first("Options");
    std::size_t keepFrom = std::string_view::npos;
    for (const XmlOutline::Child* later : {databasesChild, optionsChild})
        if (later && release.text)
            keepFrom = std::min(keepFrom, static_cast<std::size_t>(later->text.data() - release.text->View().data()));
    if (const auto* child = first("Groups")) {
        auto groups = std::make_shared<flowloom::Groups>();
        groups->LoadElement(read(*child));
        groups_ = groups;
    }
    auto self = shared_from_this();
    processes_.Reserve(static_cast<std::size_t>(processes_.Count()) +
                       static_cast<std::size_t>(std::count_if(outline.children.begin(), outline.children.end(),
                                                              [](const auto& c) { return c.name == "Process"; })));
    for (const XmlOutline::Child& child : outline.children) {
        if (child.name != "Process") continue;
        auto process = Process::Create();
        process->LoadElement(read(child), self);
        Add(process);
        release.Before(child.text.data() + child.text.size(), keepFrom);
    }
    if (const auto* child = databasesChild) {
        auto databases = std::make_shared<flowloom::Databases>();
        databases->LoadElement(read(*child));
        databases_ = databases;
    }
    if (const auto* child = optionsChild) {
        // Options keep their own reader on the XML layer's tree: their
        // names are the file's, and the default options document uses it too.
        pugi::xml_document fragment;
        pugi::xml_node node = ParseChild(*child, fragment);
        if (!node) RaiseStandardError(vberr::ObjectRequired);
        auto options = std::make_shared<flowloom::Options>();
        options->LoadElement(node);
        options_ = options;
    }
    return true;
}

std::string Processes::XML() {
    try {
        return GenerateXml();
    } catch (...) {
        ReportPendingError("Processes", "XML");
        return {};
    }
}

bool Processes::WriteXml(const std::function<bool(std::string_view)>& consumer) {
    bool going = true;
    try {
        GenerateXml([&](std::string_view piece) { return going = consumer(piece); });
        return going;
    } catch (...) {
        ReportPendingError("Processes", "XML");
        return false;
    }
}

std::string Processes::GenerateXml(const std::function<bool(std::string_view)>& consumer) {
    // Writing fills the values that fall back on others on first read (a
    // log datasource, a datasource's name), which counts as edits but
    // changes nothing written: a model unedited before stays so.
    const bool unedited = !EditedSinceLoadOrSave();
    std::string text = ProcessesFileXml(*this, lastXmlSize_ + lastXmlSize_ / 16, consumer);
    if (!consumer) lastXmlSize_ = text.size();
    if (unedited) savedRevision_ = ModelRevision::Current();
    return text;
}

bool Processes::XmlEqualsNoCase(std::string_view text) {
    try {
        PrefixComparison compare(text);
        GenerateXml([&](std::string_view piece) { return compare.Next(piece); });
        switch (compare.Finish()) {
        case PrefixComparison::Equal: return true;
        case PrefixComparison::Different: return false;
        case PrefixComparison::Undecided: break;
        }
        return EqualsNoCase(GenerateXml(), text);
    } catch (...) {
        ReportPendingError("Processes", "XML");
        return EqualsNoCase(std::string(), text);
    }
}

bool Processes::Add(const std::shared_ptr<Process>& process, const CollectionPosition& before,
                    const CollectionPosition& after) {
    if (!process) return false;
    if (!process->name().empty() && processes_.Contains(process->name())) {
        MsgBox("Process " + process->name() + " already exists.", msgbox::Exclamation);
        return false;
    }
    return Guarded("Processes", "Add", [&] {
        processes_.Add(process, process->name(), before, after);
        process->SetParent(shared_from_this());
    });
}

std::shared_ptr<Process> Processes::Item(const CollectionPosition& position) const {
    std::shared_ptr<Process> process;
    Guarded("Processes", "Item", [&] { process = processes_.ItemAt(position); });
    return process;
}

std::int32_t Processes::Count() const {
    if (disposed_) RaiseStandardError(vberr::ObjectRequired);
    return processes_.Count();
}

bool Processes::Remove(const CollectionPosition& position) { return processes_.TryRemoveAt(position); }

std::shared_ptr<Database> Processes::GetDatabaseByName(const std::string& name) const {
    if (!databases_) return nullptr;
    for (const auto& database : *databases_)
        if (EqualsNoCase(database->name, name)) return database;
    return nullptr;
}

void Processes::Dispose() {
    try {
        loadedText_ = {};
        for (const auto& process : processes_) process->Dispose();
        processes_.Clear();
        application_.reset();
        if (databases_) databases_->Dispose();
        databases_.reset();
        if (options_) options_->Dispose();
        options_.reset();
    } catch (...) {
        ReportPendingError("Processes", "Dispose");
    }
    disposed_ = true;
}

}  // namespace flowloom
