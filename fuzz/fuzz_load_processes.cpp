// Loads arbitrary bytes as a processes file, then writes the model back and
// loads that text once more. Loading must never crash, leak or hang; what the
// reader takes, a conformant parser (libxml2) takes too; the loader's element
// reader gives every child of the root as pugixml's tree has it; the text as
// loaded stays at hand (packed, while the loader gives the text back behind
// it); and what the writer makes is well-formed for libxml2 and always loads.
#include "FuzzSupport.h"

#include "app/XmlDocument.h"
#include "model/Processes.h"
#include "support/PackedText.h"
#include "support/Prompts.h"
#include "testsupport/XmlReferee.h"

#include <cstdint>
#include <string>

namespace {

// An element and its descendants as text: names, attributes and values.
std::string Shape(const flowloom::XmlElementView& element) {
    std::string out = "<" + std::string(element.name());
    for (const flowloom::XmlElementAttribute a : element.attributes())
        out += " " + std::string(a.name()) + "=" + std::string(a.value()) + "\n";
    for (const flowloom::XmlElementView child : element.children()) out += Shape(child);
    return out + ">";
}

std::string Shape(const pugi::xml_node& element) {
    std::string out = std::string("<") + element.name();
    for (const pugi::xml_attribute& a : element.attributes()) out += std::string(" ") + a.name() + "=" + a.value() + "\n";
    for (const pugi::xml_node& child : element.children())
        if (child.type() == pugi::node_element) out += Shape(child);
    return out + ">";
}

// Whether each child of the root of a checked document reads as a parser reads it.
bool ChildrenReadAsParsed(const std::string& bytes) {
    flowloom::XmlOutline outline;
    if (flowloom::CheckXmlDocument(bytes, outline)) return true;
    flowloom::XmlElements elements;
    pugi::xml_document document;
    for (const auto& child : outline.children) {
        const pugi::xml_node parsed = flowloom::ParseChild(child, document);
        if (!parsed || !elements.Read(child.text) || Shape(elements.Root()) != Shape(parsed)) return false;
    }
    return true;
}

// libxml2 stops at a nesting depth of its own choosing, which is no rule of XML.
bool RefusedForItsOwnLimits(const std::string& fault) { return fault.find("Excessive depth") != std::string::npos; }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static flowloom::SilentPrompts silent;
    flowloom::SetCurrentPrompts(&silent);
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    if (flowloom::XmlDocument().LoadXml(bytes))
        if (auto fault = flowloom::test::ConformantParserFault(bytes); fault && !RefusedForItsOwnLimits(*fault))
            __builtin_trap();
    if (!ChildrenReadAsParsed(bytes)) __builtin_trap();
    if (flowloom::PackedText::Pack(bytes).Unpack() != bytes) __builtin_trap();

    const auto& folder = flowloom::fuzz::WorkFolder("flowloom-fuzz");
    const auto file = folder / "processes.xml";
    flowloom::fuzz::WriteFile(file, bytes);
    auto processes = flowloom::Processes::Create();
    processes->Load(file.string());
    if (flowloom::XmlDocument source; source.LoadXml(bytes) && processes->SourceXML() != source.XML(bytes.size()))
        __builtin_trap();
    const std::string xml = processes->XML();
    processes->Dispose();
    if (flowloom::test::ConformantParserFault(xml)) __builtin_trap();

    flowloom::fuzz::WriteFile(file, xml);
    auto again = flowloom::Processes::Create();
    again->Load(file.string());
    if (again->Complete() != flowloom::Processes::Loaded) __builtin_trap();
    again->Dispose();
    flowloom::fuzz::RemoveBackups(folder);
    return 0;
}
