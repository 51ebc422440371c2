// SPDX-License-Identifier: MIT
// Whole pictures of drawings made by hand.
#include "tools/velorx/render/DrawSource.h"

#include "tests/tools/render/Canvas.h"
#include "tests/tools/RunVelorx.h"
#include "tools/velorx/features/IFeatureSource.h"
#include "tools/velorx/HostCodec.h"

#include <gtest/gtest.h>

#include <QXmlStreamReader>

#include <functional>

namespace velorx::test {

namespace {

class CHandSource final : public IFeatureSource
{
public:
    explicit CHandSource(std::function<void(IFeatureSink&)> drawing) : draw(std::move(drawing)) { }

    QString Read(IFeatureSink& sink, CFeatureTally& /*tally*/) override
    {
        draw(sink);
        return problem;
    }

    QString problem;

private:
    std::function<void(IFeatureSink&)> draw;
};

void Square(IFeatureSink& sink)
{
    sink.Take(RedArea({Rectangle(0, 0, 10, 10)}));
    sink.Take(Text("Тихая", 1, 1));
}

class DrawSource : public testing::Test
{
protected:
    SPictureJob Job(const char* name, EPictureFormat format)
    {
        SPictureJob job;
        job.target = PathFromBytes(folder.Write(name, ""));
        job.name = QString::fromLatin1(name);
        job.format = format;
        return job;
    }

    std::string Content(const char* name) const { return ReadFile(folder.path + "/" + name); }

    CTemporaryFolder folder;
    CConversionReport report;
};

} // namespace

TEST_F(DrawSource, PngHasTheSizeOfTheJob)
{
    SPictureJob job = Job("a.png", EPictureFormat::Png);
    job.width = 300;
    job.height = 200;
    CHandSource source(Square);
    EXPECT_EQ(velorx::DrawSource(source, job, report), "");
    const QImage image = QImage::fromData(QByteArray::fromStdString(Content("a.png")), "PNG");
    EXPECT_EQ(image.size(), QSize(300, 200));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_EQ(report.log, "a.png: 300 x 200 pixels");
}

TEST_F(DrawSource, PngOfNoGivenSizeIs1600Wide)
{
    CHandSource source([](IFeatureSink& sink) { sink.Take(RedArea({Rectangle(0, 0, 20, 10)})); });
    EXPECT_EQ(velorx::DrawSource(source, Job("a.png", EPictureFormat::Png), report), "");
    const QImage image = QImage::fromData(QByteArray::fromStdString(Content("a.png")), "PNG");
    EXPECT_EQ(image.size(), QSize(1600, 800));
    EXPECT_EQ(image.pixelColor(800, 400), QColor(255, 0, 0));
}

TEST_F(DrawSource, BackgroundFillsThePicture)
{
    SPictureJob job = Job("a.png", EPictureFormat::Png);
    job.background = 0xFF102030;
    CHandSource source(Square);
    velorx::DrawSource(source, job, report);
    const QImage image = QImage::fromData(QByteArray::fromStdString(Content("a.png")), "PNG");
    EXPECT_EQ(image.pixelColor(0, 0), QColor(0x10, 0x20, 0x30));
}

TEST_F(DrawSource, TransparentBackgroundLetsThePaperThrough)
{
    SPictureJob job = Job("a.png", EPictureFormat::Png);
    job.background = 0;
    CHandSource source(Square);
    velorx::DrawSource(source, job, report);
    const QImage image = QImage::fromData(QByteArray::fromStdString(Content("a.png")), "PNG");
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
}

TEST_F(DrawSource, SvgIsWellFormedAndOfTheSizeOfTheJob)
{
    SPictureJob job = Job("a.svg", EPictureFormat::Svg);
    job.width = 300;
    job.height = 200;
    CHandSource source(Square);
    EXPECT_EQ(velorx::DrawSource(source, job, report), "");
    QXmlStreamReader xml(QByteArray::fromStdString(Content("a.svg")));
    ASSERT_TRUE(xml.readNextStartElement());
    EXPECT_EQ(xml.name(), QLatin1String("svg"));
    EXPECT_EQ(xml.attributes().value(QLatin1String("viewBox")), QLatin1String("0 0 300 200"));
    while (!xml.atEnd()) {
        xml.readNext();
        EXPECT_NE(xml.name(), QLatin1String("text")); // letters are outlines
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
}

TEST_F(DrawSource, SvgOfVeryManyLettersKeepsThemAsText)
{
    CHandSource source([](IFeatureSink& sink) {
        STextFeature text = Text("", 0, 0);
        text.text = QString(1000, QLatin1Char('H'));
        for (int i = 0; i <= 50; ++i) {
            text.position.y = i * 40;
            sink.Take(text);
        }
    });
    EXPECT_EQ(velorx::DrawSource(source, Job("a.svg", EPictureFormat::Svg), report), "");
    EXPECT_NE(Content("a.svg").find("<text "), std::string::npos);
    ASSERT_EQ(report.remarks.size(), 1U);
    EXPECT_NE(report.remarks[0].indexOf(QLatin1String("as the fonts of the viewer")), -1);
}

TEST_F(DrawSource, SvgThatWouldBeTooLargeIsRefused)
{
    CHandSource source([](IFeatureSink& sink) {
        for (int i = 0; i < 100; ++i) {
            sink.Take(Line({{0, 0, 0}, {100, 100, 0}}));
        }
    });
    SPictureJob job = Job("a.svg", EPictureFormat::Svg);
    job.mostSvg = 10000;
    EXPECT_EQ(velorx::DrawSource(source, job, report),
              "an SVG picture of it would be too large; .png and .pdf have no limit");
}

TEST_F(DrawSource, PdfIsAPageWithItsFonts)
{
    CHandSource source(Square);
    EXPECT_EQ(velorx::DrawSource(source, Job("a.pdf", EPictureFormat::Pdf), report), "");
    const std::string content = Content("a.pdf");
    EXPECT_EQ(content.compare(0, 5, "%PDF-"), 0);
    EXPECT_NE(content.find("/FontFile2"), std::string::npos);
    EXPECT_NE(content.find("%%EOF"), std::string::npos);
}

TEST_F(DrawSource, EmptyDrawingGivesAnEmptyPictureAndSaysSo)
{
    CHandSource source([](IFeatureSink& /*sink*/) {});
    EXPECT_EQ(velorx::DrawSource(source, Job("a.png", EPictureFormat::Png), report), "");
    EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(Content("a.png"))).size(),
              QSize(1600, 1200));
    ASSERT_EQ(report.remarks.size(), 1U);
    EXPECT_EQ(report.remarks[0], "There is nothing to show: the picture is empty");
}

TEST_F(DrawSource, LayerThatIsNotThereIsNamed)
{
    SPictureJob job = Job("a.png", EPictureFormat::Png);
    job.layers = QStringList{QStringLiteral("0"), QStringLiteral("Реки")};
    CHandSource source(Square);
    EXPECT_EQ(velorx::DrawSource(source, job, report), "");
    ASSERT_EQ(report.remarks.size(), 1U);
    EXPECT_EQ(report.remarks[0], "There is no layer Реки");
}

TEST_F(DrawSource, UnreadableSourceIsAFailure)
{
    CHandSource source(Square);
    source.problem = QStringLiteral("it broke off");
    EXPECT_EQ(velorx::DrawSource(source, Job("a.png", EPictureFormat::Png), report),
              "it broke off");
}

TEST_F(DrawSource, FileThatCannotBeWrittenIsAFailure)
{
    SPictureJob job = Job("a.png", EPictureFormat::Png);
    CHandSource source(Square);
    job.target = PathFromBytes("/dev/full");
    for (const EPictureFormat format :
         {EPictureFormat::Png, EPictureFormat::Svg, EPictureFormat::Pdf}) {
        job.format = format;
        EXPECT_EQ(velorx::DrawSource(source, job, report),
                  "writing failed, perhaps because the disk is full");
    }
    job.target = PathFromBytes("/no/such/folder/a.png");
    EXPECT_NE(velorx::DrawSource(source, job, report), "");
}

} // namespace velorx::test
