// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfEntityRules.h"

#include "tools/velorx/formats/DxfKnownGroups.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <string_view>

namespace velorx {

namespace {

constexpr double kNear = 1e-9;

/// A group that is left out wherever it holds more than what is usual.
struct SUsual
{
    int code = 0; ///< 0 for none.
    double value = 0.0;
};

/// Holds for an entity of the kind, empty for all, if one of the groups is unusual.
struct SRule
{
    const char* kind;
    std::array<SUsual, 3> groups;
    EDxfLoss loss;
};

constexpr SRule kRules[] = {
    {"", {{{48, 1.0}}}, EDxfLoss::LineTypeScales},
    {"", {{{60, 0.0}}}, EDxfLoss::Invisible},
    {"", {{{39, 0.0}}}, EDxfLoss::Thicknesses},
    {"3DFACE", {{{70, 0.0}}}, EDxfLoss::FaceEdges},
    {"XLINE", {{{30, 0.0}, {31, 0.0}}}, EDxfLoss::Heights},
    {"RAY", {{{30, 0.0}, {31, 0.0}}}, EDxfLoss::Heights},
    {"TEXT", {{{30, 0.0}}}, EDxfLoss::Heights},
    {"MTEXT", {{{30, 0.0}}}, EDxfLoss::Heights},
    {"ATTRIB", {{{30, 0.0}}}, EDxfLoss::Heights},
    {"ATTDEF", {{{30, 0.0}}}, EDxfLoss::Heights},
    {"SOLID", {{{30, 0.0}}}, EDxfLoss::Heights},
    {"HATCH", {{{30, 0.0}}}, EDxfLoss::Heights},
    {"IMAGE", {{{30, 0.0}}}, EDxfLoss::Heights},
    {"TEXT", {{{73, 0.0}}}, EDxfLoss::TextVerticals},
    {"ATTRIB", {{{74, 0.0}}}, EDxfLoss::TextVerticals},
    {"ATTDEF", {{{74, 0.0}}}, EDxfLoss::TextVerticals},
    {"TEXT", {{{71, 0.0}}}, EDxfLoss::TextMirrors},
    {"ATTRIB", {{{71, 0.0}}}, EDxfLoss::TextMirrors},
    {"ATTDEF", {{{71, 0.0}}}, EDxfLoss::TextMirrors},
    {"MLINE", {{{70, 1.0}}}, EDxfLoss::MLineSides},
    {"HATCH", {{{450, 0.0}}}, EDxfLoss::HatchGradients},
    {"IMAGE", {{{281, 50.0}, {282, 50.0}, {283, 0.0}}}, EDxfLoss::ImageColours},
};

// Those that come out right on a plane seen from behind, but not on a tilted one.
constexpr std::string_view kPlaneKinds[] = {"INSERT",  "LWPOLYLINE", "POLYLINE", "HATCH",
                                            "ELLIPSE", "ARC",        "CIRCLE",   "SOLID"};

// Those that do not, but for their position.
constexpr std::string_view kWordKinds[] = {"TEXT", "MTEXT", "MLINE", "ATTRIB", "ATTDEF"};

// Read or written without a line type; without a line weight.
constexpr std::string_view kWithoutLineType[] = {"POINT", "TEXT",  "MTEXT", "SOLID", "3DFACE",
                                                 "HATCH", "MLINE", "IMAGE", "ATTRIB"};
constexpr std::string_view kWithoutLineWeight[] = {"POINT", "TEXT",  "MTEXT",  "SOLID", "HATCH",
                                                   "MLINE", "IMAGE", "INSERT", "ATTRIB"};

// Line types that are one line, or that nothing but the block or the layer tells.
constexpr std::string_view kPlainLineTypes[] = {"", "BYLAYER", "BYBLOCK", "CONTINUOUS"};

template <std::size_t Count>
bool IsAmong(const std::string_view (&names)[Count], std::string_view name)
{
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

std::string Capitals(const std::string& text)
{
    std::string capitals = text;
    std::transform(capitals.begin(), capitals.end(), capitals.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    return capitals;
}

bool IsUnusual(const CDxfGroups& groups, const SUsual& usual)
{
    return usual.code != 0 && groups.Has(usual.code)
        && std::fabs(groups.Number(usual.code) - usual.value) > kNear;
}

class CJudge
{
public:
    CJudge(const SDxfSurveyEntity& one, CDxfTally& counts)
        : entity(one), groups(one.groups), tally(counts)
    {
    }

    void Judge()
    {
        JudgeByRules();
        JudgePlane();
        JudgeColour();
        JudgeLines();
        JudgeByKind();
        JudgeOtherGroups();
        Lose(groups.Has(kExtendedData), EDxfLoss::ExtendedData);
    }

private:
    static constexpr int kExtendedData = 1001;

    bool Is(std::string_view kind) const { return entity.kind == kind; }

    void Lose(bool isLost, EDxfLoss loss)
    {
        if (isLost) {
            tally.Lose(loss, entity.layer);
        }
    }

    void JudgeByRules()
    {
        for (const SRule& rule : kRules) {
            const auto isUnusual = [this](const SUsual& usual) { return IsUnusual(groups, usual); };
            if (*rule.kind == '\0' || Is(rule.kind)) {
                Lose(std::any_of(rule.groups.begin(), rule.groups.end(), isUnusual), rule.loss);
            }
        }
    }

    void JudgePlane()
    {
        const EDxfPlane plane = groups.Plane();
        const bool isWord = IsAmong(kWordKinds, entity.kind);
        const bool isFlat = IsAmong(kPlaneKinds, entity.kind) && !IsPolylineInSpace(entity);
        const bool hasPattern = Is("HATCH") && groups.Integer(70) == 0;
        Lose(plane == EDxfPlane::Tilted && (isWord || isFlat), EDxfLoss::TiltedPlanes);
        Lose(plane == EDxfPlane::Behind && (isWord || hasPattern), EDxfLoss::MirroredPlanes);
    }

    void JudgeColour()
    {
        constexpr int kTrueColour = 420;
        constexpr int kOpaque = 0x020000FF;
        Lose(groups.Has(440) && groups.Number(440) != 0 && groups.Number(440) != kOpaque,
             EDxfLoss::Transparencies);
        if (!groups.Has(kTrueColour) || !HasColour(entity.kind)) {
            return;
        }
        Lose(!groups.Has(62), EDxfLoss::LoneTrueColours);
        Lose(IsTakenForBlack(groups.Integer(kTrueColour)) && groups.Integer(62) != 0,
             EDxfLoss::TrueBlacks);
    }

    void JudgeLines()
    {
        const std::string lineType = Capitals(groups.Text(6));
        Lose(IsAmong(kWithoutLineType, entity.kind) && !IsAmong(kPlainLineTypes, lineType),
             EDxfLoss::LineTypesDropped);
        const bool hasWeight = !IsAmong(kWithoutLineWeight, entity.kind);
        Lose(!hasWeight && groups.Number(370) > 0, EDxfLoss::LineWeightsDropped);
        Lose(hasWeight && groups.Has(370) && groups.Number(370) == 0, EDxfLoss::ThinLines);
    }

    void JudgeByKind()
    {
        constexpr int kClosed = 1;
        if (Is("INSERT")) {
            Lose(groups.Integer(70) > 1 || groups.Integer(71) > 1, EDxfLoss::InsertArrays);
        } else if (Is("SPLINE")) {
            Lose(groups.Varies(41), EDxfLoss::SplineWeights);
            Lose(groups.Has(10) && (groups.Has(11) || groups.Has(12) || groups.Has(13)),
                 EDxfLoss::SplineFitPoints);
        } else if (Is("LWPOLYLINE")) {
            Lose((groups.Integer(70) & kClosed) != 0 && groups.Integer(90) == 2,
                 EDxfLoss::TwoVertexClosed);
            Lose(HasChangingWidth(), EDxfLoss::ChangingWidths);
        } else if (Is("MLINE")) {
            constexpr int kNoCaps = 4 + 8;
            const bool isCut = groups.Varies(74) || groups.Number(74) > 2 || groups.Varies(75)
                || !groups.IsZero(75);
            Lose(isCut || (groups.Integer(71) & kNoCaps) != 0, EDxfLoss::MLineCuts);
        } else if (Is("HATCH")) {
            Lose(groups.Integer(75) != 0 && groups.Integer(91) > 1, EDxfLoss::HatchIslands);
        } else if (Is("IMAGE")) {
            Lose(entity.isInBlock, EDxfLoss::ImagesOfBlocks);
            Lose((groups.Integer(70, 1) & 1) == 0, EDxfLoss::Invisible);
        }
    }

    bool HasChangingWidth() const
    {
        return groups.Number(43) == 0
            && (groups.Varies(40) || groups.Varies(41) || groups.Number(40) != groups.Number(41));
    }

    void JudgeOtherGroups()
    {
        for (const std::size_t code : groups.Codes()) {
            if (!IsGroupKnown(entity.kind, static_cast<int>(code), groups)) {
                tally.Unread("group " + std::to_string(code) + " of " + entity.kind, entity.layer);
            }
        }
    }

    const SDxfSurveyEntity& entity;
    const CDxfGroups& groups;
    CDxfTally& tally;
};

} // namespace

void JudgeEntity(const SDxfSurveyEntity& entity, CDxfTally& tally)
{
    CJudge(entity, tally).Judge();
}

// To the writer 256 and 257, red in the low byte, are no colours.
bool IsTakenForBlack(int trueColour)
{
    constexpr int kBlacks[] = {0, 0x000100, 0x010100};
    return std::find(std::begin(kBlacks), std::end(kBlacks), trueColour & 0xFFFFFF)
        != std::end(kBlacks);
}

bool IsPolylineInSpace(const SDxfSurveyEntity& entity)
{
    constexpr int kInSpace = 8 + 16 + 64; // lines in space, meshes, bodies
    return entity.kind == "POLYLINE" && (entity.groups.Integer(70) & kInSpace) != 0;
}

bool HasColour(const std::string& kind)
{
    return kind != "MLINE" && kind != "IMAGE";
}

bool FollowsLinesOfInsert(const SDxfSurveyEntity& entity)
{
    if (!entity.isInBlock || entity.layer != QLatin1String("0") || entity.kind == "ATTDEF") {
        return false;
    }
    const std::string lineType = Capitals(entity.groups.Text(6));
    const bool hasLayersType = lineType.empty() || lineType == "BYLAYER";
    const bool hasLayersWeight = entity.groups.Number(370, -1.0) == -1.0;
    return (hasLayersType && !IsAmong(kWithoutLineType, entity.kind))
        || (hasLayersWeight && !IsAmong(kWithoutLineWeight, entity.kind));
}

} // namespace velorx
