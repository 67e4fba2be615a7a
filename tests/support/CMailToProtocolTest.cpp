// The mailto: link of an error report.
#include "support/CMailToProtocol.h"

#include "testsupport/ScriptedPrompts.h"

#include <gtest/gtest.h>

namespace flowloom::test {
namespace {

std::string Lines(int count) {
    std::string body;
    for (int i = 0; i < count; ++i) body += "line " + std::to_string(i) + "\r\n";
    return body;
}

TEST(MailTo, AddressCopiesSubjectAndBodyAreEncoded) {
    EXPECT_EQ(CMailToProtocol::BuildLink("a@b.c", "Hi there", "x\r\ny", "c@d.e", "", false),
              "mailto:a@b.c?CC=c@d.e&Subject=Hi%20there&Body=x%0d%0ay");
    EXPECT_EQ(CMailToProtocol::BuildLink("a@b.c", "s", "b", "c@d.e", "f@g.h", false),
              "mailto:a@b.c?CC=c@d.e&BCC=f@g.h&Subject=s&Body=b");
    EXPECT_EQ(CMailToProtocol::BuildLink("a@b.c", "", "", "", "", true), "mailto:a@b.c?Subject=&Body=");
}

TEST(MailTo, LongLinksAreCutAtTwoThousandCharactersOrTheLineEndBefore) {
    const std::string exact = CMailToProtocol::BuildLink("a", "s", std::string(2000 - 24, 'x'), "", "", true);
    EXPECT_EQ(exact.size(), 2000u);
    EXPECT_NE(exact.substr(exact.size() - 3), "...");
    const std::string full = CMailToProtocol::BuildLink("a@b.c", "s", Lines(300), "", "", false);
    const std::string cut = CMailToProtocol::BuildLink("a@b.c", "s", Lines(300), "", "", true);
    const std::size_t lastLineEnd = full.substr(0, 2000).rfind("%0d%0a");
    EXPECT_EQ(full.size(), 2003u);
    EXPECT_EQ(full.substr(2000), "...");
    EXPECT_EQ(cut, full.substr(0, lastLineEnd + 6) + "...");
    // Without a line end in the first 2000 characters the plain cut stands.
    EXPECT_EQ(CMailToProtocol::BuildLink("a", "s", std::string(3000, 'x'), "", "", true).size(), 2003u);
}

TEST(MailTo, SendOpensTheLinkAndReportsFailure) {
    ScriptedPrompts prompts;
    EXPECT_EQ(CMailToProtocol().Send("a@b.c", "s", "b"), 0);
    ASSERT_EQ(prompts.urls.size(), 1u);
    EXPECT_EQ(prompts.urls[0], "mailto:a@b.c?Subject=s&Body=b");
    prompts.openUrlSucceeds = false;
    EXPECT_EQ(CMailToProtocol().Send("a@b.c", "s", "b"), static_cast<std::int32_t>(0x8003FE09));
}

}  // namespace
}  // namespace flowloom::test
