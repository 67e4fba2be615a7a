// The options dialog on a headless grid: groups and rows from the
// definitions, edits on a copy that OK hands to the file, help texts, and
// the mail templates edited in the external tool.
#include "options/dialog/frmOptions.h"

#include "app/CXmlMessages.h"
#include "grid/HeadlessGrid.h"
#include "grid/Property.h"
#include "model/OptionPlaceholders.h"
#include "options/DefaultOptions.h"
#include "options/Options.h"
#include "sheets/SheetRows.h"
#include "support/Printers.h"

#include "model/ModelFixture.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace flowloom::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using namespace std::string_view_literals;

class TwoPrinters : public PrinterSource {
public:
    bool Enumerate(std::vector<std::string>& names) override {
        names = {"Laser", "PS Writer"};
        return true;
    }
};

constexpr const char* kDatabase = R"(<Databases><Database Name="Db" Location="C:\Data\db.mdb"/></Databases>)";

class OptionsDialogTest : public ModelFixture {
protected:
    OptionsDialogTest() { grid.SetEvents(&dialog); }

    void Open(const std::string& body) {
        processes = LoadText(Document(body));
        saved = processes->XML();
        dialog.SetProcesses(processes);
    }
    void ShowGroup(std::string_view name) {
        const auto& entries = dialog.Find("lstOptions")->entries;
        const auto at = std::find(entries.begin(), entries.end(), name);
        ASSERT_NE(at, entries.end()) << name;
        dialog.Pick("lstOptions", static_cast<int>(at - entries.begin()));
    }
    grid::Property& Row(std::string_view tag) {
        for (std::int32_t i = 1; i <= grid.Rows().Count(); ++i)
            if (sheets::RowTag(grid.Rows().Item(i)) == tag) return grid.Rows().Item(i);
        throw std::runtime_error("no row " + std::string(tag));
    }
    void Edit(std::string_view tag, std::string value) { grid.CommitEdit(Row(tag), std::move(value)); }
    std::string Value(std::string_view tag) { return Row(tag).value(); }
    std::string Stored(std::string_view group, std::string_view name) {
        return OptionValue(processes->Options().get(), group, name);
    }
    std::string Text(std::string_view control) { return dialog.Find(control)->text; }

    TwoPrinters printers;
    ScopedPrinterSource printerScope{printers};
    grid::HeadlessGrid grid;
    options::frmOptions dialog{grid};
    std::shared_ptr<Processes> processes;
    std::string saved;
};

TEST_F(OptionsDialogTest, GroupsAndRowsFollowTheDefinitions) {
    Open(kDatabase);
    EXPECT_THAT(dialog.Find("lstOptions")->entries,
                ElementsAre("Email", "FileLocations", "Contact", "ConvertingPostscriptToPDF"));
    EXPECT_EQ(dialog.PropListTag(), "Email");
    EXPECT_EQ(Row("DefaultEmailTemplateHTML").Caption(), "Default Email Template HTML");
    EXPECT_EQ(Row("DefaultEmailTemplateHTML").ItemType(), grid::ExPropBrowse);
    EXPECT_TRUE(Row("DefaultEmailTemplateHTML").LockedEdit());
    EXPECT_EQ(Value("DefaultEmailTemplatePlainText"), "(None)");
    EXPECT_THAT(*Row("DefaultStyle").ListItems(), ElementsAre("HTML", "Plain text"));
    EXPECT_EQ(Value("DefaultStyle"), "HTML");

    // Defaults read for this file: the folders beside its first database.
    ShowGroup("FileLocations");
    EXPECT_EQ(Row("TemplateFolder").ItemType(), grid::ExPropFolder);
    EXPECT_EQ(Value("TemplateFolder"), R"(C:\Data\templates)");
    EXPECT_EQ(Value("Labels"), R"(C:\Data\templates\labels.dot)");
    EXPECT_EQ(Value("HTMLEditor"), R"(C:\Data\tools\markuploom.exe)");
    EXPECT_EQ(Row("Patternloom").DialogFilter(), "Exe files (*.exe)\0*.exe\0All Files (*.*)\0*.*\0"sv);
    EXPECT_EQ(dialog.ToolsFolder(), R"(C:\Data\tools)");

    ShowGroup("ConvertingPostscriptToPDF");
    EXPECT_THAT(*Row("PostscriptPrinter").ListItems(), ElementsAre("(Default printer)", "Laser", "PS Writer"));
    EXPECT_EQ(Value("PostscriptPrinter"), "(Default printer)");
    EXPECT_THAT(Value("GhostscriptCommandLine"), HasSubstr("-sOutputFile={OutputPdfFile}"));
}

TEST_F(OptionsDialogTest, KindDigitsGiveTheRowTypes) {
    dialog.SetDefinitionsXml(R"(<Options><Kinds A="1" B="2" C="3" D="4" E="x" F="9"/></Options>)");
    Open("");
    const std::vector<std::pair<int, bool>> expected = {{grid::ExPropBoolean, true},  {grid::ExPropNumber, false},
                                                        {grid::ExPropMemo, false},    {grid::ExPropCustomList, false},
                                                        {grid::ExPropText, false},    {grid::ExPropText, false}};
    ASSERT_EQ(grid.Rows().Count(), 6);
    for (std::int32_t i = 1; i <= 6; ++i) {
        const grid::Property& row = grid.Rows().Item(i);
        EXPECT_EQ(std::make_pair(row.ItemType(), row.LockedEdit()), expected[static_cast<std::size_t>(i - 1)]) << i;
    }
}

TEST_F(OptionsDialogTest, WithoutADatabaseTheFoldersAreEmpty) {
    Open("");
    ShowGroup("FileLocations");
    EXPECT_EQ(Value("TemplateFolder"), "");
    EXPECT_EQ(Value("Labels"), R"(\labels.dot)");
    EXPECT_EQ(dialog.ToolsFolder(), "");
}

TEST_F(OptionsDialogTest, OkWritesOnlyWhatWasEdited) {
    Open(kDatabase);
    ShowGroup("FileLocations");  // defaults on show are not stored
    ShowGroup("Contact");
    Edit("UserContactName", "Ann");
    EXPECT_EQ(Stored("Contact", "UserContactName"), "") << "the file's options change only on OK";
    ASSERT_TRUE(dialog.Click("cmdOK"));
    EXPECT_TRUE(dialog.Closed() && dialog.OK());
    EXPECT_THAT(processes->XML(), HasSubstr(R"(<Options><Contact UserContactName="Ann"/></Options>)"));
    EXPECT_TRUE(processes->EditedSinceLoadOrSave());
    EXPECT_FALSE(processes->XmlEqualsNoCase(saved));
}

TEST_F(OptionsDialogTest, CancelKeepsTheFileAndOkKeepsUnknownGroups) {
    const std::string options = R"(<Options><Contact UserContactName="Bob"/><Custom Key="kept"/></Options>)";
    Open(options);
    EXPECT_EQ(dialog.Find("lstOptions")->entries.size(), 4u) << "a group without definition is not shown";
    ShowGroup("Contact");
    EXPECT_EQ(Value("UserContactName"), "Bob");
    Edit("UserContactName", "Ann");
    ASSERT_TRUE(dialog.Click("cmdCancel"));
    EXPECT_FALSE(dialog.OK());
    EXPECT_EQ(Stored("Contact", "UserContactName"), "Bob");
    EXPECT_TRUE(processes->XmlEqualsNoCase(saved));

    grid::HeadlessGrid grid2;
    options::frmOptions again{grid2};
    grid2.SetEvents(&again);
    again.SetProcesses(processes);
    again.Pick("lstOptions", 2);
    grid2.CommitEdit(grid2.Rows().Item(4), "Ann");
    ASSERT_TRUE(again.Click("cmdOK"));
    EXPECT_EQ(Stored("Contact", "UserContactName"), "Ann");
    EXPECT_EQ(Stored("Custom", "Key"), "kept");
}

TEST_F(OptionsDialogTest, HelpTextsOfGroupsAndRows) {
    // A catalogue whose text for each key is the key itself.
    std::string xml = "<Catalogue><Messages>";
    for (const std::string& key : options::OptionsHelpKeys()) xml += "<Message Code=\"" + key + "\" Text=\"" + key + "\"/>";
    WriteAll(folder / "help.xml", xml + "</Messages></Catalogue>");
    CXmlMessages catalogue;
    ASSERT_TRUE(catalogue.Load((folder / "help.xml").string()));

    dialog.SetParent(&catalogue);
    Open("");
    for (const char* group : {"Email", "FileLocations", "Contact", "ConvertingPostscriptToPDF"}) {
        ShowGroup(group);
        EXPECT_EQ(Text("txtOptionInfo"), group);
        for (std::int32_t i = 1; i <= grid.Rows().Count(); ++i) {
            grid.ClickRow(i, {});
            EXPECT_EQ(Text("txtPropInfo"), std::string(group) + "." + sheets::RowTag(grid.Rows().Item(i)));
        }
    }
}

TEST_F(OptionsDialogTest, DefinitionsThatDoNotLoadLeaveTheFilesGroups) {
    dialog.SetDefinitionsXml("<Options><Email");
    Open(R"(<Options><Custom Key="kept"/></Options>)");
    ASSERT_EQ(prompts.boxes.size(), 1u);
    EXPECT_THAT(prompts.boxes[0].prompt, HasSubstr("Error: Line 1"));
    EXPECT_EQ(prompts.boxes[0].style, msgbox::Critical);
    EXPECT_THAT(dialog.Find("lstOptions")->entries, ElementsAre("Custom"));
    EXPECT_EQ(Value("Key"), "kept");

    dialog.SetDefinitionsXml("<Other/>");
    EXPECT_FALSE(dialog.LoadOptionsList());
    EXPECT_EQ(prompts.boxes.back().prompt, "The top level node is not 'Options'.");
}

TEST_F(OptionsDialogTest, FailuresBuildingTheRowsAreReported) {
    dialog.SetDefinitionsXml("broken");
    processes = LoadText(Document(R"(<Options><Custom Key="1"/></Options>)"));
    processes->Options()->Find("Custom")->Attributes->Find("Key")->value = TaggedValue::FromObject(std::make_shared<int>(1));
    dialog.SetProcesses(processes);
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].module, "frmOptions");
    EXPECT_EQ(prompts.errors[0].procedure, "OpenPropList");
}

// The templates go to the tool with their stored text and come back from it.
TEST_F(OptionsDialogTest, TemplatesAreEditedInTheTool) {
    struct Start {
        std::string text;
        bool plain;
    };
    std::vector<Start> starts;
    const std::string exchange = (folder / "exchange.htm").string();
    dialog.SetToolStarter([&](editor::HtmlEditorHost& form, std::string& text, std::string& file, bool plain) {
        starts.push_back({text, plain});
        file = exchange;
        WriteAll(file, text);
        form.SetEnabled(false);
        form.SetTimerInterval(100);
        return editor::ToolWindow{42};
    });
    dialog.SetToolResultReader([](const std::string& file) { return ReadAll(file); });
    int raised = 0;
    dialog.OnBringToFront = [&] { ++raised; };

    Open(R"(<Options><Email DefaultEmailTemplateHTML="&lt;html&gt;old&lt;/html&gt;"/></Options>)");
    EXPECT_EQ(Value("DefaultEmailTemplateHTML"), "(HTML)");
    std::string fill;
    grid.ClickRow(2, {});
    dialog.Browse(Row("DefaultEmailTemplatePlainText"), fill);
    ASSERT_EQ(starts.size(), 1u);
    EXPECT_EQ(starts[0].text, "");
    EXPECT_TRUE(starts[0].plain);
    EXPECT_TRUE(dialog.ToolRunning());
    EXPECT_FALSE(dialog.Enabled());
    EXPECT_FALSE(dialog.Click("cmdOK")) << "the dialog waits for the tool";

    dialog.Timer1_Timer(false, true);  // the tool is in front and alive
    EXPECT_TRUE(dialog.ToolRunning());
    WriteAll(exchange, "Hello");
    dialog.Timer1_Timer(false, false);  // its window has gone
    EXPECT_FALSE(dialog.ToolRunning());
    EXPECT_TRUE(dialog.Enabled());
    EXPECT_EQ(dialog.TimerInterval(), 0);
    EXPECT_EQ(raised, 1);
    EXPECT_FALSE(std::filesystem::exists(exchange));
    EXPECT_EQ(Value("DefaultEmailTemplatePlainText"), "(Text)");

    // Closed without a change: the old text stays.
    grid.ClickRow(1, {});
    dialog.Browse(Row("DefaultEmailTemplateHTML"), fill);
    ASSERT_EQ(starts.size(), 2u);
    EXPECT_EQ(starts[1].text, "<html>old</html>");
    EXPECT_FALSE(starts[1].plain);
    dialog.Timer1_Timer(true, true);  // the dialog in front, and no launcher can bring the tool forward
    EXPECT_FALSE(dialog.ToolRunning());
    EXPECT_EQ(Value("DefaultEmailTemplateHTML"), "(HTML)");

    ASSERT_TRUE(dialog.Click("cmdOK"));
    EXPECT_EQ(Stored("Email", "DefaultEmailTemplatePlainText"), "Hello");
    EXPECT_EQ(Stored("Email", "DefaultEmailTemplateHTML"), "<html>old</html>");
}

}  // namespace
}  // namespace flowloom::test
