// Version 0 files: mail texts become templates merged before the mail.
#include "ModelFixture.h"

#include "model/Activities.h"
#include "model/Documents.h"
#include "model/MailMerge.h"
#include "model/Process.h"
#include "model/SendMail.h"

#include <filesystem>

namespace flowloom::test {
namespace {

namespace fs = std::filesystem;

class VersionUpdate : public ModelFixture {
protected:
    // A version 0 file whose first database lies in the temporary folder.
    std::string OldFile(const std::string& processes) {
        WriteAll(folder / "db.mdb", "");
        return "<Processes>" + processes + "<Databases><Database Name=\"Db\" Location=\"" + (folder / "db.mdb").string() +
               "\"/></Databases></Processes>";
    }
};

TEST_F(VersionUpdate, FileWithoutMailGetsVersionOneAndIsRewritten) {
    auto processes = LoadText("<Processes><Process Name=\"p\"/></Processes>");
    EXPECT_EQ(processes->Version(), 1);
    // A usual rewrite: no replacement to tell of, and the longer file needs no backup.
    EXPECT_TRUE(processes->LastLoadRewrite().written);
    EXPECT_TRUE(processes->LastLoadRewrite().notLoadedReason.empty());
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 1);
    EXPECT_EQ(ReadAll(folder / "processes.xml"),
              R"(<?xml version="1.0" encoding="UTF-8"?><Processes Version="1"><Process Name="p" ProcessRecords="Current"/></Processes>)");
}

TEST_F(VersionUpdate, HtmlBodyBecomesATemplateMergedBeforeTheMail) {
    fs::create_directory(folder / "templates");
    auto processes = LoadText(OldFile(
        R"(<Process Name="Invoice"><Activities><SendMail Body="&lt;HTML&gt;Hi&lt;/html&gt;" Subject="s">)"
        R"(<Attachments><Attachment File="[Use mail merge document]"/></Attachments></SendMail></Activities></Process>)"));
    ASSERT_EQ(processes->Version(), 1);
    auto process = processes->Item(CollectionPosition{1});
    ASSERT_EQ(process->Activities()->Count(), 2);
    auto mailMerge = std::dynamic_pointer_cast<MailMerge>(process->Activities()->Item(CollectionPosition{1}));
    auto sendMail = std::dynamic_pointer_cast<SendMail>(process->Activities()->Item(CollectionPosition{2}));
    ASSERT_TRUE(mailMerge && sendMail);
    EXPECT_EQ(mailMerge->InvokedApplication(), "HTML");
    EXPECT_EQ(mailMerge->OutputDocumentName(), "Invoice Body");
    EXPECT_EQ(mailMerge->MailMergeType(), 3);
    EXPECT_FALSE(mailMerge->ShowDocument());
    EXPECT_EQ(mailMerge->Template(), (folder / "templates" / "Invoice.htm").string());
    EXPECT_EQ(ReadAll(folder / "templates" / "Invoice.htm").rfind("<HTML>Hi</html>", 0), 0u);
    EXPECT_EQ(sendMail->Body(), "");
    EXPECT_EQ(sendMail->InputDocumentName(), "Invoice Body");
    EXPECT_TRUE(process->Documents()->Contains("Invoice Body"));
    EXPECT_EQ(sendMail->Attachments()->Item(1)->name, "[Document:Invoice Body]");
    // The converted model is what the file now holds.
    EXPECT_NE(ReadAll(folder / "processes.xml").find(R"(<MailMerge InvokedApplication="HTML" OutputDocumentName="Invoice Body")"),
              std::string::npos);
}

TEST_F(VersionUpdate, MarkerInAnyCaseClearsTheBodyOnly) {
    auto processes = LoadText(OldFile(
        R"(<Process Name="p"><Activities><SendMail Body="[USE MAIL MERGE document]" InputDocumentName="Doc"/>)"
        R"(</Activities></Process>)"));
    auto process = processes->Item(CollectionPosition{1});
    ASSERT_EQ(process->Activities()->Count(), 1);
    auto sendMail = std::dynamic_pointer_cast<SendMail>(process->Activities()->Item(CollectionPosition{1}));
    EXPECT_EQ(sendMail->Body(), "");
    EXPECT_EQ(sendMail->InputDocumentName(), "Doc");
    EXPECT_EQ(processes->Version(), 1);
}

TEST_F(VersionUpdate, SameProcessNameTwiceNumbersTheSecondTemplate) {
    fs::create_directory(folder / "templates");
    WriteAll(folder / "templates" / "Letter.txt", "taken");
    auto processes = LoadText(OldFile(
        R"(<Process Name="Letter"><Activities><SendMail Body="plain text"/></Activities></Process>)"));
    auto process = processes->Item(CollectionPosition{1});
    auto mailMerge = std::dynamic_pointer_cast<MailMerge>(process->Activities()->Item(CollectionPosition{1}));
    ASSERT_TRUE(mailMerge);
    EXPECT_EQ(mailMerge->InvokedApplication(), "Text");
    EXPECT_EQ(mailMerge->Template(), (folder / "templates" / "Letter1.txt").string());
}

TEST_F(VersionUpdate, WithoutADatabaseOrTemplatesFolderTheBodyStaysAndVersionZero) {
    const std::string process = R"(<Process Name="p"><Activities><SendMail Body="text"/></Activities></Process>)";
    for (const std::string& file : {"<Processes>" + process + "</Processes>", OldFile(process)}) {
        auto processes = LoadText(file);
        EXPECT_EQ(processes->Version(), 0);
        EXPECT_TRUE(prompts.errors.empty());  // without a message
        EXPECT_NE(ReadAll(folder / "processes.xml").find(R"(Body="text")"), std::string::npos);  // saved all the same
    }
}

}  // namespace
}  // namespace flowloom::test
