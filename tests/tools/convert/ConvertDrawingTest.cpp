// SPDX-License-Identifier: MIT
// The program from outside: a drawing made a drawing again.
#include "tests/support/DxfChecker.h"
#include "tests/support/DxfRecorder.h"
#include "tests/support/LocaleCodec.h"
#include "tests/tools/ConvertSupport.h"
#include "tests/tools/RunVelorx.h"
#include "tools/velorx/formats/DxfLosses.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <regex>
#include <sstream>
#include <sys/resource.h>
#include <vector>

namespace velorx::test {

namespace {

constexpr char kPlan[] = "data/survey-plan.dxf"; // below the examples
const std::string kPlanPath = std::string(VELOREXCHANGE_EXAMPLES) + '/' + kPlan;

// Of these kinds all is kept but line types and weights, which elements take over from their layers. Polylines
// of the old form in the plan become new ones.
constexpr const char* kKept[] = {"Point ", "Line ",  "3DFace ",  "Insert ",
                                 "Text ",  "MText ", "Polyline "};

std::string ConvertTo(const std::string& target, const std::vector<std::string>& options,
                      const std::string& source = kPlan)
{
    std::vector<std::string> arguments = {"convert", source, target};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const SRun run = RunVelorx(arguments);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    return run.out;
}

std::vector<std::string> KeptLinesOf(const std::string& path)
{
    static const std::regex otherwise(" (weight|style|style\\.height)=(\"[^\"]*\"|[^ \n]*)");
    const VelorExchange::test::CLocaleCodec codec("windows-1251");
    VelorExchange::test::CDxfRecorder recorder;
    EXPECT_TRUE(VelorExchange::dxf::Read(QString::fromStdString(path), &recorder));
    std::istringstream lines(recorder.text);
    std::vector<std::string> kept;
    for (std::string line; std::getline(lines, line);) {
        for (const char* kind : kKept) {
            if (line.rfind(kind, 0) == 0 && line.find(" 2d=true") == std::string::npos) {
                kept.push_back(std::regex_replace(line, otherwise, ""));
            }
        }
    }
    return kept;
}

void ExpectSound(const std::string& path)
{
    for (const std::string& problem :
         VelorExchange::test::ProblemsOf(QByteArray::fromStdString(ReadFile(path))))
    {
        ADD_FAILURE() << path << ": " << problem;
    }
}

class ConvertDrawing : public testing::TestWithParam<const char*>
{
};

} // namespace

TEST_P(ConvertDrawing, PlanKeepsPlacesColoursLayersAndTexts)
{
    const CTemporaryFolder folder;
    const std::string target = folder.path + "/plan.dxf";
    ConvertTo(target, {"--version", GetParam(), "--precision", "9"});
    const std::vector<std::string> before = KeptLinesOf(kPlanPath);
    EXPECT_GT(before.size(), 200U);
    const std::vector<std::string> after = KeptLinesOf(target);
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        ASSERT_EQ(after[i], before[i]);
    }
    ExpectSound(target);
}

TEST_P(ConvertDrawing, EveryEntityIsWrittenAsKept)
{
    const CTemporaryFolder folder;
    const std::string target = folder.path + "/all.dxf";
    ConvertTo(target, {"--version", GetParam()}, VELOREXCHANGE_TEST_DATA "/dxf/every-entity.dxf");
    const std::string kept = std::string(VELORX_GOLDEN "/every-entity-") + GetParam() + ".dxf";
    EXPECT_TRUE(ReadFile(target) == ReadFile(kept)) << kept;
    ExpectSound(target);
}

INSTANTIATE_TEST_SUITE_P(Versions, ConvertDrawing, testing::Values("2000", "2004"));

TEST(ConvertDrawing, ReportIsAsKept)
{
    const CTemporaryFolder folder;
    std::string report = WithoutTimes(ConvertTo(folder.path + "/plan.dxf", {}));
    for (auto at = report.find(folder.path); at != std::string::npos; at = report.find(folder.path))
    {
        report.replace(at, folder.path.size(), "FOLDER");
    }
    EXPECT_EQ(report, ReadFile(VELORX_GOLDEN "/convert-survey-plan.txt"));
}

TEST(ConvertDrawing, ManualTellsEveryLineOfTheReport)
{
    const std::string page = ReadFile(VELOREXCHANGE_DOCS "/formats/dxf-convert.md");
    for (std::size_t i = 0; i < static_cast<std::size_t>(EDxfLoss::kCount); ++i) {
        const std::string line = LossText(static_cast<EDxfLoss>(i));
        EXPECT_NE(page.find("\n| " + line), std::string::npos) << line;
    }
}

TEST(ConvertDrawing, PrecisionRoundsPlacesToItsDecimals)
{
    const CTemporaryFolder folder;
    ConvertTo(folder.path + "/exact.dxf", {});
    ConvertTo(folder.path + "/rough.dxf", {"--precision", "1"});
    const std::vector<std::string> exact = KeptLinesOf(folder.path + "/exact.dxf");
    const std::vector<std::string> rough = KeptLinesOf(folder.path + "/rough.dxf");
    ASSERT_EQ(rough.size(), exact.size());
    static const std::regex fine("\\.[0-9]{2}");
    int points = 0;
    for (const std::string& line : rough) {
        if (line.rfind("Point ", 0) == 0) {
            EXPECT_FALSE(std::regex_search(line, fine)) << line;
            ++points;
        }
    }
    EXPECT_GT(points, 50);
    ExpectSound(folder.path + "/rough.dxf");
}

TEST(ConvertDrawing, ResultIsTheSameEachTime)
{
    const CTemporaryFolder folder;
    ConvertTo(folder.path + "/one.dxf", {});
    ConvertTo(folder.path + "/two.dxf", {});
    EXPECT_TRUE(ReadFile(folder.path + "/one.dxf") == ReadFile(folder.path + "/two.dxf"));
}

TEST(ConvertDrawing, CodePageDecodesTextsOfOldDrawings)
{
    const CTemporaryFolder folder;
    const std::string source =
        folder.Write("old.dxf",
                     "0\nSECTION\n2\nENTITIES\n0\nTEXT\n8\nA\n40\n1\n1\n\x93\xab\n"
                     "0\nENDSEC\n0\nEOF\n"); // two letters in IBM866
    ConvertTo(folder.path + "/new.dxf", {"--codepage", "IBM866"}, source);
    EXPECT_NE(ReadFile(folder.path + "/new.dxf").find("\r\n1\r\n\xD3\xEB\r\n"), std::string::npos);
}

TEST(ConvertDrawing, DrawingThatEndsInsideABlockLeavesTheOldTarget)
{
    const CTemporaryFolder folder;
    const std::string target = folder.Write("target.dxf", "old");
    const std::string source = folder.Write("broken.dxf", BrokenDrawing());
    const SRun run = RunVelorx({"convert", "--force", source, target});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_NE(run.err.find("the drawing ends inside a block"), std::string::npos) << run.err;
    EXPECT_EQ(ReadFile(target), "old");
}

TEST(ConvertDrawing, BinaryDrawingIsRefused)
{
    const CTemporaryFolder folder;
    const std::string source =
        folder.Write("binary.dxf", std::string("AutoCAD Binary DXF\r\n\x1A\0", 22));
    const SRun run = RunVelorx({"convert", source, folder.path + "/target.dxf"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_FALSE(std::filesystem::exists(folder.path + "/target.dxf"));
}

// The limit holds for all files of the program, so that it meets the writer's temporary files first.
TEST(ConvertDrawing, FullDiskLeavesTheOldTarget)
{
    const CTemporaryFolder folder;
    const std::string target = folder.Write("target.dxf", "old");
    rlimit before = {};
    getrlimit(RLIMIT_FSIZE, &before);
    for (const rlim_t size : {4096U, 30000U, 120000U}) {
        rlimit limit = before;
        limit.rlim_cur = size;
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &limit);
        const SRun run = RunVelorx({"convert", "--force", kPlan, target});
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
        EXPECT_EQ(run.exitCode, 1) << size;
        EXPECT_NE(run.err.find("writing failed"), std::string::npos) << run.err;
        EXPECT_EQ(ReadFile(target), "old");
    }
    const auto files = std::filesystem::directory_iterator(folder.path);
    EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

} // namespace velorx::test
