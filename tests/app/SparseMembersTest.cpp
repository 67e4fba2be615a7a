// Members that take one pointer until they are set: they read, count edits
// and copy as the full members they stand for.
#include "app/SparseMembers.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace flowloom::test {
namespace {

// Whether running `change` counted an edit.
template <typename Change>
bool Counts(Change change) {
    const std::uint64_t before = ModelRevision::Current();
    change();
    return ModelRevision::Current() != before;
}

TEST(SparseString, ReadsAsItsTextAndCountsOnlyRealChanges) {
    SparseString text;
    EXPECT_TRUE(text.empty());
    EXPECT_EQ(text.get(), "");
    EXPECT_FALSE(Counts([&] { text = ""; }));
    EXPECT_FALSE(Counts([&] { text = std::string_view(); }));
    EXPECT_TRUE(text.empty());
    EXPECT_TRUE(Counts([&] { text = "C:\\Letters"; }));
    EXPECT_FALSE(Counts([&] { text = std::string("C:\\Letters"); }));
    EXPECT_EQ(text, "C:\\Letters");
    EXPECT_EQ(text.size(), 10u);
    EXPECT_STREQ(text.c_str(), "C:\\Letters");
    EXPECT_TRUE(Counts([&] { text.clear(); }));
    EXPECT_FALSE(Counts([&] { text.clear(); }));
    EXPECT_TRUE(text.empty());
    // Assigning itself, or a text made from itself, changes nothing.
    text = "same";
    const SparseString& self = text;
    EXPECT_FALSE(Counts([&] { text = self; }));
    EXPECT_FALSE(Counts([&] { text = text.get(); }));
    EXPECT_EQ(text, "same");
}

TEST(SparseString, AReferenceReadFromItFollowsLaterAssignments) {
    SparseString text;
    text = "first";
    const std::string& read = text;
    text = "a second text, longer than any short-string buffer";
    EXPECT_EQ(read, "a second text, longer than any short-string buffer");
    text = "";
    EXPECT_EQ(read, "");
}

TEST(SparseString, CopiesAreDeepAndMovesKeepTheText) {
    SparseString a;
    a = "one";
    SparseString b(a);
    b = "two";
    EXPECT_EQ(a, "one");
    SparseString c;
    EXPECT_TRUE(Counts([&] { c = a; }));
    EXPECT_EQ(c, "one");
    SparseString d(std::move(c));
    EXPECT_EQ(d, "one");
    const SparseString none;
    SparseString e(none);
    EXPECT_TRUE(e.empty());
}

TEST(LazyPart, IsMadeOnFirstWriteAndCopiedDeep) {
    LazyPart<std::vector<std::string>> part;
    EXPECT_EQ(part.Find(), nullptr);
    part.Get().push_back("x");
    ASSERT_NE(part.Find(), nullptr);
    LazyPart<std::vector<std::string>> copy(part);
    copy.Get().push_back("y");
    EXPECT_EQ(part.Find()->size(), 1u);
    EXPECT_EQ(copy.Find()->size(), 2u);
    copy = part;
    EXPECT_EQ(copy.Find()->size(), 1u);
    part.Reset();
    EXPECT_EQ(part.Find(), nullptr);
    copy = part;
    EXPECT_EQ(copy.Find(), nullptr);
}

}  // namespace
}  // namespace flowloom::test
