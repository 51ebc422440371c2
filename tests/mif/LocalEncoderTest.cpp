// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/LocalEncoder_p.h"

#include "tests/support/MifRecorder.h"

#include <random>

using namespace VelorExchange::mif;
using VelorExchange::test::CLocalCodec;

namespace {

QByteArray Encoded(CLocalEncoder& encoder, const QString& text)
{
    COutputBlock block;
    encoder.Put(block, text);
    return {block.Data(), static_cast<int>(block.Size())};
}

QString RandomText(std::mt19937& random)
{
    static const QString kTelling = QStringLiteral("abc \"Дом№ё€§äß漢\uFEFF\u0085");
    QString text;
    for (auto length = random() % 12; length > 0; --length) {
        text += random() % 8 == 0
            ? QChar(static_cast<ushort>(random()))
            : kTelling.at(static_cast<int>(random() % static_cast<unsigned>(kTelling.size())));
    }
    return text;
}

} // namespace

TEST(LocalEncoder, EncodesAsToLocal8Bit)
{
    std::mt19937 random(23);
    CLocalEncoder encoder;
    for (const char* codec : {"windows-1251", "UTF-8", "IBM866", "KOI8-R", "ISO-8859-1",
                              "windows-1253", "Shift_JIS", "ISO-2022-JP", "GB18030", "UTF-16"})
    {
        const CLocalCodec local(codec);
        for (int i = 0; i < 1500; ++i) {
            const QString text = RandomText(random);
            ASSERT_EQ(Encoded(encoder, text), text.toLocal8Bit())
                << codec << ' ' << text.toStdString();
        }
    }
}

TEST(LocalEncoder, EveryCharacterIsEncodedAsByQt)
{
    CLocalEncoder encoder;
    for (const char* codec : {"windows-1251", "IBM866"}) {
        const CLocalCodec local(codec);
        for (int c = 0; c < 0x10000; ++c) {
            const QString text = QChar(static_cast<ushort>(c));
            ASSERT_EQ(Encoded(encoder, text), text.toLocal8Bit()) << codec << ' ' << c;
        }
    }
}

TEST(LocalEncoder, AppendsToWhatIsThere)
{
    CLocalEncoder encoder;
    COutputBlock block;
    QByteArray expected;
    for (int i = 0; i < 3000; ++i) {
        encoder.Put(block, QStringLiteral("Дом "));
        expected += QStringLiteral("Дом ").toLocal8Bit();
        block.PutInteger(i);
        expected += QByteArray::number(i);
    }
    EXPECT_EQ(QByteArray(block.Data(), static_cast<int>(block.Size())), expected);
}
