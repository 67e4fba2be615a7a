// `flowloom-cli show` and `set`: a sheet printed or edited over the
// designer's code, and when the file is written.
#include "CliFixture.h"

#include "testsupport/TempFolder.h"

#include <filesystem>

namespace flowloom::test {
namespace {

namespace fs = std::filesystem;

class SheetCommands : public CliFixture {
protected:
    // The files live in a folder of their own, apart from the program's.
    fs::path Work() const {
        fs::create_directories(folder / "work");
        return folder / "work";
    }
    std::string Example() {
        const fs::path path = Work() / "letters.xml";
        fs::copy_file(SourceDir() / "examples/letters.xml", path, fs::copy_options::overwrite_existing);
        return path.string();
    }
    // The names beside the file (backups, leftovers).
    std::vector<std::string> Others(const std::string& file) const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(Work()))
            if (entry.path() != fs::path(file)) names.push_back(entry.path().filename().string());
        return names;
    }
    // A file whose Convert takes PDF, and whose database takes its type, when selected.
    std::string Fresh() {
        const auto path = Work() / "fresh.xml";
        WriteAll(path, R"(<?xml version="1.0" encoding="UTF-8"?><Processes Version="1"><Process Name="P">)"
                       R"(<Activities><Convert Description="To PDF"/></Activities></Process>)"
                       R"(<Databases><Database Name="Db" Location="x.mdb"/></Databases></Processes>)");
        return path.string();
    }
};

TEST_F(SheetCommands, ShowPrintsTheSheetOfTheItem) {
    const std::string file = Example();
    EXPECT_EQ(Run({"show", file, "monthly SALES sheet"}), 0);
    EXPECT_EQ(out.str().find("sheet: 1\nrow 1: Name | Name | 0 | Monthly sales sheet |"), 0u);
    EXPECT_EQ(Run({"show", file, "Order confirmation fax", "activity:2"}), 0);
    EXPECT_EQ(out.str(),
              "sheet: 15\n"
              "row 1: Description | Description | 0 | Fax the confirmation | free |\n"
              "row 2: InputDocumentName | Input Document Name | 5 | Confirmation | locked | ;Confirmation\n"
              "row 3: Address | Address | 0 | [Fax] | free |\n"
              "row 4: Subject | Subject | 0 | Order [OrderID] confirmed | free |\n");
    EXPECT_EQ(Run({"show", file, "Reminder letters", "datasource:2"}), 0);
    EXPECT_NE(out.str().find("row 1: Name | Name | 0 | Reminder log |"), std::string::npos);
    EXPECT_EQ(Run({"show", file, "Reminder letters", "database:1"}), 0);
    EXPECT_NE(out.str().find("row 3: Location | Location | 9 | C:\\Northwind\\nwind.mdb |"), std::string::npos);
}

TEST_F(SheetCommands, ShowNeverWritesTheFile) {
    const std::string file = Fresh();
    const std::string before = ReadAll(file);
    EXPECT_EQ(Run({"show", file, "P", "activity:1"}), 0);
    EXPECT_NE(out.str().find("row 9: PDFConvertingMethod"), std::string::npos);
    EXPECT_EQ(Run({"show", file, "P", "database:1"}), 0);
    EXPECT_EQ(ReadAll(file), before);
    EXPECT_EQ(Others(file), std::vector<std::string>{});
}

TEST_F(SheetCommands, SetCommitsTheValueAndSaves) {
    const std::string file = Example();
    EXPECT_EQ(Run({"set", file, "Reminder letters", "activity:2", "FileFormat", "6 - wdFormatRTF"}), 0);
    EXPECT_EQ(Run({"set", file, "Reminder letters", "activity:2", "1", ""}), 0);  // a row by its number
    EXPECT_EQ(Run({"set", file, "Reminder letters", "process", "name", "Reminders"}), 0);
    const std::string xml = ReadAll(file);
    EXPECT_NE(xml.find(R"(<SaveAs Folder="C:\Northwind\documents\reminders" File="[OrderID].doc" )"
                       R"(InputDocumentName="Reminder" FileFormat="6" AddToRecentFiles="False" )"
                       R"(OverwriteExistingFile="Confirm"/>)"),
              std::string::npos);
    EXPECT_NE(xml.find(R"(<Process Name="Reminders")"), std::string::npos);
    EXPECT_EQ(xml.find("Keep a copy"), std::string::npos);
    EXPECT_FALSE(Others(file).empty());  // the backups
    EXPECT_EQ(err.str(), "");
}

TEST_F(SheetCommands, ARefusedEditLeavesTheFileUntouched) {
    const std::string file = Example();
    const std::string before = ReadAll(file);
    EXPECT_EQ(Run({"set", file, "Reminder letters", "activity:1", "OutputDocumentName", "Reminder mail"}), 1);
    EXPECT_EQ(err.str(), "error 30075: Document 'Reminder mail' already exists.\n"
                         "flowloom-cli: the edit of row 6 was refused\n");
    EXPECT_EQ(Run({"set", file, "Reminder letters", "process", "Name", ""}), 1);
    EXPECT_EQ(err.str(), "message: Incorrect name of Process.\nflowloom-cli: the edit of row 1 was refused\n");
    // An edit that changes nothing does not write either.
    EXPECT_EQ(Run({"set", file, "Reminder letters", "process", "AbortOnError", "True"}), 0);
    EXPECT_EQ(ReadAll(file), before);
    EXPECT_EQ(Others(file), std::vector<std::string>{});
}

TEST_F(SheetCommands, WhatSelectingChangedIsSavedWithTheEdit) {
    const std::string file = Fresh();
    EXPECT_EQ(Run({"set", file, "P", "database:1", "Location", "x.mdb"}), 0);
    EXPECT_NE(ReadAll(file).find(R"(<Database Name="Db" Location="x.mdb" Type="Microsoft Access"/>)"),
              std::string::npos);
}

TEST_F(SheetCommands, BadArgumentsAndUnknownNames) {
    const std::string file = Example();
    EXPECT_EQ(Run({"show", file}), 2);
    EXPECT_EQ(Run({"show", file, "Nothing"}), 2);
    EXPECT_EQ(err.str(), "flowloom-cli: no process named 'Nothing'\n");
    EXPECT_EQ(Run({"show", file, "Reminder letters", "activity:8"}), 2);
    EXPECT_EQ(err.str(), "flowloom-cli: process 'Reminder letters' has no activity:8\n");
    EXPECT_EQ(Run({"show", file, "Reminder letters", "activity:0"}), 2);
    EXPECT_EQ(Run({"show", file, "Reminder letters", "step:1"}), 2);
    EXPECT_EQ(Run({"show", (folder / "none.xml").string(), "P"}), 2);
    EXPECT_EQ(Run({"set", file, "Reminder letters", "process", "Name"}), 2);
    EXPECT_EQ(Run({"set", file, "Reminder letters", "process", "Colour", "red"}), 2);
    EXPECT_EQ(err.str(), "flowloom-cli: the sheet of process has no row 'Colour'\n");
    EXPECT_EQ(Run({"set", file, "Reminder letters", "process", "9", "x"}), 2);
}

}  // namespace
}  // namespace flowloom::test
