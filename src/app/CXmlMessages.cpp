#include "app/CXmlMessages.h"

#include "support/ReportError.h"
#include "app/XmlDocument.h"
#include "support/Prompts.h"

namespace flowloom {

namespace {

// Reads the messages into a fresh collection; a duplicate code ends the
// reading with the error's text.
std::string ReadMessages(const pugi::xml_node& messages, CXmlMessages::Collection& into) {
    into.Clear();
    for (const pugi::xml_node& child : messages.children()) {
        if (child.type() != pugi::node_element) continue;
        std::string code;
        std::string text;
        for (const pugi::xml_attribute& a : child.attributes()) {
            if (NameIs(a, "Code")) code = a.value();
            else if (NameIs(a, "Text")) text = a.value();
        }
        try {
            into.Add(std::make_shared<std::string>(std::move(text)), code);
        } catch (const VbError& e) {
            return e.Description();
        }
    }
    return {};
}

}  // namespace

bool CXmlMessages::Load(const std::string& vstrXmlFileFullPath) {
    return GuardedOr("CXmlMessages", "Load", false, [&] {
        std::string errorText;
        XmlDocument document;
        if (!document.Load(vstrXmlFileFullPath)) {
            const XmlParseError& error = document.ParseError();
            errorText = "Error: Line " + std::to_string(error.line) + "\r\n" + error.reason + "\r\n" + error.srcText;
        } else if (pugi::xml_node messages = document.DocumentElement().child("Messages"); !messages) {
            errorText = "The top level node is not 'Messages'.";
        } else if (messages.first_child()) {
            errorText = ReadMessages(messages, messages_);
        }
        if (errorText.empty()) return true;
        MsgBox(errorText, msgbox::Critical);
        return false;
    });
}

std::string CXmlMessages::GetMessage(const std::string& vstrMsgCode) const {
    try {
        if (auto text = messages_.Find(vstrMsgCode)) return *text;
    } catch (...) {
    }
    return {};
}

CXmlMessages& Messages() {
    static CXmlMessages messages;
    return messages;
}

}  // namespace flowloom
