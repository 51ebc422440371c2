// SPDX-License-Identifier: MIT
#include "TagMapTest.h"

#include <random>

using namespace VelorExchange;
using namespace VelorExchange::test;

namespace {

constexpr int kCodes[] = {0, 8, 10, 20, 30, 40, 42, 91, 110, 120, 1071, 2042};

// Groups in which the codes of a vertex are frequent.
QByteArray RandomTags(std::mt19937& random)
{
    static const char* const kCodeLines[] = {"0",
                                             "8",
                                             "10",
                                             "10",
                                             "10",
                                             "20",
                                             "20",
                                             "30",
                                             "40",
                                             "42",
                                             "91",
                                             "110",
                                             "120",
                                             "1071",
                                             "2042",
                                             "",
                                             "020",
                                             " 10",
                                             "10 ",
                                             "a42",
                                             "00",
                                             ("\xC2\xA0"
                                              "10")};
    static const char* const kValues[] = {"",
                                          "1",
                                          "2.5",
                                          "-3",
                                          ";",
                                          "1;2",
                                          ";7",
                                          "x",
                                          "0",
                                          "8;",
                                          "+5",
                                          "1e2",
                                          " 4 ",
                                          "\xD0\xB0",
                                          "\xEF\xBB\xBF"
                                          "1",
                                          "1;\xEF\xBB\xBF"
                                          "2",
                                          "\xE2\x80\x83"
                                          "6"};
    QByteArray bytes;
    for (auto count = random() % 40; count > 0; --count) {
        bytes += kCodeLines[random() % std::size(kCodeLines)];
        bytes += "\n";
        bytes += kValues[random() % std::size(kValues)];
        bytes += "\n";
    }
    return bytes;
}

std::string Shown(const CPlainTag& tag)
{
    return tag.code.toStdString() + ' ' + tag.value.toStdString();
}

// All that a map tells of its codes.
std::string Shown(const CMappedObject& object, CDXFTagMap* map)
{
    std::string text;
    for (const int code : kCodes) {
        if (code < 1072) {
            text += std::to_string(code) + (map->Has(code) ? " has " : " has not ")
                + object.Value(code) + " int " + std::to_string(map->Int(code, -2)) + " double "
                + Shortest(map->Double(code, -2.0)) + " split " + object.Split(code) + " doubles "
                + object.Doubles(code) + '\n';
        }
    }
    return text;
}

std::string Shown(const CPlainTagMap& map)
{
    std::string text;
    for (const int number : kCodes) {
        if (number < 1072) {
            const QString code = QString::number(number);
            text += std::to_string(number) + (map.values.contains(code) ? " has " : " has not ")
                + map.Value(code, QString()).toStdString() + " int "
                + std::to_string(map.Int(code, -2)) + " double " + Shortest(map.Double(code, -2.0))
                + " split " + map.Split(code).join('|').toStdString() + " doubles ";
            for (const QString& item : map.Split(code)) {
                text += Shortest(item.toDouble()) + ' ';
            }
            text += '\n';
        }
    }
    return text;
}

// One of the ways to gather, in both forms.
CDXFTag Read(unsigned long way, CDXFTagMap& map)
{
    switch (way) {
    case 0:
        return map.ReadObject();
    case 1:
        return map.ReadObject({10, 20, 30, 42});
    case 2:
        return map.ReadObject({10});
    case 3:
        return map.ReadUntil({0, 91});
    default:
        return map.ReadWhile({10, 20, 42, 120});
    }
}

CPlainTag Read(unsigned long way, CPlainTagMap& map, QIODevice& device)
{
    const QString zero = QStringLiteral("0");
    map.chainCodes.clear();
    map.chainDefaults.clear();
    switch (way) {
    case 0:
        return map.ReadUntil(device, {zero}, true);
    case 1:
        map.chainCodes = QStringList{"10", "20", "30", "42"};
        map.chainDefaults = QStringList{zero, zero, zero};
        return map.ReadUntil(device, {zero}, true);
    case 2:
        map.chainCodes = QStringList{"10"};
        return map.ReadUntil(device, {zero}, true);
    case 3:
        return map.ReadUntil(device, {zero, "91"}, false);
    default:
        return map.ReadWhile(device, {"10", "20", "42", "120"}, false);
    }
}

} // namespace

TEST(TagMap, RandomObjectsAreGatheredAsAMapOfTextsGathersThem)
{
    std::mt19937 random(10);
    for (int i = 0; i < 6000; ++i) {
        QByteArray bytes = RandomTags(random);
        CMappedObject object(bytes);
        QBuffer device(&bytes);
        device.open(QIODevice::ReadOnly);
        CPlainTagMap plain(kUtf8Version);
        for (int step = 0; step < 4; ++step) {
            const auto way = random() % 5;
            const CDXFTag tag = Read(way, *object.operator->());
            const CPlainTag expected = Read(way, plain, device);
            ASSERT_EQ(object.Input().Text(tag.value), expected.value) << bytes.constData();
            ASSERT_EQ(tag.code == 0, expected.code == QLatin1String("0")) << bytes.constData();
            ASSERT_EQ(object.Input().Position(), device.pos()) << bytes.constData();
            ASSERT_EQ(Shown(object, object.operator->()), Shown(plain))
                << way << " stopped at " << Shown(expected) << " in\n"
                << bytes.constData();
        }
    }
}

TEST(TagMap, LongObjectOfManyBlocksKeepsItsLists)
{
    QByteArray bytes;
    constexpr int kVertices = 50000;
    for (int i = 0; i < kVertices; ++i) {
        const QByteArray number = QByteArray::number(i);
        bytes += " 10\r\n" + number + ".5\r\n 20\r\n-" + number + "\r\n";
    }
    CMappedObject object(bytes + Tags("0 END\n"));
    object->ReadObject({10, 20, 30, 42});
    std::vector<double> xs;
    std::vector<double> ys;
    std::vector<double> bulges;
    object->SplitDoubles(10, xs);
    object->SplitDoubles(20, ys);
    object->SplitDoubles(42, bulges);
    ASSERT_EQ(xs.size(), static_cast<std::size_t>(kVertices));
    ASSERT_EQ(ys.size(), xs.size());
    EXPECT_EQ(bulges, std::vector<double>(xs.size(), 0.0));
    for (std::size_t i = 0; i < xs.size(); ++i) {
        ASSERT_EQ(xs[i], static_cast<double>(i) + 0.5);
        ASSERT_EQ(ys[i], -static_cast<double>(i));
    }
}
