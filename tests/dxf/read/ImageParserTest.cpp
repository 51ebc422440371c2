// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

#include <QFileInfo>
#include <QRegExp>

#include <cmath>

using namespace VelorExchange::test;
using namespace VelorExchange::dxf;

namespace {

constexpr char kUpright[] = "11 0.5\n21 0\n12 0\n22 0.25\n"; // both vectors along the axes

QByteArray Drawing(const std::string& entities, const std::string& objects)
{
    return Tags("0 SECTION\n2 ENTITIES\n") + Tags(entities.c_str())
        + Tags("0 ENDSEC\n0 SECTION\n2 OBJECTS\n") + Tags(objects.c_str())
        + Tags("0 ENDSEC\n0 EOF\n");
}

class CImages final : public IDXFReader
{
public:
    std::vector<CImageDXF> images;
    bool OnImage(const CImageDXF& image) override
    {
        images.push_back(image);
        return true;
    }
};

// What the host gets for an IMAGE with these groups and the file "a.png".
std::string Image(const std::string& groups)
{
    return Recorded(Drawing("0 IMAGE\n340 F1\n" + groups, "0 IMAGEDEF\n5 F1\n1 a.png\n"));
}

CImageDXF OneImage(const std::string& groups)
{
    CImages host;
    ReadBytes(Drawing("0 IMAGE\n340 F1\n" + groups, "0 IMAGEDEF\n5 F1\n1 a.png\n"), host);
    return host.images.at(0);
}

} // namespace

TEST(ImageParser, ReadsAllFields)
{
    EXPECT_EQ(Image(std::string("8 Photos\n10 1\n20 2\n30 3\n13 640\n23 480\n") + kUpright),
              "Image layer=\"Photos\" path=\"a.png\" name=\"a\" origin=(1 2) scaleX=0.5 "
              "scaleY=0.25 width=640 height=480\n");
}

TEST(ImageParser, MeasuresATurnedImage)
{
    const CImageDXF image = OneImage("11 3\n21 4\n12 -8\n22 6\n");
    EXPECT_NEAR(image.rotation, std::atan2(4, 3), 1e-14);
    EXPECT_NEAR(image.scaleX, 5, 1e-14);
    EXPECT_NEAR(image.scaleY, 10, 1e-14);
}

TEST(ImageParser, TakesScalesWithoutTheirSign)
{
    const CImageDXF image = OneImage("11 -3\n21 0\n12 0\n22 -2\n");
    EXPECT_EQ(image.rotation, 0);
    EXPECT_EQ(image.scaleX, 3);
    EXPECT_EQ(image.scaleY, 2);
}

TEST(ImageParser, LetsTheArithmeticStandForAbsentVectors)
{
    const CImageDXF image = OneImage("");
    EXPECT_TRUE(std::isnan(image.rotation));
    EXPECT_TRUE(std::isnan(image.scaleX));
    EXPECT_TRUE(std::isnan(image.scaleY));
}

TEST(ImageParser, ConvertsItsOrigin)
{
    EXPECT_EQ(Image(std::string("10 1\n20 2\n30 3\n210 0\n220 0\n230 -1\n") + kUpright),
              "Image path=\"a.png\" name=\"a\" origin=(-1 2) scaleX=0.5 scaleY=0.25\n");
}

TEST(ImageParser, ReadsAClipOutlineAsItStands)
{
    const std::string outline = "91 3\n14 1\n24 2\n14 3\n24 4\n14 5\n24 6\n";
    const char* const expected = "Image clip=[(1 2 0) (3 4 0) (5 6 0)] path=\"a.png\" name=\"a\" "
                                 "scaleX=0.5 scaleY=0.25\n";
    EXPECT_EQ(Image(kUpright + outline), expected);
    EXPECT_EQ(Image(kUpright + outline + "210 0\n220 0\n230 -1\n"), expected);
}

TEST(ImageParser, DropsAClipOutlineWhoseCountDisagrees)
{
    const std::string expected = "Image path=\"a.png\" name=\"a\" scaleX=0.5 scaleY=0.25\n";
    for (const char* count : {"", "91 1\n", "91 3\n", "91 -2\n", "91 2147483647\n"}) {
        EXPECT_EQ(Image(kUpright + std::string(count) + "14 1\n24 2\n14 3\n24 4\n"), expected)
            << count;
    }
    EXPECT_EQ(Image(kUpright + std::string("91 2\n14 1\n24 2\n14 3\n")), expected);
    EXPECT_EQ(Image(kUpright + std::string("91 2\n14 1\n24 2\n24 3\n")), expected);
}

TEST(ImageParser, LetsTheLaterOfTwoEqualClipPointsStand)
{
    EXPECT_EQ(OneImage("91 3\n14 1\n24 2\n14 1.00001\n24 2\n14 5\n24 6\n").clip.size(), 2U);
    EXPECT_EQ(OneImage("91 2\n14 1\n24 2\n14 1.00001\n24 2\n").clip.at(0).x, 1.00001);
}

TEST(ImageParser, DropsImageInPaperSpace)
{
    EXPECT_EQ(Image(kUpright + std::string("67 1\n")), "");
}

TEST(ImageParser, NeverDeliversAnImageWithoutItsFile)
{
    EXPECT_EQ(Recorded(Drawing("0 IMAGE\n340 F1\n", "0 IMAGEDEF\n5 F2\n1 a.png\n")), "");
    EXPECT_EQ(Recorded(Entities("0 IMAGE\n340 F1\n")), "");
}

TEST(ImageParser, NeverDeliversImagesWhereObjectsAreRefused)
{
    CDxfRecorder host;
    host.refused = {4};
    EXPECT_TRUE(ReadBytes(Drawing("0 IMAGE\n340 F1\n", "0 IMAGEDEF\n5 F1\n1 a.png\n"), host));
    EXPECT_EQ(host.text, "");
}

TEST(ImageParser, DeliversTheLaterOfTwoImagesFirst)
{
    const std::string one = kUpright;
    EXPECT_EQ(Recorded(Drawing("0 IMAGE\n340 F1\n8 A\n" + one + "0 IMAGE\n340 F2\n8 B\n" + one
                                   + "0 IMAGE\n340 F1\n8 C\n" + one,
                               "0 IMAGEDEF\n5 F1\n1 a.png\n0 IMAGEDEF\n5 F2\n1 b.png\n")),
              "Image layer=\"C\" path=\"a.png\" name=\"a\" scaleX=0.5 scaleY=0.25\n"
              "Image layer=\"A\" path=\"a.png\" name=\"a\" scaleX=0.5 scaleY=0.25\n"
              "Image layer=\"B\" path=\"b.png\" name=\"b\" scaleX=0.5 scaleY=0.25\n");
}

TEST(ImageParser, DeliversAnImageOnce)
{
    EXPECT_EQ(Recorded(Drawing(std::string("0 IMAGE\n340 F1\n") + kUpright,
                               "0 IMAGEDEF\n5 F1\n1 a.png\n0 IMAGEDEF\n5 F1\n1 b.png\n")),
              "Image path=\"a.png\" name=\"a\" scaleX=0.5 scaleY=0.25\n");
}

TEST(ImageParser, DeliversAnImageOfABlockToTheHost)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 BLOCKS\n0 BLOCK\n2 B\n0 IMAGE\n340 F1\n") + Tags(kUpright)
                       + Tags("0 ENDBLK\n0 ENDSEC\n") + Drawing("", "0 IMAGEDEF\n5 F1\n1 a.png\n")),
              "Block name=\"B\"\nImage path=\"a.png\" name=\"a\" scaleX=0.5 scaleY=0.25\n");
}

TEST(ImageParser, PutsImagesIntoABlockLeftOpen)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 BLOCKS\n0 BLOCK\n2 B\n0 ENDSEC\n")
                       + Drawing("0 IMAGE\n340 F1\n", "0 IMAGEDEF\n5 F1\n1 a.png\n")),
              "");
}

TEST(ImageParser, NeedsAHandleAndAPath)
{
    EXPECT_EQ(Recorded(Drawing("0 IMAGE\n", "0 IMAGEDEF\n1 a.png\n")), "");
    EXPECT_EQ(Recorded(Drawing("0 IMAGE\n340\n", "0 IMAGEDEF\n5\n1 a.png\n")), "");
    EXPECT_EQ(Recorded(Drawing("0 IMAGE\n340 F1\n", "0 IMAGEDEF\n5 F1\n")), "");
    EXPECT_EQ(Recorded(Drawing("0 IMAGE\n340 F1\n", "0 IMAGEDEF\n5 F1\n1\n")), "");
}

TEST(ImageParser, ComparesHandlesExactly)
{
    EXPECT_EQ(Recorded(Drawing("0 IMAGE\n340 F1\n", "0 IMAGEDEF\n5 f1\n1 a.png\n")), "");
}

TEST(ImageParser, PassesOverADefinitionInPaperSpace)
{
    EXPECT_EQ(Recorded(Drawing("0 IMAGE\n340 F1\n", "0 IMAGEDEF\n67 1\n5 F1\n1 a.png\n")), "");
}

TEST(ImageParser, SplitsTheNameOffThePath)
{
    CImages host;
    ReadBytes(Drawing("0 IMAGE\n340 F1\n", "0 IMAGEDEF\n5 F1\n1 ../photos/site.jpg\n"), host);
    EXPECT_EQ(host.images.at(0).filePath, QStringLiteral("../photos/site.jpg"));
    EXPECT_EQ(host.images.at(0).name, QStringLiteral("site"));
}

TEST(ImageParser, TakesAnExtensionOfTwoOrThreeCharactersOff)
{
    const std::pair<const char*, const char*> names[] = {
        {"photo.jpg", "photo"}, {"photo.ai", "photo"}, {"photo.jpeg", "photo.jpeg"},
        {"photo.c", "photo.c"}, {"photo", "photo"},    {"img.a.b", "img"},
        {"a.tar.gz", "a.tar"},  {".png", ""},          {"x..ab", "x"},
        {"photo.JPG", "photo"},
    };
    for (const auto& [file, name] : names) {
        CImages host;
        ReadBytes(Drawing("0 IMAGE\n340 F1\n", std::string("0 IMAGEDEF\n5 F1\n1 ") + file + "\n"),
                  host);
        EXPECT_EQ(host.images.at(0).name.toStdString(), name) << file;
    }
}

// All names of up to seven of these characters, some of them a pair of QChars.
TEST(ImageParser, TakesExtensionsOffLikeTheRegularExpression)
{
    const QStringList letters{QStringLiteral("a"), QStringLiteral("."), QStringLiteral("/"),
                              QString::fromUtf8("\xF0\x9F\x97\xBA")};
    QStringList paths{QString()};
    for (int i = 0; i < paths.size(); ++i) {
        for (const QString& letter : letters) {
            if (paths[i].count(QLatin1Char('a')) + paths[i].size() < 7) {
                paths.append(paths[i] + letter);
            }
        }
    }
    paths.removeFirst(); // the empty one
    QByteArray drawing = Tags("0 SECTION\n2 HEADER\n9 $ACADVER\n1 AC1021\n0 ENDSEC\n");
    std::string images;
    std::string files;
    for (int i = 0; i < paths.size(); ++i) {
        images += "0 IMAGE\n340 " + std::to_string(i) + "\n";
        files += "0 IMAGEDEF\n5 " + std::to_string(i) + "\n1 " + paths[i].toStdString() + "\n";
    }
    CImages host;
    ReadBytes(drawing + Drawing(images, files), host);
    ASSERT_EQ(host.images.size(), static_cast<std::size_t>(paths.size()));
    ASSERT_GT(paths.size(), 1000);
    for (int i = 0; i < paths.size(); ++i) {
        const QString expected =
            QFileInfo(paths[i]).fileName().remove(QRegExp(QStringLiteral("(\\.).{2,3}$")));
        EXPECT_EQ(host.images[static_cast<std::size_t>(i)].name, expected) << qPrintable(paths[i]);
    }
}
