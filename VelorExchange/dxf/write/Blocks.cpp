// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/Angles_p.h"
#include "VelorExchange/dxf/write/DXFWriterImpl_p.h"
#include "VelorExchange/dxf/write/Finite_p.h"
#include "VelorExchange/dxf/write/Names_p.h"
#include "VelorExchange/dxf/write/Texts_p.h"
#include "VelorExchange/foundation/FileError.h"

#include <cmath>

namespace VelorExchange::dxf {

namespace {

constexpr int kHasAttributes = 2;
constexpr int kIsOutside = 38;

} // namespace

bool CDXFWriterImpl::AddInsert(const CInsertDXF& record)
{
    if (record.name.isEmpty()) {
        return false;
    }
    TakeScale();
    const CPoint3D point = Placed(record.point);
    const double rotation = DegreesOf(kTwoPi - record.rotation);
    std::vector<CTextPlan> plans(record.attributes.size());
    for (std::size_t i = 0; i < plans.size(); ++i) {
        if (!PlanText(record.attributes[i], plans[i])) {
            return false;
        }
    }
    if (!AreFinite(point, rotation, record.scaleX, record.scaleY)) {
        return false;
    }
    const CName& layer = Layer(record.layer);
    WriteStart("INSERT", layer);
    WriteColor(record.color);
    output.WriteTag(100, "AcDbBlockReference");
    output.WriteTag(6, "CONTINUOUS");
    if (!plans.empty()) {
        output.WriteTag(66, 1);
    }
    output.WriteTag(2, SafeName(record.name));
    WritePoint(10, point);
    if (std::fabs(record.scaleX - 1.0) >= tolerance) {
        output.WriteReal(41, record.scaleX);
    }
    if (std::fabs(record.scaleY - 1.0) >= tolerance) {
        output.WriteReal(42, record.scaleY);
    }
    output.WriteReal(50, rotation);
    for (std::size_t i = 0; i < plans.size(); ++i) {
        WriteAttribute(record.attributes[i], plans[i], true);
    }
    if (!plans.empty()) {
        WriteSequenceEnd(layer);
    }
    Count(texts::Blocks());
    return true;
}

bool CDXFWriterImpl::BeginBlock(const QString& name, bool byBlockColor, const QString& xrefPath)
{
    auto file = std::make_unique<QTemporaryFile>();
    if (!file->open()) {
        throw FileError(*file);
    }
    const QString safeName = SafeName(name);
    output.SetTarget(*file);
    blockColorFlags.push_back(byBlockColor);
    nestedBlocks.push_back(std::move(file));
    blockHandles[safeName] = nextHandle;
    output.WriteTag(0, "BLOCK");
    WriteNewHandle();
    output.WriteTag(100, "AcDbEntity");
    output.WriteTag(8, "0");
    output.WriteTag(100, "AcDbBlockBegin");
    output.WriteTag(2, safeName);
    output.WriteTag(70, xrefPath.isEmpty() ? kHasAttributes : kIsOutside);
    WritePoint(10, CPoint3D{});
    output.WriteTag(3, safeName);
    output.WriteTag(1, xrefPath);
    ++blockDepth;
    return true;
}

bool CDXFWriterImpl::EndBlock()
{
    if (!IsInBlock()) {
        return false;
    }
    --blockDepth;
    blockColorFlags.pop_back();
    output.WriteTag(0, "ENDBLK");
    WriteNewHandle();
    output.WriteTag(100, "AcDbEntity");
    output.WriteTag(8, "0");
    output.WriteTag(100, "AcDbBlockEnd");
    if (IsInBlock()) {
        // Counts closed siblings too: the file can be that of one of them. Held by
        // Blocks.ClosedSiblingTakesWhatFollowsANestedBlock.
        output.SetTarget(*nestedBlocks[static_cast<std::size_t>(blockDepth) - 1]);
    } else {
        CollectBlocks();
    }
    return true;
}

// The inner blocks come before the outer ones.
void CDXFWriterImpl::CollectBlocks()
{
    output.SetTarget(blocks);
    for (; !nestedBlocks.empty(); nestedBlocks.pop_back()) {
        output.WriteFile(*nestedBlocks.back());
    }
    output.SetTarget(entities);
}

} // namespace VelorExchange::dxf
