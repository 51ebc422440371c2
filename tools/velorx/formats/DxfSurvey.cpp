// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfSurvey.h"

#include "tools/velorx/formats/DxfTagScan.h"

#include <QFile>
#include <QTextCodec>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace velorx {

namespace {

constexpr std::size_t kMostStyleTags = 1000;
constexpr int kUtf8Version = 1021;
constexpr int kIbm866Version = 1006;
constexpr int kExtendedData = 1001;
constexpr int kByLayer = 256;
constexpr int kMeshFlags = 16 + 64;
constexpr double kNear = 1e-9;

// Records that are parts of others, or that the reader knows.
constexpr std::string_view kParts[] = {"VERTEX", "SEQEND", "ATTRIB", "BLOCK",
                                       "ENDBLK", "ENDSEC", "SECTION"};

std::string Capitals(std::string_view text)
{
    std::string capitals(text);
    std::transform(capitals.begin(), capitals.end(), capitals.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    return capitals;
}

bool IsRead(const std::string& kind)
{
    for (std::size_t i = 0; i < kDxfKinds; ++i) {
        if (kind == EntityName(i)) {
            return true;
        }
    }
    return false;
}

bool IsPart(const std::string& kind)
{
    return std::find(std::begin(kParts), std::end(kParts), kind) != std::end(kParts);
}

bool Differ(double a, double b)
{
    return std::fabs(a - b) > kNear;
}

/// A group, or a pair of them, that is left out wherever it holds more than its default.
struct SFlatRule
{
    const char* kind; ///< Empty for all kinds.
    int code;
    double usual;
    EDxfLoss loss;
};

constexpr SFlatRule kFlatRules[] = {
    {"", 48, 1.0, EDxfLoss::LineTypeScales},  {"", 60, 0.0, EDxfLoss::Invisible},
    {"", 39, 0.0, EDxfLoss::Thicknesses},     {"3DFACE", 70, 0.0, EDxfLoss::FaceEdges},
    {"MLINE", 70, 1.0, EDxfLoss::MLineSides},
};

// Kinds whose shape, and not only whose position, depends on the side that their plane is seen from.
constexpr std::string_view kPlaneKinds[] = {"INSERT", "LWPOLYLINE", "POLYLINE", "TEXT",
                                            "MTEXT",  "HATCH",      "ELLIPSE"};

} // namespace

bool CDxfSurvey::Read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    CDxfTagScan scan(file);
    while (scan.Next()) {
        TakeTag(scan.Code(), scan.Value());
    }
    FinishRecord();
    return true;
}

void CDxfSurvey::TakeTag(int code, std::string_view value)
{
    if (code == 0) {
        FinishRecord();
        BeginRecord(value);
        return;
    }
    if (Is("SECTION") && code == 2) {
        section = Capitals(value);
    }
    if (section == "HEADER") {
        TakeHeader(code, value);
        return;
    }
    if ((Is("MLINESTYLE") || Is("LTYPE")) && styleTags.size() < kMostStyleTags) {
        styleTags.emplace_back(code, value);
    }
    groups.Add(code, value);
}

void CDxfSurvey::TakeHeader(int code, std::string_view value)
{
    constexpr int kVariable = 9;
    constexpr std::size_t kDigits = 4;
    if (code == kVariable) {
        isVersionNext = Capitals(value) == "$ACADVER";
    } else if (code == 1 && isVersionNext && value.size() >= kDigits) {
        version = std::atoi(std::string(value.substr(value.size() - kDigits)).c_str());
        isVersionNext = false;
    }
}

void CDxfSurvey::BeginRecord(std::string_view kind)
{
    record = Capitals(kind);
    if (Is("ENDSEC")) {
        section.clear();
    } else if (Is("BLOCK")) {
        isInBlock = true;
    } else if (Is("ENDBLK")) {
        isInBlock = false;
    }
}

void CDxfSurvey::FinishRecord()
{
    if (section == "ENTITIES" || section == "BLOCKS") {
        FinishEntity();
    } else if (Is("LAYER")) {
        JudgeLayer();
    } else if (Is("STYLE")) {
        JudgeTextStyle();
    } else if (Is("LTYPE")) {
        AddLineType();
    } else if (Is("MLINESTYLE")) {
        AddMLineStyle();
    }
    styleTags.clear();
    groups.Clear();
}

void CDxfSurvey::FinishEntity()
{
    if (Is("BLOCK")) {
        AddBlock();
    } else if (Is("ATTRIB")) {
        JudgeText(74);
    } else if (record.empty() || IsPart(record)) {
        return;
    } else if (groups.Integer(67) == 1) {
        tally.Lose(EDxfLoss::PaperSpace);
    } else if (!IsRead(record)) {
        tally.Unread(record);
    } else {
        JudgeEntity();
    }
}

void CDxfSurvey::JudgeEntity()
{
    for (const SFlatRule& rule : kFlatRules) {
        const bool isMeant = *rule.kind == '\0' || Is(rule.kind);
        if (isMeant && Differ(groups.Number(rule.code, rule.usual), rule.usual)) {
            tally.Lose(rule.loss);
        }
    }
    if (groups.Number(230, 1.0) < 0
        && std::find(std::begin(kPlaneKinds), std::end(kPlaneKinds), record)
            != std::end(kPlaneKinds))
    {
        tally.Lose(EDxfLoss::MirroredPlanes);
    }
    if (groups.Integer(62) == kByLayer && !groups.Has(420)) {
        tally.Lose(EDxfLoss::ExplicitByLayer);
    }
    if (groups.Has(420) && !groups.Has(62)) {
        tally.Lose(EDxfLoss::LoneTrueColours);
    }
    if (groups.Has(kExtendedData)) {
        tally.Lose(EDxfLoss::ExtendedData);
    }
    JudgeByKind();
}

void CDxfSurvey::JudgeByKind()
{
    if (Is("TEXT")) {
        JudgeText(73);
    } else if (Is("MTEXT")) {
        JudgeMText();
    } else if (Is("MLINE")) {
        JudgeMLine();
    } else if (Is("INSERT") && (groups.Integer(70) > 1 || groups.Integer(71) > 1)) {
        tally.Lose(EDxfLoss::InsertArrays);
    } else if (Is("SPLINE") && groups.Varies(41)) {
        tally.Lose(EDxfLoss::SplineWeights);
    } else if (Is("POLYLINE") && (groups.Integer(70) & kMeshFlags) != 0) {
        tally.Lose(EDxfLoss::Meshes);
    } else if (Is("LWPOLYLINE")) {
        if ((groups.Integer(70) & 1) != 0 && groups.Integer(90) == 2) {
            tally.Lose(EDxfLoss::TwoVertexClosed);
        }
        if (!Differ(groups.Number(43), 0)
            && (groups.Varies(40) || groups.Varies(41)
                || Differ(groups.Number(40), groups.Number(41))))
        {
            tally.Lose(EDxfLoss::ChangingWidths);
        }
    } else if (Is("IMAGE")) {
        tally.Lose(EDxfLoss::ImageColours);
        if (isInBlock) {
            tally.Lose(EDxfLoss::ImagesOfBlocks);
        }
    } else if (Is("ATTDEF") && !isInBlock) {
        tally.Lose(EDxfLoss::AttDefs);
    }
}

// A text that is not set by its left end has that other point in groups 11 and 21.
void CDxfSurvey::JudgeText(int verticalCode)
{
    if (groups.Integer(verticalCode) != 0) {
        tally.Lose(EDxfLoss::TextVerticals);
    }
    if (groups.Integer(72) == 0 || !groups.Has(11)) {
        return;
    }
    const bool isSame = !Differ(groups.Number(10), groups.Number(11))
        && !Differ(groups.Number(20), groups.Number(21));
    ++(isSame ? anchorsAtPosition : anchorsElsewhere);
}

void CDxfSurvey::JudgeMText()
{
    if (groups.Count(3) > 1) {
        tally.Lose(EDxfLoss::TextSeams);
    }
    if (!groups.Has(11) && Differ(groups.Number(50), 0)) {
        tally.Lose(EDxfLoss::TextRotations);
    }
}

void CDxfSurvey::JudgeMLine()
{
    const QString style = Decoded(groups.Name()).toCaseFolded();
    const double scale = groups.Number(40, 1.0);
    const auto known = mlineScales.constFind(style);
    if (known == mlineScales.constEnd()) {
        mlineScales.insert(style, scale);
    } else if (Differ(*known, scale)) {
        tally.Lose(EDxfLoss::MLineScales);
    }
}

void CDxfSurvey::JudgeLayer()
{
    constexpr int kWhite = 7;
    if (std::abs(groups.Integer(62, kWhite)) != kWhite || groups.Has(420)) {
        tally.Lose(EDxfLoss::LayerColours);
    }
}

void CDxfSurvey::JudgeTextStyle()
{
    if (Differ(groups.Number(40), 0) || Differ(groups.Number(41, 1.0), 1.0)
        || Differ(groups.Number(50), 0) || groups.Has(kExtendedData))
    {
        tally.Lose(EDxfLoss::TextStyleValues);
    }
}

// What counts stands behind the marker of the record's own kind, and ahead of extended data.
void CDxfSurvey::AddMLineStyle()
{
    constexpr int kName = 2;
    constexpr int kMarker = 100;
    constexpr int kFirstForeign = 300;
    CMLineStyleGroups style;
    QString name;
    bool isOwn = false;
    for (const auto& [code, value] : styleTags) {
        isOwn = isOwn || code == kMarker;
        if (!isOwn || code == kMarker || code >= kFirstForeign || code < 0) {
            continue;
        }
        if (code == kName) {
            name = Decoded(value);
        } else {
            style.emplace_back(code, Decoded(value));
        }
    }
    if (!name.isEmpty()) {
        mlineStyles.insert(name.toCaseFolded(), style);
    }
}

void CDxfSurvey::AddLineType()
{
    constexpr int kDescription = 3;
    constexpr int kDash = 49;
    VelorExchange::dxf::CLineStyleDXF style;
    style.name = Decoded(groups.Name());
    for (const auto& [code, value] : styleTags) {
        if (code == kDescription) {
            style.description = Decoded(value);
        } else if (code == kDash) {
            style.pattern.emplace_back(Decoded(value).toDouble());
        }
    }
    if (groups.Number(74) != 0 || groups.Varies(74)) {
        tally.Lose(EDxfLoss::LineTypePatterns);
    }
    lineTypes.insert(style.name.toCaseFolded(), style);
}

void CDxfSurvey::AddBlock()
{
    constexpr int kOutside = 4;
    const VelorExchange::CPoint3D point{groups.Number(10), groups.Number(20), groups.Number(30)};
    if (Differ(point.x, 0) || Differ(point.y, 0) || Differ(point.z, 0)) {
        tally.Lose(EDxfLoss::BlockBasePoints);
        basePoints.insert(Decoded(groups.Name()).toCaseFolded(), point);
    }
    if ((groups.Integer(70) & kOutside) != 0) {
        tally.Lose(EDxfLoss::OutsideBlocks);
    }
}

const CMLineStyleGroups* CDxfSurvey::MLineStyle(const QString& name) const
{
    const auto found = mlineStyles.constFind(name.toCaseFolded());
    return found != mlineStyles.constEnd() ? &*found : nullptr;
}

const VelorExchange::dxf::CLineStyleDXF* CDxfSurvey::LineType(const QString& name) const
{
    const auto found = lineTypes.constFind(name.toCaseFolded());
    return found != lineTypes.constEnd() ? &*found : nullptr;
}

VelorExchange::CPoint3D CDxfSurvey::BasePoint(const QString& name) const
{
    return basePoints.value(name.toCaseFolded());
}

double CDxfSurvey::MLineScale(const QString& name) const
{
    return mlineScales.value(name.toCaseFolded(), 1.0);
}

QString CDxfSurvey::Decoded(const std::string& bytes) const
{
    if (version >= kUtf8Version) {
        return QString::fromUtf8(bytes.c_str());
    }
    if (version == kIbm866Version) {
        return QTextCodec::codecForName("IBM866")->toUnicode(bytes.c_str());
    }
    return QString::fromLocal8Bit(bytes.c_str());
}

} // namespace velorx
