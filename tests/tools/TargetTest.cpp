// SPDX-License-Identifier: MIT
// Where conversions write, and how that takes its place.
#include "tests/tools/RunVelorx.h"
#include "tools/velorx/convert/ITarget.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <filesystem>
#include <fstream>

namespace velorx::test {

namespace {

using Strings = std::vector<std::string>;

void Fill(const std::string& path, const std::string& content)
{
    std::ofstream(path, std::ios::binary) << content;
}

mode_t RightsOf(const std::string& path)
{
    struct stat status = {};
    stat(path.c_str(), &status);
    return status.st_mode & 07777;
}

} // namespace

TEST(TargetFile, TakesItsPlaceInTheEndAndNotBefore)
{
    const CTemporaryFolder folder;
    CTemporaries temporaries;
    const auto target = MakeTarget(ETargetKind::File, folder.path + "/a.dxf", temporaries);
    ASSERT_EQ(target->Begin(false), "");
    Fill(target->WorkPath(), "new");
    EXPECT_FALSE(std::filesystem::exists(folder.path + "/a.dxf"));
    EXPECT_EQ(target->Finish(), "");
    EXPECT_EQ(NamesIn(folder.path), Strings({"a.dxf"}));
    EXPECT_EQ(ReadFile(folder.path + "/a.dxf"), "new");
}

TEST(TargetFile, GoesAwayIfItIsNotFinished)
{
    const CTemporaryFolder folder;
    folder.Write("a.dxf", "old");
    {
        CTemporaries temporaries;
        const auto target = MakeTarget(ETargetKind::File, folder.path + "/a.dxf", temporaries);
        ASSERT_EQ(target->Begin(true), "");
        EXPECT_EQ(NamesIn(folder.path).size(), 2U);
    }
    EXPECT_EQ(NamesIn(folder.path), Strings({"a.dxf"}));
    EXPECT_EQ(ReadFile(folder.path + "/a.dxf"), "old");
}

TEST(TargetFile, ReplacesOnlyWhereItMay)
{
    const CTemporaryFolder folder;
    const std::string path = folder.Write("a.dxf", "old");
    CTemporaries temporaries;
    EXPECT_NE(MakeTarget(ETargetKind::File, path, temporaries)->Begin(false), "");
    const auto target = MakeTarget(ETargetKind::File, path, temporaries);
    ASSERT_EQ(target->Begin(true), "");
    Fill(target->WorkPath(), "new");
    EXPECT_EQ(target->Finish(), "");
    EXPECT_EQ(ReadFile(path), "new");
}

TEST(TargetFile, KeepsTheRightsOfWhatItReplaces)
{
    const CTemporaryFolder folder;
    const std::string path = folder.Write("a.dxf", "old");
    chmod(path.c_str(), 0604);
    CTemporaries temporaries;
    const auto target = MakeTarget(ETargetKind::File, path, temporaries);
    ASSERT_EQ(target->Begin(true), "");
    EXPECT_EQ(target->Finish(), "");
    EXPECT_EQ(RightsOf(path), 0604U);
}

TEST(TargetFile, ReplacesWhatALinkLeadsTo)
{
    const CTemporaryFolder folder;
    const std::string real = folder.Write("real/a.dxf", "old");
    const std::string link = folder.path + "/link.dxf";
    std::filesystem::create_symlink(real, link);
    CTemporaries temporaries;
    const auto target = MakeTarget(ETargetKind::File, link, temporaries);
    ASSERT_EQ(target->Begin(true), "");
    Fill(target->WorkPath(), "new");
    EXPECT_EQ(target->Finish(), "");
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(ReadFile(real), "new");
}

TEST(TargetFile, LeavesALinkThatLeadsNowhereAlone)
{
    const CTemporaryFolder folder;
    const std::string link = folder.path + "/link.dxf";
    std::filesystem::create_symlink(folder.path + "/nowhere.dxf", link);
    CTemporaries temporaries;
    EXPECT_EQ(MakeTarget(ETargetKind::File, link, temporaries)->Begin(true),
              "it is a link that leads nowhere");
    EXPECT_TRUE(std::filesystem::is_symlink(link));
}

TEST(TargetFile, IsNoFolderAndNoDevice)
{
    const CTemporaryFolder folder;
    CTemporaries temporaries;
    EXPECT_EQ(MakeTarget(ETargetKind::File, folder.path, temporaries)->Begin(true),
              "it is a folder");
    EXPECT_EQ(MakeTarget(ETargetKind::File, "/dev/null", temporaries)->Begin(true),
              "it is no ordinary file");
}

TEST(TargetFile, SaysWhyItCannotBegin)
{
    CTemporaries temporaries;
    EXPECT_EQ(MakeTarget(ETargetKind::File, "/no/such/folder/a.dxf", temporaries)->Begin(false),
              "there is no folder /no/such/folder");
}

TEST(TargetPair, BothFilesTakeTheirPlace)
{
    const CTemporaryFolder folder;
    CTemporaries temporaries;
    const auto target = MakeTarget(ETargetKind::Pair, folder.path + "/a.mif", temporaries);
    ASSERT_EQ(target->Begin(false), "");
    const std::filesystem::path work = target->WorkPath();
    EXPECT_EQ(work.filename(), "a.mif");
    Fill(work, "table");
    Fill(work.parent_path() / "a.mid", "rows");
    EXPECT_EQ(target->Finish(), "");
    EXPECT_EQ(ReadFile(folder.path + "/a.mif"), "table");
    EXPECT_EQ(ReadFile(folder.path + "/a.mid"), "rows");
}

TEST(TargetPair, LeavesNothingBesideItsFiles)
{
    const CTemporaryFolder folder;
    folder.Write("A.MIF", "old");
    folder.Write("A.MID", "old");
    {
        CTemporaries temporaries;
        const auto target = MakeTarget(ETargetKind::Pair, folder.path + "/A.MIF", temporaries);
        ASSERT_EQ(target->Begin(true), "");
        EXPECT_EQ(target->Finish(), "");
    }
    EXPECT_EQ(NamesIn(folder.path), Strings({"A.MID", "A.MIF"}));
    EXPECT_EQ(ReadFile(folder.path + "/A.MID"), ""); // there were no rows to write
}

TEST(TargetPair, RowsThatExistAreInTheWay)
{
    const CTemporaryFolder folder;
    folder.Write("a.mid", "old");
    CTemporaries temporaries;
    EXPECT_EQ(MakeTarget(ETargetKind::Pair, folder.path + "/a.mif", temporaries)->Begin(false),
              "the .mid beside it: it exists (--force replaces it)");
}

TEST(TargetPair, ComesBackWhereTheSecondFileFails)
{
    const CTemporaryFolder folder;
    folder.Write("a.mid", "old rows");
    CTemporaries temporaries;
    const auto target = MakeTarget(ETargetKind::Pair, folder.path + "/a.mif", temporaries);
    ASSERT_EQ(target->Begin(true), "");
    const std::filesystem::path work = target->WorkPath();
    Fill(work.parent_path() / "a.mid", "new rows");
    std::filesystem::create_directory(folder.path + "/a.mif"); // meanwhile, by somebody else
    EXPECT_EQ(target->Finish(), "Is a directory");
    EXPECT_EQ(ReadFile(folder.path + "/a.mid"), "old rows");
}

TEST(TargetPair, RowsThatWereNotThereGoWhereTheSecondFileFails)
{
    const CTemporaryFolder folder;
    CTemporaries temporaries;
    const auto target = MakeTarget(ETargetKind::Pair, folder.path + "/a.mif", temporaries);
    ASSERT_EQ(target->Begin(true), "");
    std::filesystem::create_directory(folder.path + "/a.mif");
    EXPECT_NE(target->Finish(), "");
    EXPECT_FALSE(std::filesystem::exists(folder.path + "/a.mid"));
}

TEST(TargetPairs, AFolderThatIsNotThereComesAsAWhole)
{
    const CTemporaryFolder folder;
    const std::string path = folder.path + "/out";
    {
        CTemporaries temporaries;
        const auto target = MakeTarget(ETargetKind::Pairs, path + "/", temporaries);
        ASSERT_EQ(target->Begin(false), "");
        Fill(target->WorkPath() + "/a.mif", "table");
        EXPECT_FALSE(std::filesystem::exists(path));
        EXPECT_EQ(target->Finish(), "");
    }
    EXPECT_EQ(NamesIn(folder.path), Strings({"out"}));
    EXPECT_EQ(NamesIn(path), Strings({"a.mif"}));
}

TEST(TargetPairs, AddsToAFolderThatIsThere)
{
    const CTemporaryFolder folder;
    folder.Write("other.txt", "kept");
    {
        CTemporaries temporaries;
        const auto target = MakeTarget(ETargetKind::Pairs, folder.path, temporaries);
        ASSERT_EQ(target->Begin(false), "");
        Fill(target->WorkPath() + "/a.mif", "table");
        EXPECT_EQ(target->Finish(), "");
    }
    EXPECT_EQ(NamesIn(folder.path), Strings({"a.mif", "other.txt"}));
}

TEST(TargetPairs, OneFileInTheWayKeepsAllFromTheirPlace)
{
    const CTemporaryFolder folder;
    folder.Write("b.mif", "old");
    {
        CTemporaries temporaries;
        const auto target = MakeTarget(ETargetKind::Pairs, folder.path, temporaries);
        ASSERT_EQ(target->Begin(false), "");
        Fill(target->WorkPath() + "/a.mif", "new");
        Fill(target->WorkPath() + "/b.mif", "new");
        EXPECT_EQ(target->Finish(), "b.mif in it: it exists (--force replaces it)");
    }
    EXPECT_EQ(NamesIn(folder.path), Strings({"b.mif"}));
    EXPECT_EQ(ReadFile(folder.path + "/b.mif"), "old");
}

TEST(TargetPairs, ReplacesWhereItMay)
{
    const CTemporaryFolder folder;
    folder.Write("b.mif", "old");
    CTemporaries temporaries;
    const auto target = MakeTarget(ETargetKind::Pairs, folder.path, temporaries);
    ASSERT_EQ(target->Begin(true), "");
    Fill(target->WorkPath() + "/b.mif", "new");
    EXPECT_EQ(target->Finish(), "");
    EXPECT_EQ(ReadFile(folder.path + "/b.mif"), "new");
}

TEST(TargetPairs, IsNoFile)
{
    const CTemporaryFolder folder;
    const std::string path = folder.Write("a", "");
    CTemporaries temporaries;
    EXPECT_EQ(MakeTarget(ETargetKind::Pairs, path, temporaries)->Begin(true), "it is no folder");
}

TEST(TrialTarget, LeavesThePlaceAlone)
{
    const CTemporaryFolder folder;
    for (const ETargetKind kind : {ETargetKind::File, ETargetKind::Pair, ETargetKind::Pairs}) {
        std::string work;
        {
            CTemporaries temporaries;
            const auto target = MakeTrialTarget(kind, folder.path + "/a.mif", false, temporaries);
            ASSERT_EQ(target->Begin(false), "");
            work = target->WorkPath();
            EXPECT_TRUE(std::filesystem::exists(work));
            EXPECT_EQ(target->Finish(), "");
        }
        EXPECT_FALSE(std::filesystem::exists(work));
    }
    EXPECT_EQ(NamesIn(folder.path), Strings());
}

TEST(TrialTarget, FindsTheFaultsOfATrueTarget)
{
    const CTemporaryFolder folder;
    folder.Write("a.mid", "");
    CTemporaries temporaries;
    const auto begin = [&](ETargetKind kind, const std::string& name) {
        return MakeTrialTarget(kind, name, false, temporaries)->Begin(false);
    };
    EXPECT_NE(begin(ETargetKind::Pair, folder.path + "/a.mif"), "");
    EXPECT_NE(begin(ETargetKind::File, folder.path + "/a.mid"), "");
    EXPECT_NE(begin(ETargetKind::File, folder.path), "");
    EXPECT_NE(begin(ETargetKind::File, "/no/such/folder/a.dxf"), "");
    EXPECT_NE(begin(ETargetKind::Pairs, "/no/such/folder/out"), "");
    EXPECT_NE(begin(ETargetKind::Pairs, folder.path + "/a.mid"), "");
}

TEST(TrialTarget, MayBeInAFolderThatIsStillToBeMade)
{
    CTemporaries temporaries;
    const auto target =
        MakeTrialTarget(ETargetKind::File, "/no/such/folder/a.dxf", true, temporaries);
    EXPECT_EQ(target->Begin(false), "");
}

TEST(Temporaries, TwoBesideOneTargetHaveNamesOfTheirOwn)
{
    const CTemporaryFolder folder;
    CTemporaries temporaries;
    std::string one;
    std::string other;
    EXPECT_EQ(temporaries.MakeFileBeside(folder.path + "/a", one), "");
    EXPECT_EQ(temporaries.MakeFileBeside(folder.path + "/a", other), "");
    EXPECT_NE(one, other);
    temporaries.Remove(one);
    EXPECT_EQ(NamesIn(folder.path).size(), 1U);
}

TEST(Temporaries, AbandoningRemovesFilesAndFolders)
{
    const CTemporaryFolder folder;
    static auto* const temporaries = new CTemporaries; // stays locked, so is never destroyed
    std::string path;
    EXPECT_EQ(temporaries->MakeFileBeside(folder.path + "/a", path), "");
    EXPECT_EQ(temporaries->MakeFolderBeside(folder.path + "/a", path), "");
    Fill(path + "/inside", "content");
    temporaries->Abandon();
    EXPECT_EQ(NamesIn(folder.path), Strings());
}

} // namespace velorx::test
