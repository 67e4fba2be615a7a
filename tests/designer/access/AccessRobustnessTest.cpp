// Files that are no readable Access database: missing, empty, text, damaged,
// protected by a password, unreadable. They give false or nothing, quietly.
#include "AccessTestFiles.h"

#include "designer/access/AccessConnection.h"
#include "designer/access/AccessFile.h"
#include "designer/access/AccessObjects.h"
#include "testsupport/ChildProcess.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

namespace flowloom::test {
namespace {

namespace fs = std::filesystem;
using access::AccessConnection;
using access::CAccessObjects;

class UnreadableDatabases : public ::testing::Test {
protected:
    void TearDown() override { access::CloseConnections(); }

    // Nothing is read, nothing is cached and nothing reaches stderr.
    void ExpectNothingFrom(const std::string& file) {
        SCOPED_TRACE(file);
        ::testing::internal::CaptureStderr();
        CAccessObjects objects;
        std::string workgroup;
        EXPECT_FALSE(objects.GetObjects(file, workgroup, "", "", ""));
        EXPECT_EQ(objects.FieldList("Categories", file, workgroup, "", "", ""), "");
        EXPECT_EQ(access::OpenDatabaseConnection(file, workgroup, "", "", ""), nullptr);
        EXPECT_TRUE(objects.Forms().empty() && objects.Tables().empty());
        EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
        EXPECT_EQ(access::CachedConnections(), 0u);
    }
    std::string Copy(const std::string& file, const std::string& name) { return CopyTo(file, folder / name); }

    TempFolder folder;
};

TEST_F(UnreadableDatabases, MissingEmptyAndForeignFiles) {
    ExpectNothingFrom((folder / "missing.mdb").string());
    ExpectNothingFrom("");
    ExpectNothingFrom(folder.Path().string());
    WriteAll(folder / "empty.mdb", "");
    ExpectNothingFrom((folder / "empty.mdb").string());
    WriteAll(folder / "notes.accdb", "Standard Jet DB, but only in words\n");
    ExpectNothingFrom((folder / "notes.accdb").string());
    // A page of zeros carries no signature.
    WriteAll(folder / "zeros.mdb", std::string(3 * 4096, '\0'));
    ExpectNothingFrom((folder / "zeros.mdb").string());
    // Nor does an engine version that does not go with the signature.
    const std::string jet4 = Copy(Sample(), "version.accdb");
    Overwrite(jet4, 0x14, "\x01");
    ExpectNothingFrom(jet4);
    const std::string future = Copy(Nwind(), "version.mdb");
    Overwrite(future, 0x14, "\x09");
    ExpectNothingFrom(future);
}

TEST_F(UnreadableDatabases, TruncatedCopies) {
    for (const auto& source : {Nwind(), Sample()}) {
        const auto size = fs::file_size(source);
        for (const std::uint64_t length : {std::uint64_t{100}, std::uint64_t{4096}, std::uint64_t{3 * 4096 + 17},
                                           size / 2 + 1, size - 1}) {
            const std::string file = Copy(source, "truncated" + fs::path(source).extension().string());
            fs::resize_file(file, length);
            ExpectNothingFrom(file);
        }
    }
}

TEST_F(UnreadableDatabases, GarbageOverTheSystemTable) {
    std::mt19937 random(7);
    std::string garbage(4096, '\0');
    for (auto& byte : garbage) byte = static_cast<char>(random());
    // Page 2 defines MSysObjects in every version.
    const std::string jet3 = Copy(Nwind(), "jet3.mdb");
    Overwrite(jet3, 2 * 2048, garbage.substr(0, 2048));
    ExpectNothingFrom(jet3);
    const std::string ace = Copy(Sample(), "ace.accdb");
    Overwrite(ace, 2 * 4096, garbage);
    ExpectNothingFrom(ace);
    // One of its data pages: the rows there are lost, the others are read.
    const std::string rows = Copy(Sample(), "rows.accdb");
    Overwrite(rows, 17 * 4096, garbage);
    ::testing::internal::CaptureStderr();
    CAccessObjects objects;
    std::string workgroup;
    EXPECT_TRUE(objects.GetObjects(rows, workgroup, "", "", ""));
    EXPECT_TRUE(objects.Forms().empty() && objects.Tables().empty() && objects.Reports().empty());
    EXPECT_EQ(objects.Queries().size(), 3u);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

// The usage map of MSysObjects pointed at an empty row: the row after its
// own (row 0 of its page in both files), moved onto the start of row 0.
void EmptyTheSystemTablesUsageMap(const std::string& file, std::uint32_t pageSize) {
    const std::string bytes = ReadBytes(file);
    const std::uint64_t usageMapAt = 2 * pageSize + (pageSize == 2048 ? 35 : 55);
    ASSERT_EQ(bytes[usageMapAt], 0) << "the map is row 0 of its page";
    const std::uint64_t page = (static_cast<std::uint8_t>(bytes[usageMapAt + 1]) |
                                static_cast<std::uint8_t>(bytes[usageMapAt + 2]) << 8) * std::uint64_t{pageSize};
    const std::uint64_t rowOffsetsAt = page + (pageSize == 2048 ? 8 : 12) + 2;
    Overwrite(file, rowOffsetsAt + 2, bytes.substr(rowOffsetsAt, 2));
    Overwrite(file, usageMapAt, "\x01");
}

TEST_F(UnreadableDatabases, AnEmptyUsageMapOfTheSystemTable) {
    const std::string jet3 = Copy(Nwind(), "map.mdb");
    EmptyTheSystemTablesUsageMap(jet3, 2048);
    ExpectNothingFrom(jet3);
    const std::string ace = Copy(Sample(), "map.accdb");
    EmptyTheSystemTablesUsageMap(ace, 4096);
    ExpectNothingFrom(ace);
}

TEST_F(UnreadableDatabases, GarbageAnywhereIsReadQuietly) {
    std::mt19937 random(11);
    for (int round = 0; round < 12; ++round) {
        const bool jet3 = round % 2 == 0;
        const std::string file = Copy(jet3 ? Nwind() : Sample(), jet3 ? "any.mdb" : "any.accdb");
        const std::uint64_t pageSize = jet3 ? 2048 : 4096;
        const std::uint64_t pages = fs::file_size(file) / pageSize;
        for (int hit = 0; hit < 8; ++hit) {
            std::string garbage(1 + random() % 512, '\0');
            for (auto& byte : garbage) byte = static_cast<char>(random());
            // Away from the header, mostly among the first pages where the catalog lives.
            const std::uint64_t page = 1 + random() % (hit % 2 ? pages - 1 : 40);
            Overwrite(file, page * pageSize + random() % (pageSize - garbage.size()), garbage);
        }
        ::testing::internal::CaptureStderr();
        CAccessObjects objects;
        std::string workgroup;
        if (objects.GetObjects(file, workgroup, "", "", ""))
            for (const auto& table : objects.Tables()) (void)objects.FieldList(table, file, workgroup, "", "", "");
        access::CloseConnections();
        EXPECT_EQ(::testing::internal::GetCapturedStderr(), "") << "round " << round;
    }
}

TEST_F(UnreadableDatabases, APasswordOrEncryptionRefusesTheFile) {
    // The password lies scrambled in the header from 0x42 on; a database
    // without one stores the scrambling itself, so any flipped bit sets one.
    const std::string jet3 = Copy(Nwind(), "password.mdb");
    Overwrite(jet3, 0x42, std::string(1, static_cast<char>(ReadBytes(jet3)[0x42] ^ 'p')));
    ASSERT_TRUE(access::ProbeAccessFile(jet3));
    EXPECT_TRUE(access::ProbeAccessFile(jet3)->passwordProtected);
    ExpectNothingFrom(jet3);

    const std::string ace = Copy(Sample(), "password.accdb");
    Overwrite(ace, 0x50, std::string(1, static_cast<char>(ReadBytes(ace)[0x50] ^ 'w')));
    ExpectNothingFrom(ace);

    const std::string encrypted = Copy(Sample(), "encrypted.accdb");
    Overwrite(encrypted, 0x298, std::string(1, '\x06'));
    EXPECT_TRUE(access::ProbeAccessFile(encrypted)->passwordProtected);
    ExpectNothingFrom(encrypted);

    for (const auto& plain : {Nwind(), Sample()}) {
        const auto info = access::ProbeAccessFile(plain);
        ASSERT_TRUE(info) << plain;
        EXPECT_FALSE(info->passwordProtected) << plain;
        EXPECT_EQ(info->encodingKey, 0u);
    }
}

TEST_F(UnreadableDatabases, AFileTheUserMayNotReadIsLocked) {
    fs::permissions(folder.Path(), fs::perms::all, fs::perm_options::add);
    const std::string file = Copy(Nwind(), "locked.mdb");
    fs::permissions(file, fs::perms::none);
    const int status = RunAsUnprivileged([&] {
        std::string workgroup;
        return !AccessConnection::Open(file) && !CAccessObjects().GetObjects(file, workgroup, "", "", "");
    });
    EXPECT_TRUE(Succeeded(status));
}

}  // namespace
}  // namespace flowloom::test
