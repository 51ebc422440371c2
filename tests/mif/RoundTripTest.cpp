// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"
#include "tests/support/MifWriting.h"
#include "VelorExchange/mif/Read.h"

using namespace VelorExchange;
using namespace VelorExchange::mif;
using namespace VelorExchange::test;

namespace {

// The calls of reading what was written into the layer "a".
std::string ReadBack(const CMifWriting& writing)
{
    writing.Rewrite();
    CMifRecorder recorder;
    const bool result = Read(writing.Name("a"), &recorder);
    return recorder.text + (result ? "" : "false\n");
}

// Writes what it reads.
class CCopier final : public IMIFReader
{
public:
    explicit CCopier(IMIFWriter& target) : writer(target) { }
    void AddArc(const CArcMIF&) override { }
    void AddRoundRect(const CRoundRectMIF&) override { }
    void AddEllipse(const CRectMIF&) override { }
    void AddRect(const CRectMIF&) override { }
    void AddText(const CTextMIF& text) override { writer.AddText(text, kLayer); }
    void AddPolyline(const CPolylineMIF& line) override { writer.AddPolyline(line, kLayer); }
    void AddRegion(const CRegionMIF& region) override { writer.AddRegion(region, kLayer); }
    void AddPoint(const CPointMIF& point) override { writer.AddPoint(point, kLayer); }
    void SetProgressRange(int) override { }
    void SetProgress(int) override { }
    void Finish() override { }

private:
    IMIFWriter& writer;
};

// What comes back after reading `data`, writing that and reading it again.
std::string Copied(const QByteArray& data)
{
    const CMifPair pair("Data\n" + data);
    CMifWriting writing;
    CCopier copier(*writing.operator->());
    EXPECT_TRUE(Read(pair.Path(), &copier));
    return ReadBack(writing);
}

} // namespace

TEST(RoundTrip, PolylineComesBack)
{
    EXPECT_EQ(Copied("PLine 3\n1 2\n3 4.5\n5 6\nPen (3,5,255)\n"),
              "AddPolyline (1 2)(3 4.5)(5 6) pen=3,5,#ff0000\n");
}

TEST(RoundTrip, SmoothDoesNotComeBack)
{
    EXPECT_EQ(Copied("PLine 2\n1 2\n3 4\nSmooth\n"), "AddPolyline (1 2)(3 4)\n");
}

TEST(RoundTrip, RegionComesBackWithTheFixedPenAndWithoutCenter)
{
    EXPECT_EQ(
        Copied("Region 1\n3\n1 2\n3 4\n5 6\nPen (3,5,255)\nBrush (2,255,65280)\nCenter 1 1\n"),
        "AddRegion (1 2)(3 4)(5 6) brush=2,#ff0000,#00ff00 pen=1,1,#000000\n");
}

TEST(RoundTrip, PointComesBack)
{
    EXPECT_EQ(Copied("Point 1 2\n"), "AddPoint (1 2)\n");
    EXPECT_EQ(Copied("Point 1 2\nSymbol (34,255,9,\"My Font\",4,90)\n"),
              "AddPoint (1 2) symbol=34,#ff0000,9,<My Font>,4,1.5707963267948966\n");
}

TEST(RoundTrip, SymbolOfThreeFieldsComesBackWithSix)
{
    EXPECT_EQ(Copied("Point 1 2\nSymbol (34,255,9)\n"),
              "AddPoint (1 2) symbol=34,#ff0000,9,<шрифт не задан>,0,0\n");
}

TEST(RoundTrip, PictureSymbolDoesNotComeBack)
{
    EXPECT_EQ(Copied("Point 1 2\nSymbol (\"tree.bmp\",255,9,1)\n"), "AddPoint (1 2)\n");
}

TEST(RoundTrip, TextComesBack)
{
    EXPECT_EQ(
        Copied("Text\n\"some words\"\n1 2 3 4\nFont (\"A B\",3,7,255)\nAngle 90\nJustify Right\n"),
        "AddText <some words> (1 2)(3 4) angle=1.5707963267948966"
        " font=AB,3,0,#ff0000,#ffffff\n");
}

TEST(RoundTrip, TextIsCutAtItsFirstQuoteOrApostrophe)
{
    EXPECT_EQ(Copied("Text\n\"it's\"\n1 2 3 4\n"),
              "AddText <it> (1 2)(3 4) font=Arial,0,0,#000000,#ffffff\n");
}

TEST(RoundTrip, AttributesComeBackWithTheirTypes)
{
    const CMifPair pair("Columns 5\na Char (10)\nb Integer\nc Smallint\nd Decimal (5, 2)\ne Float\n"
                        "Data\nPoint 1 2\nPoint 3 4\n",
                        "\"x;y\"\t1\t2\t3.5\t4.5\n\t\t\t\t\n");
    CMifWriting writing;
    CCopier copier(*writing.operator->());
    ASSERT_TRUE(Read(pair.Path(), &copier));
    EXPECT_EQ(ReadBack(writing),
              "AddPoint (1 2) [a=QString:x;y] [b=int:1] [c=short:2]"
              " [d=double:3.5] [e=float:4.5]\nAddPoint (3 4)\n");
}

TEST(RoundTrip, DateColumnDoesNotSurvive)
{
    const CMifPair pair("Columns 1\na Date\nData\nPoint 1 2\n", "Sat May 20 1995\n");
    CMifWriting writing;
    CCopier copier(*writing.operator->());
    ASSERT_TRUE(Read(pair.Path(), &copier));
    EXPECT_EQ(ReadBack(writing), "false\n");
}

TEST(RoundTrip, CyrillicComesBackInEveryCodec)
{
    for (const char* codec : {"windows-1251", "UTF-8", "IBM866", "KOI8-R"}) {
        const CLocalCodec local(codec);
        CMifWriting writing;
        CTextMIF text;
        text.text = QStringLiteral("Дом");
        text.AddAttribute({QStringLiteral("Улица"), Char}, QStringLiteral("Садовая"));
        EXPECT_TRUE(writing->AddText(text, kLayer));
        EXPECT_EQ(ReadBack(writing),
                  "AddText <Дом> (0 0)(0 0) font=Arial,0,0,#000000,#ffffff"
                  " [Улица=QString:Садовая]\n")
            << codec;
    }
}
