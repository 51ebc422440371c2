// SPDX-License-Identifier: MIT
// `velorx info --json` over real drawings that others made, against counts that were taken without
// this library. The drawings are not part of the tree.
#include "tests/tools/RunVelorx.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

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

} // namespace

TEST(InfoCorpus, DeliversWhatIsExpectedOfEveryDrawing)
{
    const std::string corpus = CorpusFolder();
    if (!std::filesystem::exists(corpus + "/expected.json")) {
        GTEST_SKIP() << "no corpus at " << corpus;
    }
    const QJsonObject files = Parse(ReadFile(corpus + "/expected.json")).value("files").toObject();
    int drawings = 0;
    for (const QString& name : files.keys()) {
        const QJsonObject facts = files.value(name).toObject();
        if (facts.value("family").toString() != "dxf") {
            continue;
        }
        SCOPED_TRACE(name.toStdString());
        const SRun run = RunVelorx({"info", "--json", corpus + "/" + name.toStdString()});
        EXPECT_EQ(run.exitCode, 0) << run.err;
        const QJsonObject summary = Parse(run.out);
        const QJsonObject reader = facts.value("reader").toObject();
        for (const char* key :
             {"result", "version", "callbacks", "block_entities", "insert_attributes"}) {
            EXPECT_EQ(Text(summary.value(key)), Text(reader.value(key))) << key;
        }
        ++drawings;
    }
    EXPECT_GT(drawings, 100);
}

} // namespace velorx::test
