// SPDX-License-Identifier: MIT
// Whole drawings, byte for byte. scripts/renew-golden-dxf.sh writes them anew; the change is to be
// read like code.
#include "tests/support/DxfDrawing.h"
#include "tests/support/DxfSample.h"

using namespace VelorExchange::test;

namespace {

void ExpectGolden(const QByteArray& drawing, const char* name)
{
    QFile golden(QStringLiteral(VELOREXCHANGE_GOLDEN "/dxf/") + QString::fromLatin1(name));
    if (qEnvironmentVariableIsSet("VELOREXCHANGE_RENEW_GOLDEN")) {
        ASSERT_TRUE(golden.open(QIODevice::WriteOnly));
        golden.write(drawing);
        return;
    }
    ASSERT_TRUE(golden.open(QIODevice::ReadOnly)) << name;
    const QByteArray expected = golden.readAll();
    EXPECT_EQ(AsText(ParseTags(drawing)), AsText(ParseTags(expected))); // to be read as a diff
    EXPECT_TRUE(drawing == expected) << name;
}

} // namespace

TEST(Golden, EmptyDrawings)
{
    ExpectGolden(CDrawing(1015).Bytes(), "empty_1015.dxf");
    ExpectGolden(CDrawing(1018).Bytes(), "empty_1018.dxf");
}

TEST(Golden, EveryKindOfElementIn1015)
{
    CDrawing drawing(1015);
    DrawEverything(*drawing);
    ExpectGolden(drawing.Bytes(), "every_kind_1015.dxf");
}

TEST(Golden, EveryKindOfElementIn1018)
{
    CDrawing drawing(1018);
    DrawEverything(*drawing);
    ExpectGolden(drawing.Bytes(), "every_kind_1018.dxf");
}

TEST(Golden, EveryKindOfElementThroughAContext)
{
    CTestContext context;
    CDrawing drawing(1018, &context);
    drawing->SetPrecision(3);
    DrawEverything(*drawing);
    ExpectGolden(drawing.Bytes(), "every_kind_in_context.dxf");
}
