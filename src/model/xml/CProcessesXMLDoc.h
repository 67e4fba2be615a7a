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
    std::unique_ptr<XmlDocument> Generate(Processes& processes);

    pugi::xml_node ProcessFragment(Process& process, pugi::xml_node parent);
    // Dispatch by ActivityType; nothing for an unknown type.
    pugi::xml_node ActivityFragment(Activity& activity, pugi::xml_node parent);

    pugi::xml_node MailMergeFragment(MailMerge& activity, pugi::xml_node parent);
    pugi::xml_node SaveAsFragment(SaveAs& activity, pugi::xml_node parent);
    pugi::xml_node PrintOutFragment(PrintOut& activity, pugi::xml_node parent);
    pugi::xml_node SendMailFragment(SendMail& activity, pugi::xml_node parent);
    pugi::xml_node SendFaxFragment(SendFax& activity, pugi::xml_node parent);
    pugi::xml_node AddRecordFragment(AddRecord& activity, pugi::xml_node parent);
    pugi::xml_node ConvertFragment(Convert& activity, pugi::xml_node parent);

    pugi::xml_node DatasourceFragment(Datasource& datasource, pugi::xml_node parent);
    pugi::xml_node DocumentFragment(const Document& document, pugi::xml_node parent);
    pugi::xml_node DatabaseFragment(const Database& database, pugi::xml_node parent);
    pugi::xml_node GroupFragment(const Group& group, pugi::xml_node parent);
    pugi::xml_node FieldValueFragment(const FieldValue& fieldValue, pugi::xml_node parent);
    pugi::xml_node OptionFragment(const OptionItem& option, pugi::xml_node parent);
};

// The serialised Process element alone, as the designer copies a process.
std::string ProcessFragmentXml(Process& process);

}  // namespace flowloom
