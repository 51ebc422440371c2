// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/TagMap_p.h"

#include "tests/support/DxfRecorder.h"
#include "tests/support/LocaleCodec.h"
#include "tests/support/PlainTags.h"

#include <QBuffer>

#include <random>

using namespace VelorExchange;
using namespace VelorExchange::test;
using dxf::CDXFTag;
using dxf::CDXFTagMap;
using dxf::CTagReader;

namespace {

constexpr int kUtf8Version = 1021;

// A map over the groups of a file, given as for `Tags`, and what is known of it as text.
class CObject
{
public:
    explicit CObject(const QByteArray& bytes) : device(std::make_unique<QBuffer>())
    {
        device->setData(bytes);
        device->open(QIODevice::ReadOnly);
        reader = std::make_unique<CTagReader>(*device);
        reader->SetVersion(kUtf8Version);
        reader->StartObject();
        map = std::make_unique<CDXFTagMap>(*reader);
    }
    explicit CObject(const char* tags) : CObject(Tags(tags)) { }

    CDXFTagMap* operator->() { return map.get(); }
    CTagReader& Input() { return *reader; }

    std::string Value(int code) const { return map->Value(code).toStdString(); }
    std::string Split(int code) const { return map->Split(code).join('|').toStdString(); }

    std::string Doubles(int code) const
    {
        std::vector<double> items;
        map->SplitDoubles(code, items);
        std::string text;
        for (const double item : items) {
            text += Shortest(item) + ' ';
        }
        return text;
    }

    std::string Shown(const CDXFTag& tag) const
    {
        return std::to_string(tag.code) + ' ' + reader->Text(tag.value).toStdString();
    }

private:
    std::unique_ptr<QBuffer> device;
    std::unique_ptr<CTagReader> reader;
    std::unique_ptr<CDXFTagMap> map;
};

// The object with all its groups in the map.
CObject Gathered(const char* tags)
{
    CObject object(tags);
    object->ReadObject();
    return object;
}

CObject Chained(const char* tags, CDXFTagMap::CChain chain = {10, 20, 30, 42})
{
    CObject object(tags);
    object->ReadObject(chain);
    return object;
}

} // namespace

TEST(TagMap, KeepsTheValueOfACode)
{
    const CObject object = Gathered("8 WALLS\n62 5\n");
    EXPECT_EQ(object.Value(8), "WALLS");
    EXPECT_EQ(object.Value(62), "5");
}

TEST(TagMap, AbsentCodeGivesTheDefault)
{
    CObject object = Gathered("8 A\n");
    EXPECT_EQ(object->Value(6, QStringLiteral("BYLAYER")), QStringLiteral("BYLAYER"));
    EXPECT_EQ(object->Value(6), QString());
    EXPECT_EQ(object->Int(62, -2), -2);
    EXPECT_EQ(object->Int(62), 0);
    EXPECT_EQ(object->Double(41, 1.0), 1.0);
    EXPECT_EQ(object->Double(41), 0.0);
    EXPECT_FALSE(object->Has(6));
}

TEST(TagMap, EmptyValueIsNotAbsent)
{
    CObject object = Gathered("6\n62\n41\n");
    EXPECT_EQ(object->Value(6, QStringLiteral("BYLAYER")), QString());
    EXPECT_EQ(object->Int(62, -2), 0);
    EXPECT_EQ(object->Double(41, 1.0), 0.0);
    EXPECT_TRUE(object->Has(6));
}

TEST(TagMap, ValuesOfOneCodeAreJoined)
{
    const CObject object = Gathered("3 one\n8 A\n3 two\n3 three\n");
    EXPECT_EQ(object.Value(3), "one;two;three");
    EXPECT_EQ(object.Value(8), "A");
}

TEST(TagMap, ValueReplacesAnEmptyOne)
{
    EXPECT_EQ(Gathered("3\n3\n3 two\n3 three\n").Value(3), "two;three");
}

TEST(TagMap, EmptyValueBehindAnotherLeavesItsJoint)
{
    EXPECT_EQ(Gathered("3 one\n3\n3 three\n3\n").Value(3), "one;;three;");
}

TEST(TagMap, OverwritingDropsAllEarlierValues)
{
    CObject object("72 1\n72 2\n0 END\n72 3\n72 4\n");
    object->ReadObject();
    const CDXFTag third = object.Input().ReadTag();
    object->Store(third, true);
    EXPECT_EQ(object.Value(72), "3");
    object->Store(object.Input().ReadTag());
    EXPECT_EQ(object.Value(72), "3;4");
}

TEST(TagMap, StoringAppendsUnlessToldToOverwrite)
{
    CObject object("72 1\n72 2\n");
    object->Store(object.Input().ReadTag());
    object->Store(object.Input().ReadTag());
    EXPECT_EQ(object.Value(72), "1;2");
}

TEST(TagMap, ClearingForgetsEverything)
{
    CObject object = Gathered("8 A\n62 5\n");
    EXPECT_FALSE(object->IsEmpty());
    object->Clear();
    EXPECT_TRUE(object->IsEmpty());
    EXPECT_FALSE(object->Has(8));
    EXPECT_EQ(object.Split(62), "");
}

TEST(TagMap, CodesThatNoParserAsksForAreNotKept)
{
    CObject object = Gathered("1072 x\n9999 x\n12345 x\nname x\n-5 x\n");
    EXPECT_TRUE(object->IsEmpty());
}

TEST(TagMap, HighestCodeIsKept)
{
    EXPECT_EQ(Gathered("1071 x\n").Value(1071), "x");
}

TEST(TagMap, NumbersConvert)
{
    CObject object = Gathered("62 -7\n40 2.5\n41 1e3\n70 +4\n");
    EXPECT_EQ(object->Int(62), -7);
    EXPECT_EQ(object->Double(40), 2.5);
    EXPECT_EQ(object->Double(41), 1000.0);
    EXPECT_EQ(object->Int(70), 4);
}

TEST(TagMap, NumberThatDoesNotConvertIsZero)
{
    CObject object = Gathered("62 red\n63 2.0\n40 1,5\n64 99999999999\n65 0x10\n");
    EXPECT_EQ(object->Int(62, 9), 0);
    EXPECT_EQ(object->Int(63, 9), 0);
    EXPECT_EQ(object->Double(40, 9.0), 0.0);
    EXPECT_EQ(object->Int(64, 9), 0);
    EXPECT_EQ(object->Int(65, 9), 0);
}

TEST(TagMap, JoinedNumbersDoNotConvert)
{
    CObject object = Gathered("62 1\n62 2\n40 1.5\n40 2.5\n43 1.5;2.5\n71 1;2\n");
    EXPECT_EQ(object->Int(62, 9), 0);
    EXPECT_EQ(object->Double(40, 9.0), 0.0);
    EXPECT_EQ(object->Double(43, 9.0), 0.0);
    EXPECT_EQ(object->Int(71, 9), 0);
}

TEST(TagMap, NumberWithAnEmptyOneBehindItDoesNotConvert)
{
    CObject object = Gathered("62 1\n62\n40 1.5\n40\n");
    EXPECT_EQ(object->Int(62, 9), 0);
    EXPECT_EQ(object->Double(40, 9.0), 0.0);
}

TEST(TagMap, SplitTakesValuesApart)
{
    const CObject object = Gathered("10 1.5\n10 -2\n10 x\n");
    EXPECT_EQ(object.Split(10), "1.5|-2|x");
    EXPECT_EQ(object.Doubles(10), "1.5 -2 0 ");
}

TEST(TagMap, SplitSkipsEmptyParts)
{
    const CObject object = Gathered("10\n10 1\n10\n10 ;\n10 2;;3\n10 ;4;\n");
    EXPECT_EQ(object.Split(10), "1|2|3|4");
    EXPECT_EQ(object.Doubles(10), "1 2 3 4 ");
}

TEST(TagMap, SplitOfAbsentCodeIsEmpty)
{
    const CObject object = Gathered("8 A\n");
    EXPECT_EQ(object.Split(10), "");
    EXPECT_EQ(object.Doubles(10), "");
}

TEST(TagMap, PartsKeepTheirBlanks)
{
    const CObject object = Gathered("10 1 ; 2\n");
    EXPECT_EQ(object.Split(10), "1 | 2");
    EXPECT_EQ(object.Doubles(10), "1 2 ");
}

TEST(TagMap, ByteOrderMarkBehindAJointStays)
{
    // Decoding drops the mark at the start of a line, and nowhere else.
    const CObject object = Gathered("40 1;\xEF\xBB\xBF"
                                    "2\n41 \xEF\xBB\xBF"
                                    "1;2\n");
    EXPECT_EQ(object.Split(40),
              "1|\xEF\xBB\xBF"
              "2");
    EXPECT_EQ(object.Doubles(40), "1 0 ");
    EXPECT_EQ(object.Split(41), "1|2");
    EXPECT_EQ(object.Doubles(41), "1 2 ");
}

TEST(TagMap, PointsAreTakenFromTheirCodes)
{
    CObject object = Gathered("10 1\n20 2\n30 3\n11 4\n");
    const CPoint2D inPlan = object->Point2D(10, 20);
    const CPoint3D inSpace = object->Point3D(10, 20, 30);
    EXPECT_EQ(inPlan.x, 1.0);
    EXPECT_EQ(inPlan.y, 2.0);
    EXPECT_EQ(inSpace.z, 3.0);
    EXPECT_EQ(object->Point2D(11, 21).x, 4.0);
    EXPECT_EQ(object->Point2D(11, 21).y, 0.0);
    EXPECT_EQ(object->Point3D(12, 22, 32).z, 0.0);
}

TEST(TagMap, ExtrusionIsZeroWhereItIsAbsent)
{
    CObject with = Gathered("210 0.1\n220 0.2\n230 -1\n");
    CObject without = Gathered("8 A\n");
    EXPECT_EQ(with->Extrusion().x, 0.1);
    EXPECT_EQ(with->Extrusion().y, 0.2);
    EXPECT_EQ(with->Extrusion().z, -1.0);
    EXPECT_EQ(without->Extrusion().x, 0.0);
    EXPECT_EQ(without->Extrusion().z, 0.0);
}

TEST(TagMap, SingleIsAValueThatCameOnce)
{
    CObject object = Gathered("8 A\n6 X\n6 Y\n7\n");
    dxf::CTextSpan span{};
    EXPECT_TRUE(object->Single(8, span));
    EXPECT_EQ(object.Input().Bytes(span), "A");
    EXPECT_TRUE(object->Single(7, span));
    EXPECT_FALSE(object->Single(6, span));
    EXPECT_FALSE(object->Single(5, span));
}

TEST(TagMap, ObjectEndsBeforeTheNextZero)
{
    CObject object("8 A\n62 5\n0 LINE\n8 B\n");
    EXPECT_EQ(object.Shown(object->ReadObject()), "0 LINE");
    EXPECT_EQ(object.Value(8), "A");
    EXPECT_FALSE(object->Has(0));
    EXPECT_EQ(object.Shown(object.Input().ReadTag()), "8 B");
}

TEST(TagMap, NewObjectForgetsTheOneBefore)
{
    CObject object("8 A\n62 5\n0 LINE\n8 B\n0 END\n");
    object->ReadObject();
    object->ReadObject();
    EXPECT_EQ(object.Value(8), "B");
    EXPECT_FALSE(object->Has(62));
}

TEST(TagMap, ObjectAtTheEndOfTheFileGivesItsLastTagStoredToo)
{
    CObject object("8 A\n62 5\n");
    EXPECT_EQ(object.Shown(object->ReadObject()), "62 5");
    EXPECT_EQ(object.Value(62), "5");
}

TEST(TagMap, ObjectBehindTheEndIsAnEmptyTag)
{
    CObject object("");
    EXPECT_EQ(object->ReadObject().code, CDXFTag::kNoCode);
    EXPECT_TRUE(object->IsEmpty());
}

TEST(TagMap, EmptyCodeInsideAnObjectIsOneMoreTag)
{
    CObject object(Tags("8 A\n") + "\r\nlost\r\n" + Tags("62 5\n0 END\n"));
    EXPECT_EQ(object.Shown(object->ReadObject()), "0 END");
    EXPECT_EQ(object.Value(8), "A");
    EXPECT_EQ(object.Value(62), "5");
}

TEST(TagMap, ReadUntilStopsAtAnyOfItsCodes)
{
    CObject object("8 A\n91 2\n62 5\n0 END\n");
    EXPECT_EQ(object.Shown(object->ReadUntil({0, 91})), "91 2");
    EXPECT_FALSE(object->Has(91));
    EXPECT_EQ(object.Shown(object->ReadUntil({0, 91})), "0 END");
    EXPECT_EQ(object.Value(8), "A"); // not cleared
    EXPECT_EQ(object.Value(62), "5");
}

TEST(TagMap, ReadUntilAtTheEndGivesTheLastTag)
{
    CObject object("8 A\n");
    EXPECT_EQ(object.Shown(object->ReadUntil({0})), "8 A");
    EXPECT_EQ(object.Shown(object->ReadUntil({0})), "-1 ");
    EXPECT_EQ(object.Value(8), "A");
}

TEST(TagMap, ReadWhileStopsAtTheFirstOtherCode)
{
    CObject object("10 1\n20 2\n10 3\n120 4\n20 5\n");
    EXPECT_EQ(object.Shown(object->ReadWhile({10, 20})), "120 4"); // exact, not a part of the code
    EXPECT_EQ(object.Value(10), "1;3");
    EXPECT_EQ(object.Value(20), "2");
    EXPECT_FALSE(object->Has(120));
}

TEST(TagMap, ReadWhileAtTheEndGivesAnEmptyTag)
{
    CObject object("10 1\n");
    EXPECT_EQ(object->ReadWhile({10, 20}).code, CDXFTag::kNoCode);
    EXPECT_EQ(object.Value(10), "1");
}

TEST(TagMap, ChainFillsInWhatARepetitionLeavesOut)
{
    const CObject object = Chained("10 1\n20 2\n10 3\n20 4\n42 0.5\n10 5\n20 6\n30 7\n0 END\n");
    EXPECT_EQ(object.Doubles(10), "1 3 5 ");
    EXPECT_EQ(object.Doubles(20), "2 4 6 ");
    EXPECT_EQ(object.Doubles(30), "0 0 7 ");
    EXPECT_EQ(object.Doubles(42), "0 0.5 0 ");
    EXPECT_EQ(object.Split(42), "0|0.5|0");
    EXPECT_EQ(object.Value(30), "0;0;7");
}

TEST(TagMap, ChainOfOneRepetitionReadsAsSingleValues)
{
    CObject object = Chained("10 1\n20 2\n0 END\n");
    EXPECT_EQ(object->Double(42, 9.0), 0.0);
    EXPECT_EQ(object.Value(42), "0");
    EXPECT_EQ(object->Int(42, 9), 0);
}

TEST(TagMap, CodesOutOfOrderInARepetitionAreStoredBehindTheFillers)
{
    // 42 ends the search for 20 and 30, then 20 comes as a tag of the object.
    const CObject object = Chained("10 1\n42 0.5\n20 2\n10 3\n20 4\n0 END\n");
    EXPECT_EQ(object.Split(20), "0|2|4");
    EXPECT_EQ(object.Split(30), "0|0");
    EXPECT_EQ(object.Split(42), "0.5|0");
}

TEST(TagMap, TagThatEndsARepetitionIsAnOrdinaryOne)
{
    const CObject object = Chained("10 1\n20 2\n8 A\n62 5\n10 3\n0 END\n");
    EXPECT_EQ(object.Value(8), "A");
    EXPECT_EQ(object.Value(62), "5");
    EXPECT_EQ(object.Split(10), "1|3");
    EXPECT_EQ(object.Split(20), "2|0");
}

TEST(TagMap, ZeroEndsAnObjectInTheMiddleOfARepetition)
{
    CObject object("10 1\n0 LINE\n20 2\n");
    EXPECT_EQ(object.Shown(object->ReadObject({10, 20, 30})), "0 LINE");
    EXPECT_EQ(object.Split(20), "0");
    EXPECT_EQ(object.Split(30), "0");
}

TEST(TagMap, ZeroEndsAnObjectBehindACompleteRepetition)
{
    CObject object("10 1\n20 2\n0 LINE\n20 2\n");
    EXPECT_EQ(object.Shown(object->ReadObject({10, 20})), "0 LINE");
    EXPECT_EQ(object.Split(20), "2");
}

TEST(TagMap, CodeThatContainsThePatternsPassesUnderItsOwnCode)
{
    const CObject object = Chained("10 1\n120 7\n30 3\n42 4\n0 END\n");
    EXPECT_EQ(object.Split(20), "");
    EXPECT_EQ(object.Value(120), "7");
    EXPECT_EQ(object.Split(30), "3");
}

TEST(TagMap, FirstCodeOfAPatternIsComparedExactly)
{
    const CObject object = Chained("110 1\n20 2\n0 END\n");
    EXPECT_EQ(object.Value(110), "1");
    EXPECT_EQ(object.Value(20), "2");
    EXPECT_EQ(object.Split(30), "");
}

TEST(TagMap, FileEndingInARepetitionFillsItUp)
{
    CObject object("10 1\n20 2\n");
    EXPECT_EQ(object.Shown(object->ReadObject({10, 20, 30, 42})), "-1 ");
    EXPECT_EQ(object.Split(30), "0");
    EXPECT_EQ(object.Split(42), "0");
}

TEST(TagMap, FileEndingBehindARepetitionGivesAnEmptyTag)
{
    CObject object("10 1\n20 2\n");
    EXPECT_EQ(object.Shown(object->ReadObject({10, 20})), "-1 ");
    EXPECT_EQ(object.Split(20), "2");
}

TEST(TagMap, PatternOfOneCodeReadsOn)
{
    CObject object("10 1\n10 2\n8 A\n0 END\n");
    EXPECT_EQ(object.Shown(object->ReadObject({10})), "0 END");
    EXPECT_EQ(object.Split(10), "1|2");
    EXPECT_EQ(object.Value(8), "A");
}

TEST(TagMap, EmptyValueInARepetitionShortensTheList)
{
    const CObject object = Chained("10 1\n20\n10 2\n20 3\n0 END\n");
    EXPECT_EQ(object.Split(10), "1|2");
    EXPECT_EQ(object.Split(20), "3");
}

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
                                             "\xC2\xA0"
                                             "10"};
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
std::string Shown(const CObject& object, CDXFTagMap* map)
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
        CObject object(bytes);
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
    CObject object(bytes + Tags("0 END\n"));
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
