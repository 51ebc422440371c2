// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/ExportLog.h"

#include "PnrBinWriterTest.h"

using namespace PnrBinWriterTest;
using VelorExchange::CExportLog;

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
