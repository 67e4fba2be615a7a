#include "options/DefaultOptions.h"

#include <pugixml.hpp>

namespace flowloom {

namespace {

// Indented with two blanks and written without line breaks: only the element
// structure matters to the reader.
constexpr std::string_view kDefaultOptions =
    R"(<?xml version="1.0" encoding="UTF-8"?>)"
    R"(<Options>)"
    R"(  <Email DefaultEmailTemplateHTML="8" DefaultEmailTemplatePlainText="8" DefaultStyle="5">)"
    R"(    <DefaultStyle List="HTML;Plain text" Default="HTML"/>)"
    R"(  </Email>)"
    R"(  <FileLocations TemplateFolder="7" DocumentFolder="7" Patternloom="6" Flowloom="6" HTMLEditor="6" Labels="6" Envelope="6">)"
    R"(    <TemplateFolder Default="{Templates}"/>)"
    R"(    <DocumentFolder Default="{Documents}"/>)"
    R"(    <Patternloom FileFilter="Exe files (*.exe){0}*.exe{0}All Files (*.*){0}*.*{0}" Default="{Tools}\patternloom.exe"/>)"
    R"(    <Flowloom FileFilter="Exe files (*.exe){0}*.exe{0}All Files (*.*){0}*.*{0}" Default="{Tools}\flowloom.exe"/>)"
    R"(    <HTMLEditor FileFilter="Exe files (*.exe){0}*.exe{0}All Files (*.*){0}*.*{0}" Default="{Tools}\markuploom.exe"/>)"
    R"(    <Labels FileFilter="Word template files (*.dot){0}*.dot{0}All Files (*.*){0}*.*{0}" Default="{Templates}\labels.dot"/>)"
    R"(    <Envelope FileFilter="Word template files (*.dot){0}*.dot{0}All Files (*.*){0}*.*{0}" Default="{Templates}\envelope.dot"/>)"
    R"(  </FileLocations>)"
    R"(  <Contact SupportContactName="0" SupportContactEmail="0" SupportContactPhone="0" UserContactName="0" UserContactEmail="0" UserContactPhone="0">)"
    R"(    <SupportContactEmail Default="support@flowloom.example"/>)"
    R"(  </Contact>)"
    R"(  <ConvertingPostscriptToPDF PostscriptPrinter="5" GhostscriptExecutableFile="6" GhostscriptCommandLine="0">)"
    R"(    <PostscriptPrinter/>)"
    R"(    <GhostscriptExecutableFile FileFilter="Ghostscript executable file (gswin32c.exe){0}gswin32c.exe{0}Bat files (*.bat){0}*.bat{0}All Files (*.*){0}*.*{0}"/>)"
    R"(    <GhostscriptCommandLine Default="-sDEVICE=pdfwrite -q -dPDFSETTINGS=/prepress -dCompatibilityLevel=1.3 -dNOPAUSE -dBATCH -sOutputFile={OutputPdfFile} -c save pop -f {InputPostscriptFile}"/>)"
    R"(  </ConvertingPostscriptToPDF>)"
    R"(</Options>)";

}  // namespace

std::string_view DefaultOptionsXml() { return kDefaultOptions; }

std::shared_ptr<Options> LoadDefaultOptions() {
    pugi::xml_document document;
    document.load_buffer(kDefaultOptions.data(), kDefaultOptions.size());
    auto options = std::make_shared<Options>();
    options->LoadElement(document.document_element());
    return options;
}

}  // namespace flowloom
