// SPDX-License-Identifier: MIT
// Every pair of formats, on the demo drawing and on real files that others made.
#include "tests/tools/ConvertSupport.h"
#include "tests/tools/RunVelorx.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <tuple>

namespace velorx::test {

namespace {

using Strings = std::vector<std::string>;

constexpr char kPlan[] = "data/survey-plan.dxf";
constexpr const char* kFormats[] = {"dxf", "mif", "sxf", "txt"};

std::string CorpusFolder()
{
    const char* folder = std::getenv("VELOREXCHANGE_CORPUS");
    return folder != nullptr ? folder : VELOREXCHANGE_CORPUS;
}

QJsonObject ReportIn(const std::string& path)
{
    const QJsonObject json =
        QJsonDocument::fromJson(QByteArray::fromStdString(ReadFile(path))).object();
    return json.value("files").toArray().at(0).toObject();
}

int Written(const QJsonObject& report)
{
    int written = 0;
    for (const QJsonValue& kind : report.value("kinds").toArray()) {
        written += kind.toObject().value("written").toInt();
    }
    return written;
}

// Refusals that follow from the source: maps are made of objects only, and the rest the library cannot read.
bool IsRefusal(const std::string& error)
{
    for (const char* words : {"there is nothing in it that a map could hold",
                              "it does not start like a text drawing", "the header cannot be read"})
    {
        if (error.find(words) != std::string::npos) {
            return true;
        }
    }
    return false;
}

/// A source in each format, made of the demo drawing.
class ConvertWays : public testing::TestWithParam<std::tuple<const char*, const char*>>
{
protected:
    // The path of the demo drawing in a format.
    std::string Source(const std::string& format) const
    {
        if (format == "dxf") {
            return kPlan;
        }
        const std::string path = folder.path + "/source/plan." + format;
        std::filesystem::create_directories(folder.path + "/source");
        EXPECT_EQ(RunVelorx({"convert", kPlan, path, "--quiet"}).exitCode, 0);
        return path;
    }

    const CTemporaryFolder folder;
};

} // namespace

TEST_P(ConvertWays, GiveASoundFileWithObjectsOfTheDemoDrawing)
{
    const auto& [from, to] = GetParam();
    const std::string target = folder.path + "/out." + to;
    const std::string report = folder.path + "/report.json";
    const SRun run = RunVelorx({"convert", Source(from), target, "--report", report});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_GE(Written(ReportIn(report)), 300);
    const SRun check = RunVelorx({"check", target});
    EXPECT_EQ(check.exitCode, 0) << check.out;
    const SRun info = RunVelorx({"info", target});
    EXPECT_EQ(info.exitCode, 0) << info.err;
}

TEST_P(ConvertWays, GiveTheSameFileEveryTime)
{
    const auto& [from, to] = GetParam();
    const std::string source = Source(from);
    const std::string target = folder.path + "/out." + to;
    Strings contents;
    for (int i = 0; i < 2; ++i) {
        RunVelorx({"convert", source, target, "--quiet", "--force"});
        contents.push_back(ReadFile(target));
    }
    EXPECT_FALSE(contents[0].empty());
    EXPECT_TRUE(contents[0] == contents[1]);
}

// The name of a test may hold letters and digits only.
std::string WayName(const testing::TestParamInfo<ConvertWays::ParamType>& info)
{
    return std::string(std::get<0>(info.param)) + "To" + std::get<1>(info.param);
}

INSTANTIATE_TEST_SUITE_P(All, ConvertWays,
                         testing::Combine(testing::ValuesIn(kFormats), testing::ValuesIn(kFormats)),
                         WayName);

TEST(ConvertFolders, OfAllFormatsComeOutTheSameWithAnyNumberOfJobs)
{
    const CTemporaryFolder folder;
    for (const char* name : {"a.dxf", "b.mif", "c.sxf", "d.txt"}) {
        std::filesystem::create_directories(folder.path + "/in");
        RunVelorx({"convert", kPlan, folder.path + "/in/" + name, "--quiet"});
    }
    for (const char* format : kFormats) {
        std::vector<Strings> runs;
        for (const char* jobs : {"1", "3"}) {
            const std::string out = folder.path + "/out";
            const SRun run =
                RunVelorx({"convert", folder.path + "/in", out, "--to", format, "--jobs", jobs});
            EXPECT_EQ(run.exitCode, 0) << run.err;
            Strings& contents = runs.emplace_back(Strings{WithoutTimes(run.out), run.err});
            for (const std::string& name : NamesIn(out)) {
                contents.push_back(name);
                contents.push_back(ReadFile(out + "/" + name));
            }
            std::filesystem::remove_all(out);
        }
        EXPECT_GE(runs[0].size(), 10U) << format;
        EXPECT_TRUE(runs[0] == runs[1]) << format;
    }
}

TEST(ConvertCorpus, EveryTenthFileGoesIntoEveryFormat)
{
    const std::string corpus = CorpusFolder();
    if (!std::filesystem::exists(corpus)) {
        GTEST_SKIP() << "no corpus at " << corpus;
    }
    Strings files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(corpus)) {
        const std::string extension = entry.path().extension().string();
        if (extension == ".dxf" || extension == ".mif" || extension == ".sxf") {
            files.push_back(entry.path().string());
        }
    }
    std::sort(files.begin(), files.end());
    int done = 0;
    for (std::size_t i = 0; i < files.size(); i += 10) {
        for (const char* format : kFormats) {
            SCOPED_TRACE(files[i] + " to " + format);
            const CTemporaryFolder folder;
            const std::string target = folder.path + "/out." + format;
            const SRun run = RunVelorx({"convert", files[i], target, "--quiet"});
            if (run.exitCode == 0) {
                ++done;
                EXPECT_EQ(RunVelorx({"info", target}).exitCode, 0);
            } else {
                EXPECT_TRUE(IsRefusal(run.err)) << run.err;
            }
        }
    }
    EXPECT_GE(done, 50);
}

} // namespace velorx::test
