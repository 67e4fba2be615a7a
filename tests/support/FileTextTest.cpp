// A file's text read whole into memory of its own, given back page by page
// behind a reader.
#include "support/FileText.h"

#include "testsupport/TempFolder.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <fstream>
#include <string>

namespace flowloom::test {
namespace {

namespace fs = std::filesystem;

std::string Pattern(std::size_t size) {
    std::string text(size, '\0');
    for (std::size_t i = 0; i < size; ++i) text[i] = static_cast<char>('a' + i % 23);
    return text;
}

class FileTextTest : public ::testing::Test {
protected:
    fs::path Write(const std::string& name, const std::string& bytes) {
        const fs::path path = folder.Path() / name;
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
    TempFolder folder;
    const std::size_t page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
};

TEST_F(FileTextTest, ReadsFilesOfEverySizeWhole) {
    for (std::size_t size : {std::size_t{0}, std::size_t{1}, page - 1, page, page + 1, 3 * page + 17}) {
        const std::string bytes = Pattern(size);
        std::error_code error;
        const std::optional<FileText> text = FileText::Read(Write("f" + std::to_string(size), bytes), error);
        ASSERT_TRUE(text.has_value()) << size;
        EXPECT_FALSE(error);
        EXPECT_EQ(text->View(), bytes);
    }
}

TEST_F(FileTextTest, AFileThatCannotBeReadGivesTheReason) {
    std::error_code error;
    EXPECT_FALSE(FileText::Read(folder.Path() / "missing.xml", error).has_value());
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
    EXPECT_FALSE(FileText::Read(folder.Path(), error).has_value());  // a folder
    EXPECT_TRUE(error);
}

TEST_F(FileTextTest, GivesBackWholePagesBehindTheReaderAndKeepsTheRest) {
    const std::string bytes = Pattern(5 * page + 100);
    std::error_code error;
    std::optional<FileText> text = FileText::Read(Write("f.xml", bytes), error);
    ASSERT_TRUE(text.has_value());
    text->ReleaseBefore(page - 1);  // not a whole page yet
    EXPECT_EQ(text->Released(), 0u);
    EXPECT_EQ(text->View(), bytes);
    text->ReleaseBefore(2 * page + 5);
    EXPECT_EQ(text->Released(), 2 * page);
    EXPECT_EQ(text->View().substr(2 * page), std::string_view(bytes).substr(2 * page));
    text->ReleaseBefore(page);  // less than before: nothing
    EXPECT_EQ(text->Released(), 2 * page);
    text->ReleaseBefore(100 * page);  // beyond the end: up to the last whole page
    EXPECT_EQ(text->Released(), 5 * page);
    EXPECT_EQ(text->View().substr(5 * page), std::string_view(bytes).substr(5 * page));
    // Moved, it is still the same text.
    FileText moved = std::move(*text);
    EXPECT_EQ(moved.View().size(), bytes.size());
    EXPECT_EQ(moved.Released(), 5 * page);
}

}  // namespace
}  // namespace flowloom::test
