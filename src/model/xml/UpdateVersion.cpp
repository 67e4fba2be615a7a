// mProcessesXMLUpdateVersion: converts the model of an older file.
#include "model/xml/UpdateVersion.h"

#include "app/Common.h"
#include "support/TextCompare.h"
#include "support/VbStrings.h"
#include "model/Activities.h"
#include "model/Database.h"
#include "model/Databases.h"
#include "model/Documents.h"
#include "model/MailMerge.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "model/VisitActivity.h"

#include <filesystem>

namespace flowloom {

namespace fs = std::filesystem;

namespace {

constexpr const char* kMarker = "[Use mail merge document]";

// The folder of a file that exists, with its closing separator; "" otherwise.
std::string FolderOfExistingFile(const std::string& path) {
    std::error_code ec;
    if (path.empty() || !fs::is_regular_file(path, ec)) return {};
    std::string folder = fs::path(path).parent_path().string();
    if (folder.empty() || folder.back() != '/') folder += '/';
    return folder;
}

// Writes the body to a new template file beside the first database (in
// "templates") and returns its path; "" when no file could be written.
std::string WriteBodyTemplate(Processes& processes, const Process& process, const std::string& body,
                              const std::string& application) {
    auto databases = processes.Databases();
    if (!databases || databases->Count() == 0) return {};
    const std::string folder = FolderOfExistingFile(databases->Item(CollectionPosition{1})->Location) + "templates";
    const std::string base = (fs::path(folder) / process.name()).string();
    const std::string extension = InvokedApplicationExtension(application);
    std::string file = base + extension;
    std::error_code ec;
    for (int n = 1; fs::exists(file, ec); ++n) file = base + std::to_string(n) + extension;
    WriteFileText(file, body);
    return fs::exists(file, ec) ? file : std::string();
}

// Turns the body of one SendMail into a MailMerge of a template before it.
bool ConvertBody(Processes& processes, const std::shared_ptr<Process>& process, SendMail& sendMail) {
    const std::string body = sendMail.Body();
    if (EqualsNoCase(body, kMarker)) {
        sendMail.SetBody({});  // the mail takes its input document as it stands
    } else if (!body.empty()) {
        const std::string application = IsHtmlText(body) ? "HTML" : "Text";
        const std::string templateFile = WriteBodyTemplate(processes, *process, body, application);
        if (templateFile.empty()) return false;

        auto mailMerge = std::make_shared<MailMerge>();
        mailMerge->SetInvokedApplication(application);
        mailMerge->SetTemplate(templateFile);
        mailMerge->SetShowDocument(false);
        mailMerge->SetMailMergeType(3);
        mailMerge->SetOutputDocumentName(process->name() + " Body");
        // The datasource of the merge that made the mail's old input would go
        // here, but a MailMerge never gives its datasource back.

        auto document = std::make_shared<Document>();
        document->name = mailMerge->OutputDocumentName();
        document->Template = templateFile;

        sendMail.SetInputDocumentName(document->name);
        process->Activities()->Add(mailMerge, CollectionPosition{std::string(sendMail.Key())});
        process->Documents()->Add(document, document->name);
        sendMail.SetBody({});
    }
    const std::string replacement = "[Document:" + sendMail.InputDocumentName() + "]";
    for (const auto& attachment : *sendMail.Attachments())
        attachment->name = vb::Replace(attachment->name, kMarker, replacement);
    return true;
}

}  // namespace

bool ConvertVersion0To1(Processes& processes) {
    try {
        for (const auto& process : processes.Snapshot()) {
            for (const auto& activity : process->Activities()->Snapshot()) {
                auto* sendMail = ActivityAs<SendMail>(activity.get());
                if (sendMail && !ConvertBody(processes, process, *sendMail)) return false;
            }
        }
        return true;
    } catch (...) {
        return false;  // ends without a message; the next load tries again
    }
}

bool UpdateVersion(Processes& processes) {
    if (processes.Version() != 0) return false;
    if (!ConvertVersion0To1(processes)) return false;
    processes.SetVersion(1);
    return true;
}

}  // namespace flowloom
