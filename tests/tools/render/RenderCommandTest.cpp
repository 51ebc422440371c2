// SPDX-License-Identifier: MIT
// velorx render as people run it.
#include "tests/tools/RunVelorx.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QImage>

#include <filesystem>

namespace velorx::test {

namespace {

constexpr char kPlan[] = "data/survey-plan.dxf";

class RenderCommand : public testing::Test
{
protected:
    std::string Path(const char* name) const { return folder.path + "/" + name; }

    QImage Png(const char* name) const
    {
        return QImage::fromData(QByteArray::fromStdString(ReadFile(Path(name))), "PNG");
    }

    void ExpectWrongUsage(const std::vector<std::string>& arguments, const char* message)
    {
        const SRun run = RunVelorx(arguments);
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_NE(run.err.find(message), std::string::npos) << run.err;
        EXPECT_TRUE(std::filesystem::is_empty(folder.path));
    }

    CTemporaryFolder folder;
};

} // namespace

TEST_F(RenderCommand, UnknownEndingIsWrongUsage)
{
    ExpectWrongUsage({"render", kPlan, Path("plan.jpg")}, "does not end in .svg, .png or .pdf");
}

TEST_F(RenderCommand, WrongSizeIsWrongUsage)
{
    ExpectWrongUsage({"render", kPlan, Path("plan.png"), "--size", "800"},
                     "800 is not a size like 1600x1200");
    ExpectWrongUsage({"render", kPlan, Path("plan.png"), "--size", "40000x40000"}, "is too large");
}

TEST_F(RenderCommand, UnknownColourIsWrongUsage)
{
    ExpectWrongUsage({"render", kPlan, Path("plan.png"), "--background", "mauvish"},
                     "unknown colour mauvish");
}

TEST_F(RenderCommand, MissingSourceIsAFailure)
{
    const SRun run = RunVelorx({"render", "no-such.dxf", Path("plan.png")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err.rfind("velorx: cannot draw no-such.dxf: it cannot be opened", 0), 0U)
        << run.err;
    EXPECT_TRUE(std::filesystem::is_empty(folder.path));
}

TEST_F(RenderCommand, PictureThatIsThereIsNotReplaced)
{
    const std::string path = folder.Write("plan.png", "mine");
    const SRun run = RunVelorx({"render", kPlan, path});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_NE(run.err.find("it exists (--force replaces it)"), std::string::npos) << run.err;
    EXPECT_EQ(ReadFile(path), "mine");
}

} // namespace velorx::test
