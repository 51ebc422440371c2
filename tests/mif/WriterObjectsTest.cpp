// SPDX-License-Identifier: MIT
#include "tests/support/MifWriting.h"

#include <cmath>
#include <limits>

using namespace VelorExchange;
using namespace VelorExchange::mif;
using namespace VelorExchange::test;

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kLargest = std::numeric_limits<double>::max();

CPolylineMIF Polyline(std::vector<CPoint2D> points)
{
    CPolylineMIF line;
    line.points = std::move(points);
    return line;
}

CRegionMIF Region(std::vector<CPoint2D> points)
{
    CRegionMIF region;
    region.points = std::move(points);
    return region;
}

CTextMIF Text(const char* text)
{
    CTextMIF record;
    record.text = QString::fromUtf8(text);
    record.corner1 = {1, 2};
    record.corner2 = {3, 5};
    return record;
}

std::string Bounds(const CMifWriting& writing)
{
    writing.Rewrite();
    const std::string text = writing.File("a.MIF");
    const auto begin = text.find("Bounds");
    return text.substr(begin, text.find('\n', begin) - begin);
}

// Swaps the coordinates and shifts them, or gives what is no number.
class CShift final : public IMIFWriter::IContext
{
public:
    CPoint2D TransformPoint(const CPoint2D& point) override
    {
        ++calls;
        return broken ? CPoint2D{kNan, 0} : CPoint2D{point.y + 100, point.x + 200};
    }
    bool broken = false;
    int calls = 0;
};

} // namespace

TEST(WriterObjects, PolylineIsWrittenLineByLine)
{
    CMifWriting writing;
    CPolylineMIF line = Polyline({{1, 2}, {3.03125, -4}, {5, 6}});
    line.pen = {3, 7, 0x563412};
    line.smooth = true;
    EXPECT_TRUE(writing->AddPolyline(line, kLayer));
    EXPECT_EQ(writing.Data(),
              "PLINE\n3\n1.0000 2.0000\n3.0313 -4.0000\n5.0000 6.0000\n"
              "PEN (3, 7, 1193046)\n");
}

TEST(WriterObjects, PolylineNeedsTwoPoints)
{
    CMifWriting writing;
    EXPECT_FALSE(writing->AddPolyline(Polyline({{1, 2}}), kLayer));
    EXPECT_FALSE(writing->AddPolyline(Polyline({}), kLayer));
    writing.Rewrite();
    EXPECT_EQ(writing.File("a.MIF"), "missing");
}

TEST(WriterObjects, RegionHasAFixedPen)
{
    CMifWriting writing;
    CRegionMIF region = Region({{1, 2}, {3, 4}, {5, 6}});
    region.pen = {9, 9, 9};
    region.brush = {2, 0x0000FF, 0xFF0000};
    region.center = {7, 8};
    EXPECT_TRUE(writing->AddRegion(region, kLayer));
    EXPECT_EQ(writing.Data(),
              "REGION 1\n3\n1.0000 2.0000\n3.0000 4.0000\n5.0000 6.0000\n"
              "PEN (1, 1, 0)\nBRUSH (2, 255, 16711680)\n");
}

TEST(WriterObjects, RegionNeedsThreePoints)
{
    CMifWriting writing;
    EXPECT_FALSE(writing->AddRegion(Region({{1, 2}, {3, 4}}), kLayer));
}

TEST(WriterObjects, PointWithoutShapeHasNoSymbol)
{
    CMifWriting writing;
    CPointMIF point;
    point.position = {1, 2};
    point.symbol.font = QStringLiteral("f");
    EXPECT_TRUE(writing->AddPoint(point, kLayer));
    point.symbol.shape = -1;
    EXPECT_TRUE(writing->AddPoint(point, kLayer));
    EXPECT_EQ(writing.Data(), "POINT 1.0000 2.0000\nPOINT 1.0000 2.0000\n");
}

TEST(WriterObjects, SymbolHasThreeFieldsWithoutAFontAndSixWithOne)
{
    CMifWriting writing;
    CPointMIF point;
    point.symbol.shape = 34;
    point.symbol.color = 0xFF0000;
    point.symbol.angle = 1;
    EXPECT_TRUE(writing->AddPoint(point, kLayer));
    point.symbol.font = QStringLiteral("Map %2 Symbols");
    point.symbol.style = 5;
    point.symbol.angle = 3.141592653589793 / 2;
    EXPECT_TRUE(writing->AddPoint(point, kLayer));
    EXPECT_EQ(writing.Data(),
              "POINT 0.0000 0.0000\nSYMBOL (34, 255, 12)\n"
              "POINT 0.0000 0.0000\n"
              "SYMBOL (34, 255, 12, \"Map %2 Symbols\", 5, 90.0000)\n");
}

TEST(WriterObjects, TextIsWrittenWithItsFont)
{
    CMifWriting writing;
    CTextMIF text = Text("say \"%1\"");
    text.font = {QStringLiteral("Times New Roman"), 3, 0x0000FF, 0xFFFFFF, 12.0};
    text.spacing = 2;
    text.justify = 2;
    text.labelArrow = 1;
    EXPECT_TRUE(writing->AddText(text, kLayer));
    EXPECT_EQ(writing.Data(),
              "TEXT \"say \"\"%1\"\"\"\n1.0000 2.0000 3.0000 5.0000\n"
              "FONT (\"Times New Roman\", 3, 0, 16711680)\n");
}

TEST(WriterObjects, SmallAngleIsNotWritten)
{
    CMifWriting writing;
    CTextMIF text = Text("t");
    for (const double angle : {0.0005, -0.0005, 0.001, -0.5}) {
        text.angle = angle;
        EXPECT_TRUE(writing->AddText(text, kLayer));
    }
    const std::string bare = "TEXT \"t\"\n1.0000 2.0000 3.0000 5.0000\nFONT (\"Arial\", 0, 0, 0)\n";
    EXPECT_EQ(writing.Data(), bare + bare + bare + "Angle 0.0573\n" + bare + "Angle -28.6479\n");
}

TEST(WriterObjects, TextReachesRightLeftAndDown)
{
    CMifWriting writing;
    EXPECT_TRUE(writing->AddText(Text("t"), kLayer));
    // Width 2 around (1, 2): x from -1 to 3, y from 0 to the second corner's 5.
    EXPECT_EQ(Bounds(writing), "Bounds (-1.0000, 5.0000) (3.0000, 0.0000)");
}

TEST(WriterObjects, TextBoundsTakeTheWidthOfTheOutput)
{
    CShift context;
    CMifWriting writing(&context);
    EXPECT_TRUE(writing->AddText(Text("t"), kLayer));
    EXPECT_EQ(context.calls, 2);
    // The mapped x differ by 3: stored x from -2 to 4, stored y from -1 to 5.
    EXPECT_EQ(Bounds(writing), "Bounds (105.0000, 198.0000) (99.0000, 204.0000)");
}

TEST(WriterObjects, BoundsHoldAllPointsInStoredCoordinates)
{
    CMifWriting writing;
    CPointMIF point;
    for (const CPoint2D& position : {CPoint2D{5, 5}, CPoint2D{-5, 7}, CPoint2D{0, -9}}) {
        point.position = position;
        EXPECT_TRUE(writing->AddPoint(point, kLayer));
    }
    EXPECT_EQ(Bounds(writing), "Bounds (-5.0000, 7.0000) (5.0000, -9.0000)");
}

TEST(WriterObjects, ContextMapsEveryCoordinate)
{
    CShift context;
    CMifWriting writing(&context);
    EXPECT_TRUE(writing->AddPolyline(Polyline({{1, 2}, {3, 4}}), kLayer));
    EXPECT_TRUE(writing->AddText(Text("t"), kLayer));
    EXPECT_EQ(writing.Data(),
              "PLINE\n2\n102.0000 201.0000\n104.0000 203.0000\nPEN (1, 2, 0)\n"
              "TEXT \"t\"\n102.0000 201.0000 105.0000 203.0000\n"
              "FONT (\"Arial\", 0, 0, 0)\n");
}

TEST(WriterObjects, PrecisionHoldsForCoordinatesAndAngles)
{
    CMifWriting writing;
    EXPECT_EQ(writing->GetPrecision(), 4);
    CTextMIF text = Text("t");
    text.angle = 1;
    for (const int digits : {0, 17, -1, 30}) {
        writing->SetPrecision(digits);
        EXPECT_EQ(writing->GetPrecision(), digits);
        EXPECT_TRUE(writing->AddText(text, kLayer));
    }
    const auto block = [](int digits) {
        const auto shown = [digits](double value) {
            return QString::number(value, 'f', digits).toStdString();
        };
        return "TEXT \"t\"\n" + shown(1) + ' ' + shown(2) + ' ' + shown(3) + ' ' + shown(5)
            + "\nFONT (\"Arial\", 0, 0, 0)\nAngle " + shown(180.0 / 3.141592653589793) + '\n';
    };
    EXPECT_EQ(writing.Data(), block(0) + block(17) + block(-1) + block(30));
}

TEST(WriterObjects, NumbersThatAreNotFiniteAreRefused)
{
    CMifWriting writing;
    for (const double bad : {kNan, kInfinity, -kInfinity}) {
        EXPECT_FALSE(writing->AddPolyline(Polyline({{1, 2}, {bad, 4}}), kLayer));
        EXPECT_FALSE(writing->AddRegion(Region({{1, 2}, {3, bad}, {5, 6}}), kLayer));
        CPointMIF point;
        point.position = {bad, 0};
        EXPECT_FALSE(writing->AddPoint(point, kLayer));
        CTextMIF text = Text("t");
        text.corner2.y = bad;
        EXPECT_FALSE(writing->AddText(text, kLayer));
    }
    writing.Rewrite();
    EXPECT_EQ(writing.File("a.MIF"), "missing");
    EXPECT_EQ(writing.Report(), "");
}

TEST(WriterObjects, AngleThatIsNotFiniteIsRefusedOnlyWhereItIsWritten)
{
    CMifWriting writing;
    CPointMIF point;
    point.symbol.angle = kNan;
    point.symbol.shape = 34;
    EXPECT_TRUE(writing->AddPoint(point, kLayer));
    point.symbol.font = QStringLiteral("f");
    EXPECT_FALSE(writing->AddPoint(point, kLayer));
    CTextMIF text = Text("t");
    text.angle = kLargest; // in degrees it is none
    EXPECT_FALSE(writing->AddText(text, kLayer));
    text.angle = kNan;
    EXPECT_TRUE(writing->AddText(text, kLayer));
}

TEST(WriterObjects, AttributeThatIsNotFiniteIsRefused)
{
    CMifWriting writing;
    CPointMIF point;
    for (const QVariant& bad :
         {QVariant(kNan), QVariant(-kInfinity), QVariant::fromValue(static_cast<float>(kInfinity))})
    {
        point.attributes = {{QStringLiteral("n"), 1}, {QStringLiteral("a"), bad}};
        EXPECT_FALSE(writing->AddPoint(point, kLayer));
    }
    point.attributes = {{QStringLiteral("a"), QStringLiteral("nan")}};
    EXPECT_TRUE(writing->AddPoint(point, kLayer));
    writing.Rewrite();
    EXPECT_EQ(writing.File("a.MID"), "\"nan\"\n");
}

TEST(WriterObjects, BoundsThatWouldNotBeFiniteAreRefused)
{
    CMifWriting writing;
    EXPECT_FALSE(writing->AddPolyline(Polyline({{-kLargest, 0}, {kLargest, 0}}), kLayer));
    CPointMIF point;
    point.position.x = kLargest;
    EXPECT_TRUE(writing->AddPoint(point, kLayer));
    point.position.x = -kLargest;
    EXPECT_FALSE(writing->AddPoint(point, kLayer));
}

TEST(WriterObjects, ContextThatGivesNoNumberIsRefused)
{
    CShift context;
    context.broken = true;
    CMifWriting writing(&context);
    EXPECT_FALSE(writing->AddPoint(CPointMIF(), kLayer));
}

TEST(WriterObjects, KindsAreCountedInTheLog)
{
    CMifWriting writing;
    writing->AddText(Text("t"), kLayer);
    writing->AddPolyline(Polyline({{1, 2}, {3, 4}}), kLayer);
    writing->AddPolyline(Polyline({{1, 2}, {3, 4}}), kLayer);
    writing->AddRegion(Region({{1, 2}, {3, 4}, {5, 6}}), kLayer);
    writing->AddPoint(CPointMIF(), QStringLiteral("a/b"));
    const std::string rule = '\n' + std::string(59, '-');
    EXPECT_EQ(writing.Report(),
              "\nЭкспорт в файл - a.MIF" + rule + "\nЗаписаны в файл полилинии - 2" + rule
                  + "\nЗаписаны в файл регионы - 1" + rule + "\nЗаписаны в файл тексты - 1" + rule
                  + "\nЭкспорт в файл - a_b.MIF" + rule + "\nЗаписаны в файл точки - 1" + rule);
}

TEST(WriterObjects, TextGoesThroughTheLocalCodec)
{
    QTextCodec* const before = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1251"));
    CMifWriting writing;
    EXPECT_TRUE(writing->AddText(Text("Дом"), kLayer));
    QTextCodec::setCodecForLocale(before);
    EXPECT_EQ(writing.Data().substr(0, 11), "TEXT \"\xC4\xEE\xEC\"\n");
}
