// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/ExportLog.h"

#include "PnrLocalCodec.h"
#include "PnrWriting.h"
#include "SxfBuilder.h"

#include <limits>

using namespace VelorExchange::pnr;
using namespace SxfBuilder;
using VelorExchange::CExportLog;
using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

CPnrWriting::COptions Binary()
{
    return {};
}

// The bytes behind descriptor and in front of the frame record.
QByteArray Records(const QByteArray& file)
{
    return file.mid(452, file.size() - 452 - 112);
}

template <class Object>
QByteArray RecordOf(Object& object, bool (IPnrWriter::*write)(Object*),
                    const CPnrWriting::COptions& options = Binary())
{
    CPnrWriting writing(options);
    EXPECT_TRUE((writing.operator->()->*write)(&object));
    const QByteArray file = writing.Close();
    EXPECT_TRUE(writing.Closed());
    return Records(file);
}

QByteArray RecordOf(CLineObject& line)
{
    return RecordOf(line, &IPnrWriter::WriteLine);
}

QByteArray RecordOf(CTextObject& text)
{
    return RecordOf(text, &IPnrWriter::WriteText);
}

// Marker, lengths, code, number 1, flags.
QByteArray Head(int length, int metric, int code, quint32 flags)
{
    return I32(0x7FFF7FFF) + I32(length) + I32(metric) + I32(code) + I32(1) + I32(flags);
}

std::unique_ptr<CLineObject> PlainLine()
{
    auto line = std::make_unique<CLineObject>();
    line->code = 51;
    line->holders.push_back(Plan({{1, 2}, {3, 4}}));
    return line;
}

std::unique_ptr<CTextObject> PlainText(const QString& words)
{
    auto text = std::make_unique<CTextObject>();
    text->text = words;
    text->hasOwnImage = false;
    text->holders.push_back(Plan({{1, 2}, {3, 4}}));
    return text;
}

// The text block that the writer makes of the words, behind head and vertices.
QByteArray BlockOf(const QString& words)
{
    const auto text = PlainText(words);
    return RecordOf(*text).mid(32 + 32);
}

} // namespace

// ---- Life --------------------------------------------------------------------------------------

TEST(PnrBinWriter, CloseWithNoObjectLeavesTheTargetAsItWas)
{
    CPnrWriting writing(Binary());
    EXPECT_TRUE(writing.Close().isNull());
    EXPECT_TRUE(writing.Closed());
    QFile file(writing.FileName());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("before");
    file.close();
    EXPECT_EQ(writing.Close(), "before");
}

TEST(PnrBinWriter, MakesNoTargetBeforeClose)
{
    CPnrWriting writing(Binary());
    writing->WriteLine(PlainLine().get());
    EXPECT_FALSE(QFile::exists(writing.FileName()));
    EXPECT_FALSE(writing.Close().isEmpty());
}

TEST(PnrBinWriter, KeepsThePrecisionItIsGiven)
{
    CPnrWriting writing(Binary());
    EXPECT_EQ(writing->GetPrecision(), 4);
    writing->SetPrecision(7);
    EXPECT_EQ(writing->GetPrecision(), 7);
}

TEST(PnrBinWriter, InitStartsAfresh)
{
    CPnrWriting writing(Binary());
    writing->WriteLine(PlainLine().get());
    writing->Init(false, nullptr);
    EXPECT_TRUE(writing->Open(writing.FileName(), {QStringLiteral("n"), 1, 0, 0, 0, 0}));
    EXPECT_TRUE(writing.Close().isNull());
    EXPECT_TRUE(writing.Closed());
}

TEST(PnrBinWriter, IgnoresTheSecondArgumentOfItsFactory)
{
    for (const bool second : {false, true}) {
        IPnrWriter* writer = CreatePnrWriter(false, second, nullptr);
        QTemporaryDir folder;
        const QString name = folder.filePath(QStringLiteral("map"));
        writer->Open(name, {QStringLiteral("n"), 1, 0, 0, 0, 0});
        writer->WriteLine(PlainLine().get());
        EXPECT_TRUE(writer->Close());
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.size(), 452 + 64 + 112);
        DeletePnrWriter(writer);
    }
}

// ---- Header and frame --------------------------------------------------------------------------

TEST(PnrBinWriter, WritesHeaderDescriptorAndFrame)
{
    const CLocalCodec codec("UTF-8");
    CPnrWriting writing(Binary());
    writing->WriteLine(PlainLine().get());
    const QByteArray file = writing.Close();
    const QByteArray name = QByteArray("\xCA\xE0\xF0\xF2\xE0") + QByteArray(27, '\0');
    const QByteArray corners = F64s({0, 1, 3, 1, 3, 4, 0, 4});
    QByteArray expected = I32(0x465853) + I32(400) + I32(0x40000) + I32(0) + Today() + I32(0) + name
        + I32(5000) + name + I32(0x19F) + I32(0) + corners + QByteArray(64, '\0') + I32(0xFFFFFFFF)
        + I32(0x5030000) + Today() + I32(0) + I8(1) + I8(1) + I16(0) + QByteArray(24, '\0')
        + Today() + QByteArray(24, '\0') + I32(5000) + QByteArray(32, '\0') + I32(91000000)
        + QByteArray(48, '\0');
    ASSERT_EQ(expected.size(), 400);
    expected += I32(0x544144) + I32(52) + name + I32(2) + I32(0x19F) + I32(0);
    ASSERT_EQ(expected.size(), 452);
    expected += Head(64, 32, 51, 0xFF240400) + I32(2) + I16(0) + I16(2) + F64s({1, 2, 3, 4});
    expected += I32(0x7FFF7FFF) + I32(112) + I32(80) + I32(91000000) + I32(2) + I32(0xFF240400)
        + I32(5) + I16(0) + I16(5) + corners + F64s({0, 1});
    MendChecksum(expected);
    EXPECT_EQ(file.toHex(' '), expected.toHex(' '));
}

TEST(PnrBinWriter, CutsTheMapNameTo32Characters)
{
    CPnrWriting::COptions options;
    options.params.name = QString(40, QLatin1Char('n'));
    CPnrWriting writing(options);
    writing->WriteLine(PlainLine().get());
    const QByteArray file = writing.Close();
    for (const int offset : {28, 64, 408}) {
        EXPECT_EQ(file.mid(offset, 32), QByteArray(32, 'n'));
    }
    EXPECT_EQ(file.mid(96, 4), I32(0x19F));
}

TEST(PnrBinWriter, StartsTheBoundsWithTheRectangleOfOpen)
{
    CPnrWriting::COptions options;
    options.params = {QStringLiteral("n"), 1, -10, -20, 5, 6};
    CPnrWriting writing(options);
    writing->WriteLine(PlainLine().get());
    EXPECT_EQ(writing.Close().mid(104, 64), F64s({-10, -20, 3, -20, 3, 4, -10, 4}));
}

TEST(PnrBinWriter, TakesBoundsBeforeTheConversion)
{
    struct CShift final : IPnrWriter::IContext
    {
        CPoint3D Transform3D(const CPoint3D& p) override { return p; }
        CPoint2D Transform2D(const CPoint2D& p) override { return {p.x + 100, p.y + 200}; }
    };
    CPnrWriting::COptions options;
    options.context = std::make_shared<CShift>();
    CPnrWriting writing(options);
    writing->WriteLine(PlainLine().get());
    const QByteArray file = writing.Close();
    EXPECT_EQ(file.mid(104, 64), F64s({0, 1, 3, 1, 3, 4, 0, 4}));
    EXPECT_EQ(Records(file).mid(32), F64s({101, 202, 103, 204}));
}

TEST(PnrBinWriter, NumbersRecordsInTheirOrder)
{
    CPnrWriting writing(Binary());
    for (int i = 0; i < 3; ++i) {
        writing->WriteLine(PlainLine().get());
    }
    const QByteArray records = Records(writing.Close());
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(records.mid(64 * i + 16, 4), I32(i + 1));
    }
}

// ---- Lines, areas, points ----------------------------------------------------------------------

TEST(PnrBinWriter, WritesALineWithItsDrawing)
{
    const auto line = PlainLine();
    line->image = std::make_unique<PnrLineImage>(PnrLineImage{255, 3500});
    EXPECT_EQ(RecordOf(*line).toHex(' '),
              (Head(88, 56, 51, 0xFF340400) + I32(2) + I16(0) + I16(2) + F64s({1, 2, 3, 4})
               + I32(0x7FFF7FFE) + I32(24) + I32(1) + I16(12) + I16(0x80) + I32(255) + I32(3500))
                  .toHex(' '));
}

TEST(PnrBinWriter, WritesALineInSpace)
{
    CLineObject line;
    line.holders.push_back(Space({{1, 2, 3}, {4, 5, 6}}));
    EXPECT_EQ(RecordOf(line).toHex(' '),
              (Head(80, 48, 0, 0xFF260400) + I32(2) + I16(0) + I16(2) + F64s({1, 2, 3, 4, 5, 6}))
                  .toHex(' '));
}

TEST(PnrBinWriter, WritesSubContoursBehindTheirHeads)
{
    CSquareObject square;
    square.code = 7;
    square.holders.push_back(Plan({{1, 2}}));
    square.holders.push_back(Plan({{3, 4}, {5, 6}}));
    square.holders.push_back(Space({{7, 8, 9}}));
    EXPECT_EQ(RecordOf(square, &IPnrWriter::WriteSquare).toHex(' '),
              (Head(112, 80, 7, 0xFF240401) + I32(1) + I16(2) + I16(1) + F64s({1, 2}) + I16(2)
               + I16(2) + F64s({3, 4, 5, 6}) + I16(0) + I16(1) + F64s({7, 8, 9}))
                  .toHex(' '));
}

TEST(PnrBinWriter, WritesAnAreaWithItsDrawing)
{
    CSquareObject square;
    square.image = std::make_unique<PnrSquareImage>(PnrSquareImage{-2});
    square.holders.push_back(Plan({{1, 2}}));
    EXPECT_EQ(RecordOf(square, &IPnrWriter::WriteSquare).toHex(' '),
              (Head(68, 36, 0, 0xFF340401) + I32(1) + I16(0) + I16(1) + F64s({1, 2})
               + I32(0x7FFF7FFE) + I32(20) + I32(1) + I16(8) + I16(0x87) + I32(-2))
                  .toHex(' '));
}

TEST(PnrBinWriter, WritesAPointWithItsDrawing)
{
    CPointObject point;
    point.image = std::make_unique<PnrPointImage>();
    point.image->posH = 11;
    point.image->posV = 12;
    point.image->color = 13;
    point.image->bits[127] = 0xAB;
    point.holders.push_back(Plan({{1, 2}}));
    QByteArray bits(128, '\0');
    bits[0] = 0x60;
    bits[4] = bits[8] = static_cast<char>(0x90);
    bits[12] = 0x60;
    bits[127] = static_cast<char>(0xAB);
    EXPECT_EQ(RecordOf(point, &IPnrWriter::WritePoint).toHex(' '),
              (Head(216, 184, 0, 0xFF340402) + I32(1) + I16(0) + I16(1) + F64s({1, 2})
               + I32(0x7FFF7FFE) + I32(168) + I32(1) + I16(156) + I16(0x8F) + I32(152) + I32(1)
               + I32(8000) + I32(11) + I32(12) + I32(13) + bits)
                  .toHex(' '));
}

TEST(PnrBinWriter, WritesAPointOfSeveralVerticesAsAVector)
{
    CPointObject point;
    point.code = 5;
    point.holders.push_back(Plan({{1, 2}, {3, 4}}));
    EXPECT_EQ(RecordOf(point, &IPnrWriter::WritePoint).mid(20, 4), I32(0xFF240404));
    point.image = std::make_unique<PnrPointImage>();
    EXPECT_EQ(RecordOf(point, &IPnrWriter::WritePoint).mid(20, 4), I32(0xFF340404));
}

TEST(PnrBinWriter, WritesTheFirstContourOfAPointOnly)
{
    CPointObject point;
    point.code = 5;
    point.holders.push_back(Space({{1, 2, 3}}));
    point.holders.push_back(Plan({{4, 5}}));
    EXPECT_EQ(
        RecordOf(point, &IPnrWriter::WritePoint).toHex(' '),
        (Head(56, 24, 5, 0xFF260402) + I32(1) + I16(0) + I16(1) + F64s({1, 2, 3})).toHex(' '));
}

TEST(PnrBinWriter, WritesObjectsWithoutContours)
{
    CLineObject line;
    const QByteArray tail = I32(0) + I16(-1) + I16(0);
    EXPECT_EQ(RecordOf(line).toHex(' '), (Head(32, 0, 0, 0xFF240400) + tail).toHex(' '));
    CSquareObject square;
    EXPECT_EQ(RecordOf(square, &IPnrWriter::WriteSquare).toHex(' '),
              (Head(32, 0, 0, 0xFF240401) + tail).toHex(' '));
    CPointObject point;
    EXPECT_EQ(RecordOf(point, &IPnrWriter::WritePoint).toHex(' '),
              (Head(32, 0, 0, 0xFF240402) + tail).toHex(' '));
    CTextObject text;
    text.hasOwnImage = false;
    EXPECT_EQ(RecordOf(text).toHex(' '), (Head(32, 0, 0, 0xFF2C0403) + tail).toHex(' '));
}

TEST(PnrBinWriter, WritesAnEmptyContour)
{
    CLineObject line;
    line.holders.push_back(Plan({}));
    EXPECT_EQ(RecordOf(line).toHex(' '),
              (Head(32, 0, 0, 0xFF240400) + I32(0) + I16(0) + I16(0)).toHex(' '));
}

TEST(PnrBinWriter, WritesTheLargest16BitCountForMoreVertices)
{
    for (const int count : {65535, 65536, 70000}) {
        CLineObject line;
        auto holder = std::make_unique<CVertexHolder2D>();
        holder->vertices.resize(static_cast<std::size_t>(count), {1, 2});
        line.holders.push_back(std::move(holder));
        const QByteArray record = RecordOf(line);
        EXPECT_EQ(record.mid(24, 4), I32(count));
        EXPECT_EQ(record.mid(30, 2), I16(0xFFFF));
        EXPECT_EQ(record.mid(8, 4), I32(count * 16));
        EXPECT_EQ(record.size(), 32 + count * 16);
    }
}

// ---- Texts -------------------------------------------------------------------------------------

TEST(PnrBinWriter, WritesATextWithoutDrawing)
{
    const auto text = PlainText(QStringLiteral(">abc"));
    text->code = 77;
    EXPECT_EQ(RecordOf(*text).toHex(' '),
              (Head(72, 40, 77, 0xFF2C0403) + I32(2) + I16(0) + I16(2) + F64s({1, 2, 3, 4}) + I8(6)
               + "abc" + '\0' + I8(24) + '\0' + '\0')
                  .toHex(' '));
}

TEST(PnrBinWriter, WritesTheDrawingOfAText)
{
    const CLocalCodec codec("UTF-8");
    const auto text = PlainText(QStringLiteral("ab"));
    text->hasOwnImage = true;
    text->image = {1, 2,  3,  4,  5,  6,  7,  25, 8,
                   9, 10, 11, 12, 13, 14, 15, 16, QStringLiteral("Шрифт")};
    EXPECT_EQ(RecordOf(*text).mid(20).toHex(' '),
              (I32(0xFF3C0403) + I32(2) + I16(0) + I16(2) + F64s({1, 2, 3, 4}) + I8(6) + "ab" + '\0'
               + I8(25) + '\0' + '\0' + '\0' + I32(0x7FFF7FFE) + I32(80) + I32(1) + I16(64)
               + I16(0x98) + I32(1) + I32(2) + I32(3) + I32(4) + I16(5) + I8(6) + I8(7) + I16(25)
               + I16(8) + I8(9) + I8(10) + I8(11) + I8(12) + I8(13) + I8(14) + I8(15) + I8(16)
               + "\xD8\xF0\xE8\xF4\xF2" + QByteArray(27, '\0'))
                  .toHex(' '));
    EXPECT_EQ(RecordOf(*text).mid(4, 8), I32(32 + 120) + I32(120));
}

TEST(PnrBinWriter, CutsTheFontNameTo32Characters)
{
    const auto text = PlainText(QStringLiteral("ab"));
    text->hasOwnImage = true;
    text->image.fontName = QString(50, QLatin1Char('f'));
    EXPECT_TRUE(RecordOf(*text).endsWith(QByteArray(1, '\0') + QByteArray(32, 'f')));
}

TEST(PnrBinWriter, CountsAMixedTextByItsFirstPartOnly)
{
    const auto text = PlainText(QStringLiteral("ab"));
    text->extraTexts = {QStringLiteral("c"), QStringLiteral("d")};
    text->extraAligns = {31};
    const QByteArray vertices = F64s({1, 2, 3, 4});
    EXPECT_EQ(RecordOf(*text).toHex(' '),
              (Head(72, 40, 0, 0xFF2C0405) + I32(2) + I16(2) + I16(2) + vertices + I8(6) + "ab"
               + '\0' + I8(24) + QByteArray(3, '\0') + I16(2) + I16(2) + vertices + I8(6) + "c"
               + '\0' + I8(31) + QByteArray(4, '\0') + I16(2) + I16(2) + vertices + I8(6) + "d"
               + '\0' + I8(24) + QByteArray(4, '\0'))
                  .toHex(' '));
}

TEST(PnrBinWriter, CountsATextInSpaceAsTwoVerticesInThePlan)
{
    CTextObject text;
    text.hasOwnImage = false;
    text.text = QStringLiteral("ab");
    text.holders.push_back(Space({{1, 2, 3}}));
    const QByteArray record = RecordOf(text);
    EXPECT_EQ(record.mid(8, 4), I32(40));
    EXPECT_EQ(record.mid(20, 12), I32(0xFF2E0403) + I32(1) + I16(0) + I16(1));
    EXPECT_EQ(record.mid(32, 24), F64s({1, 2, 3}));
}

TEST(PnrBinWriter, MakesTextBlocksAMultipleOf8)
{
    for (int size = 0; size <= 252; ++size) {
        const QByteArray block = BlockOf(QString(size, QLatin1Char('x')));
        const int length = static_cast<quint8>(block.at(0));
        ASSERT_EQ(block.size() % 8, 0) << size;
        ASSERT_EQ(block.size(), length + 2) << size;
        ASSERT_GE(length, size + 2);
        ASSERT_LT(length, size + 10);
        ASSERT_EQ(block.mid(1, size + 2), QByteArray(size, 'x') + '\0' + I8(24));
        ASSERT_EQ(block.mid(size + 3), QByteArray(length - size - 1, '\0'));
    }
}

TEST(PnrBinWriter, CutsATextToWhatItsLengthByteCanTell)
{
    const QByteArray block = BlockOf(QString(300, QLatin1Char('x')));
    EXPECT_EQ(block, I8(254) + QByteArray(252, 'x') + '\0' + I8(24) + '\0');
}

TEST(PnrBinWriter, DropsTheLastLineBreakWhereverItStands)
{
    EXPECT_EQ(BlockOf(QStringLiteral("ab\n")).mid(1, 3), QByteArray("ab\0", 3));
    EXPECT_EQ(BlockOf(QStringLiteral("a\nb\nc")).mid(1, 6), QByteArray("a\r\nbc\0", 6));
    EXPECT_EQ(BlockOf(QStringLiteral("a\nb")).mid(1, 3), QByteArray("ab\0", 3));
    EXPECT_EQ(BlockOf(QStringLiteral("a\r\nb")).mid(1, 4), QByteArray("a\rb\0", 4));
    EXPECT_EQ(BlockOf(QStringLiteral("ab\r")).mid(1, 3), QByteArray("ab\0", 3));
    EXPECT_EQ(BlockOf(QStringLiteral("a\rxb")).mid(1, 3), QByteArray("ab\0", 3));
}

TEST(PnrBinWriter, RemovesEveryAngleBracket)
{
    EXPECT_EQ(BlockOf(QStringLiteral(">a>b>")).mid(1, 3), QByteArray("ab\0", 3));
}

TEST(PnrBinWriter, WritesTextsInOneByteACharacter)
{
    const CLocalCodec codec("UTF-8");
    EXPECT_EQ(BlockOf(QStringLiteral("Ж漢")).left(4), I8(6) + "\xC6?" + '\0');
}

// ---- Attributes --------------------------------------------------------------------------------

namespace {

QByteArray SemanticsOf(std::vector<PnrSemantic> semantics)
{
    const auto line = PlainLine();
    line->semantics = std::move(semantics);
    const QByteArray record = RecordOf(*line);
    EXPECT_EQ(record.mid(4, 8), I32(record.size()) + I32(32));
    EXPECT_EQ(record.mid(20, 4), I32(0xFF240600));
    return record.mid(64);
}

} // namespace

TEST(PnrBinWriter, WritesEveryTypeOfAttribute)
{
    EXPECT_EQ(
        SemanticsOf({Attribute(1, 1, -5, 3), Attribute(2, 2, 30000, 254), Attribute(3, 4, -100000),
                     Attribute(4, 8, 0.25, 7), Attribute(0xFFFE, 126, QStringLiteral("abc"), 3)})
            .toHex(' '),
        (Semantic(1, 1, 3, I8(-5)) + Semantic(2, 2, -2, I16(30000))
         + Semantic(3, 4, 0, I32(-100000)) + Semantic(4, 8, 7, F64(0.25))
         + Semantic(0xFFFE, 126, 4, QByteArray("abc\0\0", 5)))
            .toHex(' '));
}

TEST(PnrBinWriter, WritesNothingForOtherTypesOfAttribute)
{
    EXPECT_EQ(SemanticsOf({Attribute(1, 0, QStringLiteral("a")), Attribute(2, 127, 1),
                           Attribute(3, -1, 2), Attribute(4, 3, 2), Attribute(5, 256 + 4, 2)}),
              QByteArray());
}

TEST(PnrBinWriter, WritesDatesByTheirDigits)
{
    EXPECT_EQ(SemanticsOf({Attribute(1, 126, QDate(2024, 2, 29), 8, 17)}),
              Semantic(1, 126, 9, QByteArray("20240229\0\0", 10)));
    EXPECT_EQ(SemanticsOf({Attribute(1, 126, QStringLiteral("no date"), 0, 17)}),
              Semantic(1, 126, 1, QByteArray(2, '\0')));
}

TEST(PnrBinWriter, WritesTextsOfAttributesOnOneLine)
{
    EXPECT_EQ(SemanticsOf({Attribute(1, 126, QStringLiteral("a\nb\r\nc"), 6)}),
              Semantic(1, 126, 7, QByteArray("a b\r c\0\0", 8)));
}

TEST(PnrBinWriter, CutsTextsOfAttributesTo255Characters)
{
    EXPECT_EQ(SemanticsOf({Attribute(1, 126, QString(300, QLatin1Char('x')), 254)}),
              Semantic(1, 126, -1, QByteArray(255, 'x') + QByteArray(2, '\0')));
}

TEST(PnrBinWriter, CutsIntegersToTheirType)
{
    EXPECT_EQ(SemanticsOf({Attribute(1, 1, 0x1234), Attribute(2, 2, 0x12345678),
                           Attribute(3, 4, QStringLiteral("12.5"))}),
              Semantic(1, 1, 0, I8(0x34)) + Semantic(2, 2, 0, I16(0x5678))
                  + Semantic(3, 4, 0, I32(0)));
}

TEST(PnrBinWriter, TakesValuesOfEveryKind)
{
    const QVariant values[] = {QVariant(),
                               true,
                               -7,
                               7U,
                               qint64{1} << 40,
                               quint64{1} << 63,
                               0.5,
                               1.5F,
                               QChar(u'x'),
                               QStringLiteral("text"),
                               QByteArray("bytes"),
                               QDate(2024, 1, 2),
                               QTime(3, 4),
                               QDateTime(QDate(2024, 1, 2), QTime(3, 4)),
                               QStringList{QStringLiteral("one")},
                               QVariantList{1, 2},
                               QVariantMap{},
                               QRectF(1, 2, 3, 4)};
    const int sizes[] = {1, 2, 4, 8};
    for (const QVariant& value : values) {
        for (const int type : sizes) {
            EXPECT_EQ(SemanticsOf({Attribute(1, type, value)}).size(), 4 + type)
                << value.typeName();
        }
        EXPECT_EQ(SemanticsOf({Attribute(1, 126, value)}).size(), 4 + value.toString().size() + 2)
            << value.typeName();
    }
}

TEST(PnrBinWriter, SetsTheFlagOfAttributesEvenIfNoneIsWritten)
{
    const auto line = PlainLine();
    line->semantics = {Attribute(1, -1, 5)};
    EXPECT_EQ(RecordOf(*line).mid(20, 4), I32(0xFF240600));
}

// ---- Objects with texts ------------------------------------------------------------------------

TEST(PnrBinWriter, TiesTextsToTheirObject)
{
    PnrTextGroup group;
    const std::shared_ptr<CLineObject> line = PlainLine();
    group.object = line;
    group.kind = 1;
    group.texts = {PlainText(QStringLiteral("a")), PlainText(QStringLiteral("b"))};
    CPnrWriting writing(Binary());
    writing->WriteLine(PlainLine().get());
    EXPECT_TRUE(writing->WriteWithTexts(group));
    const QByteArray records = Records(writing.Close());
    ASSERT_EQ(line->semantics.size(), 2U);
    EXPECT_EQ(line->semantics[1].semanticType, 12);
    EXPECT_EQ(line->semantics[1].code, 0x8024);
    EXPECT_EQ(line->semantics[1].dataType, 4);
    EXPECT_EQ(line->semantics[1].scale, 0);
    EXPECT_EQ(line->semantics[1].name, QStringLiteral("ССЫЛКА НА ПОДПИСЬ"));
    EXPECT_EQ(line->semantics[1].value, QVariant(4));
    ASSERT_EQ(group.texts[1]->semantics.size(), 1U);
    EXPECT_EQ(group.texts[1]->semantics[0].semanticType, 12);
    EXPECT_EQ(group.texts[1]->semantics[0].code, 0x8025);
    EXPECT_EQ(group.texts[1]->semantics[0].name, QStringLiteral("ССЫЛКА ПОДПИСИ НА ОБЪЕКТ"));
    EXPECT_EQ(group.texts[1]->semantics[0].value, QVariant(2));
    EXPECT_EQ(records.mid(64 + 64, 16),
              Semantic(0x8024, 4, 0, I32(3)) + Semantic(0x8024, 4, 0, I32(4)));
    EXPECT_EQ(records.mid(64 + 80 + 16, 4), I32(3)) << "number of the first text";
    EXPECT_EQ(records.right(8), Semantic(0x8025, 4, 0, I32(2)));
}

TEST(PnrBinWriter, WritesTheObjectOfAGroupByItsKind)
{
    const auto point = std::make_shared<CPointObject>();
    const auto square = std::make_shared<CSquareObject>();
    CPnrWriting writing(Binary());
    EXPECT_TRUE(writing->WriteWithTexts({{}, point, 0}));
    EXPECT_TRUE(writing->WriteWithTexts({{}, square, 2}));
    const QByteArray records = Records(writing.Close());
    EXPECT_EQ(records.mid(20, 4), I32(0xFF240402));
    EXPECT_EQ(records.mid(32 + 20, 4), I32(0xFF240401));
}

TEST(PnrBinWriter, WritesNothingForAnObjectOfAnotherKindThanTold)
{
    CPnrWriting writing(Binary());
    EXPECT_FALSE(writing->WriteWithTexts({{PlainText(QStringLiteral("a"))}, PlainLine(), 2}));
    EXPECT_FALSE(writing->WriteWithTexts({{PlainText(QStringLiteral("b"))}, nullptr, 1}));
    EXPECT_EQ(Records(writing.Close()).size(), 2 * (72 + 8)) << "the texts are still written";
}

TEST(PnrBinWriter, PassesOverTheObjectOfAnUnknownKind)
{
    CPnrWriting writing(Binary());
    EXPECT_TRUE(writing->WriteWithTexts({{PlainText(QStringLiteral("a"))}, PlainLine(), 3}));
    EXPECT_EQ(Records(writing.Close()).size(), 72 + 8);
}

// ---- Report ------------------------------------------------------------------------------------

TEST(PnrBinWriter, CountsObjectsInTheReport)
{
    for (const bool userMap : {false, true}) {
        CExportLog log;
        CPnrWriting::COptions options;
        options.userMap = userMap;
        options.log = &log;
        CPnrWriting writing(options);
        CSquareObject square;
        CPointObject point;
        writing->WriteLine(PlainLine().get());
        writing->WriteLine(PlainLine().get());
        writing->WriteSquare(&square);
        writing->WritePoint(&point);
        const QString prefix = userMap ? QStringLiteral("(пользовательская карта) ")
                                       : QStringLiteral("(карта местности) ");
        CExportLog expected;
        const QString key = prefix + QLatin1Char(' ') + writing.FileName();
        expected.UpStatistic(key, QStringLiteral("линейные объекты"));
        expected.UpStatistic(key, QStringLiteral("линейные объекты"));
        expected.UpStatistic(key, QStringLiteral("площадные объекты"));
        expected.UpStatistic(key, QStringLiteral("точечные объекты"));
        QString report;
        QString expectedReport;
        log.GetText(report);
        expected.GetText(expectedReport);
        EXPECT_EQ(report.chopped(18).toStdString(), expectedReport.chopped(18).toStdString());
    }
}

TEST(PnrBinWriter, CountsTextsByTheirDrawing)
{
    CExportLog log;
    CPnrWriting::COptions options;
    options.log = &log;
    CPnrWriting writing(options);
    const auto text = PlainText(QStringLiteral("a"));
    writing->WriteText(text.get());
    text->hasOwnImage = true;
    writing->WriteText(text.get());
    writing->WriteText(text.get());
    QString report;
    log.GetText(report);
    EXPECT_TRUE(report.contains(QStringLiteral("(карта местности)  ") + writing.FileName()));
    EXPECT_TRUE(report.contains(QStringLiteral("(пользовательская карта)  ") + writing.FileName()));
    EXPECT_TRUE(report.contains(QStringLiteral("тексты - 1")));
    EXPECT_TRUE(report.contains(QStringLiteral("тексты - 2")));
}

// ---- What is refused ---------------------------------------------------------------------------

TEST(PnrBinWriter, RefusesNullAndBrokenObjects)
{
    CPnrWriting writing(Binary());
    EXPECT_FALSE(writing->WriteLine(nullptr));
    EXPECT_FALSE(writing->WriteSquare(nullptr));
    EXPECT_FALSE(writing->WritePoint(nullptr));
    EXPECT_FALSE(writing->WriteText(nullptr));
    CLineObject line;
    line.holders.push_back(nullptr);
    EXPECT_FALSE(writing->WriteLine(&line));
    EXPECT_TRUE(writing.Close().isNull());
}

TEST(PnrBinWriter, RefusesCoordinatesThatAreNotFinite)
{
    CExportLog log;
    CPnrWriting::COptions options;
    options.log = &log;
    CPnrWriting writing(options);
    for (const double bad : {kNaN, kInfinity, -kInfinity}) {
        CLineObject line;
        line.holders.push_back(Plan({{0, 0}, {1, bad}}));
        EXPECT_FALSE(writing->WriteLine(&line));
        CPointObject point;
        point.holders.push_back(Space({{0, 0, bad}}));
        EXPECT_FALSE(writing->WritePoint(&point));
        CTextObject text;
        text.holders.push_back(Plan({{bad, 0}}));
        EXPECT_FALSE(writing->WriteText(&text));
    }
    EXPECT_TRUE(writing.Close().isNull()) << "nothing was written";
    QString report;
    EXPECT_LE(log.GetText(report), 19) << "nothing was counted";
}

TEST(PnrBinWriter, RefusesCoordinatesThatTheConversionMakesNotFinite)
{
    struct CNaN final : IPnrWriter::IContext
    {
        CPoint3D Transform3D(const CPoint3D& p) override { return p; }
        CPoint2D Transform2D(const CPoint2D& p) override { return {p.x, kNaN}; }
    };
    CPnrWriting::COptions options;
    options.context = std::make_shared<CNaN>();
    CPnrWriting writing(options);
    EXPECT_FALSE(writing->WriteLine(PlainLine().get()));
    EXPECT_TRUE(writing.Close().isNull());
}

TEST(PnrBinWriter, RefusesAttributesThatAreNotFinite)
{
    CPnrWriting writing(Binary());
    for (const int type : {1, 2, 4, 8, 126}) {
        for (const QVariant& value :
             {QVariant(kNaN), QVariant(static_cast<float>(kNaN)), QVariant(kInfinity)})
        {
            const auto line = PlainLine();
            line->semantics = {Attribute(1, type, value)};
            EXPECT_FALSE(writing->WriteLine(line.get()));
        }
    }
    const auto line = PlainLine();
    line->semantics = {Attribute(1, 8, QStringLiteral("nan"))};
    EXPECT_FALSE(writing->WriteLine(line.get()));
    line->semantics = {Attribute(1, -1, kNaN)};
    EXPECT_TRUE(writing->WriteLine(line.get())) << "of this type nothing is written";
    EXPECT_EQ(Records(writing.Close()).mid(16, 4), I32(1)) << "the refused took no number";
}

TEST(PnrBinWriter, MakesNoTargetOfARectangleThatIsNotFinite)
{
    CPnrWriting::COptions options;
    options.params.x = kNaN;
    options.params.width = 1;
    options.params.height = 1;
    CPnrWriting writing(options);
    EXPECT_TRUE(writing->WriteLine(PlainLine().get()));
    EXPECT_TRUE(writing.Close().isNull());
    EXPECT_FALSE(writing.Closed());
}

TEST(PnrBinWriter, ConvertsEveryVertexOnce)
{
    struct CCounter final : IPnrWriter::IContext
    {
        CPoint3D Transform3D(const CPoint3D& p) override
        {
            ++in3D;
            return {p.y, p.x, -p.z};
        }
        CPoint2D Transform2D(const CPoint2D& p) override
        {
            ++in2D;
            return {p.y, p.x};
        }
        int in2D = 0;
        int in3D = 0;
    };
    CPnrWriting::COptions options;
    const auto counter = std::make_shared<CCounter>();
    options.context = counter;
    CSquareObject square;
    square.holders.push_back(Plan({{1, 2}, {3, 4}}));
    square.holders.push_back(Space({{5, 6, 7}}));
    const QByteArray record = RecordOf(square, &IPnrWriter::WriteSquare, options);
    EXPECT_EQ(record.mid(32), F64s({2, 1, 4, 3}) + I16(0) + I16(1) + F64s({6, 5, -7}));
    EXPECT_EQ(counter->in2D, 2);
    EXPECT_EQ(counter->in3D, 1);
}
