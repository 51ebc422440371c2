// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/ExportLog.h"

#include "PnrBinWriterTest.h"

using namespace PnrBinWriterTest;
using VelorExchange::CExportLog;

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
