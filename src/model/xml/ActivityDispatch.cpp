#include "model/xml/CProcessesXMLDoc.h"

#include "model/VisitActivity.h"

namespace flowloom {

pugi::xml_node CProcessesXMLDoc::ActivityFragment(const Activity& activity, pugi::xml_node parent) {
    struct Fragment {
        CProcessesXMLDoc& writer;
        pugi::xml_node parent;
        pugi::xml_node operator()(const MailMerge& a) { return writer.MailMergeFragment(a, parent); }
        pugi::xml_node operator()(const SaveAs& a) { return writer.SaveAsFragment(a, parent); }
        pugi::xml_node operator()(const PrintOut& a) { return writer.PrintOutFragment(a, parent); }
        pugi::xml_node operator()(const Convert& a) { return writer.ConvertFragment(a, parent); }
        pugi::xml_node operator()(const SendMail& a) { return writer.SendMailFragment(a, parent); }
        pugi::xml_node operator()(const SendFax& a) { return writer.SendFaxFragment(a, parent); }
        pugi::xml_node operator()(const AddRecord& a) { return writer.AddRecordFragment(a, parent); }
    };
    return VisitActivity(activity, Fragment{*this, parent});
}

}  // namespace flowloom
