// SPDX-License-Identifier: MIT
// `velorx info --json` over real files that others made, against counts that were taken without
// this library. The files are not part of the tree.
#include "tests/tools/RunVelorx.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <vector>

namespace velorx::test {

namespace {

std::string CorpusFolder()
{
    const char* folder = std::getenv("VELOREXCHANGE_CORPUS");
    return folder != nullptr ? folder : VELOREXCHANGE_CORPUS;
}

QJsonObject Parse(const std::string& json)
{
    return QJsonDocument::fromJson(QByteArray::fromStdString(json)).object();
}

std::string Text(const QJsonValue& value)
{
    return QJsonDocument(QJsonObject{{"value", value}}).toJson().toStdString();
}

// Compares what `velorx info --json` tells under each of `keys` with what is expected of every file of
// the family. Returns how many files that were, -1 without a corpus.
int CompareFamily(const char* family, const std::vector<const char*>& keys)
{
    const std::string corpus = CorpusFolder();
    if (!std::filesystem::exists(corpus + "/expected.json")) {
        return -1;
    }
    const QJsonObject files = Parse(ReadFile(corpus + "/expected.json")).value("files").toObject();
    int count = 0;
    for (const QString& name : files.keys()) {
        const QJsonObject facts = files.value(name).toObject();
        if (facts.value("family").toString() != family || !facts.contains("reader")) {
            continue;
        }
        SCOPED_TRACE(name.toStdString());
        const SRun run = RunVelorx({"info", "--json", corpus + "/" + name.toStdString()});
        const QJsonObject summary = Parse(run.out);
        const QJsonObject reader = facts.value("reader").toObject();
        EXPECT_EQ(run.exitCode, reader.value("result").toBool() ? 0 : 1) << run.err;
        for (const char* key : keys) {
            EXPECT_EQ(Text(summary.value(key)), Text(reader.value(key))) << key;
        }
        ++count;
    }
    return count;
}

} // namespace

TEST(InfoCorpus, DeliversWhatIsExpectedOfEveryDrawing)
{
    const int count = CompareFamily(
        "dxf", {"result", "version", "callbacks", "block_entities", "insert_attributes"});
    if (count < 0) {
        GTEST_SKIP() << "no corpus at " << CorpusFolder();
    }
    EXPECT_GT(count, 100);
}

TEST(InfoCorpus, DeliversWhatIsExpectedOfEveryTable)
{
    const int count = CompareFamily("mif",
                                    {"result", "callbacks", "attributes_total", "mid_rows_taken",
                                     "mid_rows_left", "records_without_attributes"});
    if (count < 0) {
        GTEST_SKIP() << "no corpus at " << CorpusFolder();
    }
    EXPECT_GT(count, 8);
}

TEST(InfoCorpus, DeliversWhatIsExpectedOfEveryMap)
{
    const int count = CompareFamily("sxf",
                                    {"result", "message", "declared_records", "callbacks",
                                     "vertices", "subcontours", "scale", "semantic_types"});
    if (count < 0) {
        GTEST_SKIP() << "no corpus at " << CorpusFolder();
    }
    EXPECT_GT(count, 1);
}

} // namespace velorx::test
