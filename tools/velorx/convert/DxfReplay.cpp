// SPDX-License-Identifier: MIT
// What all elements have in common, and blocks.
#include "tools/velorx/convert/DxfReplay.h"

#include "tools/velorx/formats/DrawingText.h"

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
constexpr int kObjects = 4; // stage of the gate

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

struct SLayerOf
{
    QString operator()(const CAttDefDXF& /*record*/) const { return {}; }
    template <class TRecord>
    QString operator()(const TRecord& record) const
    {
        return record.layer;
    }
};

} // namespace

CDxfReplay::CDxfReplay(IDXFWriter& target, int version, const CDxfSurvey& firstLook,
                       CDxfTally& counts, IDXFProgress* bar)
    : writer(target), survey(firstLook), tally(counts), progress(bar),
      colours(firstLook.Colours(), version)
{
    for (const char* name : {"ByBlock", "ByLayer", "CONTINUOUS"}) {
        lineTypeNames.Define(QLatin1String(name), QLatin1String(name));
    }
    textStyleNames.Define(QStringLiteral("STANDARD"), QStringLiteral("STANDARD"));
    layerNames.Define(QString(), QStringLiteral("0"));
    layerNames.Define(QStringLiteral("0"), QStringLiteral("0"));
    // The writer keeps the first away from an element's layer and has the second as a style of its own.
    layerNames.Define(QStringLiteral("DEFPOINTS"), QStringLiteral("Defpoints_1"));
    mlineStyleNames.Reserve(QStringLiteral("STANDARD"));
}

bool CDxfReplay::OnSection(int stage)
{
    return stage != kObjects || !survey.AreObjectsAhead();
}

void CDxfReplay::Note(EDxfLoss loss, bool isLost, int count)
{
    if (isLost) {
        losses.emplace_back(loss, count);
    }
}

bool CDxfReplay::Count(EDxfKind kind, bool isWritten, const char* as)
{
    tally.Read(kind, writer.IsInBlock());
    if (isWritten) {
        tally.Wrote(kind, as);
        for (const auto& [loss, count] : losses) {
            tally.Lose(loss, layerInHand, count);
        }
    } else {
        tally.Lose(EDxfLoss::Refused, layerInHand);
    }
    losses.clear();
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
    losses.clear();
    tally.Read(kind, writer.IsInBlock());
    tally.Lose(EDxfLoss::EmptyTexts, layerInHand);
    return false;
}

// ---- What elements have in common ---------------------------------------------------------------

void CDxfReplay::AdaptLayer(QString& layer)
{
    layerInHand = layer.isEmpty() ? QStringLiteral("0") : layer;
    layer = layerNames.Of(layer);
    if (writer.IsInBlock() && layer != QLatin1String("0")) {
        const auto found = layers.constFind(layer);
        Note(EDxfLoss::BlockLayers);
        Note(EDxfLoss::HiddenInBlocks, found != layers.constEnd() && !found->isVisible);
    }
}

void CDxfReplay::Adapt(QString& layer, quint32& colour)
{
    AdaptLayer(layer);
    colour = colours.Of(colour, {layerInHand, layer, blockInHand, writer.IsInBlock()});
    Note(EDxfLoss::PaletteColours, colours.IsNearest(colour));
}

void CDxfReplay::AdaptHead(CEntityDXF& head)
{
    Adapt(head.layer, head.color);
    head.lineStyle.name = lineTypeNames.Of(head.lineStyle.name);
    head.lineWeight = LineWeight(head.lineWeight, head.layer);
}

// Millimetres. The layers of the target have no weight of their own, so elements take that of theirs.
double CDxfReplay::LineWeight(double hundredths, const QString& layer)
{
    if (hundredths == kByBlockLineWeight) {
        Note(EDxfLoss::BlockLineWeights);
        return kNoLineWeight;
    }
    if (!(hundredths > 0)) {
        const auto found = layers.constFind(layer);
        hundredths = found != layers.constEnd() ? found->lineWeight : 0;
    }
    return hundredths > 0 ? hundredths / kHundredths : kNoLineWeight;
}

// ---- Blocks ------------------------------------------------------------------------------------

bool CDxfReplay::OnBlock(const CBlockDXF& record)
{
    if (IsLayoutBlock(record.name)) {
        Skip(record, EDxfLoss::LayoutBlocks);
        return true;
    }
    if (record.name.isEmpty()) {
        Skip(record, EDxfLoss::NamelessBlocks);
        return true;
    }
    const QString name = blockNames.Of(record.name);
    if (definedBlocks.contains(name)) {
        Skip(record, EDxfLoss::RepeatedBlocks);
        return true;
    }
    definedBlocks.insert(name);
    blockInHand = record.name;
    attDefs = 0;
    bool isWhole = true;
    writer.BeginBlock(name, false, TextForDrawing(survey.OutsideFile(record.name), isWhole));
    for (const CEntityVariantDXF& entity : record.entities) {
        Replay(entity);
    }
    writer.EndBlock();
    return true;
}

void CDxfReplay::Skip(const CBlockDXF& block, EDxfLoss loss)
{
    for (const CEntityVariantDXF& entity : block.entities) {
        tally.Read(KindOf(entity), true);
        tally.Lose(loss, boost::variant2::visit(SLayerOf(), entity));
    }
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
        void operator()(const CAttDefDXF& record) { host.ReplayAttDef(record); }
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
    const QStringList styles = survey.MLineStyleNames();
    for (const QString& name : styles) {
        const bool isOwn = name == QLatin1String("standard");
        tally.Lose(EDxfLoss::UnusedMLineStyles, QString(),
                   isOwn || drawnMLineStyles.contains(name) ? 0 : 1);
    }
    tally.Lose(EDxfLoss::HiddenAttributes, QString(), survey.HiddenTags().Mixed());
    colours.AddLosses(tally);
    tally.Lose(EDxfLoss::Names, QString(),
               layerNames.Changed() + lineTypeNames.Changed() + textStyleNames.Changed()
                   + mlineStyleNames.Changed() + blockNames.Changed());
}

} // namespace velorx
