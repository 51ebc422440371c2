// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/ExportLog.h"

#include "PnrLocalCodec.h"
#include "PnrWriting.h"

#include <limits>

using namespace VelorExchange::pnr;
using VelorExchange::CExportLog;
using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

CPnrWriting::COptions TextForm()
{
    CPnrWriting::COptions options;
    options.text = true;
    return options;
}

// What stands between the frame and ".END".
QByteArray Objects(const QByteArray& file)
{
    const int frame = file.indexOf(".OBJ 91000000 LIN\n");
    int start = frame;
    for (int line = 0; line < 8; ++line) {
        start = file.indexOf('\n', start) + 1;
    }
    EXPECT_TRUE(file.endsWith(".END\n"));
    return file.mid(start, file.size() - start - 5);
}

template <class Object>
QByteArray LinesOf(Object& object, bool (IPnrWriter::*write)(Object*),
                   const CPnrWriting::COptions& options = TextForm())
{
    CPnrWriting writing(options);
    EXPECT_TRUE((writing.operator->()->*write)(&object));
    const QByteArray file = writing.Close();
    EXPECT_TRUE(writing.Closed());
    return Objects(file);
}

QByteArray LinesOf(CLineObject& line)
{
    return LinesOf(line, &IPnrWriter::WriteLine);
}

QByteArray LinesOf(CTextObject& text)
{
    return LinesOf(text, &IPnrWriter::WriteText);
}

std::unique_ptr<CLineObject> PlainLine()
{
    auto line = std::make_unique<CLineObject>();
    line->code = 51;
    line->holders.push_back(Plan({{1, 2}, {3.5, 4}}));
    return line;
}

std::unique_ptr<CTextObject> PlainText(const QString& words)
{
    auto text = std::make_unique<CTextObject>();
    text->text = words;
    text->hasOwnImage = false;
    text->holders.push_back(Plan({{1, 2}}));
    return text;
}

const char* const kPlainLine = ".OBJ 51 LIN\n.KEY 1\n.SCL ON\n2\n1.0000 2.0000\n3.5000 4.0000\n";

} // namespace

// ---- File --------------------------------------------------------------------------------------

TEST(PnrTxtWriter, CloseWithNoObjectCreatesNoTarget)
{
    CExportLog log;
    CPnrWriting::COptions options = TextForm();
    options.log = &log;
    CPnrWriting writing(options);
    EXPECT_TRUE(writing.Close().isNull());
    EXPECT_TRUE(writing.Closed());
    QString report;
    EXPECT_LE(log.GetText(report), 19);
}

TEST(PnrTxtWriter, WritesPassportFrameAndObjects)
{
    const CLocalCodec codec("UTF-8");
    CPnrWriting writing(TextForm());
    EXPECT_TRUE(writing->WriteLine(PlainLine().get()));
    EXPECT_EQ(WithoutDate(writing.Close()).toStdString(),
              ".SXF 4.0\n\nP000 \xCA\xE0\xF0\xF2\xE0\n\nP001 \xCA\xE0\xF0\xF2\xE0\n\nP002 5\n\n"
              "P109 0.0000 1.0000\nP110 3.5000 1.0000\nP111 3.5000 4.0000\nP112 0.0000 4.0000\n"
              "\nP120 3\nP207 5000\n\nP301 YYYYMMDD\nP307 YYYYMMDD\nP302 1\nP303 1\n\n"
              ".DAT 2\n\n"
              ".OBJ 91000000 LIN\n.KEY 2\n5\n0.0000 1.0000\n3.5000 1.0000\n3.5000 4.0000\n"
              "0.0000 4.0000\n0.0000 1.0000\n"
                  + std::string(kPlainLine) + ".END\n");
}

TEST(PnrTxtWriter, StartsAUserMapWithItsOwnWord)
{
    CPnrWriting::COptions options = TextForm();
    options.userMap = true;
    CPnrWriting writing(options);
    writing->WriteLine(PlainLine().get());
    EXPECT_TRUE(writing.Close().startsWith(".SIT 4.0\n\nP000 "));
}

TEST(PnrTxtWriter, TakesPlacesInNamesAsTheyAre)
{
    CPnrWriting::COptions options = TextForm();
    options.params.name = QStringLiteral("%1 %2");
    CPnrWriting writing(options);
    writing->WriteLine(PlainLine().get());
    EXPECT_TRUE(writing.Close().startsWith(".SXF 4.0\n\nP000 %1 %2\n\nP001 %1 %2\n\n"));
}

TEST(PnrTxtWriter, WritesNumbersWithThePrecision)
{
    for (const auto& [digits, expected] :
         {std::pair<int, const char*>{0, "1\n-0 2\n"},
          {1, "1\n-0.1 2.0\n"},
          {20, "1\n-0.06250000000000000000 2.00000000000000000000\n"}})
    {
        CPnrWriting writing(TextForm());
        writing->SetPrecision(digits);
        EXPECT_EQ(writing->GetPrecision(), digits);
        CLineObject line;
        line.holders.push_back(Plan({{-0.0625, 2}}));
        writing->WriteLine(&line);
        EXPECT_EQ(Objects(writing.Close()), QByteArray(".OBJ 0 LIN\n.KEY 1\n.SCL ON\n") + expected);
    }
}

// ---- Lines, areas, points ----------------------------------------------------------------------

TEST(PnrTxtWriter, WritesALineWithItsDrawing)
{
    const auto line = PlainLine();
    line->layer = QStringLiteral("roads");
    line->image = std::make_unique<PnrLineImage>(PnrLineImage{-5, 2000});
    EXPECT_EQ(LinesOf(*line),
              ".OBJ 51 LIN\n.KEY 1\n.SCL ON\n.SEG roads\n2\n1.0000 2.0000\n3.5000 4.0000\n"
              ".IMG 1\n_LINE 2\nCOLOR -5\nTHICK 2000\n");
}

TEST(PnrTxtWriter, WritesNoSubContourLineForOneContour)
{
    EXPECT_EQ(LinesOf(*PlainLine()), kPlainLine);
}

TEST(PnrTxtWriter, WritesSubContoursBehindTheirCount)
{
    const auto line = PlainLine();
    line->holders.push_back(Space({{5, 6, 7}}));
    line->holders.push_back(Plan({}));
    EXPECT_EQ(LinesOf(*line),
              ".OBJ 51 LIN\n.KEY 1\n.SCL ON\n.MET 2\n2\n1.0000 2.0000\n3.5000 4.0000\n"
              "1\n5.0000 6.0000 7.0000\n0\n");
}

TEST(PnrTxtWriter, WritesAnAreaWithItsDrawing)
{
    CSquareObject square;
    square.holders.push_back(Plan({{1, 2}}));
    square.image = std::make_unique<PnrSquareImage>(PnrSquareImage{255});
    EXPECT_EQ(LinesOf(square, &IPnrWriter::WriteSquare),
              ".OBJ 0 SQR\n.KEY 1\n.SCL ON\n.SEG SYSTEM\n1\n1.0000 2.0000\n"
              ".IMG 1\n_SQUARE 1\nCOLOR 255\n");
}

TEST(PnrTxtWriter, WritesThePointAndItsFirstContourOnly)
{
    CPointObject point;
    point.code = 3;
    point.holders.push_back(Plan({{1, 2}}));
    point.holders.push_back(Plan({{3, 4}}));
    EXPECT_EQ(LinesOf(point, &IPnrWriter::WritePoint),
              ".OBJ 3 DOT\n.KEY 1\n.SCL ON\n1\n1.0000 2.0000\n");
}

TEST(PnrTxtWriter, WritesAPointOfSeveralVerticesAsAVector)
{
    CPointObject point;
    point.code = 3;
    point.holders.push_back(Plan({{1, 2}, {3, 4}}));
    EXPECT_EQ(LinesOf(point, &IPnrWriter::WritePoint),
              ".OBJ 3 VEC\n.KEY 1\n.SCL ON\n2\n1.0000 2.0000\n3.0000 4.0000\n");
}

TEST(PnrTxtWriter, WritesTheMarkOfAPointBitByBit)
{
    CPointObject point;
    point.holders.push_back(Plan({{1, 2}}));
    point.image = std::make_unique<PnrPointImage>();
    point.image->size = 1;
    point.image->posV = 2;
    point.image->posH = 3;
    point.image->color = 4;
    point.image->bits.fill(0);
    point.image->bits[0] = 0x81;
    point.image->bits[127] = 0x01;
    const QByteArray zeros = QByteArray(" 0").repeated(32) + '\n';
    EXPECT_EQ(LinesOf(point, &IPnrWriter::WritePoint),
              ".OBJ 0 DOT\n.KEY 1\n.SCL ON\n.SEG SYSTEM\n1\n1.0000 2.0000\n"
              ".IMG 1\n_MARK 5\nSIZE 1\nPOSV 2\nPOSH 3\nCOLOR 4\nBITS 32\n"
              " 1 0 0 0 0 0 0 1"
                  + QByteArray(" 0").repeated(24) + '\n' + zeros.repeated(30)
                  + QByteArray(" 0").repeated(31) + " 1\n");
}

TEST(PnrTxtWriter, WritesObjectsWithoutContours)
{
    CLineObject line;
    EXPECT_EQ(LinesOf(line), ".OBJ 0 LIN\n.KEY 1\n.SCL ON\n");
    CPointObject point;
    EXPECT_EQ(LinesOf(point, &IPnrWriter::WritePoint), ".OBJ 0 DOT\n.KEY 1\n.SCL ON\n");
    CTextObject text;
    text.hasOwnImage = false;
    EXPECT_EQ(LinesOf(text), ".OBJ 0 TIT\n.KEY 1\n.ALG RIGHT MIDDLE 0\n>\n");
}

// ---- Texts -------------------------------------------------------------------------------------

TEST(PnrTxtWriter, WritesATextWithItsDrawing)
{
    const auto text = PlainText(QStringLiteral("words"));
    text->hasOwnImage = true;
    text->code = 99;
    text->layer = QStringLiteral("names");
    text->extraTexts = {QStringLiteral("lost")};
    text->semantics = {Attribute(9, 126, QStringLiteral("v"))};
    text->image = {1, 2,  3,  4,  5,  6,  7,  31, 8,
                   9, 10, 11, 12, 13, 14, 15, 16, QStringLiteral("Times New")};
    EXPECT_EQ(LinesOf(*text).toStdString(),
              ".OBJ 0 TIT\n.SEG names\n.SCL ON\n.KEY 1\n.ALG CENTER TOP 0\n1\n1.0000 2.0000\n"
              ">words\n.SEM 1\n9 v\n.IMG 1\n_TEXT 13\nCOLOR 1\nBCOLOR 2\nSCOLOR 3\nHEIGHT 4\n"
              "WEIGHT 5\nALIGN   24\nWIDE 9\nHORIZONTAL 10\nITALIC 11\nULINE 12\nXLINE 13\n"
              "NAME Times New\nCHARSET 15\n");
}

TEST(PnrTxtWriter, WritesATextWithoutDrawing)
{
    const auto text = PlainText(QStringLiteral(">a"));
    text->code = 99;
    EXPECT_EQ(LinesOf(*text), ".OBJ 99 TIT\n.KEY 1\n.ALG RIGHT MIDDLE 0\n1\n1.0000 2.0000\n>>a\n");
}

TEST(PnrTxtWriter, WritesAMixedText)
{
    const auto text = PlainText(QStringLiteral("a"));
    text->code = 99;
    text->extraTexts = {QStringLiteral("b"), QStringLiteral("c")};
    text->extraAligns = {20};
    text->semantics = {Attribute(9, 126, 5)};
    EXPECT_EQ(LinesOf(*text),
              ".OBJ 99 MIX\n.KEY 1\n.ALG RIGHT MIDDLE 0\n.ALG LEFT 1\n.ALG RIGHT MIDDLE 2\n"
              ".MET 2\n1\n1.0000 2.0000\n>a\n1\n1.0000 2.0000\n>b\n1\n1.0000 2.0000\n>c\n"
              ".SEM 1\n9 5\n");
}

TEST(PnrTxtWriter, WritesTheWordsOfEveryAlignment)
{
    const char* const words[] = {"LEFT ",        "RIGHT ",        "CENTER ",
                                 "LEFT MIDDLE ", "RIGHT MIDDLE ", "CENTER MIDDLE ",
                                 "LEFT BOTTOM ", "RIGHT BOTTOM ", "CENTER BOTTOM ",
                                 "LEFT TOP ",    "RIGHT TOP ",    "CENTER TOP "};
    for (int align = -1; align < 40; ++align) {
        const auto text = PlainText(QStringLiteral("a"));
        text->image.align = static_cast<qint16>(align);
        const QByteArray word = align >= 20 && align <= 31 ? words[align - 20] : "";
        EXPECT_EQ(LinesOf(*text), ".OBJ 0 TIT\n.KEY 1\n.ALG " + word + "0\n1\n1.0000 2.0000\n>a\n");
    }
}

TEST(PnrTxtWriter, WritesTextsInSpaceWithoutHeights)
{
    CTextObject text;
    text.hasOwnImage = false;
    text.holders.push_back(Space({{1, 2, 3}}));
    EXPECT_EQ(LinesOf(text), ".OBJ 0 TIT\n.KEY 1\n.ALG RIGHT MIDDLE 0\n1\n1.0000 2.0000\n>\n");
}

TEST(PnrTxtWriter, WritesTextsInOneByteACharacter)
{
    const CLocalCodec codec("UTF-8");
    EXPECT_TRUE(LinesOf(*PlainText(QStringLiteral("Ж漢"))).endsWith(">\xC6?\n"));
    const CLocalCodec local("IBM866");
    EXPECT_TRUE(LinesOf(*PlainText(QStringLiteral("Ж"))).endsWith(">\x86\n"));
}

// ---- Attributes --------------------------------------------------------------------------------

TEST(PnrTxtWriter, WritesAttributesOfEveryTypeAsText)
{
    const auto line = PlainLine();
    line->semantics = {Attribute(1, 1, -5),
                       Attribute(0x12345, -1, 2.5),
                       Attribute(-1, 127, QStringLiteral("a\nb")),
                       Attribute(4, 126, QDate(2024, 2, 29), 0, 17),
                       Attribute(5, 126, QString(300, QLatin1Char('x'))),
                       Attribute(6, 126, QVariant())};
    EXPECT_EQ(LinesOf(*line),
              QByteArray(kPlainLine) + ".SEM 6\n1 -5\n9029 2.5\n65535 a b\n4 20240229\n5 "
                  + QByteArray(255, 'x') + "\n6 \n");
}

TEST(PnrTxtWriter, TiesTextsToTheirObject)
{
    PnrTextGroup group;
    group.object = PlainLine();
    group.kind = 1;
    group.texts = {PlainText(QStringLiteral("a"))};
    CPnrWriting writing(TextForm());
    EXPECT_TRUE(writing->WriteWithTexts(group));
    EXPECT_EQ(Objects(writing.Close()),
              QByteArray(kPlainLine)
                  + ".SEM 1\n32804 2\n.OBJ 0 TIT\n.KEY 2\n.ALG RIGHT MIDDLE 0\n1\n1.0000 2.0000\n"
                    ">a\n.SEM 1\n32805 1\n");
}

// ---- Conversion --------------------------------------------------------------------------------

TEST(PnrTxtWriter, ConvertsCoordinatesButNotTheBounds)
{
    struct CShift final : IPnrWriter::IContext
    {
        CPoint3D Transform3D(const CPoint3D& p) override { return {p.x, p.y, p.z + 1000}; }
        CPoint2D Transform2D(const CPoint2D& p) override { return {p.x + 100, p.y + 200}; }
    };
    CPnrWriting::COptions options = TextForm();
    options.context = std::make_shared<CShift>();
    CPnrWriting writing(options);
    const auto line = PlainLine();
    line->holders.push_back(Space({{1, 2, 3}}));
    writing->WriteLine(line.get());
    const QByteArray file = writing.Close();
    EXPECT_TRUE(file.contains("P109 0.0000 1.0000\n"));
    EXPECT_EQ(Objects(file),
              ".OBJ 51 LIN\n.KEY 1\n.SCL ON\n.MET 1\n2\n101.0000 202.0000\n103.5000 204.0000\n"
              "1\n1.0000 2.0000 1003.0000\n");
}

// ---- Report ------------------------------------------------------------------------------------

TEST(PnrTxtWriter, CountsTextsByTheirDrawing)
{
    CExportLog log;
    CPnrWriting::COptions options = TextForm();
    options.userMap = true;
    options.log = &log;
    CPnrWriting writing(options);
    const auto text = PlainText(QStringLiteral("a"));
    writing->WriteText(text.get());
    text->hasOwnImage = true;
    writing->WriteText(text.get());
    writing->WriteLine(PlainLine().get());
    CExportLog expected;
    const QString terrain = QStringLiteral("(карта местности)  ") + writing.FileName();
    const QString user = QStringLiteral("(пользовательская карта)  ") + writing.FileName();
    expected.UpStatistic(terrain, QStringLiteral("тексты"));
    expected.UpStatistic(user, QStringLiteral("тексты"));
    expected.UpStatistic(user, QStringLiteral("линейные объекты"));
    QString report;
    QString expectedReport;
    log.GetText(report);
    expected.GetText(expectedReport);
    EXPECT_EQ(report.chopped(18).toStdString(), expectedReport.chopped(18).toStdString());
}

// ---- What is refused ---------------------------------------------------------------------------

TEST(PnrTxtWriter, RefusesNullAndBrokenObjects)
{
    CPnrWriting writing(TextForm());
    EXPECT_FALSE(writing->WriteLine(nullptr));
    EXPECT_FALSE(writing->WriteSquare(nullptr));
    EXPECT_FALSE(writing->WritePoint(nullptr));
    EXPECT_FALSE(writing->WriteText(nullptr));
    CSquareObject square;
    square.holders.push_back(nullptr);
    EXPECT_FALSE(writing->WriteSquare(&square));
    EXPECT_TRUE(writing.Close().isNull());
}

TEST(PnrTxtWriter, RefusesNumbersThatAreNotFinite)
{
    CPnrWriting writing(TextForm());
    for (const double bad : {kNaN, 1 / kNaN, std::numeric_limits<double>::infinity()}) {
        CLineObject line;
        line.holders.push_back(Plan({{1, 2}, {bad, 4}}));
        EXPECT_FALSE(writing->WriteLine(&line));
        CPointObject point;
        point.holders.push_back(Space({{1, 2, bad}}));
        EXPECT_FALSE(writing->WritePoint(&point));
        CSquareObject square;
        square.semantics = {Attribute(1, -1, bad)};
        EXPECT_FALSE(writing->WriteSquare(&square));
        CTextObject text;
        text.holders.push_back(Plan({{1, bad}}));
        EXPECT_FALSE(writing->WriteText(&text));
    }
    EXPECT_TRUE(writing->WriteLine(PlainLine().get()));
    EXPECT_EQ(Objects(writing.Close()), kPlainLine);
}

TEST(PnrTxtWriter, MakesNoTargetOfARectangleThatIsNotFinite)
{
    CPnrWriting::COptions options = TextForm();
    options.params.width = kNaN;
    options.params.height = 1;
    CPnrWriting writing(options);
    EXPECT_TRUE(writing->WriteLine(PlainLine().get()));
    EXPECT_TRUE(writing.Close().isNull());
    EXPECT_FALSE(writing.Closed());
}
