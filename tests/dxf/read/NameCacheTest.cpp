// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/NameCache_p.h"

#include <random>

using VelorExchange::dxf::CLayerDXF;
using VelorExchange::dxf::CNameCache;

namespace {

bool IsKnown(CNameCache& names, std::string_view bytes)
{
    bool known = false;
    names.EntryFor(bytes, known);
    return known;
}

} // namespace

TEST(NameCache, NewcomerIsNotKnownAndEmpty)
{
    CNameCache names;
    bool known = true;
    const CNameCache::CName& name = names.EntryFor("Walls", known);
    EXPECT_FALSE(known);
    EXPECT_TRUE(name.text.isEmpty());
    EXPECT_TRUE(name.lineType.isEmpty());
    EXPECT_EQ(name.layer, nullptr);
}

TEST(NameCache, WhatWasFilledInComesBack)
{
    CNameCache names;
    const CLayerDXF layer;
    bool known = false;
    CNameCache::CName& name = names.EntryFor("Walls", known);
    name.text = QStringLiteral("Walls");
    name.layer = &layer;
    const CNameCache::CName& again = names.EntryFor("Walls", known);
    EXPECT_TRUE(known);
    EXPECT_EQ(again.text, QStringLiteral("Walls"));
    EXPECT_EQ(again.layer, &layer);
}

TEST(NameCache, BytesAreComparedExactly)
{
    CNameCache names;
    IsKnown(names, "Walls");
    EXPECT_FALSE(IsKnown(names, "walls"));
    EXPECT_FALSE(IsKnown(names, "Wall"));
    EXPECT_FALSE(IsKnown(names, std::string_view("Walls\0", 6)));
}

TEST(NameCache, EmptyNameHasAPlaceToo)
{
    CNameCache names;
    EXPECT_FALSE(IsKnown(names, ""));
    EXPECT_TRUE(IsKnown(names, ""));
}

TEST(NameCache, LongestNameFits)
{
    CNameCache names;
    const std::string name(CNameCache::kLongestName, 'x');
    EXPECT_FALSE(IsKnown(names, name));
    EXPECT_TRUE(IsKnown(names, name));
    EXPECT_FALSE(IsKnown(names, name.substr(1)));
}

TEST(NameCache, ClearedNamesAreNotKnown)
{
    CNameCache names;
    bool known = false;
    names.EntryFor("Walls", known).text = QStringLiteral("Walls");
    names.Clear();
    EXPECT_TRUE(names.EntryFor("Walls", known).text.isEmpty());
    EXPECT_FALSE(known);
}

TEST(NameCache, NoNameIsEverTakenForAnother)
{
    CNameCache names;
    std::mt19937 random(12);
    for (int i = 0; i < 200000; ++i) {
        const QByteArray bytes = "layer " + QByteArray::number(static_cast<int>(random() % 20000));
        bool known = false;
        CNameCache::CName& name = names.EntryFor(bytes.toStdString(), known);
        if (known) {
            ASSERT_EQ(name.text, QString::fromLatin1(bytes));
        }
        name.text = QString::fromLatin1(bytes);
    }
}

TEST(NameCache, FewThousandNamesComeToBeKnown)
{
    CNameCache names;
    int known = 0;
    constexpr int kNames = 2000;
    constexpr int kRounds = 50;
    for (int i = 0; i < kNames * kRounds; ++i) {
        known += IsKnown(names, "layer " + std::to_string(i % kNames)) ? 1 : 0;
    }
    EXPECT_GT(known, kNames * kRounds / 2);
}
