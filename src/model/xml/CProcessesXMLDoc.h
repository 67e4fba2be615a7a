#pragma once

#include "model/Forward.h"
#include "app/XmlDocument.h"
#include "app/XmlSink.h"

#include <pugixml.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace flowloom {

class OptionItem;

// Turns a Processes into XML. Each fragment writes its element to a sink:
// the attributes in the file's order, then the children. Failures are
// reported under "CProcessesXMLDoc" and the fragment's name, and the
// fragment ends with what it has. The operations on a pugixml parent append
// the element there and return it. The writers take the sink's own type
// (TextXmlSink or PugiXmlSink), so that the text is written without a call
// through the interface for every attribute.
class CProcessesXMLDoc {
public:
    // The whole file as a document (the text writers do without one).
    std::unique_ptr<XmlDocument> Generate(const Processes& processes);
    // The root element and all it holds (not the declaration).
    template <typename Sink>
    void WriteRoot(const Processes& processes, Sink& out);

    template <typename Sink>
    void WriteProcess(const Process& process, Sink& out);
    template <typename Sink>
    void WriteActivity(const Activity& activity, Sink& out);

    pugi::xml_node ProcessFragment(const Process& process, pugi::xml_node parent);
    // The fragment of the activity's own kind.
    pugi::xml_node ActivityFragment(const Activity& activity, pugi::xml_node parent);
    pugi::xml_node OptionFragment(const OptionItem& option, pugi::xml_node parent);

private:
    template <typename Sink>
    void MailMergeFragment(const MailMerge& activity, Sink& out);
    template <typename Sink>
    void SaveAsFragment(const SaveAs& activity, Sink& out);
    template <typename Sink>
    void PrintOutFragment(const PrintOut& activity, Sink& out);
    template <typename Sink>
    void SendMailFragment(const SendMail& activity, Sink& out);
    template <typename Sink>
    void SendFaxFragment(const SendFax& activity, Sink& out);
    template <typename Sink>
    void AddRecordFragment(const AddRecord& activity, Sink& out);
    template <typename Sink>
    void ConvertFragment(const Convert& activity, Sink& out);

    template <typename Sink>
    void DatasourceFragment(const Datasource& datasource, Sink& out);
    template <typename Sink>
    void DocumentFragment(const Document& document, Sink& out);
    template <typename Sink>
    void DatabaseFragment(const Database& database, Sink& out);
    template <typename Sink>
    void GroupFragment(const Group& group, Sink& out);
    template <typename Sink>
    void FieldValueFragment(const FieldValue& fieldValue, Sink& out);

    // The file's group of a process's group name: the last one found is
    // kept, as processes often name the same.
    std::shared_ptr<Group> KnownGroup(const std::shared_ptr<Groups>& groups, const std::string& name);

    std::string quoted_;  // a field value with its quotes as entities, reused
    struct FoundGroup {
        std::shared_ptr<Groups> groups;
        std::string name;
        std::uint64_t revision = 0;
        std::shared_ptr<Group> found;
    } lastGroup_;
};

// The serialised Process element alone, as the designer copies a process.
std::string ProcessFragmentXml(const Process& process);

// The processes file as Save writes it: declaration and root, straight into
// one buffer. With a consumer, the text goes to it in pieces instead (see
// TextXmlSink) and the result holds only what was left.
std::string ProcessesFileXml(const Processes& processes, std::size_t sizeHint = 0,
                             TextXmlSink::Consumer consumer = {});

}  // namespace flowloom
