// The field values dialog: what it offers, how lines are added, edited and
// removed, and what it hands back.
#include "DialogFixture.h"

#include "designer/dialogs/frmFieldValues.h"
#include "model/Activities.h"
#include "model/AddRecord.h"
#include "model/Database.h"
#include "model/Process.h"
#include "support/VbError.h"

#include <gmock/gmock.h>

namespace flowloom::test {
namespace {

using dialogs::frmFieldValues;
using ::testing::ElementsAre;
using Lines = std::vector<std::string>;

constexpr std::size_t kFixedValues = 6;

class FieldValuesDialog : public DialogFixture {
protected:
    // One process whose activities are given by letters: S a SaveAs, C a
    // Convert with folder and file, c a Convert without a file.
    std::shared_ptr<Process> ProcessWith(const std::string& activities, const std::string& rest = "") {
        std::string xml;
        for (char kind : activities) {
            if (kind == 'S') xml += R"(<SaveAs Folder="C:\out" File="a.doc"/>)";
            if (kind == 'C') xml += R"(<Convert Folder="C:\out" File="a.pdf"/>)";
            if (kind == 'c') xml += R"(<Convert Folder="C:\out"/>)";
        }
        Load(R"(<Process Name="P"><Activities>)" + xml + "</Activities>" + rest + "</Process>");
        return processes->Item(CollectionPosition{1});
    }
    // The value suggestions after the fixed ones.
    static Lines DocumentSuggestions(const frmFieldValues& dialog) {
        const Lines& all = Entries(dialog, "cboValue");
        return Lines(all.begin() + kFixedValues, all.end());
    }
    static Lines Forms(const std::string& suffix, const std::string& link) {
        return {"[documentfullname" + suffix + "]", "[documentshortname" + suffix + "]",
                "[DocumentHyperlink" + suffix + "]",
                "[documentshortname" + suffix + "]#[documentfullname" + link + "]#"};
    }
    // A dialog on the process's own values, offering `fields`.
    std::unique_ptr<frmFieldValues> Open(const std::shared_ptr<Process>& process, const std::string& fields) {
        auto dialog = std::make_unique<frmFieldValues>();
        dialog->Fields = fields;
        dialog->Processes = processes;
        dialog->Process = process;
        dialog->init();
        return dialog;
    }
};

TEST_F(FieldValuesDialog, DocumentSuggestionsFollowTheCountsOfSaveAsAndConvert) {
    const auto join = [](Lines a, const Lines& b) {
        a.insert(a.end(), b.begin(), b.end());
        return a;
    };
    const std::vector<std::pair<std::string, Lines>> cases = {
        {"", {}},
        {"c", {}},
        {"S", Forms("", "")},
        {"Sc", Forms(":SaveAs", ":SaveAs")},
        {"SC", join(Forms(":SaveAs", ":SaveAs"), Forms(":Convert", ":Convert"))},
        {"C", Forms(":Convert", ":Convert")},
        {"CC", join(Forms(":Convert 1", ":Convert 1"), Forms(":Convert 2", ":Convert 2"))},
        {"SSC", join(join(Forms(":SaveAs 1", ":SaveAs1"), Forms(":SaveAs 2", ":SaveAs2")),
                     Forms(":Convert", ":Convert"))},
    };
    for (const auto& [activities, expected] : cases)
        EXPECT_EQ(DocumentSuggestions(*Open(ProcessWith(activities), "")), expected) << activities;
    // The spelling in full: no blank in the SaveAs link form, converts counted all.
    const Lines suggestions = DocumentSuggestions(*Open(ProcessWith("SScC"), ""));
    ASSERT_EQ(suggestions.size(), 12u);
    EXPECT_EQ(suggestions[3], "[documentshortname:SaveAs 1]#[documentfullname:SaveAs1]#");
    EXPECT_EQ(suggestions[8], "[documentfullname:Convert 2]");
    EXPECT_EQ(suggestions[11], "[documentshortname:Convert 2]#[documentfullname:Convert 2]#");
}

TEST_F(FieldValuesDialog, AFieldWithAValueIsOfferedAgainOnlyAfterItsLineIsRemoved) {
    auto process = ProcessWith("", R"(<FieldValues><FieldValue Name="B" Value="1"/></FieldValues>)");
    auto dialog = Open(process, "A;B;C");
    EXPECT_THAT(Entries(*dialog, "lstFieldValues"), ElementsAre("B = 1"));
    EXPECT_THAT(Entries(*dialog, "cboField"), ElementsAre("A", "C"));
    EXPECT_EQ(Text(*dialog, "cboField"), "A");
    EXPECT_FALSE(Enabled(*dialog, "cmdFieldValueAdd"));  // no value yet
    EXPECT_FALSE(Enabled(*dialog, "cmdFieldValueRemove"));

    ASSERT_TRUE(dialog->Pick("lstFieldValues", 0));
    EXPECT_TRUE(Enabled(*dialog, "cmdFieldValueRemove"));
    EXPECT_TRUE(Enabled(*dialog, "cmdFieldValueEdit"));
    ASSERT_TRUE(dialog->Click("cmdFieldValueRemove"));
    EXPECT_TRUE(Entries(*dialog, "lstFieldValues").empty());
    EXPECT_THAT(Entries(*dialog, "cboField"), ElementsAre("A", "C", "B"));
    EXPECT_FALSE(Enabled(*dialog, "cmdFieldValueRemove"));
}

TEST_F(FieldValuesDialog, AnAddRecordOffersTheFieldsOfItsTableAndEditsItsOwnValues) {
    Load(R"(<Process Name="P"><Activities><AddRecord Database="northwind" TableName="Log"><FieldValues>)"
         R"(<FieldValue Name="Sent" Value="[Function:Date()]"/></FieldValues></AddRecord></Activities>)"
         R"(<FieldValues><FieldValue Name="Owner" Value="x"/></FieldValues></Process>)"
         R"(<Databases><Database Name="Northwind" Location="C:\nw.mdb"/></Databases>)");
    auto activity = processes->Item(CollectionPosition{1})->Activities()->Item(CollectionPosition{1});
    std::vector<std::pair<std::string, std::string>> asked;

    frmFieldValues dialog;
    dialog.Processes = processes;
    dialog.AddRecord = std::dynamic_pointer_cast<AddRecord>(activity);
    dialog.TableFields = [&](const std::string& table, const Database* database) {
        asked.emplace_back(table, database ? std::string(database->name) : "none");
        return Lines{"ID", "Sent", "Text"};
    };
    dialog.init();
    EXPECT_THAT(asked, ElementsAre(std::pair<std::string, std::string>("Log", "Northwind")));
    EXPECT_THAT(Entries(dialog, "cboField"), ElementsAre("ID", "Text"));
    EXPECT_THAT(Entries(dialog, "lstFieldValues"), ElementsAre("Sent = [Function:Date()]"));

    // Without a reader, or with a database the file does not know, nothing is offered.
    for (bool reader : {false, true}) {
        if (reader) dialog.AddRecord->SetDatabase("Elsewhere");
        frmFieldValues other;
        other.Processes = processes;
        other.AddRecord = dialog.AddRecord;
        if (reader) other.TableFields = dialog.TableFields;
        other.init();
        EXPECT_TRUE(Entries(other, "cboField").empty());
    }
    EXPECT_EQ(asked.size(), 1u);
}

TEST_F(FieldValuesDialog, APickedFieldLeavesTheOfferButATypedOneFailsAfterItsLineIsAdded) {
    auto dialog = Open(ProcessWith(""), "A;B");
    ASSERT_TRUE(dialog->Pick("cboField", 1));
    ASSERT_TRUE(dialog->Pick("cboValue", 5));
    ASSERT_TRUE(dialog->Click("cmdFieldValueAdd"));
    EXPECT_THAT(Entries(*dialog, "lstFieldValues"), ElementsAre("B = [RecordNumber]"));
    EXPECT_THAT(Entries(*dialog, "cboField"), ElementsAre("A"));

    // Typed, even as the name of an entry, the field is no selected entry.
    ASSERT_TRUE(dialog->SetText("cboField", "A"));
    ASSERT_TRUE(dialog->SetText("cboValue", "x"));
    EXPECT_TRUE(Enabled(*dialog, "cmdFieldValueAdd"));
    try {
        dialog->Click("cmdFieldValueAdd");
        FAIL() << "no error";
    } catch (const VbError& e) {
        EXPECT_EQ(e.Number(), 5);
        EXPECT_EQ(e.Description(), "Invalid procedure call or argument");
    }
    EXPECT_THAT(Entries(*dialog, "lstFieldValues"), ElementsAre("B = [RecordNumber]", "A = x"));
    EXPECT_THAT(Entries(*dialog, "cboField"), ElementsAre("A"));

    ASSERT_TRUE(dialog->SetText("cboValue", ""));
    EXPECT_FALSE(Enabled(*dialog, "cmdFieldValueAdd"));
}

TEST_F(FieldValuesDialog, EditTakesTheAnswerAsTypedAndRemoveGivesBackTheTextBeforeTheSign) {
    auto process = ProcessWith("", R"(<FieldValues><FieldValue Name="A" Value="1"/></FieldValues>)");
    auto dialog = Open(process, "");
    ASSERT_TRUE(dialog->Pick("lstFieldValues", 0));
    prompts.inputs = {std::nullopt, std::string(), std::string("  Name without sign ")};
    dialog->Click("cmdFieldValueEdit");
    dialog->Click("cmdFieldValueEdit");
    EXPECT_THAT(Entries(*dialog, "lstFieldValues"), ElementsAre("A = 1"));
    dialog->Click("cmdFieldValueEdit");
    EXPECT_THAT(Entries(*dialog, "lstFieldValues"), ElementsAre("  Name without sign "));
    ASSERT_EQ(prompts.asked.size(), 3u);
    EXPECT_EQ(prompts.asked[0].prompt, "Edit the FieldValue");
    EXPECT_EQ(prompts.asked[0].title, "Edit");
    EXPECT_EQ(prompts.asked[0].defaultText, "A = 1");

    dialog->Click("cmdFieldValueRemove");
    EXPECT_THAT(Entries(*dialog, "cboField"), ElementsAre("Name without sign"));
}

TEST_F(FieldValuesDialog, OKHandsBackTheLinesAndNeitherButtonTouchesTheModel) {
    auto process = ProcessWith("S", R"(<FieldValues><FieldValue Name="A" Value="1"/></FieldValues>)");
    const std::string saved = processes->XML();
    auto dialog = Open(process, "B");
    dialog->SetText("cboValue", "2");
    dialog->Click("cmdFieldValueAdd");
    EXPECT_TRUE(dialog->Click("cmdOK"));
    EXPECT_TRUE(dialog->Closed());
    EXPECT_TRUE(dialog->OK());
    EXPECT_EQ(dialog->Result(), "A = 1\r\nB = 2");
    EXPECT_FALSE(processes->EditedSinceLoadOrSave());

    auto cancelled = Open(process, "B");
    int helped = 0;
    cancelled->OnHelp = [&] { ++helped; };
    cancelled->Click("cmdHelp");
    cancelled->Click("cmdCancel");
    EXPECT_EQ(helped, 1);
    EXPECT_TRUE(cancelled->Closed());
    EXPECT_FALSE(cancelled->OK());
    EXPECT_EQ(cancelled->Result(), "");
    EXPECT_EQ(processes->XML(), saved);
}

}  // namespace
}  // namespace flowloom::test
