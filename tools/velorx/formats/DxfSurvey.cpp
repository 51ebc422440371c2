// SPDX-License-Identifier: MIT
// The walk over a drawing, and its entities and blocks.
#include "tools/velorx/formats/DxfSurvey.h"

#include "tools/velorx/formats/DxfEntityRules.h"
#include "tools/velorx/formats/DxfLeader.h"
#include "tools/velorx/formats/DxfTagScan.h"

#include <QFile>
#include <QStringList>
#include <QTextCodec>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>

namespace velorx {

namespace {

constexpr std::size_t kMostStyleTags = 1000;
constexpr int kFirstUtf8Version = 1019;
constexpr int kIbm866Version = 1006;
constexpr double kNear = 1e-9;
constexpr int kEmbeddedObject = 101;

// Records that are parts of others.
constexpr std::string_view kParts[] = {"SEQEND", "ENDBLK", "ENDSEC", "SECTION"};

constexpr std::string_view kSections[] = {"HEADER", "CLASSES",  "TABLES",
                                          "BLOCKS", "ENTITIES", "OBJECTS"};

constexpr std::string_view kRead[] = {"HEADER", "TABLES", "BLOCKS", "ENTITIES"};

// Behind these the order of groups counts.
constexpr std::string_view kOrdered[] = {"LTYPE", "STYLE", "MLINESTYLE"};

template <std::size_t Count>
bool IsAmong(const std::string_view (&names)[Count], std::string_view name)
{
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

std::string Capitals(std::string_view text)
{
    std::string capitals(text);
    std::transform(capitals.begin(), capitals.end(), capitals.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    return capitals;
}

// The kind of that name; kDxfKinds for one that the reader does not know.
std::size_t KindNamed(const std::string& name)
{
    std::size_t kind = 0;
    while (kind < kDxfKinds && name != EntityName(kind)) {
        ++kind;
    }
    return kind;
}

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
    FinishAll();
    return true;
}

void CDxfSurvey::TakeTag(int code, std::string_view value)
{
    if (code == 0) {
        FinishRecord();
        BeginRecord(value);
        return;
    }
    if (Is("SECTION") && code == 2 && section.empty()) {
        BeginSection(value);
    }
    if (section == "HEADER") {
        TakeHeader(code, value);
        return;
    }
    if (groups.Has(kEmbeddedObject) && CDxfMendings::CanHoldObject(record)) {
        return; // what follows is the other object's
    }
    if (IsAmong(kOrdered, record) && tags.size() < kMostStyleTags) {
        tags.emplace_back(code, value);
    }
    if (Is("MTEXT") && (code == 1 || code == 3)) {
        texts.TakePiece(code, Decoded(std::string(value)));
    }
    const double number = groups.Add(code, value);
    shapes.Take(code, number);
    hatchPatterns.Take(code, number);
}

void CDxfSurvey::BeginSection(std::string_view name)
{
    section = Capitals(name);
    areObjectsAhead = areObjectsAhead || (areObjectsPassed && IsAmong(kRead, section));
    areObjectsPassed = areObjectsPassed || section == "OBJECTS";
    if (!IsAmong(kSections, section)) {
        tally.Lose(EDxfLoss::OtherSections);
    }
}

void CDxfSurvey::BeginRecord(std::string_view kind)
{
    record = Capitals(kind);
    if (Is("TRACE")) {
        record = "SOLID";
        mendings.TakeTrace();
    }
    shapes.Begin(record);
    hatchPatterns.Begin();
    if (Is("ENDSEC")) {
        section.clear();
    } else if (Is("BLOCK")) {
        isInBlock = section == "BLOCKS";
    } else if (Is("ENDBLK")) {
        isInBlock = false;
        block.clear();
    }
}

void CDxfSurvey::FinishRecord()
{
    if (section == "ENTITIES" || section == "BLOCKS") {
        FinishEntity();
    } else if (section == "TABLES") {
        FinishTableRecord();
    } else if (section == "OBJECTS") {
        FinishObject();
    }
    tags.clear();
    groups.Clear();
}

// An attribute and a vertex belong to the entity before them.
void CDxfSurvey::FinishEntity()
{
    const bool isLeftOut = groups.Integer(67) == 1 && !Is("ATTDEF");
    if (Is("BLOCK")) {
        AddBlock();
    } else if (Is("VERTEX")) {
        shapes.FinishVertex(groups, tally);
    } else if (Is("ATTRIB")) {
        if (hasReadInsert) {
            JudgeEntity();
        }
    } else if (!record.empty() && !IsAmong(kParts, record)) {
        const std::size_t kind = KindNamed(record);
        hasReadInsert = kind == kInsert && !isLeftOut;
        if (isLeftOut) {
            tally.Lose(EDxfLoss::PaperSpace, Layer());
        } else if (Is("LEADER")) {
            TakeLeader();
        } else if (kind == kDxfKinds) {
            TakeUnknown();
        } else if (kind == kAttDef && !isInBlock) {
            tally.Lose(EDxfLoss::AttDefs, Layer());
        } else {
            tally.Expect(static_cast<EDxfKind>(kind));
            JudgeEntity();
        }
    }
}

void CDxfSurvey::TakeUnknown()
{
    const SDxfSurveyEntity entity = {record, groups, Layer(), block, isInBlock};
    tally.Unread(record, entity.layer);
    pictures.Take(entity, [this](const std::string& bytes) { return Decoded(bytes); });
}

// A line or a curve, and its arrow head.
void CDxfSurvey::TakeLeader()
{
    tally.Expect(IsCurve(groups) ? kSpline : kLWPolyline);
    tally.Lose(EDxfLoss::Leaders, Layer());
    JudgeEntity();
    if (HasArrow(groups)) {
        tally.Expect(kSolid);
    }
}

void CDxfSurvey::JudgeEntity()
{
    const SDxfSurveyEntity entity = {record, groups, Layer(), block, isInBlock};
    velorx::JudgeEntity(entity, tally);
    shapes.Finish(entity, tally);
    colours.Take(entity);
    texts.Take(entity);
    followers += FollowsLinesOfInsert(entity) ? 1 : 0;
    const auto decode = [this](const std::string& bytes) { return Decoded(bytes); };
    hiddenTags.Take(entity, decode);
    mendings.Take(entity);
    if (Is("HATCH")) {
        hatchPatterns.Finish(entity, Decoded(groups.Text(2)), tally);
    } else if (Is("MLINE")) {
        JudgeMLine();
    } else if (Is("ATTDEF")) {
        attDefs.Add(entity, decode, tally);
    }
}

void CDxfSurvey::JudgeMLine()
{
    const QString style = Decoded(groups.Text(2)).toCaseFolded();
    const double scale = groups.Number(40, 1.0);
    const auto known = mlineScales.constFind(style);
    if (known == mlineScales.constEnd()) {
        mlineScales.insert(style, scale);
    } else if (std::fabs(*known - scale) > kNear) {
        tally.Lose(EDxfLoss::MLineScales, Layer());
    }
}

void CDxfSurvey::AddBlock()
{
    constexpr int kOutside = 4;
    const QString name = Decoded(groups.Text(2));
    const QString key = name.toCaseFolded();
    const VelorExchange::CPoint3D point{groups.Number(10), groups.Number(20), groups.Number(30)};
    if (std::fabs(point.x) > kNear || std::fabs(point.y) > kNear || std::fabs(point.z) > kNear) {
        tally.Lose(EDxfLoss::BlockBasePoints);
        basePoints.insert(key, point);
    }
    if ((groups.Integer(70) & kOutside) != 0) {
        const QString file = Decoded(groups.Text(1));
        tally.Lose(EDxfLoss::OutsideBlocks, QString(), file.isEmpty() ? 1 : 0);
        outsideFiles.insert(key, file);
    }
    block = name;
    attDefs.BeginBlock(name);
}

void CDxfSurvey::FinishAll()
{
    tally.Lose(EDxfLoss::LineTypePatterns, QString(),
               lineTypes.NameStyles(styleHandles, shapeFiles));
    tally.Lose(EDxfLoss::FollowedLines, QStringLiteral("0"), hasLinesOfLayers ? followers : 0);
    texts.AddLosses(tally);
}

const CMLineStyleGroups* CDxfSurvey::MLineStyle(const QString& name) const
{
    const auto found = mlineStyles.constFind(name.toCaseFolded());
    return found != mlineStyles.constEnd() ? &*found : nullptr;
}

double CDxfSurvey::MLineScale(const QString& name) const
{
    return mlineScales.value(name.toCaseFolded(), 1.0);
}

const VelorExchange::dxf::CTextStyleDXF* CDxfSurvey::TextStyle(const QString& name) const
{
    const auto found = textStyles.constFind(name.toCaseFolded());
    return found != textStyles.constEnd() ? &*found : nullptr;
}

VelorExchange::CPoint3D CDxfSurvey::BasePoint(const QString& name) const
{
    return basePoints.value(name.toCaseFolded());
}

QString CDxfSurvey::OutsideFile(const QString& name) const
{
    return outsideFiles.value(name.toCaseFolded());
}

// The library's reader takes blanks of all kinds off a value.
QString CDxfSurvey::Decoded(const std::string& bytes) const
{
    if (version >= kFirstUtf8Version) {
        return QString::fromUtf8(bytes.c_str()).trimmed();
    }
    if (version == kIbm866Version) {
        return QTextCodec::codecForName("IBM866")->toUnicode(bytes.c_str()).trimmed();
    }
    return QString::fromLocal8Bit(bytes.c_str()).trimmed();
}

QString CDxfSurvey::Layer() const
{
    const QString layer = Decoded(groups.Text(8));
    return layer.isEmpty() ? QStringLiteral("0") : layer;
}

CDxfGroupList CDxfSurvey::DecodedTags() const
{
    CDxfGroupList decoded;
    decoded.reserve(tags.size());
    for (const auto& [code, value] : tags) {
        decoded.emplace_back(code, Decoded(value));
    }
    return decoded;
}

} // namespace velorx
