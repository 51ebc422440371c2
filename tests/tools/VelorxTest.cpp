// SPDX-License-Identifier: MIT
// The program as a whole: its command line, its exit codes, where it writes.
#include "tests/tools/RunVelorx.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace velorx::test {

namespace {

constexpr char kPlan[] = "data/survey-plan.dxf";

void ExpectWrongUsage(const std::vector<std::string>& arguments)
{
    const SRun run = RunVelorx(arguments);
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err.rfind("velorx: ", 0), 0U) << run.err;
}

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

TEST(Velorx, HelpNamesCommandsOptionsAndExitCodes)
{
    const SRun run = RunVelorx({"--help"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    for (const char* part : {"info", "--codepage NAME", "windows-1251", "Exit codes: 0 done"}) {
        EXPECT_TRUE(Contains(run.out, part)) << part;
    }
}

TEST(Velorx, EveryCommandHasHelpOfItsOwn)
{
    const SRun run = RunVelorx({"info", "--help"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(Contains(run.out, "velorx info [OPTIONS] FILE")) << run.out;
    EXPECT_TRUE(Contains(run.out, "--json")) << run.out;
    EXPECT_TRUE(Contains(run.out, "--codepage")) << run.out;
}

TEST(Velorx, VersionIsThatOfTheLibrary)
{
    const SRun run = RunVelorx({"--version"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, "velorx " VELORX_VERSION "\n");
}

TEST(Velorx, WrongUsageEndsWithTwo)
{
    ExpectWrongUsage({});
    ExpectWrongUsage({"frobnicate"});
    ExpectWrongUsage({"info"});
    ExpectWrongUsage({"info", kPlan, kPlan});
    ExpectWrongUsage({"info", "--loud", kPlan});
}

TEST(Velorx, UnknownCodePageIsWrongUsage)
{
    ExpectWrongUsage({"info", "--codepage", "windows-9999", kPlan});
    ExpectWrongUsage({"--codepage", "windows-9999", "info", kPlan});
    ExpectWrongUsage({"info", "--codepage", "UTF-16", kPlan});
    ExpectWrongUsage({"info", kPlan, "--codepage"});
    EXPECT_TRUE(Contains(RunVelorx({"info", "--codepage", "1251", kPlan}).err,
                         "unknown code page 1251; known are windows-1251, IBM866"));
}

TEST(Velorx, TakesTheCodePageOnEitherSideOfTheCommand)
{
    const SRun before = RunVelorx({"--codepage", "IBM866", "info", kPlan});
    const SRun behind = RunVelorx({"info", kPlan, "--codepage", "IBM866"});
    EXPECT_EQ(before.exitCode, 0);
    EXPECT_EQ(before.out, behind.out);
    EXPECT_NE(before.out, RunVelorx({"info", kPlan}).out);
}

TEST(Velorx, FullDiskIsAFailure)
{
    const SRun run = RunVelorx({"info", kPlan}, "/dev/full");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "velorx: cannot write to standard output\n");
}

TEST(Velorx, ShowsNoProgressWhereTheWorkIsQuick)
{
    const SRun run = RunVelorxOnTerminal({"info", kPlan});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, RunVelorx({"info", kPlan}).out);
}

TEST(Velorx, NamesTheCommandsWhereThereIsNone)
{
    EXPECT_EQ(RunVelorx({}).err,
              "velorx: a command is missing: info, convert, check or render\n"
              "velorx --help tells how it is used.\n");
    EXPECT_EQ(RunVelorx({"frobnicate", kPlan}).err,
              "velorx: there is no command frobnicate, only info, convert, check or render\n"
              "velorx --help tells how it is used.\n");
    EXPECT_EQ(RunVelorx({"--loud"}).err,
              "velorx: there is no option --loud\nvelorx --help tells how it is used.\n");
}

TEST(Velorx, PointsToTheHelpOfTheCommandInHand)
{
    EXPECT_TRUE(Contains(RunVelorx({"info", "--loud", kPlan}).err,
                         "\nvelorx info --help tells how it is used.\n"));
}

TEST(Velorx, PipesAreNotRead)
{
    const CTemporaryFolder folder;
    const std::string pipe = folder.path + "/a.dxf";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const std::string fault = pipe + ": it is no ordinary file\n";
    EXPECT_EQ(RunVelorx({"info", pipe}).err, "velorx: cannot read " + fault);
    EXPECT_EQ(RunVelorx({"check", pipe}).err, "velorx: cannot check " + fault);
    const SRun run = RunVelorx({"convert", pipe, folder.path + "/b.dxf"});
    EXPECT_EQ(run.err, "velorx: cannot convert " + fault);
    EXPECT_EQ(run.exitCode, 1);
}

} // namespace velorx::test
