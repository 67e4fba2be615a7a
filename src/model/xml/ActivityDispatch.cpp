#include "model/xml/CProcessesXMLDoc.h"

#include "model/VisitActivity.h"

namespace flowloom {

void CProcessesXMLDoc::WriteActivity(const Activity& activity, XmlSink& out) {
    struct Fragment {
        CProcessesXMLDoc& writer;
        XmlSink& out;
        void operator()(const MailMerge& a) { writer.MailMergeFragment(a, out); }
        void operator()(const SaveAs& a) { writer.SaveAsFragment(a, out); }
        void operator()(const PrintOut& a) { writer.PrintOutFragment(a, out); }
        void operator()(const Convert& a) { writer.ConvertFragment(a, out); }
        void operator()(const SendMail& a) { writer.SendMailFragment(a, out); }
        void operator()(const SendFax& a) { writer.SendFaxFragment(a, out); }
        void operator()(const AddRecord& a) { writer.AddRecordFragment(a, out); }
    };
    VisitActivity(activity, Fragment{*this, out});
}

pugi::xml_node CProcessesXMLDoc::ActivityFragment(const Activity& activity, pugi::xml_node parent) {
    PugiXmlSink sink(parent);
    WriteActivity(activity, sink);
    return parent.last_child();
}

}  // namespace flowloom
