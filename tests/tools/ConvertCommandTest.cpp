// SPDX-License-Identifier: MIT
// `velorx convert` as people meet it: options, failures, what stands on the disk afterwards.
#include "tests/tools/ConvertSupport.h"
#include "tests/tools/RunVelorx.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <filesystem>

namespace velorx::test {

namespace {

using Strings = std::vector<std::string>;

constexpr char kPlan[] = "data/survey-plan.dxf";

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

// The run fails, says `message` and prints nothing else.
void ExpectFailure(const SRun& run, const std::string& message)
{
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "velorx: " + message + '\n');
}

void ExpectWrongUsage(const Strings& arguments)
{
    const SRun run = RunVelorx(arguments);
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err.rfind("velorx: ", 0), 0U) << run.err;
}

QJsonObject ReadJson(const std::string& path)
{
    return QJsonDocument::fromJson(QByteArray::fromStdString(ReadFile(path))).object();
}

} // namespace

TEST(ConvertCommand, HelpShowsHowItIsUsed)
{
    const SRun run = RunVelorx({"convert", "--help"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(Contains(run.out, "Usage: velorx convert [OPTIONS] IN... OUT")) << run.out;
    for (const char* option : {"--to", "--report", "--force", "--dry-run", "--quiet", "--version",
                               "--precision", "--chord", "--scale", "--jobs", "--codepage"})
    {
        EXPECT_TRUE(Contains(run.out, option)) << option;
    }
}

TEST(ConvertCommand, WritesADrawingAndTellsWhatBecameOfIt)
{
    const CTemporaryFolder folder;
    const SRun run = RunVelorx({"convert", kPlan, folder.path + "/out.dxf"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(NamesIn(folder.path), Strings({"out.dxf"}));
    EXPECT_TRUE(Contains(run.out, "Экспорт в файл - " + folder.path + "/out.dxf")) << run.out;
    EXPECT_TRUE(Contains(run.out, "\nCarried over\n"));
    EXPECT_TRUE(Contains(run.out, "\nLost or changed"));
}

TEST(ConvertCommand, WrongUsageEndsWithTwo)
{
    ExpectWrongUsage({"convert"});
    ExpectWrongUsage({"convert", kPlan});
    ExpectWrongUsage({"convert", kPlan, "/tmp/out"});
    ExpectWrongUsage({"convert", kPlan, "/tmp"});
    ExpectWrongUsage({"convert", kPlan, kPlan, "/tmp/velorx-out.dxf"});
    ExpectWrongUsage({"convert", "data", "/tmp/velorx-out.dxf", "--to", "dxf"});
    for (const Strings& option :
         {Strings{"--to", "rsc"}, Strings{"--version", "2010"}, Strings{"--precision", "16"},
          Strings{"--precision", "-1"}, Strings{"--chord", "0"}, Strings{"--scale", "0"},
          Strings{"--jobs", "0"}, Strings{"--jobs", "many"}})
    {
        ExpectWrongUsage({"convert", kPlan, "/tmp/velorx-out.dxf", option[0], option[1]});
    }
}

TEST(ConvertCommand, OptionVersionChoosesTheVersionOfADrawing)
{
    const CTemporaryFolder folder;
    RunVelorx({"convert", kPlan, folder.path + "/a.dxf", "--version", "2000"});
    RunVelorx({"convert", kPlan, folder.path + "/b.dxf"});
    EXPECT_TRUE(Contains(ReadFile(folder.path + "/a.dxf"), "AC1015"));
    EXPECT_TRUE(Contains(ReadFile(folder.path + "/b.dxf"), "AC1018"));
}

TEST(ConvertCommand, OptionPrecisionTellsTheDecimals)
{
    const CTemporaryFolder folder;
    const std::string source = folder.Write("a.dxf", SmallDrawing());
    RunVelorx({"convert", source, folder.path + "/b.dxf", "--precision", "2"});
    const std::string drawing = ReadFile(folder.path + "/b.dxf");
    EXPECT_TRUE(Contains(drawing, "\n10\n1.50\n") || Contains(drawing, "\r\n10\r\n1.50\r\n"))
        << drawing.substr(drawing.find("POINT"), 200);
}

TEST(ConvertCommand, OptionToOutweighsTheEnding)
{
    const CTemporaryFolder folder;
    const SRun run = RunVelorx({"convert", kPlan, folder.path + "/plan.mif", "--to", "DXF"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(NamesIn(folder.path), Strings({"plan.mif"}));
    EXPECT_TRUE(Contains(ReadFile(folder.path + "/plan.mif"), "AC1018"));
}

TEST(ConvertCommand, OptionQuietPrintsOnlyErrors)
{
    const CTemporaryFolder folder;
    const SRun good = RunVelorx({"convert", "--quiet", kPlan, folder.path + "/a.dxf"});
    EXPECT_EQ(good.out + good.err, "");
    const SRun bad = RunVelorx({"convert", "--quiet", kPlan, folder.path + "/a.dxf"});
    EXPECT_EQ(bad.out, "");
    EXPECT_NE(bad.err, "");
}

TEST(ConvertCommand, OptionReportWritesTheReportAsText)
{
    const CTemporaryFolder folder;
    const std::string report = folder.path + "/report.txt";
    const SRun run = RunVelorx({"convert", kPlan, folder.path + "/a.dxf", "--report", report});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(ReadFile(report), run.out);
}

TEST(ConvertCommand, OptionReportWritesJsonForProgramsAlsoOfFailures)
{
    const CTemporaryFolder folder;
    const std::string good = folder.Write("in/a.dxf", SmallDrawing());
    const std::string bad = folder.Write("in/b.dxf", BrokenDrawing());
    const std::string report = folder.path + "/report.json";
    const SRun run = RunVelorx(
        {"convert", good, bad, folder.path + "/out", "--to", "dxf", "--quiet", "--report", report});
    EXPECT_EQ(run.exitCode, 1);
    const QJsonObject json = ReadJson(report);
    EXPECT_EQ(json.value("converted").toInt(), 1);
    EXPECT_EQ(json.value("failed").toInt(), 1);
    const QJsonArray files = json.value("files").toArray();
    const QJsonObject kind = files[0].toObject().value("kinds").toArray()[0].toObject();
    EXPECT_EQ(kind.value("kind").toString(), "POINT");
    EXPECT_EQ(kind.value("in_drawing").toInt(), 1);
    EXPECT_EQ(kind.value("written").toInt(), 1);
    EXPECT_EQ(files[1].toObject().value("error").toString().toStdString(),
              "cannot convert " + bad + ": the drawing ends inside a block");
}

TEST(ConvertCommand, AReportReplacesNothingUnasked)
{
    const CTemporaryFolder folder;
    const std::string report = folder.Write("report.txt", "old");
    ExpectFailure(RunVelorx({"convert", kPlan, folder.path + "/a.dxf", "--report", report}),
                  "cannot write " + report + ": it exists (--force replaces it)");
    EXPECT_EQ(NamesIn(folder.path), Strings({"report.txt"}));
    EXPECT_EQ(ReadFile(report), "old");
}

TEST(ConvertCommand, ReportWithoutAFolderIsRefusedAheadOfTheConversion)
{
    const CTemporaryFolder folder;
    const std::string report = folder.path + "/none/report.txt";
    ExpectFailure(RunVelorx({"convert", kPlan, folder.path + "/a.dxf", "--report", report}),
                  "cannot write " + report + ": there is no folder " + folder.path + "/none");
    EXPECT_EQ(NamesIn(folder.path), Strings({}));
}

TEST(ConvertCommand, ReportMayStandInTheFolderThatTheRunMakes)
{
    const CTemporaryFolder folder;
    const std::string target = folder.path + "/out";
    const SRun run = RunVelorx(
        {"convert", kPlan, target, "--to", "mif", "--quiet", "--report", target + "/report.txt"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_NE(ReadFile(target + "/report.txt"), "");
}

TEST(ConvertCommand, AReportIsNeitherSourceNorTarget)
{
    const CTemporaryFolder folder;
    const std::string source = folder.Write("a.dxf", SmallDrawing());
    const std::string target = folder.path + "/b.dxf";
    for (const std::string& report : {source, target, folder.path + "/./b.dxf"}) {
        ExpectFailure(RunVelorx({"convert", "--force", source, target, "--report", report}),
                      "cannot write " + report + ": it is another file of this run");
    }
    EXPECT_EQ(ReadFile(source), SmallDrawing());
}

TEST(ConvertCommand, AReportIsNotTheRowsOfATableEither)
{
    const CTemporaryFolder folder;
    const std::string table = folder.path + "/a.mif";
    ASSERT_EQ(RunVelorx({"convert", kPlan, table}).exitCode, 0);
    const std::string rows = ReadFile(folder.path + "/a.mid");
    const std::string pair = folder.path + "/b.mif";
    for (const char* name : {"/a.mid", "/b.mid"}) {
        const std::string report = folder.path + name;
        ExpectFailure(RunVelorx({"convert", "--force", table, pair, "--report", report}),
                      "cannot write " + report + ": it is another file of this run");
    }
    EXPECT_EQ(ReadFile(folder.path + "/a.mid"), rows);
    EXPECT_EQ(NamesIn(folder.path), Strings({"a.mid", "a.mif"}));
}

TEST(ConvertCommand, OptionDryRunTellsTheSameAndLeavesNothing)
{
    const CTemporaryFolder folder;
    const std::string target = folder.path + "/a.dxf";
    const SRun dry = RunVelorx({"convert", kPlan, target, "--dry-run"});
    EXPECT_EQ(dry.exitCode, 0);
    EXPECT_EQ(NamesIn(folder.path), Strings());
    EXPECT_EQ(WithoutTimes(dry.out), WithoutTimes(RunVelorx({"convert", kPlan, target}).out));
}

TEST(ConvertCommand, ADryRunMakesNoFolder)
{
    const CTemporaryFolder folder;
    const SRun run =
        RunVelorx({"convert", "data", folder.path + "/out", "--to", "dxf", "--dry-run"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(NamesIn(folder.path), Strings());
}

TEST(ConvertCommand, ADryRunFailsWhereATrueOneWould)
{
    const CTemporaryFolder folder;
    const std::string target = folder.Write("a.dxf", "old");
    ExpectFailure(RunVelorx({"convert", kPlan, target, "--dry-run"}),
                  "cannot write " + target + ": it exists (--force replaces it)");
    ExpectFailure(RunVelorx({"convert", kPlan, "/no/such/folder/a.dxf", "--dry-run"}),
                  "cannot write /no/such/folder/a.dxf: there is no folder /no/such/folder");
    ExpectFailure(RunVelorx({"convert", "data", "/no/such/folder/out", "--to", "dxf", "--dry-run"}),
                  "cannot write /no/such/folder/out: there is no folder /no/such/folder");
}

TEST(ConvertCommand, OptionForceReplacesAndNothingElseDoes)
{
    const CTemporaryFolder folder;
    const std::string target = folder.Write("a.dxf", "old");
    ExpectFailure(RunVelorx({"convert", kPlan, target}),
                  "cannot write " + target + ": it exists (--force replaces it)");
    EXPECT_EQ(ReadFile(target), "old");
    EXPECT_EQ(RunVelorx({"convert", kPlan, target, "--force"}).exitCode, 0);
    EXPECT_TRUE(Contains(ReadFile(target), "AC1018"));
}

TEST(ConvertCommand, AFileCanBeConvertedInItsPlace)
{
    const CTemporaryFolder folder;
    const std::string file = folder.Write("a.dxf", SmallDrawing());
    ExpectFailure(RunVelorx({"convert", file, file}),
                  "cannot write " + file + ": it exists (--force replaces it)");
    const std::string other = folder.path + "/b.dxf";
    EXPECT_EQ(RunVelorx({"convert", file, other}).exitCode, 0);
    EXPECT_EQ(RunVelorx({"convert", file, file, "--force"}).exitCode, 0);
    EXPECT_EQ(ReadFile(file), ReadFile(other));
}

TEST(ConvertCommand, AFailedRunLeavesTheOldTarget)
{
    const CTemporaryFolder folder;
    const std::string source = folder.Write("a.dxf", BrokenDrawing());
    const std::string target = folder.Write("b.dxf", "old");
    ExpectFailure(RunVelorx({"convert", source, target, "--force"}),
                  "cannot convert " + source + ": the drawing ends inside a block");
    EXPECT_EQ(ReadFile(target), "old");
    EXPECT_EQ(NamesIn(folder.path), Strings({"a.dxf", "b.dxf"}));
}

TEST(ConvertCommand, SaysWhyASourceIsNone)
{
    const CTemporaryFolder folder;
    const std::string target = folder.path + "/out.dxf";
    const std::string missing = folder.path + "/missing.dxf";
    ExpectFailure(RunVelorx({"convert", missing, target}),
                  "cannot convert " + missing + ": it cannot be opened: No such file or directory");
    const std::string unknown = folder.Write("notes.doc", "hello");
    const SRun run = RunVelorx({"convert", unknown, target});
    EXPECT_TRUE(Contains(run.err, "it is of no kind that velorx reads")) << run.err;
    const std::string classifier = folder.Write("a.rsc", "");
    ExpectFailure(RunVelorx({"convert", classifier, target}),
                  "cannot convert " + classifier
                      + ": a file of the kind \"RSC classifier\" cannot be converted");
}

TEST(ConvertCommand, SaysWhyATargetCannotBeWritten)
{
    ExpectFailure(RunVelorx({"convert", kPlan, "/no/such/folder/a.dxf"}),
                  "cannot write /no/such/folder/a.dxf: there is no folder /no/such/folder");
    ExpectFailure(RunVelorx({"convert", kPlan, "/dev/full", "--to", "dxf", "--force"}),
                  "cannot write /dev/full: it is no ordinary file");
}

TEST(ConvertCommand, SaysWhyAFolderCannotBeMade)
{
    ExpectFailure(RunVelorx({"convert", "data", "/no/such/folder/out", "--to", "dxf"}),
                  "cannot write /no/such/folder/out: there is no folder /no/such/folder");
    const CTemporaryFolder folder;
    const std::string file = folder.Write("out", "");
    ExpectFailure(RunVelorx({"convert", "data", file, "--to", "dxf"}),
                  "cannot write " + file + ": File exists");
}

TEST(ConvertCommand, TakesNamesInAnyEncoding)
{
    const CTemporaryFolder folder;
    const std::string source = folder.Write("план \xff.dxf", SmallDrawing());
    const std::string target = folder.path + "/копия \xfe.dxf";
    EXPECT_EQ(RunVelorx({"convert", source, target}).exitCode, 0);
    EXPECT_TRUE(Contains(ReadFile(target), "AC1018"));
}

TEST(ConvertCommand, ShowsTheReportOfEachFileAndACount)
{
    const CTemporaryFolder folder;
    const std::string one = folder.Write("in/a.dxf", SmallDrawing());
    const std::string other = folder.Write("in/b.dxf", SmallDrawing());
    const SRun run =
        RunVelorx({"convert", folder.path + "/in", folder.path + "/out", "--to", "dxf"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(NamesIn(folder.path + "/out"), Strings({"a.dxf", "b.dxf"}));
    EXPECT_TRUE(Contains(run.out, one + " -> " + folder.path + "/out/a.dxf\n")) << run.out;
    EXPECT_TRUE(Contains(run.out, other + " -> " + folder.path + "/out/b.dxf\n"));
    EXPECT_TRUE(Contains(run.out, "\n2 of 2 files converted\n"));
}

TEST(ConvertCommand, OneFileThatFailsDoesNotStopTheOthers)
{
    const CTemporaryFolder folder;
    const std::string broken = folder.Write("in/a.dxf", BrokenDrawing());
    folder.Write("in/b.dxf", SmallDrawing());
    const SRun run =
        RunVelorx({"convert", folder.path + "/in", folder.path + "/out", "--to", "dxf"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "velorx: cannot convert " + broken + ": the drawing ends inside a block\n");
    EXPECT_EQ(NamesIn(folder.path + "/out"), Strings({"b.dxf"}));
    EXPECT_TRUE(Contains(run.out, "\n1 of 2 files converted\n")) << run.out;
}

TEST(ConvertCommand, AFolderMadeForNothingGoesAway)
{
    const CTemporaryFolder folder;
    const std::string broken = folder.Write("a.dxf", BrokenDrawing());
    RunVelorx({"convert", broken, broken, folder.path + "/out", "--to", "dxf"});
    EXPECT_EQ(NamesIn(folder.path), Strings({"a.dxf"}));
}

TEST(ConvertCommand, NamesThatCollideAreKeptApart)
{
    const CTemporaryFolder folder;
    const std::string one = folder.Write("x/a.dxf", SmallDrawing());
    const std::string other = folder.Write("y/a.dxf", SmallDrawing());
    RunVelorx({"convert", one, other, folder.path + "/out", "--to", "dxf"});
    EXPECT_EQ(NamesIn(folder.path + "/out"), Strings({"a-2.dxf", "a.dxf"}));
}

TEST(ConvertCommand, NeitherReportNorResultsDependOnTheNumberOfJobs)
{
    const CTemporaryFolder folder;
    for (int i = 0; i < 12; ++i) {
        const std::string name = "in/" + std::to_string(i) + ".dxf";
        folder.Write(name, i == 7 ? BrokenDrawing() : LargeDrawing(1 + 3000 * (i % 4)));
    }
    std::filesystem::copy_file(std::string(VELOREXCHANGE_EXAMPLES) + "/" + kPlan,
                               folder.path + "/in/plan.dxf");
    const std::string out = folder.path + "/out";
    std::vector<SRun> runs;
    std::vector<Strings> contents;
    for (const char* jobs : {"1", "2", "8"}) {
        runs.push_back(
            RunVelorx({"convert", folder.path + "/in", out, "--to", "dxf", "--jobs", jobs}));
        Strings& files = contents.emplace_back(NamesIn(out));
        for (const std::string& name : NamesIn(out)) {
            files.push_back(ReadFile(out + "/" + name));
        }
        std::filesystem::remove_all(out);
    }
    EXPECT_EQ(contents[0].size(), 24U);
    for (std::size_t i = 1; i < runs.size(); ++i) {
        EXPECT_EQ(runs[i].exitCode, 1);
        EXPECT_EQ(WithoutTimes(runs[i].out), WithoutTimes(runs[0].out));
        EXPECT_EQ(runs[i].err, runs[0].err);
        EXPECT_TRUE(contents[i] == contents[0]);
    }
}

TEST(ConvertCommand, SaysThatThereIsNothingToWriteTo)
{
    EXPECT_EQ(RunVelorx({"convert", kPlan}).err,
              std::string("velorx: there is no file to write behind ") + kPlan
                  + "\nvelorx convert --help tells how it is used.\n");
}

TEST(ConvertCommand, MapThatIsNoneLeavesTheOldTarget)
{
    const CTemporaryFolder folder;
    const std::string source = folder.Write("map.sxf", "Dear reader,\n");
    for (const char* name : {"/old.dxf", "/old.sxf", "/old.txt"}) {
        const std::string target = folder.Write(name, "old");
        ExpectFailure(RunVelorx({"convert", "--force", source, target}),
                      "cannot convert " + source + ": it does not start like an SXF map");
        EXPECT_EQ(ReadFile(target), "old");
    }
}

TEST(ConvertCommand, DrawingWithoutItsEndMarkIsConvertedAndSoSaid)
{
    const CTemporaryFolder folder;
    const std::string whole = SmallDrawing();
    const std::string cut = folder.Write("cut.dxf", whole.substr(0, whole.rfind("0\nEOF")));
    const std::string sound = folder.Write("sound.dxf", whole);
    for (const char* name : {"/out.dxf", "/out.mif"}) {
        const SRun run = RunVelorx({"convert", "--force", cut, folder.path + name});
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_TRUE(Contains(run.out, "The drawing has no end mark (0, EOF)")) << run.out;
        EXPECT_FALSE(Contains(RunVelorx({"convert", "--force", sound, folder.path + name}).out,
                              "no end mark"));
    }
}

TEST(ConvertCommand, ValuesThatAreNoNumbersAreToldInFewWords)
{
    EXPECT_EQ(RunVelorx({"convert", kPlan, "/tmp/velorx-out.sxf", "--scale", "abc"}).err,
              "velorx: --scale: abc is no number above 0\n"
              "velorx convert --help tells how it is used.\n");
}

TEST(ConvertCommand, NamesTheFormatsWhereNoneIsTold)
{
    EXPECT_EQ(RunVelorx({"convert", kPlan, "/tmp/out.doc"}).err,
              "velorx: the ending of /tmp/out.doc tells no format that velorx writes; --to can: "
              "dxf, mif, "
              "sxf or txt\n");
}

} // namespace velorx::test
