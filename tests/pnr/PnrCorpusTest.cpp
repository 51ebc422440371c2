// SPDX-License-Identifier: MIT
#include "VelorExchange/Pnr.h"

#include "PnrLocalCodec.h"
#include "tests/support/Corpus.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtEndian>

#include <algorithm>
#include <limits>

using namespace VelorExchange::pnr;
using VelorExchange::test::CorpusFolder;

namespace {

// Counts what the real files are known to hold.
class CCounter final : public IPnrReader::IContext
{
public:
    void AddText(CTextObject* text) override { Count("AddText", *text); }
    void AddSquare(CSquareObject* square) override { Count("AddSquare", *square); }
    void AddLine(CLineObject* line) override { Count("AddLine", *line); }
    void AddPoint(CPointObject* point) override { Count("AddPoint", *point); }

    QJsonObject callbacks;
    QJsonObject vertices;
    QJsonObject semanticTypes;
    int subContours = 0;
    double extent[4] = {std::numeric_limits<double>::max(), std::numeric_limits<double>::max(),
                        std::numeric_limits<double>::lowest(),
                        std::numeric_limits<double>::lowest()};

private:
    static void Add(QJsonObject& counts, const QString& key, int number)
    {
        counts[key] = counts[key].toInt() + number;
    }
    void Count(const char* operation, const CBaseObject& object)
    {
        Add(callbacks, QLatin1String(operation), 1);
        for (const auto& holder : object.holders) {
            Add(vertices, QLatin1String(operation), static_cast<int>(holder->Count()));
            Extend(*holder);
        }
        subContours += std::max(static_cast<int>(object.holders.size()) - 1, 0);
        for (const PnrSemantic& semantic : object.semantics) {
            Add(semanticTypes, QString::number(semantic.dataType), 1);
        }
    }
    void Extend(const CAbstractVertexHolder& holder)
    {
        if (!holder.Is2D()) {
            return;
        }
        for (const auto& p : static_cast<const CVertexHolder2D&>(holder).vertices) {
            extent[0] = std::min(extent[0], p.x);
            extent[1] = std::min(extent[1], p.y);
            extent[2] = std::max(extent[2], p.x);
            extent[3] = std::max(extent[3], p.y);
        }
    }
};

QJsonObject ExpectedOf(const QString& file)
{
    QFile json(CorpusFolder() + QStringLiteral("/expected.json"));
    if (!json.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QJsonObject files =
        QJsonDocument::fromJson(json.readAll()).object()[QStringLiteral("files")].toObject();
    return files[file].toObject()[QStringLiteral("reader")].toObject();
}

int DeclaredRecords(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? qFromLittleEndian<qint32>(file.read(444).data() + 440)
                                          : -1;
}

class PnrCorpus : public testing::TestWithParam<const char*>
{
};

} // namespace

TEST_P(PnrCorpus, ReadsWhatTheFileIsKnownToHold)
{
    const QString name = QLatin1String(GetParam());
    const QString path = CorpusFolder() + QLatin1Char('/') + name;
    const QJsonObject expected = ExpectedOf(name);
    if (!QFileInfo::exists(path) || expected.isEmpty()) {
        GTEST_SKIP() << "the collection of real files is not here: " << path.toStdString();
    }
    bool text = true;
    ASSERT_TRUE(IsTxtFile(path, text));
    EXPECT_FALSE(text);
    CCounter counter;
    const std::unique_ptr<IPnrReader, void (*)(IPnrReader*)> reader(CreateReader(text, &counter),
                                                                    DeleteReader);
    EXPECT_EQ(reader->Read(path), expected[QStringLiteral("result")].toBool());
    EXPECT_EQ(QString::fromStdWString(reader->GetLastError()),
              expected[QStringLiteral("message")].toString());
    EXPECT_EQ(DeclaredRecords(path), expected[QStringLiteral("declared_records")].toInt());
    EXPECT_EQ(counter.callbacks, expected[QStringLiteral("callbacks")].toObject());
    EXPECT_EQ(counter.vertices, expected[QStringLiteral("vertices")].toObject());
    EXPECT_EQ(counter.subContours, expected[QStringLiteral("subcontours")].toInt());
    EXPECT_EQ(counter.semanticTypes, expected[QStringLiteral("semantic_types")].toObject());
    const QJsonArray extent = expected[QStringLiteral("extent_as_delivered")].toArray();
    for (int i = 0; i < 4; ++i) {
        EXPECT_DOUBLE_EQ(counter.extent[i], extent[i].toDouble()) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(RealFiles, PnrCorpus,
                         testing::Values("sxf/gdal/100_test.sxf", "sxf/sxf4j/K37007.sxf"));
