#include "model/xml/CProcessesXMLDoc.h"

#include "model/AddRecord.h"
#include "model/Convert.h"
#include "model/MailMerge.h"
#include "model/PrintOut.h"
#include "model/SaveAs.h"
#include "model/SendFax.h"
#include "model/SendMail.h"

namespace flowloom {

namespace {
template <typename T>
T& As(Activity& activity) {
    return dynamic_cast<T&>(activity);
}
}  // namespace

pugi::xml_node CProcessesXMLDoc::ActivityFragment(Activity& activity, pugi::xml_node parent) {
    const std::string type = activity.ActivityType();
    if (type == "MailMerge") return MailMergeFragment(As<MailMerge>(activity), parent);
    if (type == "SaveAs") return SaveAsFragment(As<SaveAs>(activity), parent);
    if (type == "PrintOut") return PrintOutFragment(As<PrintOut>(activity), parent);
    if (type == "SendMail") return SendMailFragment(As<SendMail>(activity), parent);
    if (type == "SendFax") return SendFaxFragment(As<SendFax>(activity), parent);
    if (type == "AddRecord") return AddRecordFragment(As<AddRecord>(activity), parent);
    if (type == "Convert") return ConvertFragment(As<Convert>(activity), parent);
    return {};
}

}  // namespace flowloom
