// Which list a row of the system table goes to.
#include "designer/access/SystemObjects.h"

#include <gtest/gtest.h>

namespace flowloom::test {
namespace {

using access::ClassifyObject;
using access::ObjectList;

TEST(SystemObjects, KindsOfObjectsByType) {
    EXPECT_EQ(ClassifyObject(1, "Orders"), ObjectList::Tables);
    EXPECT_EQ(ClassifyObject(6, "Linked orders"), ObjectList::Tables);
    EXPECT_EQ(ClassifyObject(5, "Invoices"), ObjectList::Queries);
    EXPECT_EQ(ClassifyObject(-32768, "Startup"), ObjectList::Forms);
    EXPECT_EQ(ClassifyObject(-32764, "Catalog"), ObjectList::Reports);
    // Containers, the database, relationships, ODBC links, macros, modules.
    for (const int other : {0, 2, 3, 4, 8, -32766, -32761, -32757, 32768 + 1, 65536 + 1})
        EXPECT_EQ(ClassifyObject(other, "Orders"), ObjectList::None) << other;
}

TEST(SystemObjects, PrefixesHideOnlyTheirKindsAndOnlyInTheirCase) {
    EXPECT_EQ(ClassifyObject(1, "MSysObjects"), ObjectList::None);
    EXPECT_EQ(ClassifyObject(6, "USysSettings"), ObjectList::None);
    EXPECT_EQ(ClassifyObject(1, "~sq_Table"), ObjectList::Tables);
    EXPECT_EQ(ClassifyObject(1, "msysObjects"), ObjectList::Tables);
    EXPECT_EQ(ClassifyObject(1, "MSYSObjects"), ObjectList::Tables);

    EXPECT_EQ(ClassifyObject(5, "~sq_fOrders"), ObjectList::None);
    EXPECT_EQ(ClassifyObject(5, "USysQuery"), ObjectList::None);
    EXPECT_EQ(ClassifyObject(5, "MSysQuery"), ObjectList::Queries);
    EXPECT_EQ(ClassifyObject(5, "~SQ_fOrders"), ObjectList::Queries);

    EXPECT_EQ(ClassifyObject(-32768, "USysForm"), ObjectList::None);
    EXPECT_EQ(ClassifyObject(-32768, "MSysForm"), ObjectList::Forms);
    EXPECT_EQ(ClassifyObject(-32768, "~sq_Form"), ObjectList::Forms);
    EXPECT_EQ(ClassifyObject(-32764, "USysReport"), ObjectList::None);
    EXPECT_EQ(ClassifyObject(-32764, "MSysReport"), ObjectList::Reports);
    // The prefix is the whole of the first four characters.
    EXPECT_EQ(ClassifyObject(1, "MSys"), ObjectList::None);
    EXPECT_EQ(ClassifyObject(1, "MSy"), ObjectList::Tables);
    EXPECT_EQ(ClassifyObject(1, ""), ObjectList::Tables);
    EXPECT_EQ(ClassifyObject(1, " MSysObjects"), ObjectList::Tables);
    EXPECT_EQ(ClassifyObject(5, "~sq"), ObjectList::Queries);
}

}  // namespace
}  // namespace flowloom::test
