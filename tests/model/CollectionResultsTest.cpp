// The model's collections tell their callers whether an Add or a Remove took
// place, with the same boxes and reports as before; every activity class is
// reached through its kind.
#include "ModelFixture.h"

#include "model/Activities.h"
#include "model/Database.h"
#include "model/Databases.h"
#include "model/Datasource.h"
#include "model/Datasources.h"
#include "model/Process.h"
#include "model/VisitActivity.h"

namespace flowloom::test {
namespace {

class CollectionResults : public ModelFixture {
protected:
    static std::shared_ptr<Process> NamedProcess(const std::string& name) {
        auto process = Process::Create();
        process->SetName(name);
        return process;
    }
};

TEST_F(CollectionResults, ProcessesRefuseADuplicateNameWithTheirBoxAndSayNo) {
    auto processes = Processes::Create();
    EXPECT_TRUE(processes->Add(NamedProcess("Letters")));
    EXPECT_FALSE(processes->Add(NamedProcess("LETTERS")));
    ASSERT_EQ(prompts.boxes.size(), 1u);
    EXPECT_EQ(prompts.boxes[0].prompt, "Process LETTERS already exists.");
    EXPECT_FALSE(processes->Add(nullptr));
    EXPECT_EQ(processes->Count(), 1);

    EXPECT_FALSE(processes->Remove(CollectionPosition{std::string("Reminders")}));
    EXPECT_FALSE(processes->Remove(CollectionPosition{2}));
    EXPECT_TRUE(processes->Remove(CollectionPosition{std::string("letters")}));
    EXPECT_EQ(processes->Count(), 0);
    EXPECT_TRUE(prompts.errors.empty());
}

TEST_F(CollectionResults, DatabasesRefuseAnExistingNameWithTheirBoxDatasourcesSilently) {
    Databases databases;
    auto database = std::make_shared<Database>();
    database->name = "Northwind";
    EXPECT_TRUE(databases.Add(database));
    EXPECT_FALSE(databases.Add(database));
    ASSERT_EQ(prompts.boxes.size(), 1u);
    EXPECT_EQ(prompts.boxes[0].prompt, "Database Northwind already exists.");

    Datasources datasources;
    auto first = std::make_shared<Datasource>();
    first->SetName("Customers");
    auto second = std::make_shared<Datasource>();
    second->SetName("customers");
    EXPECT_TRUE(datasources.Add(first));
    EXPECT_FALSE(datasources.Add(second));
    EXPECT_EQ(prompts.boxes.size(), 1u);
    EXPECT_TRUE(prompts.errors.empty());
    EXPECT_TRUE(datasources.Remove(CollectionPosition{1}));
    EXPECT_FALSE(datasources.Remove(CollectionPosition{1}));
}

TEST_F(CollectionResults, AnActivityAddedTwiceIsReportedAndRefused) {
    auto process = Process::Create();
    auto activity = CreateActivity(ActivityKind::SendFax);
    EXPECT_TRUE(process->Activities()->Add(activity));
    EXPECT_FALSE(process->Activities()->Add(activity));  // same key
    ASSERT_EQ(prompts.errors.size(), 1u);
    EXPECT_EQ(prompts.errors[0].number, 457);
    EXPECT_EQ(process->Activities()->Count(), 1);
    EXPECT_EQ(process->Activities()->TypeCount(ActivityKind::SendFax), 2);  // counted before the refusal
    EXPECT_TRUE(process->Activities()->Remove(CollectionPosition{activity->Key()}));
    EXPECT_FALSE(process->Activities()->Remove(CollectionPosition{activity->Key()}));
}

TEST(ActivityKinds, EveryKindMakesAndVisitsItsOwnClass) {
    for (ActivityKind kind : kActivityKinds) {
        const auto activity = CreateActivity(kind);
        ASSERT_NE(activity, nullptr);
        EXPECT_EQ(activity->Kind(), kind);
        // The type name is the element name in the file, found without regard to case.
        EXPECT_EQ(CreateActivity(FoldCase(activity->ActivityType()))->Kind(), kind);
        EXPECT_EQ(ActivityKindOfItemType(ItemTypeCode(kind)), kind);
        const Activity& constActivity = *activity;
        const std::string visited = VisitActivity(constActivity, []<typename T>(const T& a) {
            static_assert(!std::is_same_v<T, Activity>);
            return std::string(ActivityTypeName(T::kKind)) + "/" + a.ActivityType();
        });
        EXPECT_EQ(visited, activity->ActivityType() + "/" + activity->ActivityType());
    }
    EXPECT_EQ(CreateActivity("Unknown"), nullptr);
    EXPECT_EQ(ActivityKindOfItemType(9), std::nullopt);
    EXPECT_EQ(ActivityKindOfItemType(17), std::nullopt);
}

}  // namespace
}  // namespace flowloom::test
