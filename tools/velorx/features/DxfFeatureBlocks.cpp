// SPDX-License-Identifier: MIT
// Blocks, and what their inserts draw.
#include "tools/velorx/features/DxfDataBlock.h"
#include "tools/velorx/features/DxfFeatureLosses.h"
#include "tools/velorx/features/DxfFeatureReader.h"
#include "tools/velorx/features/PlainText.h"
#include "tools/velorx/formats/DxfKinds.h"
#include "tools/velorx/formats/DxfSurvey.h"
#include "tools/velorx/formats/DxfTally.h"
#include "VelorExchange/dxf/read/Read.h"
#include "VelorExchange/dxf/write/Colour.h"

#include <boost/variant2/variant.hpp>

#include <algorithm>
#include <iterator>
#include <utility>

namespace velorx {

using namespace VelorExchange::dxf;

namespace {

constexpr std::size_t kDeepest = 100;
constexpr char kAttrib[] = "ATTRIB";

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

bool IsDefinition(const CEntityVariantDXF& entity)
{
    return boost::variant2::holds_alternative<CAttDefDXF>(entity);
}

// The colour or the line type of the insert where the element asks for it, as `ParseBlock` does it.
void Inherit(CEntityDXF& head, const CInsertDXF& insert)
{
    if (head.color == kByBlockColor) {
        head.color = insert.color;
    }
    if (head.lineStyle.name.compare(QLatin1String("BYBLOCK"), Qt::CaseInsensitive) == 0) {
        head.lineStyle.name = insert.lineStyle.name;
    }
}

} // namespace

bool CDxfFeatureReader::OnBlock(const CBlockDXF& record)
{
    const auto size = static_cast<qint64>(record.entities.size());
    for (const CEntityVariantDXF& entity : record.entities) {
        firstTally.Read(KindOf(entity), true);
    }
    const auto definitions = static_cast<qint64>(
        std::count_if(record.entities.begin(), record.entities.end(), IsDefinition));
    if (definitions > 0) {
        tally.Read(EntityName(kAttDef), true, definitions);
        tally.Lose(QLatin1String(losses::kAttDefs), QString(), definitions);
    }
    if (IsLayoutBlock(record.name)) {
        if (size > 0) {
            tally.Lose(QLatin1String(losses::kLayoutBlocks), QString(), size);
        }
    } else if (!blocks.Add(record)) {
        tally.Lose(QLatin1String(losses::kRepeatedBlocks));
    }
    return true;
}

bool CDxfFeatureReader::OnInsert(const CInsertDXF& record)
{
    if (record.name.compare(QLatin1String(kDataBlock), Qt::CaseInsensitive) == 0) {
        TakeData(record);
        return true;
    }
    Meet(kInsert);
    const char* kind = EntityName(kInsert);
    const SPlace outer = place;
    place.attributes = Joined(record.attributes);
    if (CanDraw(kind, record)) {
        if (DrawBlock(record)) {
            tally.Wrote(kind, losses::kAsParts);
            Changed(losses::kBlocks, LayerOf(record.layer));
        } else {
            GivePoint(record);
        }
        for (const CAttribDXF& attribute : record.attributes) {
            GiveAttribute(record.name, attribute);
        }
    }
    place = outer;
    return true;
}

// Blocks within themselves have no end.
bool CDxfFeatureReader::CanDraw(const char* kind, const CInsertDXF& record)
{
    const SDxfBlock* block = blocks.Find(record.name);
    const QString layer = LayerOf(record.layer);
    if (std::find(open.begin(), open.end(), block) != open.end()) {
        return Lost(kind, layer, losses::kWithinItself);
    }
    return open.size() < kDeepest || Lost(kind, layer, losses::kTooDeep);
}

// A hidden attribute is there as such, but not as a text.
void CDxfFeatureReader::GiveAttribute(const QString& block, const CAttribDXF& attribute)
{
    tally.Read(kAttrib, place.isInBlock);
    if (survey.HiddenTags().IsHidden(block, attribute.tag)) {
        tally.Wrote(kAttrib, "attribute of its object");
    } else {
        GiveTextLine(kAttrib, attribute, attribute.style.widthFactor);
    }
}

// False if nothing comes of it.
bool CDxfFeatureReader::DrawBlock(const CInsertDXF& record)
{
    const qint64 before = given;
    if (SDxfBlock* block = blocks.Find(record.name)) {
        block->isUsed = true;
        Draw(*block, record);
    }
    return given > before;
}

// It keeps the place and the attributes of an insert that draws nothing.
void CDxfFeatureReader::GivePoint(const CInsertDXF& record)
{
    SPointFeature point;
    FillHead(point, EntityName(kInsert), record.layer);
    point.position = record.point;
    point.symbol.color = ColourOf(record.color, record.layer);
    if (Give(point)) {
        Changed(losses::kNoBlock, point.layer);
    }
}

// Dimensions and tables, which the library does not read, but which have blocks.
void CDxfFeatureReader::DrawPictures(const QString& within)
{
    constexpr int kByLayer = 256;
    const std::vector<SDxfPicture>& pictures = survey.Pictures().In(within);
    if (!HasRoomFor(pictures.size())) {
        return;
    }
    const bool wasInPicture = std::exchange(place.isInPicture, true);
    for (const SDxfPicture& picture : pictures) {
        const CLayerDXF layer = styles.Layer(picture.layer);
        CInsertDXF insert;
        insert.name = picture.block;
        insert.layer = picture.layer;
        insert.point = picture.point;
        insert.rotation = picture.rotation;
        insert.lineStyle.name = layer.lineType;
        insert.color = picture.colour <= 0 || picture.colour >= kByLayer
            ? layer.color
            : static_cast<quint32>(NumColACAD2RGB(picture.colour));
        tally.Read(picture.kind, place.isInBlock);
        if (!CanDraw(picture.kind, insert)) {
            continue;
        }
        if (DrawBlock(insert)) {
            tally.Wrote(picture.kind, losses::kAsParts);
            Changed(losses::kPictures, LayerOf(insert.layer));
        } else {
            Lost(picture.kind, LayerOf(insert.layer), losses::kNotRead);
        }
    }
    place.isInPicture = wasInPicture;
}

void CDxfFeatureReader::Draw(const SDxfBlock& block, const CInsertDXF& insert)
{
    const SPlace outer = place;
    CInsertDXF
        origin; // `ParseBlock` gives what it draws the colour and the line type, we the place
    origin.color = ColourOf(insert.color, insert.layer);
    origin.lineStyle = insert.lineStyle;
    const CPlacement inner(insert, survey.BasePoint(insert.name));
    place.layer = LayerOf(insert.layer);
    place.placement = outer.placement.Around(inner);
    place.isInBlock = true;
    open.push_back(&block);
    AdaptChords();
    for (const SDxfBlockPart& part : block.parts) {
        const std::size_t others = part.other != nullptr ? 1 : 0;
        if (!HasRoomFor(part.run.entities.size() + others)) {
            break;
        }
        ParseBlock(part.run, origin, this);
        if (part.other != nullptr) {
            DrawOther(*part.other, origin);
        }
    }
    DrawPictures(block.name);
    open.pop_back();
    place = outer;
    AdaptChords();
}

void CDxfFeatureReader::DrawOther(const CEntityVariantDXF& entity, const CInsertDXF& insert)
{
    if (const auto* ellipse = boost::variant2::get_if<CEllipseDXF>(&entity)) {
        CEllipseDXF copy = *ellipse;
        Inherit(copy, insert);
        OnEllipse(copy);
    } else if (const auto* hatch = boost::variant2::get_if<CHatchDXF>(&entity)) {
        CHatchDXF copy = *hatch;
        copy.color = copy.color == kByBlockColor ? insert.color : copy.color;
        OnHatch(copy);
    }
}

// Blocks in blocks in blocks make much out of little.
bool CDxfFeatureReader::HasRoomFor(std::size_t elements)
{
    const auto size = static_cast<qint64>(elements);
    if (drawn + size > mostDrawn) {
        tally.Lose(QLatin1String(losses::kTooMany), place.layer, size);
        return false;
    }
    drawn += size;
    return true;
}

void CDxfFeatureReader::AdaptChords()
{
    chords.SetTolerance(tolerance / place.placement.GreatestScale());
}

// Those of the inserts around, and then the insert's own, which stand in the place of others of their name.
CFeatureAttributes CDxfFeatureReader::Joined(const std::vector<CAttribDXF>& own) const
{
    if (own.empty()) {
        return place.attributes;
    }
    auto joined = std::make_shared<std::vector<SFeatureAttribute>>();
    if (place.attributes != nullptr) {
        *joined = *place.attributes;
    }
    for (const CAttribDXF& attribute : own) {
        const auto isSame = [&attribute](const SFeatureAttribute& known) {
            return known.name == attribute.tag;
        };
        joined->erase(std::remove_if(joined->begin(), joined->end(), isSame), joined->end());
        joined->push_back({attribute.tag, PlainOfText(attribute.text).text});
    }
    return joined;
}

// An insert that keeps the data of the element that follows; it makes sense outside blocks alone.
void CDxfFeatureReader::TakeData(const CInsertDXF& record)
{
    if (hasNext || place.isInBlock) {
        tally.Lose(QLatin1String(losses::kLooseData));
    }
    if (place.isInBlock) {
        return;
    }
    hasNext = true;
    next = SPlace();
    auto attributes = std::make_shared<std::vector<SFeatureAttribute>>();
    for (const CAttribDXF& attribute : record.attributes) {
        const QString text = PlainOfText(attribute.text).text;
        if (attribute.tag == QLatin1String(kCodeTag)) {
            next.code = text.toInt();
        } else if (attribute.tag == QLatin1String(kOutlinesTag)) {
            next.outlines = text.toInt();
        } else {
            attributes->push_back({attribute.tag, text});
        }
    }
    if (!attributes->empty()) {
        next.attributes = std::move(attributes);
    }
}

// What waits for the end of the entities.
void CDxfFeatureReader::DrawOutstanding()
{
    HandOnHeld();
    place = SPlace();
    if (!std::exchange(arePicturesDrawn, true)) {
        DrawPictures(QString());
    }
}

void CDxfFeatureReader::Finish()
{
    DrawOutstanding();
    if (hasNext) {
        tally.Lose(QLatin1String(losses::kLooseData));
    }
    if (const int unused = blocks.Unused()) {
        tally.Lose(QLatin1String(losses::kUnusedBlocks), QString(), unused);
    }
    if (chords.Coarse() > 0) {
        tally.Lose(QLatin1String(losses::kCoarseCurves), QString(), chords.Coarse());
    }
}

} // namespace velorx
