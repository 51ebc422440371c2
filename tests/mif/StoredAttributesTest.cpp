// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/StoredAttributes_p.h"

#include <cmath>
#include <cstring>
#include <random>

using namespace VelorExchange::mif;

namespace {

// Text that shares its memory with no other.
QString Fresh(const char* text)
{
    return QString::fromUtf8(text);
}

const QChar* Memory(const QVariant& value)
{
    return static_cast<const QString*>(value.constData())->constData();
}

} // namespace

TEST(StoredAttributes, RecordsInARowShareTheirNames)
{
    CStoredAttributes stored;
    stored.Add({{Fresh("a"), 1}, {Fresh("b"), 2}});
    stored.Add({{Fresh("a"), 3}, {Fresh("b"), 4}});
    stored.Add({{Fresh("a"), 3}, {Fresh("c"), 4}});
    stored.Add({{Fresh("a"), 3}, {Fresh("c"), 4.5}});
    stored.Add({{Fresh("a"), 3}});
    const auto& records = stored.Records();
    EXPECT_EQ(records[0].shape, records[1].shape);
    EXPECT_NE(records[1].shape, records[2].shape);
    EXPECT_NE(records[2].shape, records[3].shape);
    EXPECT_NE(records[3].shape, records[4].shape);
}

TEST(StoredAttributes, RepeatedTextIsHeldOnce)
{
    CStoredAttributes stored;
    stored.Add({{Fresh("a"), Fresh("long value")}});
    stored.Add({{Fresh("a"), Fresh("long value")}});
    stored.Add({{Fresh("a"), Fresh("another")}});
    const auto& records = stored.Records();
    EXPECT_EQ(Memory(records[0].values[0]), Memory(records[1].values[0]));
    EXPECT_NE(Memory(records[1].values[0]), Memory(records[2].values[0]));
    EXPECT_EQ(records[2].values[0].toString(), QStringLiteral("another"));
}

TEST(StoredAttributes, EmptyAndNullTextStayApart)
{
    CStoredAttributes stored;
    stored.Add({{Fresh("a"), QStringLiteral("")}});
    stored.Add({{Fresh("a"), QString()}});
    EXPECT_FALSE(stored.Records()[0].values[0].isNull());
    EXPECT_TRUE(stored.Records()[1].values[0].isNull());
}

TEST(RowMaker, FindsValuesAgainWhenTheNamesChange)
{
    CStoredAttributes stored;
    stored.Add({{Fresh("a"), 1}, {Fresh("b"), 2}});
    stored.Add({{Fresh("b"), 3}, {Fresh("a"), 4}});
    stored.Add({});
    stored.Add({{Fresh("a"), 5}, {Fresh("b"), 6}});
    const std::vector<CWrittenColumn> columns = stored.CollectColumns();
    CRowMaker maker(columns);
    QString rows;
    for (const auto& record : stored.Records()) {
        rows += maker.Row(record);
    }
    EXPECT_EQ(rows, QStringLiteral("1;2\n4;3\n;\n5;6\n"));
}

TEST(RowMaker, NumbersAreThoseOfToString)
{
    std::mt19937_64 random(41);
    const auto expectSame = [](const QVariant& value) {
        CStoredAttributes stored;
        stored.Add({{QStringLiteral("a"), value}});
        const std::vector<CWrittenColumn> columns = stored.CollectColumns();
        CRowMaker maker(columns);
        EXPECT_EQ(maker.Row(stored.Records()[0]), value.toString() + QLatin1Char('\n'));
    };
    for (int i = 0; i < 20000; ++i) {
        const auto bits = random();
        double any = 0;
        std::memcpy(&any, &bits, sizeof any);
        expectSame(any);
        expectSame(QVariant::fromValue(static_cast<float>(any)));
        const double scale = std::pow(10.0, static_cast<double>(bits % 24) - 6.0);
        const double usual = static_cast<double>(random() % 2000001) / 1000000.0 - 1.0;
        expectSame(usual * scale);
        expectSame(QVariant::fromValue(static_cast<float>(usual * scale)));
        expectSame(std::round(usual * scale));
        expectSame(static_cast<int>(bits));
        expectSame(QVariant::fromValue(static_cast<short>(bits)));
    }
    for (int whole = -100001; whole <= 100001; whole += 7) {
        expectSame(static_cast<double>(whole));
    }
}
