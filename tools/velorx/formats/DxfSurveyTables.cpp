// SPDX-License-Identifier: MIT
// What stands outside the entities and blocks: header, tables and objects.
#include "tools/velorx/formats/DxfSurvey.h"

#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>

namespace velorx {

namespace {

constexpr int kExtendedData = 1001;

// What the result tells of itself.
constexpr std::string_view kOwnVariables[] = {"$ACADVER", "$ACADMAINTVER", "$DWGCODEPAGE",
                                              "$HANDSEED"};

constexpr std::string_view kTablesKept[] = {"",      "TABLE",        "ENDTAB",  "LAYER", "LTYPE",
                                            "STYLE", "BLOCK_RECORD", "SECTION", "ENDSEC"};

constexpr std::string_view kObjectsKept[] = {
    "", "MLINESTYLE", "IMAGEDEF", "IMAGEDEF_REACTOR", "SECTION", "ENDSEC"};

template <std::size_t Count>
bool IsAmong(const std::string_view (&names)[Count], std::string_view name)
{
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

} // namespace

void CDxfSurvey::TakeHeader(int code, std::string_view value)
{
    constexpr int kVariable = 9;
    if (code != kVariable) {
        TakeVariable(code, value);
        return;
    }
    variable.assign(value);
    std::transform(variable.begin(), variable.end(), variable.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    if (!IsAmong(kOwnVariables, variable)) {
        tally.Lose(EDxfLoss::HeaderVariables);
    }
}

void CDxfSurvey::TakeVariable(int code, std::string_view value)
{
    constexpr std::size_t kDigits = 4;
    constexpr int kMillimetres = 4;
    const std::string text(value);
    if (variable == "$ACADVER" && code == 1 && value.size() >= kDigits) {
        version = std::atoi(text.c_str() + text.size() - kDigits);
    } else if (variable == "$INSUNITS" && code == 70 && std::atoi(text.c_str()) != kMillimetres) {
        tally.Lose(EDxfLoss::DrawingUnits);
    } else if (variable == "$LTSCALE" && code == 40) {
        const double scale = QByteArray::fromStdString(text).toDouble();
        lineTypeScale = scale > 0 && std::isfinite(scale) ? scale : 1.0;
    }
}

void CDxfSurvey::FinishTableRecord()
{
    if (Is("LAYER")) {
        JudgeLayer();
    } else if (Is("STYLE")) {
        AddTextStyle();
    } else if (Is("LTYPE")) {
        AddLineType();
    } else if (!IsAmong(kTablesKept, record)) {
        tally.Lose(EDxfLoss::OtherTables);
    }
}

void CDxfSurvey::FinishObject()
{
    if (Is("MLINESTYLE")) {
        AddMLineStyle();
    } else if (Is("IMAGEDEF")) {
        AddImageSize();
    } else if (!IsAmong(kObjectsKept, record)) {
        tally.Lose(EDxfLoss::OtherObjects);
    }
}

void CDxfSurvey::AddImageSize()
{
    const QString path = QFileInfo(Decoded(groups.Text(1))).filePath();
    const VelorExchange::CPoint2D size{groups.Number(10), groups.Number(20)};
    if (size.x > 0 && size.y > 0 && !imageSizes.contains(path)) {
        imageSizes.insert(path, size);
    }
}

void CDxfSurvey::JudgeLayer()
{
    constexpr int kWhite = 7;
    constexpr int kFrozen = 1;
    constexpr int kFrozenInNewViews = 2;
    const QString name = Decoded(groups.Text(2));
    if (name.isEmpty()) {
        return; // the reader drops it
    }
    const int colour = groups.Integer(62, kWhite);
    const int flags = groups.Integer(70);
    const QString lineType = Decoded(groups.Text(6));
    const bool hasLineType = !lineType.isEmpty()
        && lineType.compare(QLatin1String("CONTINUOUS"), Qt::CaseInsensitive) != 0;
    const bool hasWeight = groups.Number(370) > 0;
    const bool isHiddenOtherwise = colour < 0 || (flags & kFrozenInNewViews) != 0;
    const auto lose = [this, &name](bool isLost, EDxfLoss loss) {
        tally.Lose(loss, name, isLost ? 1 : 0);
    };
    lose(std::abs(colour) != kWhite || groups.Has(420), EDxfLoss::LayerColours);
    lose(hasLineType, EDxfLoss::LayerLineTypes);
    lose(hasWeight, EDxfLoss::LayerLineWeights);
    lose(isHiddenOtherwise && (flags & kFrozen) == 0, EDxfLoss::LayersOff);
    lose(groups.Has(290) && groups.Integer(290) == 0, EDxfLoss::LayersNotPlotted);
    hasLinesOfLayers = hasLinesOfLayers || hasLineType || hasWeight;
}

// A font of the system stands in extended data, with two flags for its shape.
void CDxfSurvey::AddTextStyle()
{
    constexpr int kShapeFile = 1;
    constexpr int kVertical = 4;
    constexpr unsigned kBold = 0x2000000;
    constexpr unsigned kItalic = 0x1000000;
    const QString handle = Decoded(groups.Text(5)).toUpper();
    VelorExchange::dxf::CTextStyleDXF style;
    style.name = Decoded(groups.Text(2));
    style.fontFile = groups.Has(3) ? Decoded(groups.Text(3)) : QStringLiteral("Arial");
    if ((groups.Integer(70) & kShapeFile) != 0) {
        shapeFiles.insert(handle, style.fontFile);
        return;
    }
    style.height = groups.Number(40);
    style.widthFactor = groups.Number(41, 1.0);
    style.obliqueAngle = groups.Number(50);
    for (const auto& [code, value] : DecodedTags()) {
        if (code == 1000 && style.faceName.isEmpty()) {
            style.faceName = value;
        } else if (code == 1071) {
            style.bold = (value.toUInt() & kBold) != 0;
            style.italic = (value.toUInt() & kItalic) != 0;
        }
    }
    const bool isSpecial =
        (groups.Integer(70) & kVertical) != 0 || groups.Integer(71) != 0 || !groups.Text(4).empty();
    tally.Lose(EDxfLoss::TextStyleFlags, QString(), isSpecial ? 1 : 0);
    styleHandles.insert(handle, style.name);
    const QString key = style.name.toCaseFolded();
    if (!textStyles.contains(key)) {
        textStyles.insert(key, style);
    }
}

void CDxfSurvey::AddLineType()
{
    CDxfGroupList list = DecodedTags();
    const auto isForeign = [](const auto& group) { return group.first >= kExtendedData; };
    list.erase(std::find_if(list.begin(), list.end(), isForeign), list.end());
    lineTypes.Add(Decoded(groups.Text(2)), list);
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
    for (const auto& [code, value] : DecodedTags()) {
        isOwn = isOwn || code == kMarker;
        if (!isOwn || code == kMarker || code >= kFirstForeign || code < 0) {
            continue;
        }
        if (code == kName) {
            name = value;
        } else {
            style.emplace_back(code, value);
        }
    }
    if (!name.isEmpty()) {
        mlineStyles.insert(name.toCaseFolded(), style);
    }
}

QStringList CDxfSurvey::MLineStyleNames() const
{
    QStringList names = mlineStyles.keys();
    names.sort();
    return names;
}

} // namespace velorx
