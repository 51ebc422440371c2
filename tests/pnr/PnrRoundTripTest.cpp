// SPDX-License-Identifier: MIT
#include "PnrLocalCodec.h"
#include "PnrRecorder.h"
#include "PnrWriting.h"

#include <tuple>

using namespace VelorExchange::pnr;
using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;

namespace {

enum EKind { Line, Square, Point, Vector, Text, Mixed };
constexpr int kFrameCode = 91000000;

struct CCase
{
    EKind kind;
    bool text; // form
    bool inSpace;
    bool subContours;
    bool drawn;
    bool attributes;
};

std::unique_ptr<CAbstractVertexHolder> Contour(const CCase& c, double at, int count)
{
    auto plan = std::make_unique<CVertexHolder2D>();
    auto space = std::make_unique<CVertexHolder3D>();
    for (int i = 0; i < count; ++i) {
        plan->vertices.push_back({at + i, -at - 0.25 * i});
        space->vertices.push_back({at + i, -at - 0.25 * i, 0.5 * i});
    }
    if (c.inSpace) {
        return space;
    }
    return plan;
}

// What all objects of the case have, as it is written.
void FillHead(CBaseObject& object, const CCase& c)
{
    object.code = c.drawn ? 0 : 31410000;
    object.layer = QStringLiteral("Слой");
    const int first = c.kind == Point ? 1 : c.kind == Text || c.kind == Mixed ? 2 : 4;
    object.holders.push_back(Contour(c, 10, first));
    if (c.subContours) {
        object.holders.push_back(Contour(c, 11, 3));
        object.holders.push_back(Contour(c, 12, 1));
    }
    if (c.attributes) {
        object.semantics = {Attribute(1, 1, -5),
                            Attribute(2, 2, 3000),
                            Attribute(3, 4, -100000),
                            Attribute(4, 8, 0.125),
                            Attribute(5, 126, QStringLiteral("Имя"), 3),
                            Attribute(6, 126, QDate(2024, 2, 29), 8, 17)};
    }
}

// What reading changes in all objects.
void ChangeAsRead(CBaseObject& object, const CCase& c)
{
    object.codeText = QString::number(object.code);
    const bool isText = c.kind == Text || c.kind == Mixed;
    if (!c.text || !c.drawn) {
        object.layer = QStringLiteral("SYSTEM");
    }
    for (PnrSemantic& semantic : object.semantics) {
        if (semantic.semanticType == 17) {
            semantic.value = QStringLiteral("20240229");
        }
        if (c.text) {
            semantic.value = semantic.value.toString();
            semantic.dataType = -1;
            semantic.scale = 0;
        } else if (semantic.dataType == 126) {
            semantic.value = semantic.value.toString() + QChar(QChar::Null);
            ++semantic.scale;
        }
        semantic.semanticType = -1;
    }
    if (c.kind == Point || c.kind == Vector || isText) {
        object.holders.resize(1);
    }
}

std::unique_ptr<CLineObject> MakeLine(const CCase& c)
{
    auto line = std::make_unique<CLineObject>();
    FillHead(*line, c);
    if (c.drawn) {
        line->image = std::make_unique<PnrLineImage>(PnrLineImage{-5, 3000});
    }
    return line;
}

std::unique_ptr<CSquareObject> MakeSquare(const CCase& c)
{
    auto square = std::make_unique<CSquareObject>();
    FillHead(*square, c);
    if (c.drawn) {
        square->image = std::make_unique<PnrSquareImage>(PnrSquareImage{77});
    }
    return square;
}

std::unique_ptr<CPointObject> MakePoint(const CCase& c)
{
    auto point = std::make_unique<CPointObject>();
    FillHead(*point, c);
    if (c.drawn) {
        point->image = std::make_unique<PnrPointImage>();
        point->image->size = 4000;
        point->image->bits[5] = 0xFF;
    }
    return point;
}

std::unique_ptr<CTextObject> MakeText(const CCase& c)
{
    auto text = std::make_unique<CTextObject>();
    FillHead(*text, c);
    text->text = QStringLiteral("р. Волга");
    text->hasOwnImage = c.drawn;
    text->image.color = 12;
    text->image.height = 2500;
    text->image.align = 29;
    text->image.fontName = QStringLiteral("Times New");
    if (c.kind == Mixed) {
        text->extraTexts = {QStringLiteral("1,5")};
        text->extraAligns = {20};
    }
    return text;
}

// The log of one object as it should come out of the file.
std::string ExpectedLog(const CCase& c)
{
    CPnrRecorder recorder;
    if (c.kind == Line) {
        const auto line = MakeLine(c);
        ChangeAsRead(*line, c);
        line->hasImage = c.drawn;
        recorder.AddLine(line.get());
    } else if (c.kind == Square) {
        const auto square = MakeSquare(c);
        ChangeAsRead(*square, c);
        square->hasImage = c.drawn;
        recorder.AddSquare(square.get());
    } else if (c.kind == Point || c.kind == Vector) {
        const auto point = MakePoint(c);
        ChangeAsRead(*point, c);
        point->hasImage = c.drawn && c.text;
        point->image = point->hasImage ? std::make_unique<PnrPointImage>() : nullptr;
        recorder.AddPoint(point.get());
    }
    return recorder.Log();
}

std::string ExpectedTextLog(const CCase& c)
{
    const auto text = MakeText(c);
    ChangeAsRead(*text, c);
    text->hasOwnImage = true;
    if (c.text) {
        text->text = c.kind == Mixed && !c.drawn ? QStringLiteral(">р. Волга>1,5")
                                                 : QStringLiteral(">р. Волга");
        text->image.align = 9;
    } else {
        text->text = QStringLiteral(">р. Волга\x1d");
        text->code = 0;
        text->codeText.clear();
    }
    if (!c.text || !c.drawn) {
        text->image = PnrTextImage();
    }
    if (c.text && c.inSpace) {
        CCase plan = c;
        plan.inSpace = false;
        text->holders.front() = Contour(plan, 10, 2);
    }
    text->extraTexts.clear();
    text->extraAligns.clear();
    CPnrRecorder recorder;
    recorder.AddText(text.get());
    return recorder.Log();
}

// The lengths of a binary text count one part on two vertices in the plan, whatever is written: the
// reader refuses the rest.
bool IsLostInBinary(const CCase& c)
{
    return !c.text && (c.kind == Mixed || (c.kind == Text && c.inSpace));
}

bool WriteCase(IPnrWriter& writer, const CCase& c)
{
    switch (c.kind) {
    case Line:
        return writer.WriteLine(MakeLine(c).get());
    case Square:
        return writer.WriteSquare(MakeSquare(c).get());
    case Point:
    case Vector:
        return writer.WritePoint(MakePoint(c).get());
    default:
        return writer.WriteText(MakeText(c).get());
    }
}

CPnrWriting::COptions Options(bool text)
{
    CPnrWriting::COptions options;
    options.text = text;
    return options;
}

// What comes in front of the frame: it is the last object of a binary file and the first of a text.
std::string WithoutFrame(const std::string& log, bool text)
{
    const std::size_t frame = log.find("line 91000000 ");
    if (frame == std::string::npos) {
        return "no frame in " + log;
    }
    return text ? log.substr(log.find('\n', log.find('\n', frame) + 1) + 1) : log.substr(0, frame);
}

class PnrRoundTrip : public testing::TestWithParam<std::tuple<EKind, bool, int>>
{
};

// Gives every object it gets to a writer of the same form.
class CCopier final : public IPnrReader::IContext
{
public:
    explicit CCopier(IPnrWriter& target) : writer(target) { }
    void AddText(CTextObject* text) override { writer.WriteText(text); }
    void AddSquare(CSquareObject* square) override { writer.WriteSquare(square); }
    void AddPoint(CPointObject* point) override { writer.WritePoint(point); }
    void AddLine(CLineObject* line) override
    {
        if (line->code != kFrameCode) {
            writer.WriteLine(line);
        }
    }

private:
    IPnrWriter& writer;
};

} // namespace

TEST_P(PnrRoundTrip, ReadsWhatWasWrittenOrRefusesWhatLengthsLeaveOut)
{
    const auto [kind, text, bits] = GetParam();
    const CCase c = {kind,           text, (bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0,
                     (bits & 8) != 0};
    const CLocalCodec codec("windows-1251");
    CPnrWriting writing(Options(text));
    ASSERT_TRUE(WriteCase(*writing.operator->(), c));
    const QByteArray file = writing.Close();
    ASSERT_TRUE(writing.Closed());
    const CPnrResult result = ReadPnr(file, text);
    if (IsLostInBinary(c)) {
        EXPECT_FALSE(result.result);
        EXPECT_EQ(result.message, L"Некорректный формат файла");
        EXPECT_EQ(result.log, "");
        return;
    }
    EXPECT_TRUE(result.result);
    EXPECT_EQ(result.message, L"");
    EXPECT_EQ(WithoutFrame(result.log, text),
              kind == Text || kind == Mixed ? ExpectedTextLog(c) : ExpectedLog(c));
}

INSTANTIATE_TEST_SUITE_P(AllKinds, PnrRoundTrip,
                         testing::Combine(testing::Values(Line, Square, Point, Vector, Text, Mixed),
                                          testing::Bool(), testing::Range(0, 16)));

// Apart from what reading changes for good: texts, marks of points, texts of attributes in binary.
TEST(PnrRoundTripOfFiles, WritingWhatWasReadGivesTheSameFile)
{
    const CLocalCodec codec("windows-1251");
    for (const bool text : {false, true}) {
        CPnrWriting first(Options(text));
        for (int bits = 0; bits < 8; ++bits) {
            for (const EKind kind : {Line, Square, Point, Vector}) {
                const bool drawn = (bits & 4) != 0 && kind <= Square;
                const CCase c = {kind, text, (bits & 1) != 0, (bits & 2) != 0, drawn, false};
                ASSERT_TRUE(WriteCase(*first.operator->(), c));
            }
        }
        const QByteArray file = first.Close();
        CPnrWriting second(Options(text));
        CCopier copier(*second.operator->());
        const std::unique_ptr<IPnrReader, void (*)(IPnrReader*)> reader(CreateReader(text, &copier),
                                                                        DeleteReader);
        ASSERT_TRUE(reader->Read(first.FileName()));
        EXPECT_TRUE(second.Close() == file) << text;
    }
}

TEST(PnrRoundTripOfFiles, BothFormsHoldTheSameCoordinates)
{
    const CCase c = {Square, false, false, true, false, false};
    const auto contours = [&c](bool text) {
        CPnrWriting writing(Options(text));
        WriteCase(*writing.operator->(), c);
        return WithoutFrame(ReadPnr(writing.Close(), text).log, text);
    };
    EXPECT_EQ(contours(true), contours(false));
}
