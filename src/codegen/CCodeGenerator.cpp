#include "codegen/CCodeGenerator.h"

#include "app/KeyedCollection.h"
#include "support/ReportError.h"
#include "support/TextCompare.h"
#include "support/VbStrings.h"
#include "codegen/ActivityEmitters.h"
#include "codegen/ProcedureName.h"
#include "model/Activities.h"
#include "model/Database.h"
#include "model/Datasources.h"
#include "model/Documents.h"
#include "model/FieldValue.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "model/VisitActivity.h"
#include "support/Prompts.h"

#include <algorithm>
#include <array>
#include <vector>

namespace flowloom {

namespace {

constexpr const char* kModule = "CGenerateCode";
constexpr int kStatement = 4;
constexpr int kWith = 8;
constexpr int kNestedWith = 12;

constexpr const char* kXmlModeCode =
    "    Dim vlkCurrentProcesses As velorin.CurrentProcesses     \r\n"
    "                                                                           \r\n"
    "    Set vlkCurrentProcesses = New velorin.CurrentProcesses         \r\n"
    "    vlkCurrentProcesses.Processes(\"{ProcessName}\").Execute               \r\n"
    "    Set vlkCurrentProcesses = Nothing                                      \r\n";


// The declaration, creation and release lines of one kind of member, with
// "{n}" for its number.
struct MemberLines {
    const char* kind;
    std::vector<const char*> declaration;
    const char* creation;
    std::vector<const char*> release;
};

const std::vector<MemberLines>& MemberTable() {
    static const std::vector<MemberLines> table = {
        {"Datasource", {"Dim vlkDataSource{n} As velorin.Datasource"}, "Set vlkDataSource{n} = New velorin.Datasource",
         {"Set vlkDataSource{n} = Nothing"}},
        {"MailMerge", {"Dim vlkMailMerge{n} As velorin.MailMerge"}, "Set vlkMailMerge{n} = New velorin.MailMerge",
         {"Set vlkMailMerge{n} = Nothing"}},
        {"SaveAs", {"Dim vlkSaveAs{n} As velorin.SaveAs"}, "Set vlkSaveAs{n} = New velorin.SaveAs",
         {"Set vlkSaveAs{n} = Nothing"}},
        {"PrintOut", {"Dim vlkPrintOut{n} As velorin.PrintOut"}, "Set vlkPrintOut{n} = New velorin.PrintOut",
         {"Set vlkPrintOut{n} = Nothing"}},
        {"Convert", {"Dim vlkConvert{n} As velorin.Convert"}, "Set vlkConvert{n} = New velorin.Convert",
         {"Set vlkConvert{n} = Nothing"}},
        {"SendMail",
         {"Dim vlkSendMail{n} As velorin.SendMail", "Dim vlkTo{n} As velorin.List", "Dim vlkCC{n} As velorin.List",
          "Dim vlkBCC{n} As velorin.List"},
         "Set vlkSendMail{n} = New velorin.SendMail",
         {"Set vlkSendMail{n} = Nothing", "Set vlkTo{n} = Nothing", "Set vlkCC{n} = Nothing",
          "Set vlkBCC{n} = Nothing"}},
        {"SendFax", {"Dim vlkSendFax{n} As velorin.SendFax"}, "Set vlkSendFax{n} = New velorin.SendFax",
         {"Set vlkSendFax{n} = Nothing"}},
        {"AddRecord", {"Dim vlkAddRecord{n} As velorin.AddRecord"}, "Set vlkAddRecord{n} = New velorin.AddRecord",
         {"Set vlkAddRecord{n} = Nothing"}},
        {"Document", {"Dim vlkDocument{n} As velorin.Document"}, "Set vlkDocument{n} = New velorin.Document",
         {"Set vlkDocument{n} = Nothing"}},
    };
    return table;
}

std::string Numbered(std::string_view line, std::int32_t n) { return vb::Replace(line, "{n}", std::to_string(n)); }

// Whether a datasource's database stands for the Access file the macro runs in.
bool IsCurrentDatabase(const std::string& database) {
    for (const char* name : {"CurrentProject", "CurrentDb", "CurrentDatabase"})
        if (database.find(name) != std::string::npos) return true;
    return false;
}

}  // namespace

const std::string& FrameTemplate() {
    static const std::string text =
        "'This macro code can be called from Microsoft Access application.        \r\n"
        "'This way you can use to integrate velorin with your program's process: \r\n"
        "'  1. Set a reference to velorin.mde (velorin.dll).                  \r\n"
        "'  2. Create New or Open existing module in your application.              \r\n"
        "'  3. Past this code into the module                                       \r\n"
        "                                                                           \r\n"
        "Sub {ProcedureName}()                                                       \r\n"
        "{OtherCode}                                                                \r\n"
        "End Sub                                                                    \r\n";
    return text;
}

std::string CCodeGenerator::GenerateCode(const std::shared_ptr<const Process>& process, const std::string& processesFile) {
    process_ = process;
    processesFile_ = processesFile;
    result_.clear();
    Guarded(kModule, "GenerateCode", [&] {
        result_ = processesFile_.empty() ? ClassesModeCode() : XmlModeCode();
    });
    if (!result_.empty()) CurrentPrompts().ShowText(result_);
    return result_;
}

std::string CCodeGenerator::XmlModeCode() const {
    std::string code = vb::Replace(FrameTemplate(), "{OtherCode}", kXmlModeCode);
    // The frame has no place for the file today; templates that do get it here.
    code = vb::Replace(code, "{ProcessesFile}", processesFile_);
    code = vb::Replace(code, "{ProcessName}", process_->name());
    return vb::Replace(code, "{ProcedureName}", ProcedureName(process_->name()));
}

std::string CCodeGenerator::ClassesModeCode() {
    declarations_.Clear();
    setUp_.Clear();
    cleanUp_.Clear();
    databaseSetUp_.Clear();
    fieldValueCounter_ = 0;

    SetDatabases();
    declarations_.Line(kStatement, "Dim vlkProcess As velorin.Process");
    setUp_.Line(kStatement, "Set vlkProcess = New velorin.Process");
    if (!databaseSetUp_.Empty()) setUp_.Line(kStatement, "vlkProcesses.Add vlkProcess");
    for (const auto& members : MemberTable()) MemeberCode(members.kind);
    declarations_.Line(kStatement, "Screen.MousePointer = 11");
    declarations_.Append(databaseSetUp_);

    SetProcess();
    SetDatasources();
    SetDocuments();
    // Grouped by kind, so all mail merges run first whatever their place in the process.
    for (ActivityKind kind : kActivityKinds) SetActivities(kind);

    cleanUp_.Line(kStatement, "Set vlkProcess = Nothing");
    cleanUp_.Line(kStatement, "Screen.MousePointer = 0");

    CodeBuffer body;
    body.Append(declarations_);
    body.Append(setUp_);
    body.Line(kStatement, "vlkProcess.Execute");
    body.Line(kStatement, "vlkProcess.Dispose");
    body.Append(cleanUp_);
    const std::string code = vb::Replace(FrameTemplate(), "{OtherCode}", body.Text());
    return vb::Replace(code, "{ProcedureName}", ProcedureName(process_->name()));
}

// The databases the datasources name, other than the current one, built in
// the macro so that it needs no processes file. A database named by a second
// datasource is refused by the keyed collection; that is reported and the
// name is written once.
void CCodeGenerator::SetDatabases() {
    KeyedCollection<Database> kept;
    const auto parent = process_->Parent();
    for (const auto& datasource : *process_->Datasources()) {
        const std::string& name = datasource->Database;
        if (name.empty() || EqualsNoCase(name, "CurrentDatabase")) continue;
        const auto database = parent ? parent->GetDatabaseByName(name) : nullptr;
        if (!database || database->Location.empty()) continue;
        if (!database->Type_.empty() && database->Type_ != "Microsoft Access") continue;
        Guarded(kModule, "SetDatabases", [&] { kept.Add(database, name); });
    }
    for (const auto& database : kept) {
        if (databaseSetUp_.Empty()) {
            declarations_.Line(kStatement, "Dim vlkProcesses As velorin.Processes");
            declarations_.Line(kStatement, "Dim vlkDatabase As velorin.Database");
            databaseSetUp_.Line(kStatement, "Set vlkProcesses = New velorin.Processes");
            cleanUp_.Line(kStatement, "Set vlkProcesses = Nothing");
            cleanUp_.Line(kStatement, "Set vlkDatabase = Nothing");
        }
        databaseSetUp_.Line(kStatement, "Set vlkDatabase = New velorin.Database");
        databaseSetUp_.Quoted(kStatement, "vlkDatabase.Name", database->name);
        databaseSetUp_.QuotedIfSet(kStatement, "vlkDatabase.Type_", database->Type_);
        databaseSetUp_.QuotedIfSet(kStatement, "vlkDatabase.Location", database->Location);
        databaseSetUp_.Line(kStatement, "vlkProcesses.Databases.Add vlkDatabase");
    }
}

void CCodeGenerator::MemeberCode(std::string_view kind) {
    Guarded(kModule, "MemeberCode", [&] {
        const auto& table = MemberTable();
        const auto lines = std::find_if(table.begin(), table.end(),
                                        [&](const MemberLines& entry) { return kind == entry.kind; });
        std::int32_t count = 0;
        const auto addMember = [&] {
            ++count;
            for (const char* line : lines->declaration) declarations_.Line(kStatement, Numbered(line, count));
            setUp_.Line(kStatement, Numbered(lines->creation, count));
            for (const char* line : lines->release) cleanUp_.Line(kStatement, Numbered(line, count));
        };
        if (kind == "Datasource") {
            for (std::int32_t i = 0; i < process_->Datasources()->Count(); ++i) addMember();
        } else if (kind == "Document") {
            for (std::int32_t i = 0; i < process_->Documents()->Count(); ++i) addMember();
        } else {
            const std::optional<ActivityKind> activityKind = ActivityKindOfName(kind);
            for (const auto& activity : *process_->Activities()) {
                if (activity->Kind() != activityKind) continue;
                addMember();
                const auto* addRecord = ActivityAs<AddRecord>(activity.get());
                if (!addRecord || !addRecord->HasFieldValues()) continue;
                for (std::int32_t i = 0; i < addRecord->FieldValues()->Count(); ++i) {
                    const std::int32_t n = ++fieldValueCounter_;
                    declarations_.Line(kStatement, Numbered("Dim vlkFieldValue{n} As velorin.FieldValue", n));
                    setUp_.Line(kStatement, Numbered("Set vlkFieldValue{n} = New velorin.FieldValue", n));
                    cleanUp_.Line(kStatement, Numbered("Set vlkFieldValue{n} = Nothing", n));
                }
            }
        }
        fieldValueCounter_ = 0;
    });
}

void CCodeGenerator::SetProcess() {
    Guarded(kModule, "SetProcess", [&] {
        const Process& process = *process_;
        setUp_.Line(kStatement, "With vlkProcess");
        setUp_.Quoted(kWith, ".Name", process.name());
        setUp_.Line(kWith, ".ProcessRecords = " + std::to_string(process.ProcessRecords()) +
                               "  '0 - Process Current Record; 1 - Process All Records; 2 - Process Selected Records");
        setUp_.QuotedIfSet(kWith, ".MainDataSourceName", process.MainDataSourceName());
        if (process.AbortOnError() != Process::DefaultErrorSetting)
            setUp_.Plain(kWith, ".AbortOnError", BoolText(process.AbortOnError()));
        if (process.OnErrorNotifyUser() != Process::DefaultErrorSetting)
            setUp_.Plain(kWith, ".OnErrorNotifyUser", BoolText(process.OnErrorNotifyUser()));
        if (process.HasFieldValues() && !process.FieldValues()->Empty()) {
            // The run-time has always taken this unqualified Dim inside the With.
            setUp_.Line(kWith, "Dim vlkProcessFieldValue As FieldValue");
            for (const auto& fieldValue : *process.FieldValues()) {
                ++fieldValueCounter_;
                setUp_.Line(kWith, "Set vlkProcessFieldValue = New FieldValue");
                setUp_.Line(kWith, "With vlkProcessFieldValue");
                setUp_.Quoted(kNestedWith, ".Field", fieldValue->field);
                setUp_.Plain(kNestedWith, ".Value", FieldValueText(fieldValue->value));
                setUp_.Line(kWith, "End With");
                setUp_.Line(kWith, ".FieldValues.Add vlkProcessFieldValue, vlkProcessFieldValue.Field");
            }
        }
        setUp_.QuotedIfSet(kWith, ".LogDataSourceName", process.LogDatasourceName());
        setUp_.Line(kStatement, "End With");
    });
}

void CCodeGenerator::SetDatasources() {
    Guarded(kModule, "SetDatasources", [&] {
        std::int32_t count = 0;
        for (const auto& datasource : *process_->Datasources()) {
            const std::string n = std::to_string(++count);
            setUp_.Line(kStatement, "With vlkDatasource" + n);
            setUp_.Quoted(kWith, ".Name", datasource->name());
            if (!datasource->Database.empty() && !IsCurrentDatabase(datasource->Database))
                setUp_.Quoted(kWith, ".Database", datasource->Database);
            else
                setUp_.Line(kWith, "Set .Application = Application");
            setUp_.Quoted(kWith, ".Type_", datasource->Type_);
            setUp_.Quoted(kWith, ".ObjectName", datasource->ObjectName);
            setUp_.QuotedIfSet(kWith, ".SubFormFullName", datasource->SubFormFullName);
            setUp_.Line(kStatement, "End With");
            setUp_.Line(kStatement, "vlkProcess.Datasources.Add vlkDatasource" + n);
        }
    });
}

void CCodeGenerator::SetDocuments() {
    Guarded(kModule, "SetDocuments", [&] {
        std::int32_t count = 0;
        for (const auto& document : *process_->Documents()) {
            const std::string variable = "vlkDocument" + std::to_string(++count);
            setUp_.Quoted(kStatement, variable + ".Name", document->name);
            setUp_.Line(kStatement, "vlkProcess.Documents.Add " + variable + ", " + variable + ".Name");
        }
    });
}

void CCodeGenerator::SetActivities(ActivityKind kind) {
    Guarded(kModule, "SetActivities", [&] {
        std::int32_t count = 0;
        for (const auto& activity : *process_->Activities()) {
            if (activity->Kind() != kind) continue;
            const std::string variable = "vlk" + std::string(ActivityTypeName(kind)) + std::to_string(++count);
            setUp_.Line(kStatement, "With " + variable);
            EmitActivity(*activity, count);
            setUp_.Line(kStatement, "End With");
            setUp_.Line(kStatement, "vlkProcess.Activities.Add " + variable);
        }
    });
}

void CCodeGenerator::EmitActivity(const Activity& activity, std::int32_t count) {
    struct Emit {
        CCodeGenerator& generator;
        std::int32_t count;
        const std::string& mainName;
        CodeBuffer& out() const { return generator.setUp_; }
        void operator()(const MailMerge& a) const { SetMailMerge(out(), a); }
        void operator()(const SaveAs& a) const { SetSaveAs(out(), a); }
        void operator()(const PrintOut& a) const { SetPrintOut(out(), a); }
        void operator()(const Convert& a) const {
            SetConvert(out(), a, generator.processes_ ? generator.processes_->Options().get() : nullptr);
        }
        void operator()(const SendMail& a) const { SetSendMail(out(), a, count, mainName); }
        void operator()(const SendFax& a) const { SetSendFax(out(), a); }
        void operator()(const AddRecord& a) const { SetAddRecord(out(), a, generator.fieldValueCounter_, mainName); }
    };
    VisitActivity(activity, Emit{*this, count, process_->MainDataSourceName()});
}

}  // namespace flowloom
