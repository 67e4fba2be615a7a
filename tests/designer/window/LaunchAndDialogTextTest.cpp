// The program's own switches and the texts handed to Qt's dialogs.
#include "designer/window/DialogText.h"
#include "designer/window/LaunchOptions.h"

#include <gtest/gtest.h>

namespace flowloom::designer::window {
namespace {

TEST(LaunchOptions, TakeTheirOwnSwitchesAndLeaveTheDesignersInOrder) {
    const auto options = ParseLaunchOptions({"-xmlfile", "/tmp/a b.xml", "--screenshot", "shot.png", "/process", "P"});
    EXPECT_EQ(options.screenshot, "shot.png");
    EXPECT_EQ(options.designerArgs, (std::vector<std::string>{"-xmlfile", "/tmp/a b.xml", "/process", "P"}));
    EXPECT_TRUE(options.error.empty());

    EXPECT_EQ(ParseLaunchOptions({"--screenshot=x.png"}).screenshot, "x.png");
    EXPECT_FALSE(ParseLaunchOptions({"--screenshot"}).error.empty());
    EXPECT_TRUE(ParseLaunchOptions({"--help"}).help);
    EXPECT_TRUE(ParseLaunchOptions({"-xmlfile", "f", "--version"}).version);
    // A file alone, as the desktop passes it, is opened; a lone option word is not taken for one.
    EXPECT_EQ(ParseLaunchOptions({"/tmp/a.xml"}).designerArgs, (std::vector<std::string>{"-xmlfile", "/tmp/a.xml"}));
    EXPECT_EQ(ParseLaunchOptions({"-xmlfile"}).designerArgs, (std::vector<std::string>{"-xmlfile"}));
}

TEST(DialogText, FiltersBecomeQtFilters) {
    EXPECT_EQ(QtFileFilter("XML files (*.xml)|*.xml|All Files (*.*)|*.*"), "XML files (*.xml);;All Files (*.*)");
    // Texts without their patterns get them, several patterns separated by blanks.
    EXPECT_EQ(QtFileFilter("Word|*.doc;*.dot|Text|*.txt"), "Word (*.doc *.dot);;Text (*.txt)");
    EXPECT_EQ(QtFileFilter(""), "");
}

TEST(DialogText, SaveNamesGetTheDefaultExtensionOnlyWhenTheyHaveNone) {
    EXPECT_EQ(WithDefaultExtension("/tmp/out", "xml"), "/tmp/out.xml");
    EXPECT_EQ(WithDefaultExtension("/tmp/out", ".xml"), "/tmp/out.xml");
    EXPECT_EQ(WithDefaultExtension("/tmp/out.bak", "xml"), "/tmp/out.bak");
    EXPECT_EQ(WithDefaultExtension("/tmp/out", ""), "/tmp/out");
    EXPECT_EQ(WithDefaultExtension("/tmp/v1.2/out", "xml"), "/tmp/v1.2/out.xml");
}

TEST(DialogText, WindowsLineEndsBreakLines) {
    EXPECT_EQ(WithLineFeeds("a\r\nb\rc\nd"), "a\nb\nc\nd");
}

}  // namespace
}  // namespace flowloom::designer::window
