// The groups dialog: the process's list that waits for OK, and the file's
// groups that new, rename and delete change at once.
#include "DialogFixture.h"

#include "designer/dialogs/GroupsResult.h"
#include "designer/dialogs/frmGroups.h"
#include "model/Group.h"
#include "model/Groups.h"
#include "model/Process.h"
#include "support/Prompts.h"

#include <gmock/gmock.h>

namespace flowloom::test {
namespace {

using dialogs::frmGroups;
using ::testing::ElementsAre;
using Lines = std::vector<std::string>;

class GroupsDialog : public DialogFixture {
protected:
    GroupsDialog() {
        Load(R"(<Process Name="P1"><Groups><Group Name="Sales"/></Groups></Process>)"
             R"(<Process Name="P2"><Groups><Group Name="Sales"/><Group Name="Admin"/></Groups></Process>)"
             R"(<Process Name="P3"/><Groups><Group Name="Sales"/><Group Name="Admin"/></Groups>)");
        p1 = processes->Item(CollectionPosition{1});
        p2 = processes->Item(CollectionPosition{2});
        EXPECT_TRUE(dialog.init(p1, processes));
    }
    static Lines Names(const Groups& groups) {
        Lines names;
        for (const auto& group : groups) names.push_back(group->name);
        return names;
    }
    Lines FileGroups() const { return Names(*processes->Groups()); }

    std::shared_ptr<Process> p1, p2;
    frmGroups dialog;
};

TEST_F(GroupsDialog, InitShowsTheFilesGroupsAndTheProcesssOwnAndNeedsBoth) {
    EXPECT_THAT(Entries(dialog, "cboGroup"), ElementsAre("Sales", "Admin"));
    EXPECT_THAT(Entries(dialog, "lstGroups"), ElementsAre("Sales"));
    for (const char* button : {"cmdGroupAdd", "cmdRename", "cmdDelete", "cmdGroupRemove", "cmdGroupEdit"})
        EXPECT_FALSE(Enabled(dialog, button)) << button;
    frmGroups other;
    EXPECT_FALSE(other.init(p1, nullptr));
    EXPECT_FALSE(other.init(nullptr, processes));
    EXPECT_TRUE(Entries(other, "cboGroup").empty());
}

TEST_F(GroupsDialog, AddTakesANameOnceWithoutRegardToCaseAndRemoveTakesTheSelectedOne) {
    dialog.SetText("cboGroup", "   ");
    EXPECT_FALSE(Enabled(dialog, "cmdGroupAdd"));
    dialog.SetText("cboGroup", "SALES");
    EXPECT_TRUE(dialog.Click("cmdGroupAdd"));
    EXPECT_THAT(Entries(dialog, "lstGroups"), ElementsAre("Sales"));
    dialog.Pick("cboGroup", 1);
    dialog.Click("cmdGroupAdd");
    dialog.SetText("cboGroup", "Typed");
    dialog.Click("cmdGroupAdd");
    EXPECT_THAT(Entries(dialog, "lstGroups"), ElementsAre("Sales", "Admin", "Typed"));

    ASSERT_TRUE(dialog.Pick("lstGroups", 0));
    EXPECT_TRUE(dialog.Click("cmdGroupEdit"));  // enabled, without an action
    EXPECT_TRUE(prompts.asked.empty());
    dialog.Click("cmdGroupRemove");
    EXPECT_THAT(Entries(dialog, "lstGroups"), ElementsAre("Admin", "Typed"));
    EXPECT_FALSE(Enabled(dialog, "cmdGroupRemove"));
    dialog.SetText("cboGroup", "sales");  // gone from the working list, so it may come back
    dialog.Click("cmdGroupAdd");
    EXPECT_THAT(Entries(dialog, "lstGroups"), ElementsAre("Admin", "Typed", "sales"));

    dialog.Click("cmdOK");
    EXPECT_TRUE(dialog.OK());
    EXPECT_EQ(dialog.Result(), "Admin\r\nTyped\r\nsales");
    EXPECT_THAT(Names(*p1->Groups()), ElementsAre("Sales"));  // the caller applies the result
}

TEST_F(GroupsDialog, NewAsksAgainForAKnownNameAndAddsToTheFileAtOnce) {
    prompts.inputs = {std::string("admin"), std::string("  Team  ")};
    dialog.Click("cmdNew");
    ASSERT_EQ(prompts.boxes.size(), 1u);
    EXPECT_EQ(prompts.boxes[0].prompt, "The Group with name 'admin' already exists!");
    EXPECT_EQ(prompts.boxes[0].style, msgbox::Exclamation);
    ASSERT_EQ(prompts.asked.size(), 2u);
    EXPECT_EQ(prompts.asked[1].prompt, "Type the name of a new Group");
    EXPECT_EQ(prompts.asked[1].title, "New Group");
    EXPECT_THAT(FileGroups(), ElementsAre("Sales", "Admin", "Team"));
    EXPECT_THAT(Entries(dialog, "cboGroup"), ElementsAre("Sales", "Admin", "Team"));
    EXPECT_EQ(Text(dialog, "cboGroup"), "Team");

    prompts.inputs = {std::nullopt};
    dialog.Click("cmdNew");
    dialog.Click("cmdCancel");
    EXPECT_THAT(FileGroups(), ElementsAre("Sales", "Admin", "Team"));
    EXPECT_TRUE(processes->EditedSinceLoadOrSave());
}

TEST_F(GroupsDialog, RenameReachesTheFileEveryProcessAndTheWorkingList) {
    dialog.SetText("cboGroup", "Typed");
    dialog.Click("cmdGroupAdd");
    dialog.SetText("cboGroup", "Sales");
    prompts.inputs = {std::string("ADMIN"), std::string("Sellers")};
    dialog.Click("cmdRename");
    ASSERT_EQ(prompts.asked.size(), 2u);
    EXPECT_EQ(prompts.asked[0].prompt, "Type a new name");
    EXPECT_EQ(prompts.asked[0].title, "Rename Group");
    EXPECT_EQ(prompts.asked[1].defaultText, "Sales");
    EXPECT_EQ(prompts.boxes.at(0).prompt, "The Group with name 'ADMIN' already exists!");

    EXPECT_THAT(FileGroups(), ElementsAre("Admin", "Sellers"));
    EXPECT_EQ(Text(dialog, "cboGroup"), "Sellers");
    EXPECT_THAT(Names(*p1->Groups()), ElementsAre("Sellers"));
    EXPECT_THAT(Names(*p2->Groups()), ElementsAre("Admin", "Sellers"));
    EXPECT_FALSE(processes->Item(CollectionPosition{3})->HasGroups());
    EXPECT_THAT(Entries(dialog, "lstGroups"), ElementsAre("Sellers", "Typed"));
}

TEST_F(GroupsDialog, DeleteAsksAndStaysDoneWhenTheDialogIsCancelled) {
    dialog.SetText("cboGroup", "sales");
    prompts.answers = {msgbox::Cancel, msgbox::OK};
    dialog.Click("cmdDelete");
    EXPECT_THAT(FileGroups(), ElementsAre("Sales", "Admin"));
    dialog.Click("cmdDelete");
    ASSERT_EQ(prompts.boxes.size(), 2u);
    EXPECT_EQ(prompts.boxes[0].prompt, "Do you want to delete Group 'sales'?");
    EXPECT_EQ(prompts.boxes[0].style, msgbox::OKCancel | msgbox::Question);

    EXPECT_THAT(FileGroups(), ElementsAre("Admin"));
    EXPECT_THAT(Names(*p1->Groups()), ElementsAre());
    EXPECT_THAT(Names(*p2->Groups()), ElementsAre("Admin"));
    EXPECT_THAT(Entries(dialog, "cboGroup"), ElementsAre("Admin"));
    EXPECT_EQ(Text(dialog, "cboGroup"), "");
    EXPECT_FALSE(Enabled(dialog, "cmdDelete"));
    EXPECT_TRUE(Entries(dialog, "lstGroups").empty());
    dialog.Click("cmdCancel");
    EXPECT_FALSE(dialog.OK());
    EXPECT_THAT(FileGroups(), ElementsAre("Admin"));
}

TEST_F(GroupsDialog, TheResultReplacesTheProcesssGroupsOneTrimmedLineEach) {
    ASSERT_TRUE(processes->Save(""));
    const std::string saved = processes->XML();
    ASSERT_FALSE(processes->EditedSinceLoadOrSave());
    dialogs::ReplaceProcessGroups(*p2, " Team \r\n\r\nAdmin\r\nadmin\r\n");
    EXPECT_THAT(Names(*p2->Groups()), ElementsAre("Team", "Admin"));
    EXPECT_TRUE(processes->EditedSinceLoadOrSave());
    EXPECT_NE(processes->XML(), saved);
    dialogs::ReplaceProcessGroups(*p2, "");
    EXPECT_EQ(p2->Groups()->Count(), 0);
}

}  // namespace
}  // namespace flowloom::test
