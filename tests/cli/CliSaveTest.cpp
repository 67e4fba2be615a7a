// flowloom-cli's exit codes and lines when saving and loading rewrite files.
#include "CliFixture.h"

#include "support/SafeSave.h"
#include "testsupport/ChildProcess.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <cstdlib>
#include <filesystem>
#include <regex>

namespace flowloom::test {
namespace {

namespace fs = std::filesystem;

class CliSave : public CliFixture {
protected:
    ~CliSave() override { SetSaveFaultHook({}); }

    // An OUT that exists with other content than the example.
    fs::path ExistingOut(const fs::path& where) {
        const fs::path out = where / "out.xml";
        WriteAll(out, "<Processes Version=\"1\"/>");
        return out;
    }
    // What xmllint --noout says of a file: nothing when it is well-formed.
    static std::string Xmllint(const fs::path& file, const fs::path& scratch) {
        const fs::path said = scratch / "xmllint.txt";
        const std::string command = "xmllint --noout '" + file.string() + "' > '" + said.string() + "' 2>&1";
        return std::system(command.c_str()) == 0 ? ReadAll(said) : "xmllint failed: " + ReadAll(said);
    }
};

TEST_F(CliSave, ASaveThatReachedOutExitsZeroAndIsWellFormed) {
    const fs::path out = ExistingOut(folder.Path());
    EXPECT_EQ(Run({"save", Example(), out.string()}), 0) << err.str();
    EXPECT_EQ(ReadAll(out), ReadAll(SourceDir() / "examples/letters.xml"));
    EXPECT_EQ(Xmllint(out, folder.Path()), "");
}

TEST_F(CliSave, ASaveThatDidNotReachAnExistingOutExitsOne) {
    const std::string example = Example();
    const fs::path out = ExistingOut(folder.Path());
    const std::string before = ReadAll(out);
    SetSaveFaultHook([](SaveStep step) { return step == SaveStep::Write ? ENOSPC : 0; });
    EXPECT_EQ(Run({"save", example, out.string()}), 1);
    EXPECT_EQ(err.str(), "error 61: Disk full: cannot write " + out.string() + " (" + std::string(std::strerror(ENOSPC)) + ")\n");
    SetSaveFaultHook({});
    EXPECT_EQ(ReadAll(out), before);
    EXPECT_EQ(Run({"save", example, (folder / "missing" / "x.xml").string()}), 1);
    EXPECT_NE(err.str().find("message: The folder '"), std::string::npos);
}

TEST_F(CliSave, AnUnprivilegedSaveThatMayNotReplaceOutExitsOne) {
    const std::string example = Example();
    fs::create_directory(folder / "locked");
    const fs::path out = ExistingOut(folder / "locked");
    ::chmod(out.c_str(), 0666);
    ::chmod(folder.Path().c_str(), 0755);
    ::chmod(example.c_str(), 0644);
    if (!RunsAsRoot()) ::chmod((folder / "locked").c_str(), 0555);
    const int status = RunAsUnprivileged([&] {
        std::ostringstream o;
        std::ostringstream e;
        return cli::Run({"save", example, out.string()}, o, e) == 1 &&
               e.str().find("error 70: Permission denied: cannot back up to") != std::string::npos;
    });
    EXPECT_TRUE(Succeeded(status));
    EXPECT_EQ(ReadAll(out), "<Processes Version=\"1\"/>");

    // A folder it may write, over a file it may not.
    fs::create_directory(folder / "open");
    const fs::path readOnly = ExistingOut(folder / "open");
    ::chmod((folder / "open").c_str(), 0777);
    ::chmod(readOnly.c_str(), 0444);
    const int overReadOnly = RunAsUnprivileged([&] {
        std::ostringstream o;
        std::ostringstream e;
        return cli::Run({"save", example, readOnly.string()}, o, e) == 1;
    });
    EXPECT_TRUE(Succeeded(overReadOnly));
    EXPECT_EQ(ReadAll(readOnly), "<Processes Version=\"1\"/>");
}

TEST_F(CliSave, AFullOrReadOnlyFileSystemExitsOne) {
    SmallFileSystem full(folder / "full", 16 * 1024);
    SmallFileSystem readOnly(folder / "ro", 16 * 1024, true);
    if (!full.Mounted() || !readOnly.Mounted()) GTEST_SKIP() << "no permission to mount small file systems";
    const fs::path big = folder / "big.xml";
    std::string processes;
    for (int i = 0; i < 400; ++i) processes += "<Process Name=\"process " + std::to_string(i) + "\"/>";
    WriteAll(big, "<Processes Version=\"1\">" + processes + "</Processes>");
    const fs::path out = ExistingOut(full.Path());
    EXPECT_EQ(Run({"save", big.string(), out.string()}), 1);
    EXPECT_NE(err.str().find("error 61: Disk full"), std::string::npos) << err.str();
    EXPECT_EQ(ReadAll(out), "<Processes Version=\"1\"/>");
    EXPECT_EQ(std::distance(fs::directory_iterator(full.Path()), fs::directory_iterator()), 1);
    EXPECT_EQ(Run({"save", Example(), (readOnly.Path() / "out.xml").string()}), 1);
    EXPECT_NE(err.str().find("error 70: Permission denied"), std::string::npos) << err.str();
}

TEST_F(CliSave, ACommandWhoseLoadCouldNotRewriteTheFileExitsOne) {
    const fs::path old = folder / "old.xml";
    WriteAll(old, R"(<Processes><Process Name="a"/></Processes>)");
    SetSaveFaultHook([](SaveStep step) { return step == SaveStep::Write ? ENOSPC : 0; });
    EXPECT_EQ(Run({"list", old.string()}), 1);
    EXPECT_EQ(out.str(), "a\n");
    EXPECT_EQ(Run({"verify-all", old.string()}), 1);
    EXPECT_EQ(Run({"codegen", old.string(), "a"}), 1);
    SetSaveFaultHook({});
    EXPECT_EQ(Run({"list", old.string()}), 0);
}

TEST_F(CliSave, AFileReplacedByAnEmptyOneIsToldOnOneLine) {
    const fs::path path = folder / "other.xml";
    WriteAll(path, "<Other/>");
    EXPECT_EQ(Run({"list", path.string()}), 2);
    const std::regex line("flowloom-cli: " + path.string() +
                          R"( could not be read as a processes file \(The top level node is not 'Processes'\); )"
                          R"(it was replaced by an empty one, the old content is in )" +
                          path.string() + R"(\.[0-9]{9}\.bak\n)");
    EXPECT_TRUE(std::regex_search(err.str(), line)) << err.str();
    const std::string backup = err.str().substr(err.str().find(path.string() + "."), path.string().size() + 14);
    EXPECT_EQ(ReadAll(backup), "<Other/>");
}

}  // namespace
}  // namespace flowloom::test
