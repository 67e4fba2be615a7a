// The keyed collection the model's collections are built on.
#include "app/KeyedCollection.h"
#include "support/TextCompare.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

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

TEST(KeyedCollection, ShortLongAndFoldingKeysMatchAlike) {
    // Keys held inline (up to 23 ASCII bytes), longer ones, and keys beyond
    // ASCII, whose folding may make ASCII of them (the Kelvin sign is a "k").
    const std::string at23(23, 'K');
    const std::string at24(24, 'K');
    KeyedCollection<Item> c;
    c.Add(Make("23"), at23);
    c.Add(Make("24"), at24);
    c.Add(Make("kelvin"), "\u212Aey");
    c.Add(Make("long"), "A key that is certainly longer than the inline room");
    EXPECT_EQ(c.Item(std::string(23, 'k'))->name, "23");
    EXPECT_EQ(c.Item(std::string(24, 'k'))->name, "24");
    EXPECT_FALSE(c.Contains(std::string(22, 'k')));
    EXPECT_EQ(c.Item("KEY")->name, "kelvin");
    EXPECT_EQ(ErrorNumberOf([&] { c.Add(Make("dup"), "key"); }), 457);
    EXPECT_EQ(c.Item("\u212A" + std::string(22, 'K'))->name, "23");
    c.Remove("a KEY that is certainly longer than the inline room");
    EXPECT_FALSE(c.Contains("A KEY THAT IS CERTAINLY LONGER THAN THE INLINE ROOM"));
    EXPECT_EQ(c.Count(), 3);
}

TEST(KeyedCollection, OnlyLettersMatchTheirOtherCaseAtEveryPlaceOfAKey) {
    // Each ASCII character at each place of a short key, against the
    // character that differs from it by the case bit ('@' and '`' are no
    // pair, nor '[' and '{').
    for (int c = 1; c < 0x80; ++c) {
        const char other = static_cast<char>(c ^ 0x20);
        if (other == 0) continue;
        const bool letter = (c | 0x20) >= 'a' && (c | 0x20) <= 'z';
        for (std::size_t at : {0u, 7u, 8u, 15u, 16u, 22u}) {
            std::string key(23, '-');
            key[at] = static_cast<char>(c);
            std::string variant = key;
            variant[at] = other;
            KeyedCollection<Item> collection;
            collection.Add(Make("k"), key);
            EXPECT_EQ(collection.Contains(variant), letter) << c << " at " << at;
            EXPECT_TRUE(collection.Contains(key));
        }
    }
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

// A large collection keeps a hash index; inserts and removes anywhere must
// leave every key finding its own item at its own place.
TEST(KeyedCollection, LargeCollectionsStayRightUnderInsertsAndRemovesAnywhere) {
    KeyedCollection<Item> c;
    std::vector<std::string> model;  // the expected order of names
    for (int i = 0; i < 100; ++i) {
        const std::string name = "k" + std::to_string(i);
        if (i % 3 == 0 && !model.empty()) {
            c.Add(Make(name), name, CollectionPosition{1});
            model.insert(model.begin(), name);
        } else if (i % 3 == 1 && model.size() > 2) {
            c.Add(Make(name), name, {}, CollectionPosition{model[1]});
            model.insert(model.begin() + 2, name);
        } else {
            c.Add(Make(name), name);
            model.push_back(name);
        }
        if (i % 7 == 6) {
            c.Remove(std::string_view(ToUpper(model[model.size() / 2])));
            model.erase(model.begin() + static_cast<std::ptrdiff_t>(model.size() / 2));
        }
    }
    ASSERT_EQ(c.Count(), static_cast<std::int32_t>(model.size()));
    for (std::size_t i = 0; i < model.size(); ++i) {
        EXPECT_EQ(c.Item(static_cast<std::int32_t>(i + 1))->name, model[i]);
        EXPECT_EQ(c.Item(model[i])->name, model[i]);
        EXPECT_EQ(c.ItemAt(CollectionPosition{ToUpper(model[i])})->name, model[i]);
    }
    EXPECT_FALSE(c.Contains("k6"));  // removed
    EXPECT_EQ(ErrorNumberOf([&] { c.Add(Make("again"), model.front()); }), 457);
    c.RemoveAt(CollectionPosition{model.back()});
    EXPECT_FALSE(c.Find(model.back()));
    c.Add(Make("back"), model.back());
    EXPECT_EQ(c.Item(c.Count())->name, "back");
}

TEST(KeyedCollection, EveryChangeCountsAsAnEditAndReadsDoNot) {
    KeyedCollection<Item> c;
    auto revision = ModelRevision::Current();
    c.Add(Make("a"), "a");
    EXPECT_NE(ModelRevision::Current(), revision);
    revision = ModelRevision::Current();
    (void)c.Find("a");
    (void)c.Item(1);
    EXPECT_FALSE(c.TryAdd(Make("b"), "A"));
    EXPECT_EQ(ModelRevision::Current(), revision);
    c.Remove(1);
    EXPECT_NE(ModelRevision::Current(), revision);
}

}  // namespace
}  // namespace flowloom
