#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "testsupport/TempFolder.h"
#include "designer/Resources.h"

namespace flowloom::designer {
namespace {

constexpr std::string_view kIcoSignature{"\x00\x00\x01\x00", 4};
constexpr std::string_view kPngSignature{"\x89PNG\r\n\x1a\n", 8};

TEST(ResourcesTest, EveryCellPictureIsAnIconUnderTheNameTheCanvasAsksFor) {
    // The canvas asks in mixed case for resources stored in upper case.
    for (const char* name : {"Database", "Datasource", "MailMerge", "SaveAs", "PrintOut", "Convert",
                             "SendMail", "SendFax", "AddRecord", "ArrowDown"}) {
        SCOPED_TRACE(name);
        const auto bytes = LoadResourceData(name, "FILES");
        ASSERT_TRUE(bytes.has_value());
        EXPECT_EQ(bytes->substr(0, 4), kIcoSignature);
    }
}

TEST(ResourcesTest, EveryToolbarKeyHasAPicture) {
    for (const char* key : {"New", "Load", "Save", "Save As", "Database", "Datasource", "ActivityMailMerge",
                            "ActivitySaveAs", "ActivityPrintOut", "Convert", "ActivitySendMail",
                            "ActivitySendFax", "AddRecord"}) {
        SCOPED_TRACE(key);
        const auto bytes = LoadResourceData(key, "TOOLBAR");
        ASSERT_TRUE(bytes.has_value());
        EXPECT_EQ(bytes->substr(0, 8), kPngSignature);
    }
    // "Save" and "Save As" are two pictures, not one found by a prefix.
    EXPECT_NE(LoadResourceData("Save", "TOOLBAR"), LoadResourceData("Save As", "TOOLBAR"));
}

TEST(ResourcesTest, NamesCompareWithoutRegardToCaseWithinTheirType) {
    const auto upper = LoadResourceData("DATABASE", "FILES");
    ASSERT_TRUE(upper.has_value());
    EXPECT_EQ(LoadResourceData("dAtAbAsE", "Files"), upper);
    EXPECT_FALSE(LoadResourceData("DATABAS", "FILES").has_value());
    EXPECT_FALSE(LoadResourceData("DATABASE", "BITMAP").has_value());
    EXPECT_FALSE(LoadResourceData("process", "FILES").has_value());  // the window icon is of another type
    EXPECT_TRUE(LoadResourceData("process", "ICON").has_value());
}

TEST(ResourcesTest, ExtractWritesTheResourceBytesToAFile) {
    test::TempFolder folder;
    const std::string path = (folder / "Convert.ico").string();
    ASSERT_TRUE(ExtractResourceFile(path, "CONVERT", "FILES"));
    EXPECT_EQ(test::ReadAll(path), *LoadResourceData("CONVERT", "FILES"));

    // An older file of that name is replaced, not appended to.
    test::WriteAll(folder / "old.ico", std::string(10000, 'x'));
    ASSERT_TRUE(ExtractResourceFile((folder / "old.ico").string(), "ArrowDown", "FILES"));
    EXPECT_EQ(test::ReadAll(folder / "old.ico"), *LoadResourceData("ArrowDown", "FILES"));
}

TEST(ResourcesTest, ExtractFailsWithoutTheResourceOrTheFolder) {
    test::TempFolder folder;
    EXPECT_FALSE(ExtractResourceFile((folder / "none.ico").string(), "NOSUCHPICTURE", "FILES"));
    EXPECT_FALSE(std::filesystem::exists(folder / "none.ico"));
    EXPECT_FALSE(ExtractResourceFile((folder / "missing" / "x.ico").string(), "DATABASE", "FILES"));
}

}  // namespace
}  // namespace flowloom::designer
