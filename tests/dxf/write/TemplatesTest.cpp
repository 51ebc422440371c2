// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/Templates_p.h"

#include <QCryptographicHash>

using VelorExchange::dxf::CTemplates;
using VelorExchange::dxf::TemplatesOf;

namespace {

std::string Digest(std::string_view piece)
{
    const QByteArray bytes(piece.data(), static_cast<int>(piece.size()));
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().toStdString();
}

} // namespace

TEST(Templates, PiecesOf1015AreUnchanged)
{
    const CTemplates& templates = TemplatesOf(1015);
    EXPECT_EQ(Digest(templates.header),
              "876191a58508b1f67dbfcf43fa736ce6201c996ec3974c23f5c5c429b38855b1");
    EXPECT_EQ(Digest(templates.classes),
              "c9d84c1ce2363ed1108edc2a906228a62a9599ecb9d42c449daf52258e7b215b");
    EXPECT_EQ(Digest(templates.blocks),
              "53217df6d14914044281b19746066da67f6fcc911ddf49d7bc2fc309f90d9a51");
    EXPECT_EQ(Digest(templates.objects),
              "ee4f3ebf18eac26b956d168c9baa41f3f90e6f06cbbb4e8d4c5431d155174061");
    EXPECT_EQ(Digest(templates.viewports),
              "5063813ad30acee106994645eedc9976acd360df4572c45d91be3e02c19222d3");
    EXPECT_EQ(Digest(templates.tables),
              "84d52f69e078fe20e22fd643a3afb9f4ffa39c70896d507edcc57526452e4e94");
}

TEST(Templates, PiecesOf1018AreUnchanged)
{
    const CTemplates& templates = TemplatesOf(1018);
    EXPECT_EQ(Digest(templates.header),
              "c83802df7934cc9b43b9b576eaab4bbe1f02c01a6d4b87e1e7462357911ad244");
    EXPECT_EQ(Digest(templates.classes),
              "6cac49e01dca4a876d15687269f2427cdd2003e25ad58ac9f1b0190c483836f1");
    EXPECT_EQ(Digest(templates.blocks),
              "53217df6d14914044281b19746066da67f6fcc911ddf49d7bc2fc309f90d9a51");
    EXPECT_EQ(Digest(templates.objects),
              "1fd3ff8d14ecc58bb4e21501a8c7ce19093ce19b6488346926cf7327574753ce");
    EXPECT_EQ(Digest(templates.viewports),
              "2929db2d52b1a2966b3dcfb5efa332ffd2bf38b1a9ecabbf784fe9d2505ceb19");
    EXPECT_EQ(Digest(templates.tables),
              "84d52f69e078fe20e22fd643a3afb9f4ffa39c70896d507edcc57526452e4e94");
}

TEST(Templates, PiecesHaveTheirLengths)
{
    const CTemplates& old = TemplatesOf(1015);
    const CTemplates& present = TemplatesOf(1018);
    EXPECT_EQ(old.header.size(), 5904U);
    EXPECT_EQ(old.objects.size(), 5672U);
    EXPECT_EQ(present.header.size(), 6242U);
    EXPECT_EQ(present.objects.size(), 4164U);
}

TEST(Templates, AnyOtherVersionTakesThePresentPieces)
{
    EXPECT_EQ(&TemplatesOf(1021), &TemplatesOf(1018));
}
