// The keyed collection the model's collections are built on.
#include "app/KeyedCollection.h"

#include <gtest/gtest.h>

#include <functional>

namespace flowloom {
namespace {

struct Item {
    std::string name;
};

std::shared_ptr<Item> Make(const std::string& name) { return std::make_shared<Item>(Item{name}); }

std::int32_t ErrorNumberOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const VbError& error) {
        return error.Number();
    }
    return 0;
}

TEST(KeyedCollection, KeysIgnoreCaseInAnyScriptAndDuplicateIs457) {
    KeyedCollection<Item> c;
    c.Add(Make("a"), "Letter");
    c.Add(Make("x"), "Ärger");
    EXPECT_EQ(c.Item("LETTER")->name, "a");
    EXPECT_TRUE(c.Contains("äRGER"));
    EXPECT_FALSE(c.Contains("Arger"));
    EXPECT_EQ(ErrorNumberOf([&] { c.Add(Make("b"), "lEtTeR"); }), 457);
    EXPECT_EQ(c.Count(), 2);
}

TEST(KeyedCollection, PositionsBeforeAndAfterWithBeforeWinning) {
    KeyedCollection<Item> c;
    c.Add(Make("1"), "one");
    c.Add(Make("3"), "three");
    c.Add(Make("2"), "two", CollectionPosition{std::string("three")});
    c.Add(Make("0"), "zero", CollectionPosition{1}, CollectionPosition{3});
    c.Add(Make("4"), "four", {}, CollectionPosition{std::string("three")});
    std::string order;
    for (const auto& item : c) order += item->name;
    EXPECT_EQ(order, "01234");
}

TEST(KeyedCollection, UnknownKeyIs5BadIndexIs9AndRemoveFreesTheKey) {
    KeyedCollection<Item> c;
    c.Add(Make("1"), "k");
    EXPECT_EQ(ErrorNumberOf([&] { c.Item("nope"); }), 5);
    EXPECT_EQ(ErrorNumberOf([&] { c.Item(2); }), 9);
    c.Remove("K");
    EXPECT_EQ(c.Count(), 0);
    c.Add(Make("2"), "k");
    EXPECT_EQ(c.Item(1)->name, "2");
}

}  // namespace
}  // namespace flowloom
