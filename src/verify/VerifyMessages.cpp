#include "verify/VerifyMessages.h"

#include "app/Downloads.h"

#include <array>

namespace flowloom {

namespace {

const std::string kGhostscriptOffer = std::string("Acrobat Distiller is not installed.\r\n"
                                                  "You can download Ghostscript (free PostScript to PDF converter) from\r\n") +
                                      downloads::kGhostscript;

const std::string kSaveAsPdfOffer = std::string("Microsoft Save as PDF add-in is not installed.\r\n"
                                                "You can download \"Microsoft Save as PDF\" from ") +
                                    downloads::kSaveAsPdf + "\r\nor \"Microsoft Save as PDF or XPS\" from " +
                                    downloads::kSaveAsPdfOrXps;

const std::string kSaveAsXpsOffer = std::string("Microsoft Save as XPF add-in is not installed.\r\n"
                                                "You can download \"Microsoft Save as XPS\" from ") +
                                    downloads::kSaveAsXps + "\r\nor \"Microsoft Save as PDF or XPS\" from " +
                                    downloads::kSaveAsPdfOrXps;

// Several texts have no rule that reports them; they stay for numbering's
// sake, as do their spelling slips, since users know the texts.
const std::array<std::string, 58> kMessages = {
    "The process is not named.",
    "The process has no Datasource.\r\n",
    "The process has no Activity.",
    "The value for property Main Datasource Name is not set. The first Datasource will be used as Main Datasource.",
    "The value for  property Main Datasource Name is set wrongly. Datasource '{%1}' does not exist.",
    "Datasource({%1}) is not named.",
    "Datasource({%1}): the property Database is not set.",
    "Datasource({%1}): Database '{%2}' does not exist.",
    "Datasource({%1}): Application does not exist.",
    "Datasource({%1}): the property ObjectName is not set.",
    "Datasource({%1}): the {%2} '{%3}' does not exist in Database '{%4}'.",
    "Database({%1}) is not named.",
    "Database {%1}: the property Location is not set.",
    "Database {%1}: file '{%2}' does not exist.",
    "Database {%1}: file '{%2}' has unsupported extension.",
    "Document '{%1}' used in '{%2}' is not created in previous steps.",
    "MailMerge's property Template is not set.",
    "MailMerge's property Template contains a reference to file '{%1}' which does not exist.",
    "MailMerge's property Datasource Name contains a reference to Datasource '{%1}' which does not exist.",
    "SaveAs's property Input Document Name is not set.",
    "SaveAs's property Input Document Name contains a reference to Document '{%1}' which does not exist.",
    "SaveAs's property Folder is not set.",
    "SaveAs's property File is not set.",
    "SaveAs: selected format is not supported in Miscrosoft Word {%1}",
    "PrintOut's property Input Document Name is not set.",
    "PrintOut's property Input Document Name contains a reference to Document '{%1}' which does not exist.",
    "SendMail's property Input Document Name contains a reference to Document '{%1}' which does not exist.",
    "SendMail's property To is not set.",
    "SendMail's property Subject is not set.",
    "SendMail's property SendMethod can not be Draft or Display if CDO is used.",
    "SendMail's property SendMethod can not be Draft or Display if CDO is used.",
    "SendFax's property Input Document Name is not set.",
    "SendFax's property Input Document Name contains a reference to Document '{%1}' which does not exist.",
    "SendFax's property Address is not set.",
    "The sequence of activities is not correct. Output Document of {%2} is used by {%1} therefore {%2} should "
    "precede {%1}.",
    "MailMerge's property Preceded By contains a reference to Document '{%1}' which does not exist.",
    "MailMerge's property Succeeded By contains a reference to Document '{%1}' which does not exist.",
    "MailMerge's property 'Output Document Name' refers to Document '{%1}' which is used by another MailMerge.",
    "Convert's property Input Document Name is not set.",
    "Convert's property Input Document Name contains a reference to Document '{%1}' which does not exist.",
    "Microsoft Save as PDF add-in can not be used for Microsoft Word {%1}.\r\n"
    "Use print on Postscript printer and the following Postscript to PDF converting.",
    "Convert's property PostScript Printer is not set.",
    "Convert: printer '{%1}' does not exist.",
    kGhostscriptOffer,
    "The executable file of Ghostscript is not defined in Processes.Options.",
    "The file '{%1}' does not exist.",
    "Cannot convert to PDF document. See help for details.",
    kSaveAsPdfOffer,
    kSaveAsXpsOffer,
    "It has sense only to use SendMail's property 'Output Document Name' with Outlook.",
    "SaveAs's property Input Document Name contains a reference to Document '{%1}' which can not be created in "
    "SendMail activity.",
    "MailMerge's property Template contains a reference to file '{%1}' which does not matches the "
    "InvokedApplication '{%2}'.",
    "MailMerge's property Template contains a reference to file '{%1}' which does not matches the version of "
    "InvokedApplication '{%2}'.",
    "AddRecord's property Datasource Name contains a reference to Datasource '{%1}' which does not exist.",
    "AddRecord's property Database contains a reference to Database '{%1}' which does not exist.",
    "AddRecord's property Table Name is not specified.",
    "Table '{%1}' does not exist in Database '{%2}'.",
    "AddRecord's property Field Values is not specified.",
};

}  // namespace

std::string VerifyMessage(int number) {
    if (number < 0 || number >= static_cast<int>(kMessages.size())) return "Error not specified";
    return kMessages[static_cast<std::size_t>(number)];
}

std::string ApplicationOfExtension(const std::string& extension, bool noCompiled) {
    const bool access = extension == "accdb" || extension == "mdb" || extension == "adp" ||
                        (!noCompiled && (extension == "mde" || extension == "ade"));
    return access ? "Microsoft Access" : "";
}

}  // namespace flowloom
