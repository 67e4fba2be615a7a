// The system's error numbers, their texts, forms and help contexts.
#include "app/ErrorNumbers.h"

#include "app/Common.h"
#include "support/VbError.h"
#include "support/AppPaths.h"

#include <gtest/gtest.h>

namespace flowloom {
namespace {

TEST(ErrorNumbers, UnknownAndUnusedNumbersAreUnspecified) {
    EXPECT_EQ(errnum::Description(29999), "Unspecified Velorin error");
    EXPECT_EQ(errnum::Description(30049), "Unspecified Velorin error");
    EXPECT_EQ(errnum::Description(30100), "Unspecified Velorin error");
    EXPECT_EQ(errnum::Description(30047), "Document used in SaveAs is not created in previous steps");
    EXPECT_EQ(errnum::Description(30061).find("Label template is incorrect.\r\nSee the help"), 0u);
}

TEST(ErrorNumbers, SeveralLinesAndTheInstallInstruction) {
    EXPECT_EQ(errnum::Description(30082),
              "The database is having a compilation state problem.\r\n"
              "Close the database and do a 'Reinstall' (second button)\r\nusing the Velorin Installer");
    const std::string pdf = errnum::Description(30071);
    EXPECT_NE(pdf.find("or \"Microsoft Save as PDF or XPS\" from "), std::string::npos);
    EXPECT_NE(pdf.find("https://www.microsoft.com/"), std::string::npos);
    EXPECT_NE(pdf.find("https://ghostscript.com/"), std::string::npos);
}

TEST(ErrorNumbers, FormsReplaceEveryOccurrence) {
    EXPECT_EQ(errnum::Description(30051, {"C:\\x.xml"}), "'C:\\x.xml' is not a valid path.");
    EXPECT_EQ(errnum::Description(30015, {"Orders"}), "Datasource Orders does not exist");
    EXPECT_EQ(errnum::Description(30080, {"x"}), errnum::Description(30080));
    EXPECT_EQ(errnum::Description(30021, {"x"}), "MailMerge failed");
    EXPECT_EQ(errnum::Description(30010, {}), "%1 does not exist.");
    EXPECT_EQ(errnum::Description(30010, {"a", "b"}), "a does not exist.");
}

TEST(ErrorNumbers, HelpContexts) {
    EXPECT_EQ(errnum::HelpContext(30057), 30001);
    EXPECT_EQ(errnum::HelpContext(30084), 30006);
    EXPECT_EQ(errnum::HelpContext(30036), 0);
    EXPECT_EQ(errnum::HelpContext(30082), 30082);
    EXPECT_EQ(errnum::HelpContext(30021), 30000);
}

TEST(ErrorNumbers, RaiseTakesTheTableTextAndPutsTheContextFirst) {
    try {
        errnum::Raise(30063);
        FAIL();
    } catch (const VbError& e) {
        EXPECT_EQ(e.Number(), 30063);
        EXPECT_EQ(e.Description(), "Database does not exist");
        EXPECT_EQ(e.HelpContext(), 30000);
        EXPECT_EQ(e.Source(), AppTitle());
        EXPECT_EQ(e.HelpFile(), HelpFilePath());
    }
    try {
        errnum::Raise(30063, "Opening Sales");
        FAIL();
    } catch (const VbError& e) {
        EXPECT_EQ(e.Description(), "Opening Sales\r\n\r\nDatabase does not exist");
    }
    try {
        errnum::Raise(30014, "", "Template could not be found at C:\\t.doc.");
        FAIL();
    } catch (const VbError& e) {
        EXPECT_EQ(e.Description(), "Template could not be found at C:\\t.doc.");
        EXPECT_EQ(e.HelpContext(), 30014);
    }
}

}  // namespace
}  // namespace flowloom
