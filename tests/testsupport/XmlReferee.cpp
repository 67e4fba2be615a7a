#include "XmlReferee.h"

#include <libxml/parser.h>
#include <libxml/xmlerror.h>

#include <climits>

namespace flowloom::test {

namespace {

void KeepFirstError(void* context, xmlErrorPtr error) {
    auto* first = static_cast<std::string*>(context);
    if (!error || error->level < XML_ERR_ERROR || !first->empty()) return;
    if (error->domain == XML_FROM_VALID || error->domain == XML_FROM_DTD) return;
    *first = error->message ? error->message : "error";
    while (!first->empty() && (first->back() == '\n' || first->back() == ' ')) first->pop_back();
}

}  // namespace

std::optional<std::string> ConformantParserFault(std::string_view text) {
    if (text.size() > static_cast<std::size_t>(INT_MAX)) return "too large for the referee";
    std::string first;
    xmlSetStructuredErrorFunc(&first, KeepFirstError);
    xmlParserCtxtPtr context = xmlNewParserCtxt();
    xmlDocPtr document = xmlCtxtReadMemory(context, text.data(), static_cast<int>(text.size()), "document.xml", nullptr,
                                           XML_PARSE_NONET | XML_PARSE_HUGE);
    // Namespace errors do not stop libxml2: they only clear nsWellFormed.
    const bool wellFormed = document && context->wellFormed && context->nsWellFormed;
    xmlFreeDoc(document);
    xmlFreeParserCtxt(context);
    xmlSetStructuredErrorFunc(nullptr, nullptr);
    // Validity errors (such as xml:id values) say nothing of well-formedness.
    if (wellFormed) return std::nullopt;
    return first.empty() ? std::string("not well-formed") : first;
}

}  // namespace flowloom::test
