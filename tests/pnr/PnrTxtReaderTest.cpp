// SPDX-License-Identifier: MIT
#include "PnrLocalCodec.h"
#include "PnrRecorder.h"

#include <QTemporaryDir>

namespace {

constexpr wchar_t kCannotOpen[] = L"Не удалось открыть файл";
constexpr wchar_t kFormat[] = L"Некорректный формат файла";

CPnrResult Read(const QByteArray& file)
{
    return ReadPnr(file, true);
}

std::string Log(const QByteArray& file)
{
    const CPnrResult result = Read(file);
    EXPECT_TRUE(result.result) << file.constData();
    EXPECT_EQ(result.message, L"");
    return result.log;
}

// A file of one object whose lines follow ".DAT 1".
std::string LogOf(const QByteArray& block)
{
    return Log(".SXF 4.0\n.DAT 1\n" + block + ".END\n");
}

void ExpectFormatFault(const QByteArray& file)
{
    const CPnrResult result = Read(file);
    EXPECT_FALSE(result.result) << file.constData();
    EXPECT_EQ(result.message, kFormat);
    EXPECT_EQ(result.log, "");
}

void ExpectBlockFault(const QByteArray& block)
{
    ExpectFormatFault(".DAT 1\n" + block + ".END\n");
}

std::string Text(const std::string& words, const std::string& drawn)
{
    return "text 0 '0' SYSTEM\n '" + words + "' own 1 extra 0 0\n drawn " + drawn
        + "\n 2D (1 2) (3 4)\n";
}

const char* const kLine = ".OBJ 51 LIN\n2\n1 2\n3 4\n";
const char* const kLineLog = "line 51 '51' SYSTEM\n 2D (1 2) (3 4)\n";
const char* const kMetric = "2\n1 2\n3 4\n";
const std::string kDefaultDrawn =
    "0 4294967295 4294967295 1800 200 align 24 bytes 0 0 0 0 0 204 font 'Arial'";

} // namespace

// ---- File --------------------------------------------------------------------------------------

TEST(PnrTxtReader, TellsThatAFileCannotBeOpened)
{
    const CPnrResult result = ReadPnrFile(QStringLiteral("/nonexistent/map.txt"), true);
    EXPECT_FALSE(result.result);
    EXPECT_EQ(result.message, kCannotOpen);
}

TEST(PnrTxtReader, ReadsAFileWithoutCountAndObjectsAsSuccess)
{
    EXPECT_EQ(Log({}), "");
    EXPECT_EQ(Log(".SXF 4.0\nP000 name\n"), "");
}

TEST(PnrTxtReader, LooksAtNothingInFrontOfTheCount)
{
    EXPECT_EQ(Log(QByteArray(kLine) + ".END\n"), "") << "without a count all lines are passed over";
    EXPECT_EQ(Log(QByteArray(kLine) + ".DAT 1\n" + kLine), kLineLog);
}

TEST(PnrTxtReader, FindsTheCountAnywhereInALineWhateverItsCase)
{
    EXPECT_EQ(Log(QByteArray("x.dAt y  1  \n") + kLine), kLineLog);
}

TEST(PnrTxtReader, TakesACountThatDoesNotConvertAsZero)
{
    EXPECT_EQ(Log(".DAT\n.END\n"), "");
    EXPECT_EQ(Log(".DAT one\n"), "");
    EXPECT_EQ(Log(".DAT 99999999999\n"), "");
}

TEST(PnrTxtReader, RefusesANegativeCount)
{
    ExpectFormatFault(QByteArray(".DAT -1\n") + kLine);
}

TEST(PnrTxtReader, RefusesACountUnlikeTheObjects)
{
    for (const char* count : {"0", "2"}) {
        const CPnrResult result = Read(QByteArray(".DAT ") + count + "\n" + kLine + ".END\n");
        EXPECT_FALSE(result.result);
        EXPECT_EQ(result.message, kFormat);
        EXPECT_EQ(result.log, kLineLog) << "objects delivered before stay delivered";
    }
}

TEST(PnrTxtReader, KeepsObjectsDeliveredBeforeAFault)
{
    const CPnrResult result =
        Read(QByteArray(".DAT 3\n") + kLine + ".OBJ 1 QQQ\n" + kMetric + kLine);
    EXPECT_FALSE(result.result);
    EXPECT_EQ(result.message, kFormat);
    EXPECT_EQ(result.log, kLineLog);
}

TEST(PnrTxtReader, StopsAtAnEndLineOfEitherCase)
{
    EXPECT_EQ(Log(QByteArray(".DAT 1\n") + kLine + ".eNd\n" + kLine), kLineLog);
}

TEST(PnrTxtReader, ReadsOnBehindALineThatOnlyContainsTheEndWord)
{
    EXPECT_EQ(Log(QByteArray(".DAT 2\n") + kLine + "x.END\n1 2\n" + kLine),
              std::string(kLineLog) + kLineLog);
    EXPECT_EQ(Log(QByteArray(".DAT 2\n") + kLine + ".END \n" + kLine),
              std::string(kLineLog) + kLineLog);
}

TEST(PnrTxtReader, ParsesABlockThatTheStreamEnds)
{
    EXPECT_EQ(Log(".DAT 1\n.OBJ 51 LIN\n2\n1 2\n3 4"), kLineLog);
}

TEST(PnrTxtReader, ReadsLinesThatEndInCrLf)
{
    EXPECT_EQ(Log(".DAT 1\r\n.OBJ 51 LIN\r\n\r\n2\r\n1 2\r\n3 4\r\n.END\r\n"), kLineLog);
}

TEST(PnrTxtReader, OpensABlockAtAWordInsideALine)
{
    const CPnrResult result =
        Read(".DAT 1\n.OBJ 0 TIT\n2\n1 2\n3 4\n>see map.obj LIN\n1\n5 6\n.END\n");
    EXPECT_FALSE(result.result) << "two blocks were counted";
    EXPECT_EQ(result.log, Text("", kDefaultDrawn) + "line 0 '0' SYSTEM\n 2D (5 6)\n");
}

// ---- Kind and head -----------------------------------------------------------------------------

TEST(PnrTxtReader, DeliversEachKindToItsOperation)
{
    const std::pair<const char*, const char*> kinds[] = {{"DOT", "point"}, {"VEC", "point"},
                                                         {"LIN", "line"},  {"SQR", "square"},
                                                         {"TIT", "text"},  {"MIX", "text"}};
    for (const auto& [word, name] : kinds) {
        const std::string log = LogOf(QByteArray(".OBJ 7 ") + word + "\n" + kMetric);
        EXPECT_EQ(log.substr(0, log.find('\n')), std::string(name) + " 7 '7' SYSTEM");
    }
}

TEST(PnrTxtReader, RefusesOtherKinds)
{
    for (const char* word : {"lin", "LINE", "", "QQQ"}) {
        ExpectBlockFault(QByteArray(".OBJ 7 ") + word + "\n" + kMetric);
    }
}

TEST(PnrTxtReader, TakesTheKindFromTheLastToken)
{
    EXPECT_EQ(LogOf(QByteArray(".OBJ  51 more words LIN  \n") + kMetric), kLineLog);
}

TEST(PnrTxtReader, RefusesTheCodeMinusOne)
{
    for (const char* word : {"DOT", "LIN", "SQR", "TIT"}) {
        ExpectBlockFault(QByteArray(".OBJ -1 ") + word + "\n" + kMetric);
    }
}

TEST(PnrTxtReader, TakesACodeThatDoesNotConvertAsZero)
{
    EXPECT_EQ(LogOf(QByteArray(".OBJ 5x SQR\n") + kMetric),
              "square 0 '0' SYSTEM\n 2D (1 2) (3 4)\n");
    EXPECT_EQ(LogOf(QByteArray(".OBJ 007 SQR\n") + kMetric),
              "square 7 '7' SYSTEM\n 2D (1 2) (3 4)\n");
    EXPECT_EQ(LogOf(QByteArray(".obj 7 SQR\n") + kMetric), "square 0 '0' SYSTEM\n 2D (1 2) (3 4)\n")
        << "look-ups are exact";
}

TEST(PnrTxtReader, TakesTheLayerFromTheLastToken)
{
    const CLocalCodec codec("UTF-8");
    EXPECT_EQ(LogOf(QByteArray(".OBJ 1 LIN\n.SEG a \xCA\xE0 \n") + kMetric),
              "line 1 '1' Ка\n 2D (1 2) (3 4)\n");
    EXPECT_EQ(LogOf(QByteArray(".OBJ 1 LIN\n.seg a\n.SEGX b\n") + kMetric),
              "line 1 '1' SYSTEM\n 2D (1 2) (3 4)\n");
}

// ---- Metric ------------------------------------------------------------------------------------

TEST(PnrTxtReader, StartsTheMetricAtTheFirstIntegerOtherThanZero)
{
    EXPECT_EQ(LogOf(".OBJ 51 LIN\n.KEY 9\n0\n1.5\nx\n2\n1 2\n3 4\n"), kLineLog);
}

TEST(PnrTxtReader, TakesThreeTokensAsHeights)
{
    EXPECT_EQ(LogOf(".OBJ 1 LIN\n2\n1 2 3\n4 5\n"), "line 1 '1' SYSTEM\n 3D (1 2 3) (4 5 0)\n");
}

TEST(PnrTxtReader, TakesAnyCountOfTokensOtherThanTwoAsHeights)
{
    EXPECT_EQ(LogOf(".OBJ 1 LIN\n1\n7\n"), "line 1 '1' SYSTEM\n 3D (7 0 0)\n");
    EXPECT_EQ(LogOf(".OBJ 1 LIN\n1\n7 8 9 10\n"), "line 1 '1' SYSTEM\n 3D (7 8 9)\n");
    EXPECT_EQ(LogOf(".OBJ 1 LIN\n1\n   \n"), "line 1 '1' SYSTEM\n 3D (0 0 0)\n");
}

TEST(PnrTxtReader, TakesSurplusTokensOfLaterVerticesAsNothing)
{
    EXPECT_EQ(LogOf(".OBJ 51 LIN\n2 x\n1 2\n3 4 5\n"), kLineLog);
}

TEST(PnrTxtReader, TakesNumbersThatDoNotConvertAsZero)
{
    EXPECT_EQ(LogOf(".OBJ 1 LIN\n2\nx 1,5\n-2.5e1 +3\n"), "line 1 '1' SYSTEM\n 2D (0 0) (-25 3)\n");
}

TEST(PnrTxtReader, SplitsAtBlanksOnly)
{
    EXPECT_EQ(LogOf(".OBJ 1 LIN\n1\n  1   2  \n"), "line 1 '1' SYSTEM\n 2D (1 2)\n");
    EXPECT_EQ(LogOf(".OBJ 1 LIN\n1\n1\t2\n"), "line 1 '1' SYSTEM\n 3D (0 0 0)\n");
}

TEST(PnrTxtReader, ReadsSubContoursBehindTheirCount)
{
    EXPECT_EQ(LogOf(".OBJ 1 SQR\n.MET 2\n1\n1 2\n2\n3 4\n5 6\n1\n7 8 9\n"),
              "square 1 '1' SYSTEM\n 2D (1 2)\n 2D (3 4) (5 6)\n 3D (7 8 9)\n");
}

TEST(PnrTxtReader, ReadsNoContourOfASubContourCountBelowZero)
{
    EXPECT_EQ(LogOf(".OBJ 1 SQR\n.MET -1\n1\n1 2\n"), "square 1 '1' SYSTEM\n");
}

TEST(PnrTxtReader, RefusesAVertexCountOfZeroOrLess)
{
    ExpectBlockFault(".OBJ 1 LIN\n.MET 1\n0\n1 2\n");
    ExpectBlockFault(".OBJ 1 LIN\n.MET 1\n1\n1 2\nx\n");
    ExpectBlockFault(".OBJ 1 LIN\n-2\n1 2\n3 4\n");
}

TEST(PnrTxtReader, RefusesCountsThatTheBlockDoesNotBack)
{
    ExpectBlockFault(".OBJ 1 LIN\n");
    ExpectBlockFault(".OBJ 1 LIN\n.KEY 1\n");
    ExpectBlockFault(".OBJ 1 LIN\n3\n1 2\n3 4\n");
    ExpectBlockFault(".OBJ 1 LIN\n2147483647\n1 2\n3 4\n");
    ExpectBlockFault(".OBJ 1 LIN\n.MET 1\n1\n1 2\n");
    ExpectBlockFault(".OBJ 1 LIN\n.MET 2147483647\n1\n1 2\n");
}

// ---- Attributes --------------------------------------------------------------------------------

TEST(PnrTxtReader, ReadsAttributesBehindTheirCount)
{
    const CLocalCodec codec("UTF-8");
    EXPECT_EQ(LogOf(QByteArray(kLine) + ".SEM 2\n9  \xCA\xE0 b \n65534 5\n10 no more\n"),
              std::string(kLineLog) + " semantic 9 kind -1 type -1 scale 0 = QString Ка b\n"
                  + " semantic 65534 kind -1 type -1 scale 0 = QString 5\n");
}

TEST(PnrTxtReader, UsesUpAnAttributeLineWithoutBlank)
{
    EXPECT_EQ(LogOf(QByteArray(kLine) + ".SEM 2\n9\n10 x\n11 y\n"),
              std::string(kLineLog) + " semantic 10 kind -1 type -1 scale 0 = QString x\n");
}

TEST(PnrTxtReader, SplitsAnAttributeAtItsFirstBlank)
{
    EXPECT_EQ(LogOf(QByteArray(kLine) + ".SEM 3\n 9 x\n8 \nz y\n"),
              std::string(kLineLog) + " semantic 0 kind -1 type -1 scale 0 = QString 9 x\n"
                  + " semantic 8 kind -1 type -1 scale 0 = QString \n"
                  + " semantic 0 kind -1 type -1 scale 0 = QString y\n");
}

TEST(PnrTxtReader, StopsAttributesAtTheEndOfTheBlock)
{
    for (const char* count : {"2", "2147483647"}) {
        EXPECT_EQ(LogOf(QByteArray(kLine) + ".SEM " + count + "\n9 x\n"),
                  std::string(kLineLog) + " semantic 9 kind -1 type -1 scale 0 = QString x\n");
    }
    EXPECT_EQ(LogOf(QByteArray(kLine) + ".SEM -1\n9 x\n"), kLineLog);
}

// ---- Drawings ----------------------------------------------------------------------------------

TEST(PnrTxtReader, ReadsTheDrawingOfALine)
{
    EXPECT_EQ(
        LogOf(QByteArray(".OBJ 0 LIN\n") + kMetric + ".IMG 1\n_LINE 2\nCOLOR -5\nTHICK 2500.7\n"),
        "line 0 '0' SYSTEM image\n color -5 thickness 2500\n 2D (1 2) (3 4)\n");
}

TEST(PnrTxtReader, ReadsTheDrawingOfAnArea)
{
    EXPECT_EQ(
        LogOf(QByteArray(".OBJ 0 SQR\n") + kMetric + ".IMG 1\n_SQUARE 1\nCOLOR 255\nOTHER x\n"),
        "square 0 '0' SYSTEM image\n color 255\n 2D (1 2) (3 4)\n");
}

TEST(PnrTxtReader, RefusesADrawingLineWithoutExactlyTwoTokens)
{
    for (const char* line : {"COLOR", "COLOR 1 2", "   "}) {
        ExpectBlockFault(QByteArray(".OBJ 0 LIN\n") + kMetric + "_LINE 2\n" + line + "\n");
        ExpectBlockFault(QByteArray(".OBJ 0 SQR\n") + kMetric + "_SQUARE 2\n" + line + "\n");
    }
}

TEST(PnrTxtReader, IgnoresTheDrawingOfAnObjectWithACode)
{
    EXPECT_EQ(LogOf(QByteArray(kLine) + ".IMG 1\n_LINE 2\nCOLOR 5\nTHICK 2 3 4\n"), kLineLog);
}

TEST(PnrTxtReader, SetsNoDrawingWithoutItsWord)
{
    EXPECT_EQ(LogOf(QByteArray(".OBJ 0 LIN\n") + kMetric + ".IMG 1\n_SQUARE 1\nCOLOR 5\n"),
              "line 0 '0' SYSTEM\n 2D (1 2) (3 4)\n");
}

TEST(PnrTxtReader, TakesTheLastSubBlockBehindTheImageLine)
{
    EXPECT_EQ(LogOf(QByteArray(".OBJ 0 LIN\n") + kMetric
                    + "_LINE 9\n.IMG 1\n_LINE 2\nCOLOR 1\n_LINE 2\nCOLOR 2\n"),
              "line 0 '0' SYSTEM image\n color 2 thickness 0\n 2D (1 2) (3 4)\n");
    EXPECT_EQ(LogOf(QByteArray(".OBJ 0 LIN\n") + kMetric + "_LINE 2\n.IMG 1\n"),
              "line 0 '0' SYSTEM\n 2D (1 2) (3 4)\n")
        << "a sub-block in front of the image line is no hit";
}

TEST(PnrTxtReader, ReadsNothingOfASubBlockOnTheFirstLine)
{
    EXPECT_EQ(LogOf(QByteArray("_LINE .OBJ LIN\n") + kMetric),
              "line 0 '0' SYSTEM\n 2D (1 2) (3 4)\n");
}

TEST(PnrTxtReader, CutsThicknessesThatNoIntegerHoldsToZero)
{
    for (const char* value : {"1e300", "nan", "inf", "x"}) {
        EXPECT_EQ(LogOf(QByteArray(".OBJ 0 LIN\n") + kMetric + "_LINE 1\nTHICK " + value + "\n"),
                  "line 0 '0' SYSTEM image\n color 0 thickness 0\n 2D (1 2) (3 4)\n");
    }
}

TEST(PnrTxtReader, GivesAPointWithoutCodeTheDefaultMark)
{
    EXPECT_EQ(LogOf(".OBJ 0 DOT\n1\n1 2\n.SEM 1\n4 x\n.IMG 1\n_MARK 5\nSIZE 1 2 3\nCOLOR 7\n"),
              "point 0 '0' SYSTEM image\n size 8000 color 0\n 2D (1 2)\n"
              " semantic 4 kind -1 type -1 scale 0 = QString x\n");
    EXPECT_EQ(LogOf(".OBJ 5 DOT\n1\n1 2\n"), "point 5 '5' SYSTEM\n 2D (1 2)\n");
}

// ---- Texts -------------------------------------------------------------------------------------

TEST(PnrTxtReader, JoinsTextLinesWithTheirBrackets)
{
    const CLocalCodec codec("UTF-8");
    EXPECT_EQ(LogOf(QByteArray(".OBJ 0 TIT\n") + kMetric + ">\xCA\xE0 b\n no\n >c\n"),
              Text(">Ка b >c", kDefaultDrawn));
}

TEST(PnrTxtReader, PassesOverTheTextLineInFrontOfAContour)
{
    EXPECT_EQ(LogOf(".OBJ 5 MIX\n.MET 1\n1\n1 2\n>ab\n1\n3 4\n>cd\n"),
              "text 5 '5' SYSTEM\n '>ab>cd' own 1 extra 0 0\n drawn " + kDefaultDrawn
                  + "\n 2D (1 2)\n 2D (3 4)\n");
}

TEST(PnrTxtReader, KeepsTheFirstContourOfTwoVerticesOnly)
{
    EXPECT_EQ(LogOf(QByteArray(".OBJ 0 MIX\n.MET 1\n") + kMetric + ">ab\n1\n3 4\n>cd\n"),
              Text(">ab>cd", kDefaultDrawn));
    EXPECT_EQ(LogOf(".OBJ 0 MIX\n.MET 1\n2\n1 2 3\n4 5 6\n1\n3 4\n"),
              "text 0 '0' SYSTEM\n '' own 1 extra 0 0\n drawn " + kDefaultDrawn
                  + "\n 3D (1 2 3) (4 5 6)\n");
}

TEST(PnrTxtReader, TakesAMissingTextFromAttribute9)
{
    const std::string semantic = " semantic 9 kind -1 type -1 scale 0 = QString x y\n";
    EXPECT_EQ(LogOf(QByteArray(".OBJ 0 TIT\n") + kMetric + ".SEM 1\n9 x y\n"),
              Text("x y", kDefaultDrawn) + semantic);
    EXPECT_EQ(LogOf(QByteArray(".OBJ 0 TIT\n") + kMetric + ">z\n.SEM 1\n9 x y\n"),
              Text(">z", kDefaultDrawn) + semantic);
}

TEST(PnrTxtReader, ReadsEveryFieldOfATextDrawing)
{
    EXPECT_EQ(LogOf(QByteArray(".OBJ 0 TIT\n.ALG RIGHT MIDDLE 0\n") + kMetric
                    + ".IMG 1\n_TEXT 13\nCOLOR 1\nBCOLOR 4294967295\nSCOLOR 3\nHEIGHT 4\n"
                      "WEIGHT 65541\nALIGN   24\nWIDE 258\nHORIZONTAL 3\nITALIC 4\nULINE 5\n"
                      "XLINE 6\nNAME Times  New Roman \nCHARSET 204\n"),
              Text("", "1 4294967295 3 4 5 align 4 bytes 2 3 4 5 0 204 font 'Times New Roman'"));
}

TEST(PnrTxtReader, TakesTextFieldsThatDoNotConvertAsZero)
{
    EXPECT_EQ(LogOf(QByteArray(".OBJ 0 TIT\n") + kMetric
                    + "_TEXT 13\nBCOLOR -1\nSCOLOR\nHEIGHT x\nWEIGHT -1\nWIDE 65536\nCHARSET -1\n"),
              Text("", "0 0 0 0 0 align 0 bytes 0 0 0 0 0 255 font 'Arial'"));
}

TEST(PnrTxtReader, AddsUpAllAlignments)
{
    const std::pair<const char*, int> words[] = {{"LEFT", 0},   {"RIGHT", 1},  {"CENTER", 2},
                                                 {"TOP", 9},    {"BOTTOM", 6}, {"BASE", 0},
                                                 {"MIDDLE", 3}, {"middle", 0}, {"24", 0}};
    const auto drawn = [](int align) {
        return Text("",
                    "0 4294967295 4294967295 1800 200 align " + std::to_string(align)
                        + " bytes 0 0 0 0 0 204 font 'Arial'");
    };
    for (const auto& [word, value] : words) {
        EXPECT_EQ(
            LogOf(QByteArray(".OBJ 0 TIT\n.ALG ") + word + " 0\n" + kMetric + "_TEXT 13\nX 1\n"),
            drawn(value));
    }
    EXPECT_EQ(LogOf(QByteArray(".OBJ 0 TIT\n.ALG CENTER TOP 0\n.ALG RIGHT BOTTOM 1\n") + kMetric
                    + "_TEXT 13\nX 1\n"),
              drawn(18));
}

TEST(PnrTxtReader, LeavesTheAlignmentOfATextDrawingWithoutLines)
{
    EXPECT_EQ(LogOf(QByteArray(".OBJ 0 TIT\n.ALG RIGHT 0\n") + kMetric + "_TEXT 13\n"),
              Text("", kDefaultDrawn));
}

TEST(PnrTxtReader, IgnoresTheDrawingOfATextWithACode)
{
    EXPECT_EQ(LogOf(QByteArray(".OBJ 5 TIT\n") + kMetric + "_TEXT 13\nCOLOR 9\n"),
              "text 5 '5' SYSTEM\n '' own 1 extra 0 0\n drawn " + kDefaultDrawn
                  + "\n 2D (1 2) (3 4)\n");
}

// ---- Blocks of the file ------------------------------------------------------------------------

TEST(PnrTxtReader, ReadsObjectsAcrossAndBeyondBlocks)
{
    QByteArray file = ".DAT 30002\n";
    std::string expected;
    for (int i = 0; i < 30000; ++i) {
        const QByteArray code = QByteArray::number(i);
        file += ".OBJ " + code + " LIN\n" + kMetric;
        expected += "line " + code.toStdString() + " '" + code.toStdString()
            + "' SYSTEM\n 2D (1 2) (3 4)\n";
    }
    file += ".OBJ 51 LIN\n200000\n";
    expected += "line 51 '51' SYSTEM\n 2D";
    for (int i = 0; i < 200000; ++i) {
        file += QByteArray::number(i) + " -1\n";
        expected += " (" + std::to_string(i) + " -1)";
    }
    EXPECT_TRUE(Log(file + kLine) == expected + '\n' + kLineLog);
}

TEST(PnrTxtReader, ReadsAFileWithAByteOrderMarkByItsEncoding)
{
    const CLocalCodec codec("windows-1251");
    const QString text = QStringLiteral("\uFEFF.DAT 1\n.OBJ 0 TIT\n2\n1 2\n3 4\n>漢 Ка\n");
    EXPECT_EQ(Log(text.toUtf8()), Text(">漢 Ка", kDefaultDrawn));
    EXPECT_EQ(Log(QTextCodec::codecForName("UTF-16LE")->fromUnicode(text)),
              Text(">漢 Ка", kDefaultDrawn));
}

TEST(PnrTxtReader, PassesOnWhatTheHostThrows)
{
    using namespace VelorExchange::pnr;
    struct CThrower final : IPnrReader::IContext
    {
        void AddText(CTextObject*) override { }
        void AddSquare(CSquareObject*) override { }
        void AddLine(CLineObject*) override { throw 42; }
        void AddPoint(CPointObject*) override { }
    } thrower;
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("map.txt")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(".DAT 1\n") + kLine);
    file.close();
    const std::unique_ptr<IPnrReader, void (*)(IPnrReader*)> reader(CreateReader(true, &thrower),
                                                                    DeleteReader);
    EXPECT_THROW(reader->Read(file.fileName()), int);
}
