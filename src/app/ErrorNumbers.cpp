// modErrorsNumbers: the system's own error numbers with their texts.
#include "app/ErrorNumbers.h"

#include "app/Common.h"
#include "support/VbError.h"
#include "support/VbStrings.h"
#include "support/AppPaths.h"

#include <map>

namespace flowloom::errnum {

namespace {

const std::map<std::int32_t, const char*>& Texts() {
    static const std::map<std::int32_t, const char*> texts = {
        {30001, "Open Form or Datasheet"},
        {30006, "Patternloom is not found"},
        {30007, "Template is not found"},
        {30008, "Flowloom is not found"},
        {30009, "Datasource XML file is not created"},
        {30010, "Object does not exist"},
        {30011, "Object does not exist"},
        {30012, "Collection class is disposed"},
        {30013, "Invoked application could not start"},
        {30014, "Template could not be found"},
        {30015, "Datasource does not exist"},
        {30016, "Word document is not created"},
        {30017, "Template is incorrect"},
        {30018, "Error while opening XML document"},
        {30019, "The necessary bookmarks are missing in the template.\r\n"
                "See the help for more info on creating templates\r\n"
                "(Tutorials > Saved mail merge processes > Word Template)"},
        {30020, "XML document is incorrect"},
        {30021, "MailMerge failed"},
        {30022, "SaveAs failed"},
        {30023, "PrintOut failed"},
        {30024, "SendFax failed"},
        {30025, "SendMail failed"},
        {30026, "Error while getting data from datasource"},
        {30027, "Activity SaveAs could not be executed because the connection to the document was lost"},
        {30028, "Activity SaveAs could not save Document"},
        {30029, "Activity PrintOut could not be executed because the connection to the document was lost"},
        {30030, "Activity PrintOut could not print Document"},
        {30031, "Word version does not support Printout"},
        {30032, "SendMail failed (Outlook)"},
        {30033, "SendMail failed (CDO)"},
        {30034, "SmtpServer is not set"},
        {30035, "MailItem does not exist"},
        {30036, "At least one recipient is required, but none were found"},
        {30037, "Automatic sending of e-mail is not allowed"},
        {30038, "Access to e-mail addresses stored in Outlook is not allowed"},
        {30039, "The error occured while creating Outlook Application"},
        {30040, "SendFax: address does not exist"},
        {30041, "SendFax: Document does not exist"},
        {30042, "Activity SendFax could not be executed because the connection to the document was lost"},
        {30043, "Microsoft Mail local fax isn't installed on your system"},
        {30044, "Datasource: Object does not exist"},
        {30045, "Datasource: Application does not exist"},
        {30046, "The error occured while creating Word Application"},
        {30047, "Document used in SaveAs is not created in previous steps"},
        {30048, "Document used in PrintOut is not created in previous steps"},
        {30050, "Document used in SendFax is not created in previous steps"},
        {30051, "Processes file does not exist"},
        {30052, "Folder does not exist"},
        {30053, "Datasource object does not exist"},
        {30054, "The error occured while creating XML document"},
        {30055, "XML file not saved"},
        {30056, "Data extraction failed"},
        {30057, "The active form does not have fields to obtain data from to use with mail merge.\r\n"
                "Please open a suitable datasource (form with datafields or datasheet)"},
        {30058, "Groupwise is not installed or is not registered on this computer"},
        {30059, "Could not login to Groupwise"},
        {30060, "Groupwise: Could not create new message"},
        {30061, "Label template is incorrect.\r\n"
                "See the help for more info on creating label templates\r\n"
                "(Tutorials > Creating saved mail merge processes > Creating Labels)"},
        {30062, "AddRecord failed"},
        {30063, "Database does not exist"},
        {30064, "HTML Editor is not found"},
        {30065, "Timeout error occurred while trying to start HTML Editor"},
        {30066, "Default template is not found"},
        {30067, "Activity Convert could not convert Document"},
        {30068, "Convert failed"},
        {30069, "Convert:Path for target file is not valid"},
        {30071, "Converting to PDF needs a PDF converter. Please install Ghostscript from "
                "https://ghostscript.com/releases/gsdnld.html\r\n"
                "or \"Microsoft Save as PDF or XPS\" from "
                "https://www.microsoft.com/en-us/download/details.aspx?id=9943"},
        {30072, "PostScript file does not exist"},
        {30073, "PostScript file is not valid.\r\nPlease choose another PostScript printer"},
        {30074, "Document used in Convert is not created in previous steps"},
        {30075, "Document already exists"},
        {30076, "Field does not exist"},
        {30077, "Excel version does not support printout"},
        {30078, "The error occured while creating Excel Application"},
        {30079, "Workbook is not created"},
        {30080, "The selected datasource object does not have fields to obtain data from to use with mail merge.\r\n"
                "Please select a suitable datasource (form with datafields or datasheet)"},
        {30081, "Datasource must be a saved object"},
        {30082, "The database is having a compilation state problem.\r\n"
                "Close the database and do a 'Reinstall' (second button)\r\n"
                "using the Velorin Installer"},
        {30083, "HTML Document is not created"},
        {30084, "Velorin Repair (velorinrepair.exe) is not found"},
    };
    return texts;
}

const std::map<std::int32_t, const char*>& Forms() {
    static const std::map<std::int32_t, const char*> forms = {
        {30010, "%1 does not exist."},
        {30011, "%1 does not exist."},
        {30012, "%1 is disposed."},
        {30013, "%1 is not created"},
        {30014, "Template could not be found at %1."},
        {30015, "Datasource %1 does not exist"},
        {30017, "Template %1 is incorrect."},
        {30019, "The necessary bookmarks are missing in the template %1."},
        {30051, "'%1' is not a valid path."},
        {30052, "Folder '%1' does not exist."},
        {30075, "Document '%1' already exists."},
        {30076, "Field '%1' does not exist"},
    };
    return forms;
}

}  // namespace

std::string Description(std::int32_t code) {
    const auto& texts = Texts();
    auto it = texts.find(code);
    return it == texts.end() ? "Unspecified Velorin error" : it->second;
}

std::string Description(std::int32_t code, const std::vector<std::string>& args) {
    const auto& forms = Forms();
    auto it = forms.find(code);
    std::string text = it == forms.end() ? Description(code) : it->second;
    for (std::size_t i = 0; i < args.size(); ++i) text = vb::Replace(text, std::string(1, '%').append(std::to_string(i + 1)), args[i]);
    return text;
}

std::int32_t HelpContext(std::int32_t code) {
    switch (code) {
    case 30001: case 30057: return 30001;
    case 30006: case 30008: case 30064: case 30084: return 30006;
    case 30013: case 30039: case 30046: case 30078: return 30013;
    case 30017: case 30019: case 30061: return 30017;
    case 30027: case 30029: case 30042: return 30027;
    case 30076: return 30076;
    case 30031: case 30036: case 30077: return 0;
    case 30014: case 30082: return code;
    default: return 30000;
    }
}

void Raise(std::int32_t code, std::string context, const std::string& description) {
    std::string text = description.empty() ? Description(code) : description;
    if (!context.empty()) text = context.append("\r\n\r\n").append(text);
    throw VbError(code, text, AppTitle(), HelpFilePath(), HelpContext(code));
}

}  // namespace flowloom::errnum
