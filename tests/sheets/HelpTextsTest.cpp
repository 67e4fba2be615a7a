// The message catalogue holds a help text for every row the sheets build.
#include "SheetFixture.h"

#include "app/CXmlMessages.h"

#include <cstdlib>
#include <filesystem>

namespace flowloom::test {
namespace {

TEST_F(SheetFixture, EveryRowHasAHelpText) {
    const char* source = std::getenv("FLOWLOOM_SOURCE_DIR");
    ASSERT_NE(source, nullptr) << "FLOWLOOM_SOURCE_DIR is not set";
    CXmlMessages catalogue;
    ASSERT_TRUE(catalogue.Load((std::filesystem::path(source) / "data" / "messages.xml").string()));

    for (const int kind : {1, 6, 8, 10, 11, 12, 13, 14, 15, 16}) {
        Build(kind);
        ASSERT_GT(rows.Count(), 0) << kind;
        for (std::int32_t i = 1; i <= rows.Count(); ++i) {
            const std::string key = sheets::HelpKey(kind, rows.Item(i));
            EXPECT_FALSE(catalogue.GetMessage(key).empty()) << key;
        }
    }
}

}  // namespace
}  // namespace flowloom::test
