// The printer list behind its source.
#include "support/Printers.h"

#include "testsupport/ScriptedPrompts.h"

#include <gmock/gmock.h>

namespace flowloom::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ListedPrinters : public PrinterSource {
public:
    bool Enumerate(std::vector<std::string>& out) override {
        out.insert(out.end(), names.begin(), names.end());
        return succeeds;
    }
    std::vector<std::string> names;
    bool succeeds = true;
};

class Printers : public ::testing::Test {
protected:
    ScriptedPrompts prompts;
    ListedPrinters source;
    ScopedPrinterSource scope{source};
};

TEST_F(Printers, SheetsOfferTheDefaultPrinterFirst) {
    source.names = {"Office laser", "PDF Writer"};
    EXPECT_THAT(GetPrinters(), ElementsAre("Office laser", "PDF Writer"));
    EXPECT_THAT(GetPrinterChoices(), ElementsAre("(Default printer)", "Office laser", "PDF Writer"));
    EXPECT_TRUE(PrinterExists("pdf writer"));
    EXPECT_FALSE(PrinterExists("PDF"));
}

TEST_F(Printers, NoPrintersIsAnEmptyListAndOnlyAFailingSourceGivesAMessage) {
    EXPECT_THAT(GetPrinterChoices(), ElementsAre("(Default printer)"));
    EXPECT_THAT(prompts.boxes, IsEmpty());
    source.names = {"Half read"};
    source.succeeds = false;
    EXPECT_THAT(GetPrinters(), IsEmpty());
    ASSERT_EQ(prompts.boxes.size(), 1u);
    EXPECT_EQ(prompts.boxes[0].prompt, "Could not successfully enumerate the printes.");
    EXPECT_EQ(prompts.boxes[0].style, 48);
    EXPECT_EQ(prompts.boxes[0].title, "Flowloom");
}

TEST_F(Printers, ThePrintingServiceAnswersWithoutAMessageEvenWhenItIsNotRunning) {
    SetPrinterSource(nullptr);  // the scope puts the listed source back
    const auto printers = GetPrinters();
    EXPECT_THAT(prompts.boxes, IsEmpty());
    for (const auto& name : printers) EXPECT_FALSE(name.empty());
}

}  // namespace
}  // namespace flowloom::test
