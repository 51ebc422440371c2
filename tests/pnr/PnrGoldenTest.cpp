// SPDX-License-Identifier: MIT
#include "PnrLocalCodec.h"
#include "PnrWriting.h"
#include "SxfBuilder.h"

using namespace VelorExchange::pnr;

namespace {

// One object of each kind, in the plan and in space, with drawings, attributes and a group.
QByteArray WriteSampleMap(bool text)
{
    CPnrWriting::COptions options;
    options.text = text;
    options.params = {QStringLiteral("Образец"), 10000, 0, 0, 0, 0};
    CPnrWriting writing(options);
    CLineObject line;
    line.image = std::make_unique<PnrLineImage>(PnrLineImage{255, 2000});
    line.holders.push_back(Plan({{1.5, 2.25}, {30, -4}}));
    writing->WriteLine(&line);
    CSquareObject square;
    square.code = 71111110;
    square.holders.push_back(Space({{0, 0, 1}, {100, 0, 2}, {100, 100, 3}, {0, 0, 1}}));
    square.holders.push_back(Space({{10, 10, 1}, {20, 10, 1}, {20, 20, 1}, {10, 10, 1}}));
    square.semantics = {Attribute(1, 1, 5), Attribute(2, 2, -300), Attribute(3, 4, 70000),
                        Attribute(4, 8, 0.5), Attribute(5, 126, QStringLiteral("Лес"), 3)};
    writing->WriteSquare(&square);
    CPointObject point;
    point.image = std::make_unique<PnrPointImage>();
    point.holders.push_back(Plan({{50, 60}}));
    writing->WritePoint(&point);
    PnrTextGroup group;
    const auto named = std::make_shared<CPointObject>();
    named->code = 11200000;
    named->holders.push_back(Plan({{70, 80}}));
    const auto name = std::make_shared<CTextObject>();
    name->text = QStringLiteral("Пункт\nвторой");
    name->holders.push_back(Plan({{71, 81}, {75, 81}}));
    group.object = named;
    group.texts = {name};
    writing->WriteWithTexts(group);
    return WithoutDate(writing.Close());
}

// With VELOREXCHANGE_RENEW_GOLDEN in the environment the file is written anew; read the change.
void ExpectGolden(const char* name, const QByteArray& bytes)
{
    QFile file(QStringLiteral(VELOREXCHANGE_GOLDEN "/pnr/") + QLatin1String(name));
    if (qEnvironmentVariableIsSet("VELOREXCHANGE_RENEW_GOLDEN")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << name;
        file.write(bytes);
        return;
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    const QByteArray expected = file.readAll();
    EXPECT_EQ(bytes.size(), expected.size());
    EXPECT_TRUE(bytes == expected) << name;
}

} // namespace

TEST(PnrGolden, BinaryMapIsByteForByteTheGoldenOne)
{
    const CLocalCodec codec("windows-1251");
    QByteArray file = WriteSampleMap(false);
    SxfBuilder::MendChecksum(file); // the date is part of the sum
    ExpectGolden("map.sxf", file);
}

TEST(PnrGolden, TextMapIsByteForByteTheGoldenOne)
{
    const CLocalCodec codec("windows-1251");
    ExpectGolden("map.txt", WriteSampleMap(true));
}
