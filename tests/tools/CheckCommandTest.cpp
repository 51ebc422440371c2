// SPDX-License-Identifier: MIT
// `velorx check` as people meet it.
#include "tests/tools/ConvertSupport.h"
#include "tests/tools/RunVelorx.h"
#include "tools/velorx/check/CheckReport.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace velorx::test {

namespace {

constexpr char kPlan[] = "data/survey-plan.dxf";
constexpr SFindingKind kFault = {"fault", ELevel::Fault, "things that are wrong"};
constexpr SFindingKind kRemark = {"remark", ELevel::Remark, "things to know", true};

// A drawing with `count` numbers that are none.
std::string BadDrawing(int count)
{
    std::string drawing = "0\nSECTION\n2\nENTITIES\n0\nPOINT\n";
    for (int i = 0; i < count; ++i) {
        drawing += "10\nx\n";
    }
    return drawing + "0\nENDSEC\n0\nEOF\n";
}

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

TEST(CheckCommand, SoundFileEndsWithZero)
{
    const SRun run = RunVelorx({"check", kPlan});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out,
              "data/survey-plan.dxf: DXF drawing, nothing wrong\n"
              "To know\n"
              "  1 entities of paper space, which are not read\n"
              "    line 21025: TEXT\n");
}

TEST(CheckCommand, FaultEndsWithOneAndHasItsLine)
{
    const CTemporaryFolder folder;
    const std::string file = folder.Write("a.dxf", BadDrawing(1));
    const SRun run = RunVelorx({"check", file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out,
              file
                  + ": DXF drawing\n"
                    "Wrong\n"
                    "  1 values that should be numbers, read as 0\n"
                    "    line 8: group 10: x\n");
}

TEST(CheckCommand, PrintsAHundredFindingsOfAKindAndCountsTheRest)
{
    const CTemporaryFolder folder;
    const SRun run = RunVelorx({"check", folder.Write("a.dxf", BadDrawing(123))});
    EXPECT_TRUE(Contains(run.out, "  123 values that should be numbers, read as 0\n"));
    EXPECT_TRUE(Contains(run.out, "    line 206: group 10: x\n    ... and 23 more\n")) << run.out;
}

TEST(CheckCommand, ChecksSeveralFilesAndGoesOnBehindABadOne)
{
    const CTemporaryFolder folder;
    const std::string missing = folder.path + "/missing.dxf";
    const SRun run = RunVelorx({"check", missing, folder.Write("a.dxf", BadDrawing(1)), kPlan});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err,
              "velorx: cannot check " + missing
                  + ": it cannot be opened: No such file or directory\n");
    EXPECT_TRUE(Contains(run.out, "a.dxf: DXF drawing\n"));
    EXPECT_TRUE(Contains(run.out, "survey-plan.dxf: DXF drawing, nothing wrong\n"));
}

TEST(CheckCommand, GivesProgramsJson)
{
    const CTemporaryFolder folder;
    const std::string file = folder.Write("a.dxf", BadDrawing(2));
    const SRun run = RunVelorx({"check", "--json", file, kPlan});
    EXPECT_EQ(run.exitCode, 1);
    const QJsonArray files = QJsonDocument::fromJson(QByteArray::fromStdString(run.out))
                                 .object()
                                 .value("files")
                                 .toArray();
    ASSERT_EQ(files.size(), 2);
    EXPECT_FALSE(files[0].toObject().value("sound").toBool(true));
    EXPECT_TRUE(files[1].toObject().value("sound").toBool());
    const QJsonObject kind = files[0].toObject().value("findings").toArray()[0].toObject();
    EXPECT_EQ(kind.value("kind").toString(), "bad-real");
    EXPECT_EQ(kind.value("level").toString(), "fault");
    EXPECT_EQ(kind.value("count").toInt(), 2);
    EXPECT_EQ(kind.value("first").toArray()[1].toObject().value("line").toInt(), 10);
}

TEST(CheckCommand, SaysWhatItCannotCheck)
{
    const CTemporaryFolder folder;
    const std::string classifier = folder.Write("a.rsc", "");
    const SRun run = RunVelorx({"check", classifier});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err,
              "velorx: cannot check " + classifier
                  + ": a RSC classifier can be looked into by Panorama's own library alone\n");
    EXPECT_EQ(RunVelorx({"check", folder.path}).exitCode, 1);
    EXPECT_EQ(RunVelorx({"check", folder.Write("a.doc", "hello")}).exitCode, 1);
    EXPECT_EQ(RunVelorx({"check"}).exitCode, 2);
}

TEST(CheckCommand, KnowsBothFormsOfAMap)
{
    const CTemporaryFolder folder;
    const SRun text = RunVelorx({"check", folder.Write("a.txt", ".SXF 4.0\n.DAT 1\n")});
    EXPECT_TRUE(Contains(text.out, "(.END)")) << text.out;
    const SRun binary = RunVelorx({"check", folder.Write("a.sxf", "nothing")});
    EXPECT_TRUE(Contains(binary.out, "do not start with \"SXF\"")) << binary.out;
}

TEST(CheckCommand, FullDiskIsAFailure)
{
    EXPECT_EQ(RunVelorx({"check", kPlan}, "/dev/full").exitCode, 1);
}

TEST(CheckReport, PartsFaultsFromRemarks)
{
    SCheckedFile file;
    file.name = "a";
    file.description = "map";
    file.findings.Add(kRemark, {5}, "x");
    file.findings.Add(kFault, {0, 7, ".mid"}, "");
    file.findings.Add(kRemark, {6}, "x");
    EXPECT_FALSE(file.IsSound());
    EXPECT_EQ(CheckText(file).toStdString(),
              "a: map\n"
              "Wrong\n"
              "  1 things that are wrong\n"
              "    .mid byte 7\n"
              "To know\n"
              "  2 things to know\n"
              "    line 5: x (2 times)\n");
}

TEST(Findings, GatherEqualOnesAndCountTheRest)
{
    CFindings findings;
    for (int i = 0; i < 300; ++i) {
        findings.Add(kRemark, {i}, QString::number(i % 150));
        findings.Add(kFault, {i}, "equal");
    }
    EXPECT_EQ(findings.Count(ELevel::Fault), 300);
    EXPECT_EQ(findings.Count(ELevel::Remark), 300);
    EXPECT_EQ(findings.Kinds()[0].first.size(), 100U);
    EXPECT_EQ(findings.Kinds()[0].first[0].count, 2);
    EXPECT_EQ(findings.Kinds()[1].first.size(), 100U);
    EXPECT_EQ(findings.Kinds()[1].first[0].count, 1);
}

} // namespace velorx::test
