// SPDX-License-Identifier: MIT
#include "tests/support/Corpus.h"
#include "tests/support/MifRecorder.h"
#include "VelorExchange/mif/MIFReader_p.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

using namespace VelorExchange;
using namespace VelorExchange::test;

namespace {

QJsonObject ExpectedFiles()
{
    QFile file(CorpusFolder() + QStringLiteral("/expected.json"));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QJsonDocument::fromJson(file.readAll())
        .object()
        .value(QStringLiteral("files"))
        .toObject();
}

void ExpectAsTold(const QString& name, const QJsonObject& expected)
{
    SCOPED_TRACE(name.toStdString());
    CMifRecorder recorder;
    mif::CMIFReader reader(&recorder);
    const QString path = CorpusFolder() + QLatin1Char('/') + name;
    const bool result = reader.Read(path.left(path.size() - 4));
    EXPECT_EQ(result, expected.value(QStringLiteral("result")).toBool());
    std::map<std::string, int> counts;
    const QJsonObject callbacks = expected.value(QStringLiteral("callbacks")).toObject();
    for (auto it = callbacks.begin(); it != callbacks.end(); ++it) {
        counts[it.key().toStdString()] = it.value().toInt();
    }
    EXPECT_EQ(recorder.counts, counts);
    EXPECT_EQ(static_cast<int>(recorder.attributesTotal),
              expected.value(QStringLiteral("attributes_total")).toInt());
    EXPECT_EQ(reader.RowsTaken(), expected.value(QStringLiteral("mid_rows_taken")).toInt());
}

} // namespace

TEST(Corpus, RealFilesGiveTheCallsTold)
{
    const QJsonObject files = ExpectedFiles();
    if (files.isEmpty()) {
        GTEST_SKIP() << "the collection of real files isn't there: "
                     << CorpusFolder().toStdString();
    }
    int seen = 0;
    for (auto it = files.begin(); it != files.end(); ++it) {
        if (it.key().startsWith(QLatin1String("mif/")) && it.key().endsWith(QLatin1String(".mif")))
        {
            ExpectAsTold(it.key(),
                         it.value().toObject().value(QStringLiteral("reader")).toObject());
            ++seen;
        }
    }
    EXPECT_GT(seen, 0);
}
