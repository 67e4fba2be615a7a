// The unsaved-change check of the model: an edit count that tells "nothing
// changed" without writing anything, and the text comparison that stops at
// the first difference.
#include "ModelFixture.h"

#include "model/Activities.h"
#include "model/Database.h"
#include "model/Databases.h"
#include "model/Datasource.h"
#include "model/Datasources.h"
#include "model/FieldValue.h"
#include "model/Process.h"
#include "model/SaveAs.h"
#include "model/SendMail.h"
#include "support/TextCompare.h"

#include <functional>
#include <utility>
#include <vector>

namespace flowloom::test {
namespace {

class UnsavedChanges : public ModelFixture {
protected:
    // The example loaded, with the text the designer keeps as saved.
    std::shared_ptr<Processes> LoadExample() {
        auto processes = LoadText(ReadAll(SourceDir() / "examples/letters.xml"));
        saved = processes->XML();
        return processes;
    }
    // The check as the designer makes it.
    bool Changed(Processes& processes) const {
        return processes.EditedSinceLoadOrSave() && !processes.XmlEqualsNoCase(saved);
    }
    template <typename T>
    static std::shared_ptr<T> FirstActivity(const Processes& processes) {
        for (const auto& process : processes)
            for (const auto& activity : *process->Activities())
                if (auto found = std::dynamic_pointer_cast<T>(activity)) return found;
        return nullptr;
    }

    std::string saved;
};

TEST_F(UnsavedChanges, EveryKindOfEditIsSeenAndTheCheckAgreesWithTheFullComparison) {
    using Edit = std::function<void(Processes&)>;
    const std::vector<std::pair<const char*, Edit>> edits = {
        {"description", [](Processes& p) { FirstActivity<SaveAs>(p)->SetDescription("Changed"); }},
        {"argument", [](Processes& p) { FirstActivity<SaveAs>(p)->SetArgument(SaveAsArg::Password, "secret"); }},
        {"overwrite mode", [](Processes& p) { FirstActivity<SaveAs>(p)->SetOverwriteExistingFile(0); }},
        {"process name", [](Processes& p) { p.Item(CollectionPosition{1})->SetName("Renamed"); }},
        {"field value added",
         [](Processes& p) { p.Item(CollectionPosition{2})->FieldValues()->Add(std::make_shared<FieldValue>("F", "V"), "F"); }},
        {"field value edited in place",
         [](Processes& p) { (*p.Item(CollectionPosition{1})->FieldValues()->begin())->value = "Other"; }},
        {"attachments cleared", [](Processes& p) { FirstActivity<SendMail>(p)->ClearAttachments(); }},
        {"attachment added", [](Processes& p) { FirstActivity<SendMail>(p)->AddAttachment("C:\\more.pdf"); }},
        {"public field of a mail", [](Processes& p) { FirstActivity<SendMail>(p)->SMTPServer = "smtp.example"; }},
        {"database location", [](Processes& p) { (*p.Databases()->begin())->Location = "D:\\other.mdb"; }},
        {"datasource records", [](Processes& p) { (*p.Item(CollectionPosition{1})->Datasources()->begin())->Records = 2; }},
        {"activity removed", [](Processes& p) { p.Item(CollectionPosition{1})->Activities()->Remove(CollectionPosition{1}); }},
        {"process removed", [](Processes& p) { p.Remove(CollectionPosition{3}); }},
    };
    for (const auto& [what, edit] : edits) {
        SCOPED_TRACE(what);
        auto processes = LoadExample();
        EXPECT_FALSE(processes->EditedSinceLoadOrSave());
        edit(*processes);
        EXPECT_TRUE(processes->EditedSinceLoadOrSave());
        EXPECT_TRUE(Changed(*processes));
        EXPECT_EQ(processes->XmlEqualsNoCase(saved), EqualsNoCase(processes->XML(), saved));
    }
}

TEST_F(UnsavedChanges, ReadingWritingAndSavingAreNoEditsButAnEditUndoneComparesEqual) {
    auto processes = LoadExample();
    // Reads that fill values falling back on others, and writing again.
    for (const auto& process : *processes) (void)process->LogDatasourceName();
    (void)processes->XML();
    EXPECT_FALSE(processes->EditedSinceLoadOrSave());
    // The same value again is no edit.
    auto saveAs = FirstActivity<SaveAs>(*processes);
    saveAs->SetDescription(saveAs->Description());
    EXPECT_FALSE(processes->EditedSinceLoadOrSave());
    // An edit undone counts, but the text tells it is the same.
    const std::string before = saveAs->Description();
    saveAs->SetDescription("Other");
    saveAs->SetDescription(before);
    EXPECT_TRUE(processes->EditedSinceLoadOrSave());
    EXPECT_FALSE(Changed(*processes));
    // A save makes the model unedited again.
    saveAs->SetDescription("Saved change");
    ASSERT_TRUE(processes->Save((folder / "saved.xml").string()));
    EXPECT_FALSE(processes->EditedSinceLoadOrSave());
}

TEST_F(UnsavedChanges, TheComparisonFollowsEqualsNoCaseWhereverTheTextsDiffer) {
    auto processes = LoadExample();
    auto upper = saved;
    for (char& c : upper) c = (c >= 'a' && c <= 'z') ? static_cast<char>(c - 32) : c;
    EXPECT_TRUE(processes->XmlEqualsNoCase(upper));
    EXPECT_FALSE(processes->XmlEqualsNoCase(saved.substr(0, saved.size() - 1)));
    EXPECT_FALSE(processes->XmlEqualsNoCase(saved + " "));
    EXPECT_FALSE(processes->XmlEqualsNoCase(""));
    std::string middle = saved;
    middle[middle.size() / 2] = '\x01';
    EXPECT_FALSE(processes->XmlEqualsNoCase(middle));

    // Case folding beyond ASCII, where the lengths differ: decided where the texts differ.
    processes->Item(CollectionPosition{1})->SetName("Straße Ärger");
    const std::string withUnicode = processes->XML();
    std::string folded = withUnicode;
    folded.replace(folded.find("Straße Ärger"), std::string("Straße Ärger").size(), "STRASSE ärger");
    EXPECT_TRUE(EqualsNoCase(withUnicode, folded));
    EXPECT_TRUE(processes->XmlEqualsNoCase(folded));
    folded.replace(folded.find("STRASSE ärger"), std::string("STRASSE ärger").size(), "STRASSE ärgen");
    EXPECT_FALSE(processes->XmlEqualsNoCase(folded));
}

TEST_F(UnsavedChanges, DifferencesAtEitherEndOfALargeFileAreFoundAcrossPieces) {
    std::string body;
    for (int i = 0; i < 3000; ++i)
        body += R"(<Process Name="P)" + std::to_string(i) + R"(" ProcessRecords="All"><Activities><SendFax Subject="Fax )" +
                std::to_string(i) + R"("/></Activities></Process>)";
    auto processes = LoadText(Document(body));
    saved = processes->XML();
    ASSERT_GT(saved.size(), 200000u);
    processes->Item(CollectionPosition{1})->SetName("First");
    EXPECT_TRUE(Changed(*processes));
    processes->Item(CollectionPosition{1})->SetName("P0");
    processes->Item(CollectionPosition{3000})->SetName("Last");
    EXPECT_TRUE(Changed(*processes));
    processes->Item(CollectionPosition{3000})->SetName("P2999");
    EXPECT_FALSE(Changed(*processes));
}

}  // namespace
}  // namespace flowloom::test
