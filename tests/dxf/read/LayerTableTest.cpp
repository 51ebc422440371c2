// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/LayerTable_p.h"

#include <random>

using VelorExchange::dxf::CLayerDXF;
using VelorExchange::dxf::CLayerTable;

namespace {

const CLayerDXF& Add(CLayerTable& table, const QString& name, quint32 color = 0)
{
    CLayerDXF layer;
    layer.name = name;
    layer.color = color;
    return table.Add(layer);
}

} // namespace

TEST(LayerTable, EmptyTableHasNoLayer)
{
    const CLayerTable table;
    EXPECT_EQ(table.Find(QStringLiteral("0")), nullptr);
    EXPECT_EQ(table.Find(QString()), nullptr);
    EXPECT_EQ(table.Size(), 0U);
}

TEST(LayerTable, FindsALayerByItsName)
{
    CLayerTable table;
    const CLayerDXF& walls = Add(table, QStringLiteral("Walls"));
    const CLayerDXF& doors = Add(table, QStringLiteral("Doors"));
    EXPECT_EQ(table.Find(QStringLiteral("Walls")), &walls);
    EXPECT_EQ(table.Find(QStringLiteral("Doors")), &doors);
    EXPECT_EQ(table.Find(QStringLiteral("Wall")), nullptr);
    EXPECT_EQ(table.Find(QStringLiteral("Walls ")), nullptr);
}

TEST(LayerTable, NamesAreComparedWithoutRegardToCase)
{
    CLayerTable table;
    const CLayerDXF& walls = Add(table, QStringLiteral("Walls"));
    const CLayerDXF& roads = Add(table, QString::fromUtf8("Дороги"));
    EXPECT_EQ(table.Find(QStringLiteral("WALLS")), &walls);
    EXPECT_EQ(table.Find(QStringLiteral("walls")), &walls);
    EXPECT_EQ(table.Find(QString::fromUtf8("дОРОГИ")), &roads);
}

TEST(LayerTable, FirstOfEqualNamesIsFound)
{
    CLayerTable table;
    const CLayerDXF& first = Add(table, QStringLiteral("A"), 1);
    Add(table, QStringLiteral("a"), 2);
    Add(table, QStringLiteral("A"), 3);
    EXPECT_EQ(table.Find(QStringLiteral("a")), &first);
    EXPECT_EQ(table.Size(), 3U);
}

TEST(LayerTable, LayersStayWhereTheyAre)
{
    CLayerTable table;
    const CLayerDXF& first = Add(table, QStringLiteral("first"));
    for (int i = 0; i < 10000; ++i) {
        Add(table, QString::number(i));
    }
    EXPECT_EQ(table.Find(QStringLiteral("FIRST")), &first);
    EXPECT_EQ(first.name, QStringLiteral("first"));
    EXPECT_EQ(table.Find(QStringLiteral("9999"))->name, QStringLiteral("9999"));
}

TEST(LayerTable, EveryLetterIsFoundByWhateverEqualsItWithoutRegardToCase)
{
    // Pairs that fold to each other in odd ways, pairs beyond the basic plane among them.
    const QString names[] = {QStringLiteral("k"),
                             QString(QChar(0x212A)),
                             QStringLiteral("s"),
                             QString(QChar(0x017F)),
                             QString(QChar(0x03C3)),
                             QString(QChar(0x03C2)),
                             QString(QChar(0x00DF)),
                             QString(QChar(0x1E9E)),
                             QString(QChar(0x0130)),
                             QStringLiteral("i"),
                             QString::fromUtf8("\xF0\x90\x90\x80"),
                             QString::fromUtf8("\xF0\x90\x90\xA8")};
    for (const QString& name : names) {
        CLayerTable table;
        Add(table, name);
        for (const QString& other : names) {
            EXPECT_EQ(table.Find(other) != nullptr, name.compare(other, Qt::CaseInsensitive) == 0)
                << name.toStdString() << ' ' << other.toStdString();
        }
    }
}

TEST(LayerTable, ManyNamesBeyondTheBasicPlaneAreFoundQuickly)
{
    // All pairs of a plane, each of them twice. Were they all to meet in one place, this would take
    // minutes.
    CLayerTable table;
    constexpr uint kFirst = 0x20000;
    constexpr uint kCount = 0x8000;
    for (uint i = 0; i < kCount; ++i) {
        const uint letters[] = {kFirst + i, kFirst + i};
        Add(table, QString::fromUcs4(letters, 2), i);
    }
    for (uint i = 0; i < kCount; ++i) {
        const uint letters[] = {kFirst + i, kFirst + i};
        ASSERT_EQ(table.Find(QString::fromUcs4(letters, 2))->color, i);
    }
}

TEST(LayerTable, RandomNamesBeyondTheBasicPlaneAreFoundAsTheyCompare)
{
    std::mt19937 random(13);
    const auto randomName = [&random] {
        QString name;
        for (auto length = 1 + random() % 3; length > 0; --length) {
            static const ushort kUnits[] = {0xD801, 0xDC00, 0xDC28, 0xD800, 'k', 0x212A};
            name += QChar(kUnits[random() % 6]);
        }
        return name;
    };
    for (int i = 0; i < 3000; ++i) {
        CLayerTable table;
        const QString name = randomName();
        const QString other = randomName();
        Add(table, name);
        ASSERT_EQ(table.Find(other) != nullptr, name.compare(other, Qt::CaseInsensitive) == 0);
    }
}

TEST(LayerTable, RandomNamesAreFoundAsASearchFromTheFrontFindsThem)
{
    std::mt19937 random(11);
    CLayerTable table;
    std::vector<const CLayerDXF*> all;
    const auto randomName = [&random] {
        QString name;
        for (auto length = 1 + random() % 3; length > 0; --length) {
            name += QChar(static_cast<ushort>("abcABCxX"[random() % 8]));
        }
        return name;
    };
    for (int i = 0; i < 300; ++i) {
        all.push_back(&Add(table, randomName()));
    }
    for (int i = 0; i < 2000; ++i) {
        const QString name = randomName();
        const auto first = std::find_if(all.begin(), all.end(), [&](const CLayerDXF* layer) {
            return layer->name.compare(name, Qt::CaseInsensitive) == 0;
        });
        ASSERT_EQ(table.Find(name), first == all.end() ? nullptr : *first) << name.toStdString();
    }
}
