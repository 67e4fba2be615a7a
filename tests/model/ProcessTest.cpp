// A process read from its element: datasources, main datasource, groups,
// field values, and the fragment the designer copies processes with.
#include "ModelFixture.h"

#include "model/Activities.h"
#include "model/Datasources.h"
#include "model/Documents.h"
#include "model/FieldValue.h"
#include "model/Groups.h"
#include "model/Process.h"
#include "model/xml/CProcessesXMLDoc.h"

namespace flowloom::test {
namespace {

class ProcessElement : public ModelFixture {
protected:
    std::shared_ptr<Process> First(const std::string& body) {
        processes = LoadText(Document(body));
        return processes->Item(CollectionPosition{1});
    }
    std::shared_ptr<Processes> processes;
};

TEST_F(ProcessElement, UnknownMainDatasourceNameFallsBackOnTheFirst) {
    auto process = First(R"(<Process Name="p" MainDatasourceName="Nope"><Datasources>)"
                         R"(<Datasource Name="A"/><Datasource Name="B"/></Datasources></Process>)");
    ASSERT_NE(process, nullptr);
    EXPECT_EQ(process->MainDataSource()->name(), "A");
    EXPECT_EQ(process->MainDataSourceName(), "Nope");
    // Without datasources there is none; the log keeps the name it fell back on.
    process = First(R"(<Process Name="p" MainDatasourceName="A"/>)");
    EXPECT_EQ(process->MainDataSource(), nullptr);
    EXPECT_EQ(process->LogDatasourceName(), "A");
    process->SetMainDataSourceName("B");
    EXPECT_EQ(process->LogDatasourceName(), "A");
}

TEST_F(ProcessElement, MainDatasourceIsHeldOnceAndItsRecordsWinOverTheProcess) {
    auto process = First(R"(<Process Name="p" MainDatasourceName="b" ProcessRecords="Selected"><Datasources>)"
                         R"(<Datasource Name="A"/><Datasource Name="B" Records="All"/><Datasource Name="b"/>)"
                         R"(</Datasources></Process>)");
    EXPECT_EQ(process->Datasources()->Count(), 2);  // the second "b" is not added
    EXPECT_EQ(process->Datasources()->Item(CollectionPosition{2})->name(), "B");
    EXPECT_EQ(process->ProcessRecords(), 1);  // from B; "b" has no Records of its own
    // The later "b" still claims to be the main one, although it is in no collection.
    EXPECT_EQ(process->MainDataSource()->name(), "b");
}

TEST_F(ProcessElement, DerivedDatasourceNameIsWrittenButMakesNoMainDatasource) {
    auto process = First(R"(<Process Name="p" MainDatasourceName="Orders" ProcessRecords="Current"><Datasources>)"
                         R"(<Datasource ObjectName="Orders" Records="All"/></Datasources></Process>)");
    EXPECT_EQ(process->ProcessRecords(), 0);  // a derived name takes no part
    EXPECT_EQ(process->Datasources()->Item(CollectionPosition{1})->name(), "Orders");
    EXPECT_NE(ProcessFragmentXml(*process).find(R"(<Datasource Name="Orders" ObjectName="Orders" Records="All"/>)"),
              std::string::npos);
}

TEST_F(ProcessElement, ProcessRecordsReadsWordsNumbersAndIgnoresOthers) {
    EXPECT_EQ(First(R"(<Process Name="p" ProcessRecords=" selected "/>)")->ProcessRecords(), 2);
    EXPECT_EQ(First(R"(<Process Name="p" ProcessRecords="1"/>)")->ProcessRecords(), 1);
    EXPECT_EQ(First(R"(<Process Name="p" ProcessRecords="Some"/>)")->ProcessRecords(), 0);
    EXPECT_EQ(ReadOverwriteMode("NO"), 2);
    EXPECT_EQ(ReadOverwriteMode("Yes;Confirm"), std::nullopt);
    EXPECT_EQ(ReadOverwriteMode(""), std::nullopt);
    EXPECT_EQ(WordAt(kOverwriteWords, 0), "Yes");
    EXPECT_EQ(WordAt(kProcessRecordsWords, 2), "Selected");
    for (const std::int32_t outside : {-1, 3}) {
        try {
            (void)WordAt(kProcessRecordsWords, outside);
            ADD_FAILURE() << outside;
        } catch (const VbError& error) {
            EXPECT_EQ(error.Number(), 9);
        }
    }
}

TEST_F(ProcessElement, BooleansFollowTheFileRuleWhateverTheAttributeCase) {
    auto process = First(R"(<Process Name="p" abortonerror="5" OnErrorNotifyUser="yes"/>)");
    EXPECT_TRUE(process->AbortOnError());
    EXPECT_FALSE(process->OnErrorNotifyUser());
}

TEST_F(ProcessElement, UndefinedGroupsAreDroppedAndStayGoneOnSave) {
    processes = LoadText(Document(R"(<Process Name="p"><Groups><Group Name="Office"/><Group Name="Ghost"/>)"
                                  R"(</Groups></Process><Groups><Group Name="OFFICE"/></Groups>)"));
    auto process = processes->Item(CollectionPosition{1});
    ASSERT_EQ(process->Groups()->Count(), 1);
    EXPECT_EQ(process->Groups()->Item(CollectionPosition{1})->name, "Office");
    EXPECT_EQ(processes->XML().find("Ghost"), std::string::npos);
    // With no group known any more the container stays, empty.
    processes->Groups()->Remove(CollectionPosition{1});
    EXPECT_NE(processes->XML().find(R"(<Process Name="p" ProcessRecords="Current"><Groups/></Process>)"),
              std::string::npos);
}

TEST_F(ProcessElement, DuplicateFieldValuesAreDroppedWithoutAWord) {
    auto process = First(R"(<Process Name="p"><FieldValues><FieldValue Name="A" Value="1"/>)"
                         R"(<FieldValue Name="a" Value="2"/></FieldValues></Process>)");
    ASSERT_EQ(process->FieldValues()->Count(), 1);
    EXPECT_EQ(process->FieldValues()->Item(1)->value, "1");
    EXPECT_TRUE(prompts.errors.empty());
    EXPECT_TRUE(prompts.boxes.empty());
}

TEST_F(ProcessElement, ChildrenAreReadInTheirOwnOrderWhateverTheFileSays) {
    auto process = First(R"(<Process Name="p" MainDatasourceName="D"><FieldValues><FieldValue Name="F"/></FieldValues>)"
                         R"(<Documents><Document Name="Doc"/></Documents><Datasources><Datasource Name="D"/></Datasources>)"
                         R"(</Process>)");
    EXPECT_EQ(process->Datasources()->Count(), 1);
    EXPECT_EQ(process->Documents()->Count(), 1);
    EXPECT_EQ(ProcessFragmentXml(*process),
              // LogDatasourceName is set after the children: it stands last.
              R"(<Process Name="p" MainDatasourceName="D" ProcessRecords="Current" LogDatasourceName="D">)"
              R"(<Datasources><Datasource Name="D"/></Datasources><Documents><Document Name="Doc"/></Documents>)"
              R"(<FieldValues><FieldValue Name="F"/></FieldValues></Process>)");
}

TEST_F(ProcessElement, CopyThroughTheFragmentGivesAnEqualFragment) {
    processes = LoadText(ReadAll(SourceDir() / "tests/data/every_element.xml"));
    for (const auto& original : processes->Snapshot()) {
        const std::string fragment = ProcessFragmentXml(*original);
        XmlElements copyElements;
        ASSERT_TRUE(copyElements.Read(fragment));
        auto copy = Process::Create();
        copy->LoadElement(copyElements.Root(), processes);
        EXPECT_EQ(ProcessFragmentXml(*copy), fragment);
    }
}

TEST_F(ProcessElement, TheMainDatasourceIsCachedAndDisposeBreaksTheBackReferences) {
    auto process = First(R"(<Process Name="p" MainDatasourceName="D"><Datasources><Datasource Name="D"/>)"
                         R"(</Datasources></Process>)");
    auto main = process->MainDataSource();
    process->Datasources()->Remove(CollectionPosition{1});
    EXPECT_EQ(process->MainDataSource(), main);  // removing the last one keeps it
    process = First(R"(<Process Name="p"><Datasources><Datasource Name="D"/></Datasources></Process>)");
    auto datasource = process->Datasources()->Item(CollectionPosition{1});
    EXPECT_EQ(datasource->ParentProcess(), process);
    processes->Dispose();
    EXPECT_EQ(datasource->ParentProcess(), nullptr);
    EXPECT_EQ(process->Parent(), nullptr);
    EXPECT_THROW(processes->Count(), VbError);
}

}  // namespace
}  // namespace flowloom::test
