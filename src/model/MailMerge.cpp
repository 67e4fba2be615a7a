#include "model/MailMerge.h"

#include "support/ReportError.h"
#include "support/VbStrings.h"
#include "model/ActivityDocuments.h"
#include "model/Datasource.h"
#include "model/Document.h"
#include "app/XmlDocument.h"

namespace flowloom {

std::vector<std::string>& MailMerge::Pictures() { return held_.Get().pictures; }

void MailMerge::SetDatasource(std::shared_ptr<flowloom::Datasource> datasource) {
    if (datasource || held_.Find()) held_.Get().datasource = std::move(datasource);
    ModelRevision::Bump();
}

std::shared_ptr<Document> MailMerge::OutputDocument() const {
    const Held* held = held_.Find();
    return held ? held->outputDocument : nullptr;
}

const std::string& MailMerge::DatasourceName() const {
    const Held* held = held_.Find();
    if (datasourceName_.empty() && held && held->datasource) datasourceName_ = held->datasource->name();
    return datasourceName_;
}

void MailMerge::SetOutputDocumentName(const std::string& name) {
    RenameOutputDocument(ParentProcess(), outputDocumentName_, name);
    outputDocumentName_ = name;
}

const std::string& MailMerge::InvokedApplication() const {
    if (invokedApplication_.empty()) invokedApplication_ = "Microsoft Word";
    return invokedApplication_;
}

void MailMerge::Dispose() {
    try {
        held_.Reset();
        Activity::Dispose();
    } catch (...) {
    }
}

void MailMerge::LoadElement(const XmlElementView& node, const std::shared_ptr<Process>& process) {
    SetParentProcess(process);
    for (const MeasuredAttribute a : MeasuredAttributes(node)) {
        Guarded("MailMerge", "LoadElement", [&] {
            if (NameIs(a, "InvokedApplication")) invokedApplication_ = a.value();
            else if (NameIs(a, "Template")) template_ = a.value();
            else if (NameIs(a, "OutputDocumentName")) {
                SetOutputDocumentName(std::string(a.value()));
                AddDocumentNamed(process, std::string(a.value()));
            } else if (NameIs(a, "ShowDocument")) showDocument_ = vb::ReadBool(a.value());
            else if (NameIs(a, "InsertPagebreak")) insertPagebreak_ = vb::ReadBool(a.value());
            else if (NameIs(a, "MailMergeType")) {
                if (auto n = vb::ToNumber(a.value())) mailMergeType_ = vb::CLng(*n);
            } else if (NameIs(a, "DatasourceName")) datasourceName_ = a.value();
            else if (NameIs(a, "Description")) SetDescription(std::string(a.value()));
            else if (NameIs(a, "PrecededBy")) precededBy_ = a.value();
            else if (NameIs(a, "SucceededBy")) succeededBy_ = a.value();
            else if (NameIs(a, "Iteration")) iteration_ = a.value();
        });
    }
}

}  // namespace flowloom
