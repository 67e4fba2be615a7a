#include "app/KeyedCollection.h"

#include <gtest/gtest.h>

namespace flowloom {
namespace {

struct Item {
    std::string name;
};

std::shared_ptr<Item> Make(const std::string& name) { return std::make_shared<Item>(Item{name}); }

TEST(KeyedCollection, KeysIgnoreCaseAndDuplicateIs457) {
    KeyedCollection<Item> c;
    c.Add(Make("a"), "Letter");
    EXPECT_EQ(c.Item("LETTER")->name, "a");
    try {
        c.Add(Make("b"), "lEtTeR");
        FAIL() << "expected error 457";
    } catch (const VbError& e) {
        EXPECT_EQ(e.Number(), 457);
    }
    EXPECT_EQ(c.Count(), 1);
}

TEST(KeyedCollection, UnicodeKeysFoldCase) {
    KeyedCollection<Item> c;
    c.Add(Make("x"), "Ärger");
    EXPECT_TRUE(c.Contains("äRGER"));
    EXPECT_FALSE(c.Contains("Arger"));
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

TEST(KeyedCollection, UnknownKeyAndBadIndexRaise) {
    KeyedCollection<Item> c;
    c.Add(Make("1"));
    EXPECT_THROW(
        {
            try {
                c.Item("nope");
            } catch (const VbError& e) {
                EXPECT_EQ(e.Number(), 5);
                throw;
            }
        },
        VbError);
    EXPECT_THROW(
        {
            try {
                c.Item(2);
            } catch (const VbError& e) {
                EXPECT_EQ(e.Number(), 9);
                throw;
            }
        },
        VbError);
}

TEST(KeyedCollection, RemoveByKeyFreesTheKey) {
    KeyedCollection<Item> c;
    c.Add(Make("1"), "k");
    c.Remove("K");
    EXPECT_EQ(c.Count(), 0);
    c.Add(Make("2"), "k");
    EXPECT_EQ(c.Item(1)->name, "2");
}

}  // namespace
}  // namespace flowloom
