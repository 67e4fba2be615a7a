// The writers are made for two sinks, a pugixml tree and text straight away:
// both give the same document, and the text writer takes what it can
// without copies as the model would give it.
#include "ModelFixture.h"

#include "model/Activities.h"
#include "model/Groups.h"
#include "model/List.h"
#include "model/Process.h"
#include "model/SendMail.h"
#include "model/xml/CProcessesXMLDoc.h"

namespace flowloom::test {
namespace {

class WriterSinks : public ModelFixture {};

TEST_F(WriterSinks, TheTreeAndTheTextGiveTheSameDocument) {
    for (const char* file : {"tests/data/every_element.xml", "examples/letters.xml"}) {
        SCOPED_TRACE(file);
        auto processes = LoadText(ReadAll(SourceDir() / file));
        ASSERT_GT(processes->Count(), 0);
        EXPECT_EQ(CProcessesXMLDoc().Generate(*processes)->XML(), processes->XML());
        for (const auto& process : *processes) {
            pugi::xml_document document;
            CProcessesXMLDoc().ProcessFragment(*process, document);
            EXPECT_EQ(SerializeNode(document), ProcessFragmentXml(*process));
        }
    }
}

TEST_F(WriterSinks, RecipientsAreTheFixedTextElseTheListsTextOrItsValuesJoined) {
    auto processes = LoadText(Document(R"(<Process Name="p"><Activities><SendMail/></Activities></Process>)"));
    auto process = processes->Item(CollectionPosition{1});
    auto sendMail = std::dynamic_pointer_cast<SendMail>(process->Activities()->Item(CollectionPosition{1}));
    ASSERT_NE(sendMail, nullptr);
    const auto list = [](std::string text, std::vector<std::string> values) {
        auto made = std::make_shared<List>();
        made->SetValues(std::move(values));
        made->SetValueList(std::move(text));
        return made;
    };
    sendMail->SetTo_(list("", {"a@x.org", "b@y.org"}));
    sendMail->SetCC(list("listed@x.org", {}));
    sendMail->SetRecipientsCC("fixed@x.org");
    sendMail->SetBCC(list("", {}));
    const std::string written = ProcessFragmentXml(*process);
    EXPECT_NE(written.find(R"(<SendMail To="a@x.org;b@y.org" CC="fixed@x.org"/>)"), std::string::npos) << written;
    sendMail->SetRecipientsCC("");
    EXPECT_NE(ProcessFragmentXml(*process).find(R"(CC="listed@x.org"/>)"), std::string::npos);
}

TEST_F(WriterSinks, AWriterUsedAgainSeesTheFilesGroupsAsTheyAreNow) {
    auto processes = LoadText(Document(R"(<Process Name="a"><Groups><Group Name="Office"/></Groups></Process>)"
                                       R"(<Process Name="b"><Groups><Group Name="Office"/></Groups></Process>)"
                                       R"(<Groups><Group Name="OFFICE"/></Groups>)"));
    CProcessesXMLDoc writer;
    const auto written = [&] {
        TextXmlSink sink;
        writer.WriteRoot(*processes, sink);
        return sink.Finish();
    };
    const std::string both = R"(<Groups><Group Name="OFFICE"/></Groups></Process>)";
    std::string text = written();
    EXPECT_NE(text.find("a\" ProcessRecords=\"Current\">" + both), std::string::npos) << text;
    EXPECT_NE(text.find("b\" ProcessRecords=\"Current\">" + both), std::string::npos) << text;
    (*processes->Groups()->begin())->name = "Desk";
    EXPECT_NE(written().find(R"(<Group Name="Desk"/></Groups></Process>)"), std::string::npos);
    processes->Groups()->Remove(CollectionPosition{1});
    text = written();
    EXPECT_EQ(text.find("Desk"), std::string::npos) << text;
    EXPECT_NE(text.find(R"(<Process Name="b" ProcessRecords="Current"><Groups/></Process>)"), std::string::npos);
}

}  // namespace
}  // namespace flowloom::test
