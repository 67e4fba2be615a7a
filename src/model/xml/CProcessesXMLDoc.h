#pragma once

#include "model/Forward.h"
#include "app/XmlDocument.h"

#include <pugixml.hpp>

#include <memory>
#include <string>

namespace flowloom {

class OptionItem;

// Turns a Processes into an XML document. Each fragment operation creates
// its element under `parent`, sets the attributes in the file's order,
// appends the children and returns the element. Failures are reported under
// "CProcessesXMLDoc" and the operation's name, and the operation ends with
// what it has.
class CProcessesXMLDoc {
public:
    std::unique_ptr<XmlDocument> Generate(const Processes& processes);

    pugi::xml_node ProcessFragment(const Process& process, pugi::xml_node parent);
    // The fragment of the activity's own kind.
    pugi::xml_node ActivityFragment(const Activity& activity, pugi::xml_node parent);

    pugi::xml_node MailMergeFragment(const MailMerge& activity, pugi::xml_node parent);
    pugi::xml_node SaveAsFragment(const SaveAs& activity, pugi::xml_node parent);
    pugi::xml_node PrintOutFragment(const PrintOut& activity, pugi::xml_node parent);
    pugi::xml_node SendMailFragment(const SendMail& activity, pugi::xml_node parent);
    pugi::xml_node SendFaxFragment(const SendFax& activity, pugi::xml_node parent);
    pugi::xml_node AddRecordFragment(const AddRecord& activity, pugi::xml_node parent);
    pugi::xml_node ConvertFragment(const Convert& activity, pugi::xml_node parent);

    pugi::xml_node DatasourceFragment(const Datasource& datasource, pugi::xml_node parent);
    pugi::xml_node DocumentFragment(const Document& document, pugi::xml_node parent);
    pugi::xml_node DatabaseFragment(const Database& database, pugi::xml_node parent);
    pugi::xml_node GroupFragment(const Group& group, pugi::xml_node parent);
    pugi::xml_node FieldValueFragment(const FieldValue& fieldValue, pugi::xml_node parent);
    pugi::xml_node OptionFragment(const OptionItem& option, pugi::xml_node parent);
};

// The serialised Process element alone, as the designer copies a process.
std::string ProcessFragmentXml(const Process& process);

}  // namespace flowloom
