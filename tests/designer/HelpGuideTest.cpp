#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string>

#include "testsupport/TempFolder.h"
#include "app/ErrorNumbers.h"
#include "designer/HelpGuide.h"
#include "support/AppPaths.h"

namespace flowloom::designer {
namespace {

namespace fs = std::filesystem;

constexpr int kSheetKinds[] = {1, 6, 8, 10, 11, 12, 13, 14, 15, 16};

// Points the program's folder at a temporary folder for the test's length;
// the guide itself is the repository's help/ folder, copied where a test puts it.
class HelpGuideTest : public ::testing::Test {
protected:
    void SetUp() override { SetProgramFolder(temp_.Path() / "bin"); }
    void TearDown() override { SetProgramFolder({}); }

    void InstallGuide(const fs::path& folder) {
        fs::create_directories(folder.parent_path());
        fs::copy(test::SourceDir() / "help", folder, fs::copy_options::recursive);
    }
    fs::path Bin() const { return temp_.Path() / "bin"; }

    // The page and the anchor of a file address into the guide.
    static std::pair<std::string, std::string> PageAndAnchor(const std::string& url) {
        const auto hash = url.find('#');
        const std::string path = url.substr(0, hash);
        return {path.substr(path.rfind('/') + 1), hash == std::string::npos ? "" : url.substr(hash + 1)};
    }

    // The ids of a page's elements, read once per page.
    const std::set<std::string>& IdsOf(const fs::path& page) {
        auto [entry, added] = ids_.try_emplace(page.filename().string());
        if (added) {
            const std::string html = test::ReadAll(page);
            static const std::regex id(R"re(\bid="([^"]+)")re");
            for (auto it = std::sregex_iterator(html.begin(), html.end(), id); it != std::sregex_iterator(); ++it) {
                entry->second.insert((*it)[1]);
            }
        }
        return entry->second;
    }

    void ExpectResolves(const std::string& url) {
        SCOPED_TRACE(url);
        const auto [page, anchor] = PageAndAnchor(url);
        ASSERT_TRUE(fs::is_regular_file(HelpGuideFolder() / page));
        if (!anchor.empty()) {
            EXPECT_TRUE(IdsOf(HelpGuideFolder() / page).count(anchor));
        }
    }

    test::TempFolder temp_;
    std::map<std::string, std::set<std::string>> ids_;
};

TEST_F(HelpGuideTest, FindsTheGuideBesideTheProgramOrWhereItIsInstalled) {
    fs::create_directories(Bin());
    EXPECT_TRUE(HelpPageUrl(0).empty());  // no guide, no address
    InstallGuide(temp_.Path() / "share" / "flowloom" / "help");
    EXPECT_EQ(HelpGuideFolder(), (temp_.Path() / "share" / "flowloom" / "help").lexically_normal());

    // A guide beside the executable wins over the installed one.
    InstallGuide(Bin() / "help");
    EXPECT_EQ(HelpGuideFolder(), Bin() / "help");
}

TEST_F(HelpGuideTest, ContextsOpenTheirPages) {
    InstallGuide(Bin() / "help");
    const std::string contents = HelpPageUrl(0);
    EXPECT_EQ(contents, "file://" + (Bin() / "help" / "index.html").generic_string());
    EXPECT_EQ(HelpPageUrl(4711), contents);  // unknown: the contents
    EXPECT_EQ(PageAndAnchor(HelpPageUrl(kDesignerHelpContext)).first, "window.html");
}

TEST_F(HelpGuideTest, EverySheetHasASectionOfItsOwn) {
    InstallGuide(Bin() / "help");
    std::set<std::string> urls;
    for (const int kind : kSheetKinds) {
        const std::int32_t context = SheetHelpContext(kind);
        ASSERT_NE(context, 0) << kind;
        const std::string url = HelpPageUrl(context);
        EXPECT_EQ(PageAndAnchor(url).first, "sheets.html");
        ExpectResolves(url);
        urls.insert(url);
    }
    EXPECT_EQ(urls.size(), std::size(kSheetKinds));
    EXPECT_EQ(SheetHelpContext(7), 0);
    EXPECT_EQ(SheetHelpContext(0), 0);
}

TEST_F(HelpGuideTest, EveryErrorNumberLeadsToTheErrorsPage) {
    InstallGuide(Bin() / "help");
    for (std::int32_t code = errnum::First; code <= errnum::Last; ++code) {
        const std::int32_t context = errnum::HelpContext(code);
        if (context == 0) continue;  // errors that carry no help
        const std::string url = HelpPageUrl(context);
        EXPECT_EQ(PageAndAnchor(url).first, "errors.html") << code;
        ExpectResolves(url);
    }
}

TEST_F(HelpGuideTest, LinksBetweenThePagesResolve) {
    InstallGuide(Bin() / "help");
    static const std::regex link(R"re(href="([a-z-]+\.html)(#([^"]+))?")re");
    for (const auto& entry : fs::directory_iterator(HelpGuideFolder())) {
        if (entry.path().extension() != ".html") continue;
        const std::string html = test::ReadAll(entry.path());
        for (auto it = std::sregex_iterator(html.begin(), html.end(), link); it != std::sregex_iterator(); ++it) {
            SCOPED_TRACE(entry.path().filename().string() + " -> " + (*it)[0].str());
            const fs::path target = HelpGuideFolder() / (*it)[1].str();
            ASSERT_TRUE(fs::is_regular_file(target));
            if ((*it)[3].matched) {
                EXPECT_TRUE(IdsOf(target).count((*it)[3]));
            }
        }
    }
}

TEST_F(HelpGuideTest, AddressesEscapeBlanksAndOtherCharacters) {
    const fs::path program = temp_.Path() / "my programs" / "bin";
    SetProgramFolder(program);
    InstallGuide(program / "help");
    const std::string url = HelpPageUrl(0);
    EXPECT_NE(url.find("/my%20programs/bin/help/index.html"), std::string::npos) << url;
    EXPECT_EQ(url.find(' '), std::string::npos);
}

}  // namespace
}  // namespace flowloom::designer
