// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/ConversionPlan.h"
#include "tests/tools/RunVelorx.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>

namespace velorx::test {

namespace {

using Strings = std::vector<std::string>;

// "source -> target", one for each file of the plan, without `folder` ahead of them.
Strings Ways(const SConversionPlan& plan, const std::string& folder = std::string())
{
    const std::size_t start = folder.empty() ? 0 : folder.size() + 1;
    Strings ways;
    for (const SPlannedFile& file : plan.files) {
        ways.push_back(file.source.substr(start) + " -> " + file.target.substr(start));
    }
    return ways;
}

} // namespace

TEST(ConversionPlan, TakesTheFormatFromTheEndingOfTheTarget)
{
    const SConversionPlan plan = PlanConversion({"a.dxf"}, "b.SXF", "");
    EXPECT_EQ(plan.usageFault, "");
    ASSERT_NE(plan.family, nullptr);
    EXPECT_STREQ(plan.family->name, "SXF");
    EXPECT_EQ(plan.files.front().targetKind, ETargetKind::File);
}

TEST(ConversionPlan, TheOptionOutweighsTheEnding)
{
    const SConversionPlan plan = PlanConversion({"a.dxf"}, "b.dat", "TXT");
    ASSERT_NE(plan.family, nullptr);
    EXPECT_STREQ(plan.family->name, "SXF text");
}

TEST(ConversionPlan, AnEndingThatTellsNothingIsAFault)
{
    EXPECT_NE(PlanConversion({"a.dxf"}, "b.dat", "").usageFault, "");
    EXPECT_NE(PlanConversion({"a.dxf"}, "b", "").usageFault, "");
    EXPECT_NE(PlanConversion({"a.dxf"}, "b.rsc", "").usageFault, "");
}

TEST(ConversionPlan, AFolderAsTheTargetNeedsTheOption)
{
    const CTemporaryFolder folder;
    EXPECT_NE(PlanConversion({"a.dxf"}, folder.path, "").usageFault, "");
    EXPECT_NE(PlanConversion({"a.dxf", "b.dxf"}, "out", "").usageFault, "");
    EXPECT_NE(PlanConversion({"a.dxf"}, "out.dxf/", "").usageFault, "");
}

TEST(ConversionPlan, SeveralFilesDoNotGoIntoOne)
{
    EXPECT_NE(PlanConversion({"a.mif", "b.mif"}, "c.dxf", "").usageFault, "");
    EXPECT_NE(PlanConversion({"a.mif", "b.mif"}, "c.dxf", "dxf").usageFault, "");
}

TEST(ConversionPlan, SeveralFilesGoIntoAFolderUnderTheirOwnNames)
{
    const SConversionPlan plan = PlanConversion({"in/a.dxf", "b.v2.mif"}, "out", "sxf");
    EXPECT_EQ(plan.folder, "out");
    EXPECT_EQ(Ways(plan), Strings({"in/a.dxf -> out/a.sxf", "b.v2.mif -> out/b.v2.sxf"}));
}

TEST(ConversionPlan, OneFileGoesIntoAFolderThatIsThere)
{
    const CTemporaryFolder folder;
    const SConversionPlan plan = PlanConversion({"a.dxf"}, folder.path, "sxf");
    EXPECT_EQ(plan.files.front().target, folder.path + "/a.sxf");
}

TEST(ConversionPlan, OneFileBecomesAFolderOfPairsUnlessTheTargetIsAMif)
{
    EXPECT_EQ(PlanConversion({"a.dxf"}, "out", "mif").files.front().targetKind, ETargetKind::Pairs);
    EXPECT_EQ(PlanConversion({"a.dxf"}, "out.mif", "mif").files.front().targetKind,
              ETargetKind::Pair);
    EXPECT_EQ(PlanConversion({"a.dxf"}, "out.mif", "").files.front().targetKind, ETargetKind::Pair);
}

TEST(ConversionPlan, SeveralFilesBecomeOnePairEach)
{
    const SConversionPlan plan = PlanConversion({"a.dxf", "b.dxf"}, "out", "mif");
    EXPECT_EQ(Ways(plan), Strings({"a.dxf -> out/a.mif", "b.dxf -> out/b.mif"}));
    EXPECT_EQ(plan.files.front().targetKind, ETargetKind::Pair);
}

TEST(ConversionPlan, TakesFromAFolderWhatCanBeConvertedByName)
{
    const CTemporaryFolder folder;
    folder.Write("b.dxf", "");
    folder.Write("a.MIF", "");
    folder.Write("a.MID", "");
    folder.Write("map.txt", ".SXF\n");
    folder.Write("readme.txt", "hello\n");
    folder.Write("c.rsc", "");
    folder.Write("c.dxf.velorx-1.tmp", "0\nSECTION\n");
    folder.Write("deeper/d.dxf", "");
    const SConversionPlan plan = PlanConversion({folder.path}, folder.path + "/out", "sxf");
    EXPECT_EQ(Ways(plan, folder.path),
              Strings({"a.MIF -> out/a.sxf", "b.dxf -> out/b.sxf", "map.txt -> out/map.sxf"}));
}

TEST(ConversionPlan, AFolderWithNothingToConvertIsAFileThatFails)
{
    const CTemporaryFolder folder;
    const SConversionPlan plan = PlanConversion({folder.path}, "out", "sxf");
    ASSERT_EQ(plan.files.size(), 1U);
    EXPECT_NE(plan.files.front().problem, "");
}

TEST(ConversionPlan, NamesThatWouldCollideGetNumbers)
{
    const SConversionPlan plan =
        PlanConversion({"x/a.dxf", "y/A.mif", "z/a-2.dxf", "a.txt"}, "out", "sxf");
    EXPECT_EQ(Ways(plan),
              Strings({"x/a.dxf -> out/a.sxf", "y/A.mif -> out/A-3.sxf", "z/a-2.dxf -> out/a-2.sxf",
                       "a.txt -> out/a-4.sxf"}));
}

TEST(ConversionPlan, RefusesATargetThatIsAnotherSource)
{
    const CTemporaryFolder folder;
    const std::string one = folder.Write("x/a.dxf", "");
    const std::string other = folder.Write("out/a.dxf", "");
    const SConversionPlan plan = PlanConversion({one, other}, folder.path + "/out", "dxf");
    EXPECT_NE(plan.files[0].problem, "");
    EXPECT_EQ(plan.files[1].problem, "");
}

TEST(ConversionPlan, RefusesATargetWhoseRowsAreAnotherSources)
{
    const CTemporaryFolder folder;
    const std::string drawing = folder.Write("x/a.dxf", "");
    const std::string table = folder.Write("out/b.mif", "");
    std::filesystem::create_symlink("b.mid", folder.path + "/out/a.mid");
    folder.Write("out/b.mid", "");
    const SConversionPlan plan = PlanConversion({drawing, table}, folder.path + "/out", "mif");
    EXPECT_NE(plan.files[0].problem, "");
}

TEST(ConversionPlan, AFileMayBeItsOwnTarget)
{
    const CTemporaryFolder folder;
    const std::string file = folder.Write("a.dxf", "");
    EXPECT_EQ(PlanConversion({file, "b.dxf"}, folder.path, "dxf").files.front().problem, "");
}

} // namespace velorx::test
