#include "model/Processes.h"

#include "app/ErrorNumbers.h"
#include "support/ReportError.h"
#include "support/TextCompare.h"
#include "support/VbStrings.h"
#include "model/Databases.h"
#include "model/Groups.h"
#include "model/Process.h"
#include "support/AtomicFile.h"
#include "support/FileBytes.h"
#include "model/xml/CProcessesXMLDoc.h"
#include "model/xml/UpdateVersion.h"
#include "options/Options.h"
#include "support/AppPaths.h"
#include "support/Prompts.h"

#include <filesystem>

namespace flowloom {

namespace fs = std::filesystem;


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
    if (!sourceXmlReady_ && !loadedText_.empty()) {
        XmlDocument document;
        if (document.LoadXml(loadedText_)) sourceXml_ = document.XML(loadedText_.size());
        sourceXmlReady_ = true;
    }
    return sourceXml_;
}

void Processes::Load(const std::string& fileName, std::shared_ptr<void> application) {
    try {
        application_ = std::move(application);
        if (!fileName.empty()) processesFile_ = fileName;
        bool exists = true;
        if (processesFile_.empty()) {
            processesFile_ = (WritableProgramFolder() / kDefaultProcessesFileName).string();
            std::error_code ec;
            exists = fs::is_regular_file(processesFile_, ec);
        } else {
            std::error_code ec;
            if (!fs::is_regular_file(processesFile_, ec))
                throw VbError(errnum::ProcessesFileDoesNotExist,
                              errnum::Description(errnum::ProcessesFileDoesNotExist, {processesFile_}), "Velorin");
        }
        if (exists) {
            sourceXmlReady_ = false;
            sourceXml_.clear();
            loadedText_ = ReadFileBytes(processesFile_).value_or(std::string());
            lastXmlSize_ = loadedText_.size();
            XmlDocument document;
            document.LoadXml(loadedText_);
            CheckLoadedDocument(document);
        }
        // Old files are converted and written back at once; a new one is created.
        if (version_ != 1) {
            UpdateVersion(*this);
            Save({});
        }
    } catch (...) {
        ReportPendingError("Processes", "Load");
    }
}

void Processes::CheckLoadedDocument(XmlDocument& document) {
    try {
        if (!document.DocumentElement()) {
            const XmlParseError& error = document.ParseError();
            errorString_ = "Error: Line " + std::to_string(error.line) + "\r\n" + error.reason + "\r\n" + error.srcText;
            complete_ = Failed;
            return;
        }
        complete_ = ReadRoot(document.Native().child("Processes")) ? Loaded : Failed;
    } catch (...) {
        ReportPendingError("Processes", "CheckLoadedDocument");
    }
}

bool Processes::ReadRoot(const pugi::xml_node& root) {
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
    return ReadContents(root);
}

bool Processes::ReadContents(const pugi::xml_node& root) {
    if (pugi::xml_node node = root.child("Groups")) {
        auto groups = std::make_shared<flowloom::Groups>();
        groups->LoadElement(node);
        groups_ = groups;
    }
    auto self = shared_from_this();
    for (const pugi::xml_node& node : root.children("Process")) {
        auto process = Process::Create();
        process->LoadElement(node, self);
        Add(process);
    }
    if (pugi::xml_node node = root.child("Databases")) {
        auto databases = std::make_shared<flowloom::Databases>();
        databases->LoadElement(node);
        databases_ = databases;
    }
    if (pugi::xml_node node = root.child("Options")) {
        auto options = std::make_shared<flowloom::Options>();
        options->LoadElement(node);
        options_ = options;
    }
    return true;
}

bool Processes::Save(const std::string& fileName) {
    try {
        std::unique_ptr<XmlDocument> document = CProcessesXMLDoc().Generate(*this);
        if (!document) RaiseStandardError(vberr::ObjectRequired);
        const std::string target = fileName.empty() ? processesFile_ : fileName;
        const fs::path folder = fs::path(target).parent_path();
        std::error_code ec;
        if (!fs::is_directory(folder.empty() ? fs::path(".") : folder, ec)) {
            MsgBox("The folder '" + folder.string() + "' does not exist.", msgbox::Exclamation);
            return false;
        }
        return WriteFile(target, *document);
    } catch (...) {
        ReportPendingError("Processes", "Processes.Save");
        return false;
    }
}

bool Processes::WriteFile(const std::string& target, const XmlDocument& document) {
    std::error_code ec;
    std::string backup;
    if (fs::exists(target, ec)) {
        backup = target + "." + vb::Right(vb::SerialNowText(), 9) + ".bak";
        fs::copy_file(target, backup, fs::copy_options::overwrite_existing);
    }
    const std::string text = document.XML(lastXmlSize_);
    lastXmlSize_ = text.size();
    WriteFileAtomically(target, text);
    // A new file shorter than the old one keeps its backup: the safety net
    // against a truncated save.
    if (!backup.empty()) {
        const auto newSize = fs::file_size(target, ec);
        const auto oldSize = ec ? 0 : fs::file_size(backup, ec);
        if (!ec && newSize >= oldSize) fs::remove(backup, ec);
    }
    return true;
}

std::string Processes::XML() {
    try {
        std::unique_ptr<XmlDocument> document = CProcessesXMLDoc().Generate(*this);
        if (!document) return {};
        std::string text = document->XML(lastXmlSize_ + lastXmlSize_ / 16);
        lastXmlSize_ = text.size();
        return text;
    } catch (...) {
        ReportPendingError("Processes", "XML");
        return {};
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
        loadedText_.clear();
        loadedText_.shrink_to_fit();
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
