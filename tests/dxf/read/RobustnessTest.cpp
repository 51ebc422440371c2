// SPDX-License-Identifier: MIT
// Broken files, counts that lie, and hosts that throw.
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

#include "tests/support/DxfRecorder.h"

#include <QBuffer>

#include <algorithm>
#include <chrono>
#include <stdexcept>

using namespace VelorExchange::test;
using namespace VelorExchange::dxf;

namespace {

// All entities but IMAGE, each with the groups that lead its parser through its branches.
constexpr char kEntities[] =
    "0 POINT\n8 A\n62 1\n10 1\n20 2\n30 3\n230 -1\n"
    "0 LINE\n6 DOT\n10 1\n20 2\n11 3\n21 4\n370 25\n"
    "0 XLINE\n10 1\n20 2\n11 3\n21 4\n"
    "0 RAY\n10 1\n20 2\n11 3\n21 4\n"
    "0 CIRCLE\n10 1\n20 2\n40 5\n"
    "0 ARC\n10 1\n20 2\n40 5\n50 30\n51 60\n230 -1\n"
    "0 ELLIPSE\n10 1\n20 2\n11 3\n40 0.5\n41 1\n42 2\n"
    "0 SOLID\n10 1\n20 2\n11 3\n21 4\n12 5\n22 6\n13 7\n23 8\n"
    "0 3DFACE\n10 1\n20 2\n30 3\n13 4\n"
    "0 TEXT\n1 text\n7 S\n10 1\n20 2\n40 2.5\n50 45\n51 10\n41 0.8\n"
    "0 MTEXT\n3 one\n3 two\n1 three\n10 1\n11 0\n21 1\n71 5\n41 9\n"
    "0 LWPOLYLINE\n90 3\n70 1\n43 0.5\n10 1\n20 2\n42 1\n10 3\n20 4\n10 5\n20 6\n"
    "0 POLYLINE\n66 1\n70 1\n0 VERTEX\n10 1\n20 2\n42 1\n0 VERTEX\n10 3\n20 4\n0 SEQEND\n"
    "0 SPLINE\n40 0\n40 1\n10 1\n20 2\n30 3\n11 4\n21 5\n31 6\n"
    "0 MLINE\n2 M\n72 2\n71 2\n11 1\n21 2\n31 3\n12 1\n22 0\n32 0\n13 0\n23 1\n33 0\n"
    "11 4\n21 5\n31 6\n12 1\n22 0\n32 0\n13 0\n23 1\n33 0\n"
    "0 HATCH\n2 ANSI31\n91 2\n92 7\n72 1\n73 1\n93 3\n10 1\n20 2\n42 1\n10 3\n20 4\n10 5\n20 6\n"
    "97 0\n92 1\n93 4\n72 1\n10 1\n20 2\n11 3\n21 4\n72 2\n10 1\n20 2\n40 3\n50 10\n51 20\n73 1\n"
    "72 3\n10 1\n20 2\n11 3\n21 4\n40 0.5\n50 1\n51 2\n73 1\n72 4\n94 3\n73 0\n74 0\n95 2\n96 1\n"
    "40 0\n40 1\n10 1\n20 2\n97 0\n75 0\n52 45\n41 1\n77 1\n"
    "0 INSERT\n2 B\n10 1\n20 2\n41 2\n42 3\n50 30\n66 1\n0 ATTRIB\n2 T\n1 V\n10 1\n40 2\n0 "
    "SEQEND\n";

QByteArray Front()
{
    return Tags("0 SECTION\n2 HEADER\n9 $ACADVER\n1 AC1021\n9 $EXTMIN\n10 1\n20 2\n30 3\n0 ENDSEC\n"
                "0 SECTION\n2 TABLES\n0 TABLE\n2 LAYER\n0 LAYER\n2 A\n62 3\n6 DASHED\n70 4\n"
                "0 STYLE\n2 S\n3 txt\n0 LTYPE\n2 DOT\n0 ENDTAB\n0 ENDSEC\n");
}

QByteArray DrawingOfEntities()
{
    return Front() + Entities(kEntities);
}

QByteArray DrawingOfABlock()
{
    QByteArray block = Block((std::string(kEntities) + "0 ATTDEF\n2 T\n1 V\n").c_str());
    block.chop(Tags("0 EOF\n").size());
    return block
        + Tags("0 SECTION\n2 ENTITIES\n0 IMAGE\n340 F\n10 1\n20 2\n11 1\n22 1\n13 9\n23 9\n91 "
               "2\n14 1\n"
               "24 2\n14 3\n24 4\n0 ENDSEC\n0 SECTION\n2 OBJECTS\n0 IMAGEDEF\n5 F\n1 a.png\n"
               "0 MLINESTYLE\n2 M\n62 1\n62 2\n6 DOT\n0 ENDSEC\n0 EOF\n");
}

// Reads without a file, and replays every block, so that all that was read is looked at.
bool Reads(QByteArray bytes, CDxfRecorder& recorder)
{
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    CDXFReaderImpl reader(device, &recorder);
    const bool result = reader.ReadSections();
    CInsertDXF insert;
    insert.scaleX = -2;
    insert.rotation = 30;
    CDxfRecorder replay;
    for (const CBlockDXF& block : recorder.blocks) {
        ParseBlock(block, insert, &replay);
    }
    return result;
}

using CLines = std::vector<std::string>;

CLines LinesOf(const std::string& text)
{
    CLines lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = text.find('\n', at);
        lines.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return lines;
}

bool StartsWith(const CLines& lines, const CLines& start, std::size_t count)
{
    return lines.size() >= count
        && std::equal(start.begin(), start.begin() + static_cast<std::ptrdiff_t>(count),
                      lines.begin());
}

// The calls that are done for certain when the file is right up to a byte: all but the last.
std::size_t CallsBefore(const QByteArray& prefix)
{
    CDxfRecorder recorder;
    Reads(prefix, recorder);
    const std::size_t calls = LinesOf(recorder.text).size();
    return calls > 0 ? calls - 1 : 0;
}

class CStopwatch
{
public:
    double Seconds() const
    {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

private:
    std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
};

// Ample for what takes time in step with the file, also on a busy machine under sanitizers; what takes
// time in step with a count of 2^31 - 1, or with the square of the file, is far beyond.
constexpr double kAmple = 10.0;

std::string Repeated(const std::string& text, int count)
{
    std::string all;
    all.reserve(text.size() * static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

constexpr int kMany = 100000;

} // namespace

TEST(Robustness, EveryPrefixOfEntitiesGivesTheCallsBeforeItsEnd)
{
    const QByteArray whole = DrawingOfEntities();
    CDxfRecorder full;
    ASSERT_TRUE(Reads(whole, full));
    const CLines expected = LinesOf(full.text);
    ASSERT_EQ(expected.size(), 21U); // 4 before the entities, 17 kinds of them
    for (int size = 0; size < whole.size(); ++size) {
        CDxfRecorder recorder;
        ASSERT_TRUE(Reads(whole.left(size), recorder)) << size;
        const CLines lines = LinesOf(recorder.text);
        ASSERT_LE(lines.size(), expected.size()) << size;
        ASSERT_TRUE(StartsWith(expected, lines, lines.empty() ? 0 : lines.size() - 1)) << size;
    }
}

TEST(Robustness, EveryPrefixThatEndsInsideABlockIsFalse)
{
    const QByteArray whole = DrawingOfABlock();
    const int open = whole.indexOf("BLOCK\r\n  2\r\nB") + 5; // the name of the mark is complete
    const int closed = whole.indexOf("ENDBLK") + 6;
    for (int size = 0; size <= whole.size(); ++size) {
        CDxfRecorder recorder;
        ASSERT_EQ(Reads(whole.left(size), recorder), size < open || size >= closed) << size;
        ASSERT_EQ(recorder.blocks.size(), size < closed ? 0U : 1U) << size;
    }
}

TEST(Robustness, AnyByteChangedLeavesTheCallsBeforeItAsTheyAre)
{
    const QByteArray whole = DrawingOfEntities();
    CDxfRecorder full;
    ASSERT_TRUE(Reads(whole, full));
    const CLines expected = LinesOf(full.text);
    for (int at = 0; at < whole.size(); ++at) {
        const std::size_t before = CallsBefore(whole.left(at));
        for (const char value : {'\n', '\r', '9', '\xFF'}) {
            QByteArray changed = whole;
            changed[at] = value;
            CDxfRecorder recorder;
            ASSERT_TRUE(Reads(changed, recorder)) << at << ' ' << int(value);
            ASSERT_TRUE(StartsWith(LinesOf(recorder.text), expected, before))
                << at << ' ' << int(value);
        }
    }
}

TEST(Robustness, AnyByteOfABlockMayBeChanged)
{
    // What comes of it hangs on the byte; the block comes at most once, and what is read holds together.
    const QByteArray whole = DrawingOfABlock();
    for (int at = 0; at < whole.size(); ++at) {
        for (const char value : {'\n', '\r', '0', ' ', '\0', '\x80'}) {
            QByteArray changed = whole;
            changed[at] = value;
            CDxfRecorder recorder;
            const bool result = Reads(changed, recorder);
            ASSERT_LE(recorder.blocks.size(), 1U) << at << ' ' << int(value);
            ASSERT_TRUE(result || recorder.blocks.empty()) << at << ' ' << int(value);
        }
    }
}

TEST(Robustness, AnyLineMayBeMissing)
{
    const QList<QByteArray> lines = DrawingOfEntities().split('\n');
    for (int left = 0; left < lines.size(); ++left) {
        QList<QByteArray> others = lines;
        others.removeAt(left);
        CDxfRecorder recorder;
        ASSERT_TRUE(Reads(others.join('\n'), recorder)) << left;
    }
}

TEST(Robustness, CountOfPolylineVerticesIsNotTrusted)
{
    const CStopwatch watch;
    EXPECT_EQ(Recorded(Entities("0 LWPOLYLINE\n90 2147483647\n10 1\n20 2\n10 3\n20 4\n"
                                "0 LWPOLYLINE\n90 -2147483648\n10 1\n20 2\n10 3\n20 4\n0 POINT\n")),
              "LWPolyline\nLWPolyline\nPoint\n");
    EXPECT_LT(watch.Seconds(), kAmple);
}

TEST(Robustness, CountOfClipPointsIsNotTrusted)
{
    const CStopwatch watch;
    EXPECT_EQ(
        Recorded(Tags("0 SECTION\n2 ENTITIES\n0 IMAGE\n340 F\n11 1\n22 1\n91 2147483647\n14 1\n"
                      "24 2\n0 ENDSEC\n0 SECTION\n2 OBJECTS\n0 IMAGEDEF\n5 F\n1 a\n0 ENDSEC\n")),
        "Image path=\"a\" name=\"a\"\n");
    EXPECT_LT(watch.Seconds(), kAmple);
}

TEST(Robustness, CountOfHatchPathsIsNotTrusted)
{
    const CStopwatch watch;
    const std::string path =
        "92 2\n73 0\n93 2\n10 1\n20 2\n10 3\n20 4\n97 0\n75 0\n52 45\n0 POINT\n";
    EXPECT_EQ(Recorded(Entities(("0 HATCH\n91 2147483647\n" + path).c_str())),
              "Hatch loops=[[{LWPolyline vertices=[(1 2 0) (3 4 0)]}] []] angle=45\n"
              "Point\n");
    EXPECT_EQ(Recorded(Entities(("0 HATCH\n91 -2147483648\n" + path).c_str())),
              "Hatch angle=45\nPoint\n");
    EXPECT_LT(watch.Seconds(), kAmple);
}

TEST(Robustness, CountOfHatchEdgesIsNotTrusted)
{
    const CStopwatch watch;
    for (const char* type : {"0", "1", "2", "3", "4", "5", "x"}) {
        CDxfRecorder recorder;
        EXPECT_TRUE(
            ReadBytes(Entities((std::string("0 HATCH\n91 1\n92 1\n93 2147483647\n72 ") + type
                                + "\n10 1\n20 2\n11 3\n21 4\n40 1\n50 0\n51 9\n73 1\n0 POINT\n")
                                   .c_str()),
                      recorder))
            << type;
    }
    EXPECT_LT(watch.Seconds(), kAmple);
}

TEST(Robustness, CountOfEdgesAndPathsAtTheEndOfTheFileIsNotTrusted)
{
    const CStopwatch watch;
    for (const char* end : {"", "92 1\n93 2147483647\n", "92 1\n93 2147483647\n72 1\n",
                            "92 1\n93 2147483647\n72 2\n10 1\n", "92 2\n93 2147483647\n"})
    {
        CDxfRecorder recorder;
        EXPECT_TRUE(ReadBytes(Tags("0 SECTION\n2 ENTITIES\n0 HATCH\n91 2147483647\n") + Tags(end),
                              recorder));
        EXPECT_EQ(recorder.text, "") << end; // it needs the group 0 behind it
    }
    EXPECT_LT(watch.Seconds(), kAmple);
}

TEST(Robustness, CountOfMLineVerticesIsNotTrusted)
{
    const CStopwatch watch;
    CDxfRecorder recorder;
    EXPECT_TRUE(
        ReadBytes(Entities("0 MLINE\n72 2147483647\n71 2\n11 1\n21 2\n31 3\n0 POINT\n"), recorder));
    EXPECT_EQ(recorder.counts["OnMLine"], 1);
    EXPECT_EQ(recorder.counts["OnPoint"], 1);
    EXPECT_LT(recorder.text.size(), 1000U);
    EXPECT_LT(watch.Seconds(), kAmple);
}

TEST(Robustness, ManyBlocksThatNoneClosesAreOneOpenBlock)
{
    const CStopwatch watch;
    const std::string nested = Repeated("  0\nBLOCK\n  2\nB\n  0\nPOINT\n", kMany);
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 BLOCKS\n") + nested.c_str()), "false\n");
    EXPECT_LT(watch.Seconds(), kAmple);
}

TEST(Robustness, BlockMarkInsideABlockIsAnUnknownEntity)
{
    // The first end closes it, the others close nothing.
    const std::string opened = Repeated("  0\nBLOCK\n  2\nB\n", kMany);
    const std::string closed = Repeated("  0\nENDBLK\n", kMany);
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 BLOCKS\n") + (opened + closed).c_str()
                       + Tags("0 ENDSEC\n") + Entities("0 LINE\n")),
              "Block name=\"B\"\nLine\n");
}

TEST(Robustness, ManySmallBlocksTakeTimeInStepWithThem)
{
    const CStopwatch watch;
    CDxfRecorder recorder;
    EXPECT_TRUE(ReadBytes(Tags("0 SECTION\n2 BLOCKS\n")
                              + Repeated("  0\nBLOCK\n  0\nENDBLK\n", kMany).c_str()
                              + Tags("0 ENDSEC\n"),
                          recorder));
    EXPECT_EQ(recorder.counts["OnBlock"], kMany);
    EXPECT_LT(watch.Seconds(), kAmple);
}

TEST(Robustness, LargeObjectsTakeTimeInStepWithThem)
{
    const CStopwatch watch;
    CDxfRecorder recorder;
    const auto section = [](const char* entity, const std::string& groups) {
        return Tags("0 SECTION\n2 ENTITIES\n") + Tags(entity) + groups.c_str() + Tags("0 ENDSEC\n");
    };
    EXPECT_TRUE(ReadBytes(
        section("0 TEXT\n", Repeated("  1\ntext\n", kMany))
            + section("0 LWPOLYLINE\n90 100000\n", Repeated(" 10\n1\n 10\n9\n 20\n2\n", kMany))
            + section("0 POLYLINE\n", Repeated("  0\nVERTEX\n 10\n1\n", kMany))
            + section("0 INSERT\n", Repeated("  0\nATTRIB\n  1\na\n", kMany))
            + section("0 HATCH\n91 100000\n", Repeated(" 92\n2\n 10\n1\n 20\n2\n", kMany))
            + section("0 HATCH\n91 1\n92 1\n93 100000\n",
                      Repeated(" 72\n1\n 10\n1\n 20\n2\n 11\n9\n 21\n9\n", kMany))
            + section("0 MLINE\n72 100000\n", Repeated(" 11\n1\n", kMany)),
        recorder));
    EXPECT_EQ(recorder.counts["OnText"], 1);
    EXPECT_EQ(recorder.counts["OnLWPolyline"], 1);
    EXPECT_EQ(recorder.counts["OnPolyline"], 1);
    EXPECT_EQ(recorder.counts["OnInsert"], 1);
    EXPECT_EQ(recorder.counts["OnHatch"], 2);
    EXPECT_EQ(recorder.counts["OnMLine"], 1);
    EXPECT_LT(watch.Seconds(), kAmple);
}

TEST(Robustness, ManyImagesOfOneKeyTakeTimeInStepWithThem)
{
    const CStopwatch watch;
    CDxfRecorder recorder;
    const std::string images = Repeated("  0\nIMAGE\n340\nF\n", kMany / 5);
    const std::string definitions = Repeated("  0\nIMAGEDEF\n  5\nF\n  1\na\n", kMany / 5);
    EXPECT_TRUE(ReadBytes(Entities("").left(Tags("0 SECTION\n2 ENTITIES\n").size()) + images.c_str()
                              + Tags("0 ENDSEC\n0 SECTION\n2 OBJECTS\n") + definitions.c_str(),
                          recorder));
    EXPECT_EQ(recorder.counts["OnImage"], kMany / 5);
    EXPECT_LT(watch.Seconds(), kAmple);
}

TEST(Robustness, ManyLayersTakeTimeInStepWithThem)
{
    const CStopwatch watch;
    std::string layers;
    for (int i = 0; i < kMany; ++i) {
        layers += "  0\nLAYER\n  2\nlayer " + std::to_string(i / 2) + "\n";
    }
    CDxfRecorder recorder;
    EXPECT_TRUE(ReadBytes(Tags("0 SECTION\n2 TABLES\n") + layers.c_str(), recorder));
    EXPECT_EQ(recorder.counts["OnLayer"], kMany);
    EXPECT_LT(watch.Seconds(), kAmple);
}

TEST(Robustness, FilesOfOneByteOverAndOverGiveNothing)
{
    for (const char byte : {'\0', '\r', '\n', ' ', '0', ';', 'x', '\xFF'}) {
        const CStopwatch watch;
        EXPECT_EQ(Recorded(QByteArray(2000000, byte)), "") << int(byte);
        EXPECT_LT(watch.Seconds(), kAmple) << int(byte);
    }
}

TEST(Robustness, ListsOfUnequalLengthAreDropped)
{
    EXPECT_EQ(Recorded(Entities("0 SPLINE\n10 1\n10 2\n20 1\n30 1\n30 2\n11 1\n40 1\n"
                                "0 LWPOLYLINE\n90 2\n10 1\n20 2\n20 3\n10 4\n20 5\n"
                                "0 MLINE\n72 1\n11 1\n11 2\n21 1\n31 1\n"
                                "0 POINT\n")),
              "Spline knots=[1]\nLWPolyline\n"
              "MLine mstyle=\"BYLAYER\" vertices=[(0 0 0)] segments=[(0 0 0)/(0 0 0)]\nPoint\n");
}

TEST(Robustness, BinaryDrawingGivesNothing)
{
    // The mark of the form, then codes of two bytes and texts that end in a zero.
    QByteArray bytes("AutoCAD Binary DXF\r\n\x1A", 21);
    for (int i = 0; i < 1000; ++i) {
        bytes += QByteArray("\0\0\0SECTION\0\2\0ENTITIES\0\0\0POINT\0\n\0\0\0\0\0\0\0\xF0\x3F", 40);
        bytes += QByteArray("\0\0ENDSEC\0\0\0EOF\0", 15);
    }
    EXPECT_EQ(Recorded(bytes), "");
}

TEST(Robustness, RandomBytesNeverDeliverAnything)
{
    unsigned state = 1;
    for (int i = 0; i < 2000; ++i) {
        QByteArray bytes(200, '\0');
        for (char& c : bytes) {
            state = state * 1664525U + 1013904223U;
            c = static_cast<char>(state >> 24U);
        }
        EXPECT_EQ(Recorded(bytes), "");
    }
}

namespace {

// Throws from the operation of a name; replays blocks, so that the same happens inside of a replay.
class CThrower final : public IDXFReader, private IDXFProgress
{
public:
    explicit CThrower(std::string name, bool replaysBlocks)
        : thrown(std::move(name)), replays(replaysBlocks)
    {
    }

    bool OnSection(int) override { return Call("OnSection"); }
    bool OnPolyline(const CPolylineDXF&) override { return Call("OnPolyline"); }
    bool OnMLine(const CMLineDXF&) override { return Call("OnMLine"); }
    bool OnEllipse(const CEllipseDXF&) override { return Call("OnEllipse"); }
    bool OnLWPolyline(const CLWPolylineDXF&) override { return Call("OnLWPolyline"); }
    bool OnSpline(const CSplineDXF&) override { return Call("OnSpline"); }
    bool OnSolid(const CSolidDXF&) override { return Call("OnSolid"); }
    bool OnLine(const CLineDXF&) override { return Call("OnLine"); }
    bool On3DFace(const C3DFaceDXF&) override { return Call("On3DFace"); }
    bool OnXLine(const CXLineDXF&) override { return Call("OnXLine"); }
    bool OnRay(const CRayDXF&) override { return Call("OnRay"); }
    bool OnArc(const CArcDXF&) override { return Call("OnArc"); }
    bool OnImage(const CImageDXF&) override { return Call("OnImage"); }
    bool OnInsert(const CInsertDXF&) override { return Call("OnInsert"); }
    bool OnHatch(const CHatchDXF&) override { return Call("OnHatch"); }
    bool OnMText(const CMTextDXF&) override { return Call("OnMText"); }
    bool OnText(const CTextDXF&) override { return Call("OnText"); }
    bool OnPoint(const CPointDXF&) override { return Call("OnPoint"); }
    bool OnTextStyle(const CTextStyleDXF&) override { return Call("OnTextStyle"); }
    bool OnMLineStyle(const CMLineStyleDXF&) override { return Call("OnMLineStyle"); }
    bool OnLineStyle(const CLineStyleDXF&) override { return Call("OnLineStyle"); }
    bool OnLayer(const CLayerDXF&) override { return Call("OnLayer"); }
    bool OnHeader(const CHeaderDXF&) override { return Call("OnHeader"); }
    bool OnBlock(const CBlockDXF& block) override
    {
        if (replays) {
            ParseBlock(block, CInsertDXF(), this);
        }
        return Call("OnBlock");
    }
    IDXFProgress* GetProgress() override
    {
        Call("GetProgress");
        return this;
    }
    void Begin(const QString&, qint64) override { Call("Begin"); }
    void SetPosition(qint64) override { Call("SetPosition"); }
    void Finish() override { Call("Finish"); }

private:
    bool Call(const char* name) const
    {
        if (thrown == name) {
            throw std::runtime_error("thrown by the host");
        }
        return true;
    }

    std::string thrown;
    bool replays;
};

const char* const kOperations[] = {
    "OnSection",   "OnPolyline",  "OnMLine",      "OnEllipse",   "OnLWPolyline", "OnSpline",
    "OnSolid",     "OnLine",      "On3DFace",     "OnXLine",     "OnRay",        "OnArc",
    "OnImage",     "OnInsert",    "OnHatch",      "OnMText",     "OnText",       "OnPoint",
    "OnBlock",     "OnTextStyle", "OnMLineStyle", "OnLineStyle", "OnLayer",      "OnHeader",
    "GetProgress", "Begin",       "SetPosition",  "Finish"};

// Every operation is called for it.
QByteArray DrawingOfEverything()
{
    QByteArray entities = DrawingOfEntities();
    entities.chop(Tags("0 EOF\n").size());
    return entities + DrawingOfABlock();
}

} // namespace

class HostsThatThrow : public testing::TestWithParam<const char*>
{
};

TEST_P(HostsThatThrow, HaveTheirExceptionPassed)
{
    CThrower host(GetParam(), false);
    EXPECT_THROW(ReadBytes(DrawingOfEverything(), host), std::runtime_error);
}

INSTANTIATE_TEST_SUITE_P(Robustness, HostsThatThrow, testing::ValuesIn(kOperations),
                         [](const auto& name) { return std::string(name.param); });

TEST(Robustness, ExceptionOutOfAReplayPassesToo)
{
    for (const char* operation :
         {"OnPolyline", "OnMLine", "OnLWPolyline", "OnSpline", "OnSolid", "OnLine", "On3DFace",
          "OnXLine", "OnRay", "OnArc", "OnInsert", "OnHatch", "OnMText", "OnText", "OnPoint"})
    {
        CThrower host(operation, true);
        EXPECT_THROW(ReadBytes(DrawingOfABlock(), host), std::runtime_error) << operation;
    }
}

TEST(Robustness, HostThatThrowsNothingGetsEverything)
{
    CThrower host("", true);
    EXPECT_TRUE(ReadBytes(DrawingOfEverything(), host));
}
