// SPDX-License-Identifier: MIT
// The frame: tables, blocks, and what all elements have in common.
#include "tools/velorx/convert/DxfReplay.h"

#include <boost/variant2/variant.hpp>

#include <algorithm>
#include <iterator>

namespace velorx {

using namespace VelorExchange::dxf;

namespace {

// Heavier than all: the writer leaves the group out, which means by layer.
constexpr double kNoLineWeight = 1000.0;
constexpr double kByBlockLineWeight = -2.0;
constexpr double kHundredths = 100.0;
constexpr char kContinuous[] = "CONTINUOUS";

// Blocks that hold what stands on the model and on the sheets, in both spellings.
constexpr const char* kLayoutBlocks[] = {"*MODEL_SPACE", "*PAPER_SPACE", "$MODEL_SPACE",
                                         "$PAPER_SPACE"};

bool IsLayoutBlock(const QString& name)
{
    return std::any_of(std::begin(kLayoutBlocks), std::end(kLayoutBlocks),
                       [&name](const char* start) {
                           return name.startsWith(QLatin1String(start), Qt::CaseInsensitive);
                       });
}

} // namespace

CDxfReplay::CDxfReplay(IDXFWriter& target, const CDxfSurvey& firstLook, CDxfTally& counts,
                       IDXFProgress* bar)
    : writer(target), survey(firstLook), tally(counts), progress(bar)
{
    for (const char* name : {"ByBlock", "ByLayer", kContinuous}) {
        lineTypeNames.Define(QLatin1String(name), QLatin1String(name));
    }
    textStyleNames.Define(QStringLiteral("STANDARD"), QStringLiteral("STANDARD"));
    layerNames.Define(QString(), QStringLiteral("0"));
    // The writer keeps the first away from an element's layer and has the second as a style of its own.
    layerNames.Define(QStringLiteral("DEFPOINTS"), QStringLiteral("Defpoints_1"));
    mlineStyleNames.Reserve(QStringLiteral("STANDARD"));
}

bool CDxfReplay::Count(EDxfKind kind, bool isWritten, const char* as)
{
    tally.Read(kind, writer.IsInBlock());
    if (isWritten) {
        tally.Wrote(kind, as);
    } else {
        tally.Lose(EDxfLoss::Refused);
    }
    return isWritten;
}

bool CDxfReplay::Count(EDxfKind kind, bool isWritten)
{
    return Count(kind, isWritten, EntityName(kind));
}

bool CDxfReplay::CountText(EDxfKind kind, const QString& text, bool isWritten)
{
    if (!text.isEmpty()) {
        return Count(kind, isWritten);
    }
    tally.Read(kind, writer.IsInBlock());
    tally.Lose(EDxfLoss::EmptyTexts);
    return false;
}

// ---- What elements have in common ---------------------------------------------------------------

void CDxfReplay::AdaptLayer(QString& layer)
{
    layer = layerNames.Of(layer);
    if (writer.IsInBlock() && layer != QLatin1String("0")) {
        tally.Lose(EDxfLoss::BlockLayers);
        const auto found = layers.constFind(layer);
        if (found != layers.constEnd() && !found->isVisible) {
            tally.Lose(EDxfLoss::HiddenInBlocks);
        }
    }
}

void CDxfReplay::AdaptHead(CEntityDXF& head)
{
    AdaptLayer(head.layer);
    head.lineStyle.name = lineTypeNames.Of(head.lineStyle.name);
    head.lineWeight = LineWeight(head.lineWeight, head.layer);
}

// Millimetres. The layers of the target have no weight of their own, so elements take that of theirs.
double CDxfReplay::LineWeight(double hundredths, const QString& layer)
{
    if (hundredths == kByBlockLineWeight) {
        tally.Lose(EDxfLoss::BlockLineWeights);
        return kNoLineWeight;
    }
    if (!(hundredths > 0)) {
        const auto found = layers.constFind(layer);
        hundredths = found != layers.constEnd() ? found->lineWeight : 0;
    }
    return hundredths > 0 ? hundredths / kHundredths : kNoLineWeight;
}

// For kinds that the writer writes without one.
void CDxfReplay::DropLineType(const CEntityDXF& head)
{
    if (head.lineStyle.name != QLatin1String(kContinuous)) {
        tally.Lose(EDxfLoss::LineTypesDropped);
    }
}

// ---- Tables ------------------------------------------------------------------------------------

bool CDxfReplay::OnLayer(const CLayerDXF& record)
{
    const QString name = layerNames.Of(record.name);
    if (!layers.contains(name)) {
        layers.insert(name, {record.visible, record.lineWeight});
    }
    if (lineTypeNames.Of(record.lineType) != QLatin1String(kContinuous)) {
        tally.Lose(EDxfLoss::LayerLineTypes);
    }
    writer.AddLayer(name, record.visible, !record.unlocked);
    return true;
}

bool CDxfReplay::OnTextStyle(const CTextStyleDXF& record)
{
    CTextStyleDXF style = record;
    style.name = textStyleNames.Of(record.name);
    const QString own = CTextStyleDXF().name;
    if (style.name == own && style.fontFile != CTextStyleDXF().fontFile) {
        tally.Lose(EDxfLoss::TextStyleFonts);
    }
    writer.AddTextStyle(style, false);
    return true;
}

bool CDxfReplay::OnLineStyle(const CLineStyleDXF& record)
{
    const CLineStyleDXF* known = survey.LineType(record.name);
    CLineStyleDXF style = known != nullptr ? *known : record;
    style.name = lineTypeNames.Of(record.name);
    writer.AddLineStyle(style);
    return true;
}

// ---- Blocks ------------------------------------------------------------------------------------

bool CDxfReplay::OnBlock(const CBlockDXF& record)
{
    const auto size = static_cast<qint64>(record.entities.size());
    if (IsLayoutBlock(record.name)) {
        tally.Lose(EDxfLoss::LayoutBlocks, size);
        return true;
    }
    if (record.name.isEmpty()) {
        tally.Lose(EDxfLoss::NamelessBlocks, size);
        return true;
    }
    const QString name = blockNames.Of(record.name);
    if (definedBlocks.contains(name)) {
        tally.Lose(EDxfLoss::RepeatedBlocks);
        return true;
    }
    definedBlocks.insert(name);
    writer.BeginBlock(name, false, QString());
    for (const CEntityVariantDXF& entity : record.entities) {
        Replay(entity);
    }
    writer.EndBlock();
    return true;
}

void CDxfReplay::Replay(const CEntityVariantDXF& entity)
{
    struct CDispatch
    {
        CDxfReplay& host;
        void operator()(const CPointDXF& record) { host.OnPoint(record); }
        void operator()(const CLineDXF& record) { host.OnLine(record); }
        void operator()(const CXLineDXF& record) { host.OnXLine(record); }
        void operator()(const CArcDXF& record) { host.OnArc(record); }
        void operator()(const CSplineDXF& record) { host.OnSpline(record); }
        void operator()(const CLWPolylineDXF& record) { host.OnLWPolyline(record); }
        void operator()(const CPolylineDXF& record) { host.OnPolyline(record); }
        void operator()(const CTextDXF& record) { host.OnText(record); }
        void operator()(const CMTextDXF& record) { host.OnMText(record); }
        void operator()(const CSolidDXF& record) { host.OnSolid(record); }
        void operator()(const CHatchDXF& record) { host.OnHatch(record); }
        void operator()(const C3DFaceDXF& record) { host.On3DFace(record); }
        void operator()(const CImageDXF&) { } // the reader delivers images outside blocks
        void operator()(const CRayDXF& record) { host.OnRay(record); }
        void operator()(const CMLineDXF& record) { host.OnMLine(record); }
        // Neither place nor height of the definition is known.
        void operator()(const CAttDefDXF&)
        {
            host.tally.Read(kAttDef, true);
            host.tally.Lose(EDxfLoss::AttDefs);
        }
        void operator()(const CInsertDXF& record) { host.OnInsert(record); }
        void operator()(const CEllipseDXF& record) { host.OnEllipse(record); }
    };
    boost::variant2::visit(CDispatch{*this}, entity);
}

void CDxfReplay::Finish()
{
    for (const QString& name : insertedBlocks) {
        if (!definedBlocks.contains(name)) {
            tally.Lose(EDxfLoss::UndefinedBlocks);
            writer.BeginBlock(name, false, QString());
            writer.EndBlock();
        }
    }
    tally.Lose(EDxfLoss::Names,
               layerNames.Changed() + lineTypeNames.Changed() + textStyleNames.Changed()
                   + mlineStyleNames.Changed() + blockNames.Changed());
}

} // namespace velorx
