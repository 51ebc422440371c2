// SPDX-License-Identifier: MIT
// velorx render as people run it.
#include "tests/tools/RunVelorx.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QImage>
#include <QXmlStreamReader>

#include <sys/resource.h>

#include <filesystem>
#include <iterator>
#include <set>

namespace velorx::test {

namespace {

constexpr char kPlan[] = "data/survey-plan.dxf";

/// No file may grow beyond so many bytes, here and in programs that are run from here.
class CLimitOfFiles
{
public:
    explicit CLimitOfFiles(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &before);
        rlimit limit = before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }

    CLimitOfFiles(const CLimitOfFiles&) = delete;
    CLimitOfFiles& operator=(const CLimitOfFiles&) = delete;

    ~CLimitOfFiles() { setrlimit(RLIMIT_FSIZE, &before); }

private:
    rlimit before = {};
};

class RenderCommand : public testing::Test
{
protected:
    std::string Path(const char* name) const { return folder.path + "/" + name; }

    QImage Png(const char* name) const
    {
        return QImage::fromData(QByteArray::fromStdString(ReadFile(Path(name))), "PNG");
    }

    void ExpectWrongUsage(const std::vector<std::string>& arguments, const char* message)
    {
        const SRun run = RunVelorx(arguments);
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_NE(run.err.find(message), std::string::npos) << run.err;
        EXPECT_TRUE(std::filesystem::is_empty(folder.path));
    }

    CTemporaryFolder folder;
};

} // namespace

TEST_F(RenderCommand, UnknownEndingIsWrongUsage)
{
    ExpectWrongUsage({"render", kPlan, Path("plan.jpg")}, "does not end in .svg, .png or .pdf");
}

TEST_F(RenderCommand, WrongSizeIsWrongUsage)
{
    ExpectWrongUsage({"render", kPlan, Path("plan.png"), "--size", "800"},
                     "800 is not a size in pixels like 1600x1200 (A4 is 794x1123)");
    ExpectWrongUsage({"render", kPlan, Path("plan.png"), "--size", "40000x40000"}, "is too large");
}

TEST_F(RenderCommand, UnknownColourIsWrongUsage)
{
    ExpectWrongUsage({"render", kPlan, Path("plan.png"), "--background", "mauvish"},
                     "unknown colour mauvish");
}

TEST_F(RenderCommand, QuietPrintsNothingButErrors)
{
    const SRun good = RunVelorx({"render", "--quiet", kPlan, Path("plan.png")});
    EXPECT_EQ(good.exitCode, 0);
    EXPECT_EQ(good.out + good.err, "");
    EXPECT_FALSE(Png("plan.png").isNull());
    const SRun bad = RunVelorx({"render", "--quiet", kPlan, Path("plan.png")});
    EXPECT_EQ(bad.exitCode, 1);
    EXPECT_EQ(bad.out, "");
    EXPECT_NE(bad.err, "");
}

TEST_F(RenderCommand, MissingSourceIsAFailure)
{
    const SRun run = RunVelorx({"render", "no-such.dxf", Path("plan.png")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err.rfind("velorx: cannot draw no-such.dxf: it cannot be opened", 0), 0U)
        << run.err;
    EXPECT_TRUE(std::filesystem::is_empty(folder.path));
}

TEST_F(RenderCommand, PictureThatIsThereIsNotReplaced)
{
    const std::string path = folder.Write("plan.png", "mine");
    const SRun run = RunVelorx({"render", kPlan, path});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_NE(run.err.find("it exists (--force replaces it)"), std::string::npos) << run.err;
    EXPECT_EQ(ReadFile(path), "mine");
}

TEST_F(RenderCommand, PictureThatHasNoRoomIsAFailureAndLeavesTheOldOne)
{
    constexpr rlim_t kLimits[] = {4000, 20000, 40000};
    for (const char* name : {"plan.png", "plan.svg", "plan.pdf"}) {
        const std::string path = folder.Write(name, "mine");
        for (const rlim_t limit : kLimits) {
            SCOPED_TRACE(std::string(name) + " " + std::to_string(limit));
            const CLimitOfFiles small(limit);
            const SRun run = RunVelorx({"render", "--force", kPlan, path});
            EXPECT_EQ(run.exitCode, 1);
            EXPECT_NE(run.err.find("writing failed, perhaps because the disk is full"),
                      std::string::npos)
                << run.err;
            EXPECT_EQ(ReadFile(path), "mine");
        }
    }
    EXPECT_EQ(NamesIn(folder.path).size(), 3U);
}

TEST_F(RenderCommand, DrawsTheDemoDrawing)
{
    const SRun run = RunVelorx({"render", kPlan, Path("plan.png")});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_NE(run.out.find("plan.png: 1600 x "), std::string::npos) << run.out;
    const QImage image = Png("plan.png");
    EXPECT_EQ(image.width(), 1600);
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
    std::set<QRgb> colours;
    int ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colours.insert(image.pixel(x, y));
            ink += image.pixel(x, y) == qRgb(255, 255, 255) ? 0 : 1;
        }
    }
    EXPECT_GT(colours.size(), 50U);
    EXPECT_GT(ink, image.width() * image.height() / 20);
    EXPECT_LT(ink, image.width() * image.height() / 2);
}

TEST_F(RenderCommand, RiverOfTheDemoDrawingIsBlueAndTheFrameBlack)
{
    ASSERT_EQ(
        RunVelorx({"render", kPlan, Path("plan.png"), "--layers", "Гидрография заливка,Рамка"})
            .exitCode,
        0);
    const QImage image = Png("plan.png");
    int blue = 0;
    int black = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            blue += colour.blue() > 200 && colour.red() < 160 ? 1 : 0;
            black += colour.value() < 40 ? 1 : 0;
        }
    }
    EXPECT_GT(blue, 30000); // a band of a twentieth of the picture
    EXPECT_GT(black, 2000);
}

TEST_F(RenderCommand, SizeAndBackgroundAreAsAsked)
{
    ASSERT_EQ(RunVelorx({"render", "--size", "400x300", "--background", "#000080", kPlan,
                         Path("plan.PNG")})
                  .exitCode,
              0);
    const QImage image = Png("plan.PNG");
    EXPECT_EQ(image.size(), QSize(400, 300));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(0, 0, 128));
}

TEST_F(RenderCommand, HiddenLayerShowsOnlyIfAskedFor)
{
    const SRun all = RunVelorx({"render", kPlan, Path("all.png")});
    EXPECT_NE(all.out.find("objects are on layers that are off or frozen"), std::string::npos);
    const SRun one = RunVelorx({"render", kPlan, Path("one.png"), "--layers", "Проект"});
    EXPECT_EQ(one.exitCode, 0);
    EXPECT_EQ(one.out.find("are on layers that are off"), std::string::npos) << one.out;
    EXPECT_EQ(one.out.find("the picture is empty"), std::string::npos) << one.out;
}

TEST_F(RenderCommand, LayerThatIsNotThereIsTold)
{
    const SRun run = RunVelorx({"render", kPlan, Path("plan.png"), "--layers", "Нет такого"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_NE(run.out.find("There is no layer Нет такого"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("There is nothing to show: the picture is empty"), std::string::npos);
}

TEST_F(RenderCommand, SvgOfTheDemoDrawingIsWellFormed)
{
    ASSERT_EQ(RunVelorx({"render", kPlan, Path("plan.svg")}).exitCode, 0);
    QXmlStreamReader xml(QByteArray::fromStdString(ReadFile(Path("plan.svg"))));
    int paths = 0;
    while (!xml.atEnd()) {
        xml.readNext();
        paths += xml.isStartElement() && xml.name() == QLatin1String("path") ? 1 : 0;
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_GT(paths, 300);
}

TEST_F(RenderCommand, PdfOfTheDemoDrawingIsADocument)
{
    ASSERT_EQ(RunVelorx({"render", kPlan, Path("plan.pdf")}).exitCode, 0);
    const std::string content = ReadFile(Path("plan.pdf"));
    EXPECT_EQ(content.compare(0, 5, "%PDF-"), 0);
    EXPECT_NE(content.find("%%EOF"), std::string::npos);
    EXPECT_GT(content.size(), 20000U);
}

TEST_F(RenderCommand, DrawsTheSamePictureEveryTime)
{
    ASSERT_EQ(RunVelorx({"render", kPlan, Path("one.png")}).exitCode, 0);
    ASSERT_EQ(RunVelorx({"render", kPlan, Path("two.png")}).exitCode, 0);
    EXPECT_EQ(ReadFile(Path("one.png")), ReadFile(Path("two.png")));
}

TEST_F(RenderCommand, PictureThatIsThereIsReplacedByForce)
{
    const std::string path = folder.Write("plan.png", "mine");
    EXPECT_EQ(RunVelorx({"render", "--force", kPlan, path}).exitCode, 0);
    EXPECT_EQ(Png("plan.png").width(), 1600);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path), {}), 1);
}

TEST_F(RenderCommand, MapsAndTablesAreDrawnAsWell)
{
    ASSERT_EQ(RunVelorx({"convert", kPlan, Path("plan.mif")}).exitCode, 0);
    ASSERT_EQ(RunVelorx({"convert", kPlan, Path("plan.sxf")}).exitCode, 0);
    EXPECT_EQ(RunVelorx({"render", Path("plan.mif"), Path("mif.png")}).exitCode, 0);
    EXPECT_EQ(RunVelorx({"render", Path("plan.sxf"), Path("sxf.png")}).exitCode, 0);
    EXPECT_EQ(Png("mif.png").width(), 1600);
    EXPECT_EQ(Png("sxf.png").width(), 1600);
}

TEST_F(RenderCommand, DrawingThatBreaksOffIsDrawnAsFarAsItGoes)
{
    const std::string path = folder.Write(
        "half.dxf", "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n0\n20\n0\n11\n5\n21\n5\n0\n");
    EXPECT_EQ(RunVelorx({"render", path, Path("half.png")}).exitCode, 0);
    EXPECT_EQ(Png("half.png").size(), QSize(1600, 1600));
}

} // namespace velorx::test
