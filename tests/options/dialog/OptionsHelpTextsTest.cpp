// The message catalogue the program ships holds a help text for every group
// and every value the options dialog shows.
#include "app/CXmlMessages.h"
#include "options/dialog/frmOptions.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

namespace flowloom::test {
namespace {

TEST(OptionsHelpTexts, EveryGroupAndValueHasOne) {
    const char* source = std::getenv("FLOWLOOM_SOURCE_DIR");
    ASSERT_NE(source, nullptr) << "FLOWLOOM_SOURCE_DIR is not set";
    CXmlMessages catalogue;
    ASSERT_TRUE(catalogue.Load((std::filesystem::path(source) / "data" / "messages.xml").string()));
    const auto keys = options::OptionsHelpKeys();
    ASSERT_FALSE(keys.empty());
    for (const std::string& key : keys) EXPECT_FALSE(catalogue.GetMessage(key).empty()) << key;
}

}  // namespace
}  // namespace flowloom::test
