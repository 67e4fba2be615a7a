// The system's error numbers, their texts, forms and help contexts.
#include "app/ErrorNumbers.h"

#include "app/Common.h"
#include "support/VbError.h"
#include "support/AppPaths.h"

#include <gtest/gtest.h>

#include <functional>

namespace flowloom {
namespace {

VbError Raised(const std::function<void()>& raise) {
    try {
        raise();
    } catch (const VbError& e) {
        return e;
    }
    ADD_FAILURE() << "nothing raised";
    return VbError(0, "");
}

TEST(ErrorNumbers, TextsKeepTheirLinesAndUnusedNumbersAreUnspecified) {
    for (int unused : {29999, 30049, 30100}) EXPECT_EQ(errnum::Description(unused), "Unspecified Velorin error");
    EXPECT_EQ(errnum::Description(30082),
              "The database is having a compilation state problem.\r\n"
              "Close the database and do a 'Reinstall' (second button)\r\nusing the Velorin Installer");
}

TEST(ErrorNumbers, FormsReplaceEveryOccurrence) {
    EXPECT_EQ(errnum::Description(30051, {"C:\\x.xml"}), "'C:\\x.xml' is not a valid path.");
    EXPECT_EQ(errnum::Description(30080, {"x"}), errnum::Description(30080));
    EXPECT_EQ(errnum::Description(30010, {}), "%1 does not exist.");
    EXPECT_EQ(errnum::Description(30010, {"a", "b"}), "a does not exist.");
}

TEST(ErrorNumbers, RaiseTakesTheTableTextAndPutsTheContextFirst) {
    const VbError plain = Raised([] { errnum::Raise(30063); });
    EXPECT_EQ(plain.Number(), 30063);
    EXPECT_EQ(plain.Description(), "Database does not exist");
    EXPECT_EQ(plain.HelpContext(), 30000);
    EXPECT_EQ(plain.Source(), AppTitle());
    EXPECT_EQ(plain.HelpFile(), HelpFilePath());
    EXPECT_EQ(Raised([] { errnum::Raise(30063, "Opening Sales"); }).Description(),
              "Opening Sales\r\n\r\nDatabase does not exist");
    const VbError own = Raised([] { errnum::Raise(30014, "", "Template could not be found at C:\\t.doc."); });
    EXPECT_EQ(own.Description(), "Template could not be found at C:\\t.doc.");
    EXPECT_EQ(own.HelpContext(), 30014);
    EXPECT_EQ(Raised([] { errnum::Raise(30057); }).HelpContext(), 30001);  // shared help pages
    EXPECT_EQ(Raised([] { errnum::Raise(30036); }).HelpContext(), 0);
}

}  // namespace
}  // namespace flowloom
