#pragma once

#include "model/Forward.h"
#include "app/XmlDocument.h"
#include "app/XmlSink.h"

#include <pugixml.hpp>

#include <memory>
#include <string>

namespace flowloom {

class OptionItem;

// Turns a Processes into XML. Each fragment writes its element to a sink:
// the attributes in the file's order, then the children. Failures are
// reported under "CProcessesXMLDoc" and the fragment's name, and the
// fragment ends with what it has. The operations on a pugixml parent append
// the element there and return it.
class CProcessesXMLDoc {
public:
    // The whole file as a document (the text writers do without one).
    std::unique_ptr<XmlDocument> Generate(const Processes& processes);
    // The root element and all it holds (not the declaration).
    void WriteRoot(const Processes& processes, XmlSink& out);

    void WriteProcess(const Process& process, XmlSink& out);
    void WriteActivity(const Activity& activity, XmlSink& out);

    pugi::xml_node ProcessFragment(const Process& process, pugi::xml_node parent);
    // The fragment of the activity's own kind.
    pugi::xml_node ActivityFragment(const Activity& activity, pugi::xml_node parent);
    pugi::xml_node OptionFragment(const OptionItem& option, pugi::xml_node parent);

private:
    void MailMergeFragment(const MailMerge& activity, XmlSink& out);
    void SaveAsFragment(const SaveAs& activity, XmlSink& out);
    void PrintOutFragment(const PrintOut& activity, XmlSink& out);
    void SendMailFragment(const SendMail& activity, XmlSink& out);
    void SendFaxFragment(const SendFax& activity, XmlSink& out);
    void AddRecordFragment(const AddRecord& activity, XmlSink& out);
    void ConvertFragment(const Convert& activity, XmlSink& out);

    void DatasourceFragment(const Datasource& datasource, XmlSink& out);
    void DocumentFragment(const Document& document, XmlSink& out);
    void DatabaseFragment(const Database& database, XmlSink& out);
    void GroupFragment(const Group& group, XmlSink& out);
    void FieldValueFragment(const FieldValue& fieldValue, XmlSink& out);
};

// The serialised Process element alone, as the designer copies a process.
std::string ProcessFragmentXml(const Process& process);

// The processes file as Save writes it: declaration and root, straight into
// one buffer. With a consumer, the text goes to it in pieces instead (see
// TextXmlSink) and the result holds only what was left.
std::string ProcessesFileXml(const Processes& processes, std::size_t sizeHint = 0,
                             TextXmlSink::Consumer consumer = {});

}  // namespace flowloom
