// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/Angles_p.h"
#include "VelorExchange/dxf/write/DXFWriterImpl_p.h"
#include "VelorExchange/dxf/write/Finite_p.h"
#include "VelorExchange/dxf/write/Texts_p.h"

#include <algorithm>

namespace VelorExchange::dxf {

namespace {

constexpr int kLongestText = 255;
constexpr int kTextPiece = 250;

// Groups 72 and 73 by the low and the next two bits of the alignment.
constexpr int kHorizontal[] = {0, 1, 2, 0};
constexpr int kVertical[] = {3, 2, 1, 0};

// Group 71 of MTEXT by the alignment; 7 for those that are not here.
constexpr int kAttachments[] = {1, 2, 3, 7, 4, 5, 6, 7, 7, 8, 9};
constexpr int kOtherAttachment = 7;

int AttachmentOf(int alignment)
{
    constexpr int kCount = sizeof kAttachments / sizeof *kAttachments;
    return alignment >= 0 && alignment < kCount ? kAttachments[alignment] : kOtherAttachment;
}

} // namespace

bool CDXFWriterImpl::PlanText(const CTextDXF& record, CTextPlan& plan)
{
    plan.position = Placed(record.position);
    plan.height = Scaled(record.height);
    plan.rotation = DegreesOf(record.rotation);
    return AreFinite(plan.position, plan.height, plan.rotation, record.style.widthFactor,
                     record.style.obliqueAngle)
        && CanAddTextStyle(record.style);
}

void CDXFWriterImpl::WriteStyleName(const CTextStyleDXF& style)
{
    const CName* name = TextStyle(style, false);
    if (name != nullptr) {
        output.WriteEncoded(7, name->text);
    }
}

void CDXFWriterImpl::WriteTextBody(const CTextDXF& record, const CTextPlan& plan,
                                   std::string_view name)
{
    const CName& layer = Layer(record.layer);
    TextStyle(record.style, false);
    const QString text = record.text.simplified();
    WriteStart(name, layer);
    WriteColor(record.color);
    output.WriteTag(100, "AcDbText");
    WritePoint(10, plan.position);
    output.WriteReal(30, 0.0);
    output.WriteReal(40, plan.height);
    output.WriteText(1, text.constData(), std::min(text.size(), kLongestText));
    output.WriteReal(50, plan.rotation);
    output.WriteTag(72, kHorizontal[record.alignment & 3]);
    WritePoint(11, plan.position);
    output.WriteReal(31, 0.0);
    output.WriteReal(41, record.style.widthFactor);
    output.WriteReal(51, record.style.obliqueAngle);
    WriteStyleName(record.style);
}

bool CDXFWriterImpl::AddText(const CTextDXF& record)
{
    TakeScale();
    CTextPlan plan;
    if (record.text.isEmpty() || !PlanText(record, plan)) {
        return false;
    }
    WriteTextBody(record, plan, "TEXT");
    output.WriteTag(100, "AcDbText");
    output.WriteTag(73, kVertical[record.alignment >> 2 & 3]);
    Count(texts::Texts());
    return true;
}

bool CDXFWriterImpl::AddAttribute(const CAttribDXF& record, bool withValue)
{
    TakeScale();
    CTextPlan plan;
    if (!PlanText(record, plan)) {
        return false;
    }
    WriteAttribute(record, plan, withValue);
    return true;
}

void CDXFWriterImpl::WriteAttribute(const CAttribDXF& record, const CTextPlan& plan, bool withValue)
{
    WriteTextBody(record, plan, withValue ? "ATTRIB" : "ATTDEF");
    output.WriteAscii(100, withValue ? "AcDbAttribute" : "AcDbAttributeDefinition");
    output.WriteTag(2, record.tag);
    if (!withValue) {
        output.WriteTag(3, record.tag);
    }
    output.WriteTag(70, record.hidden ? 1 : 0);
}

bool CDXFWriterImpl::AddMText(const CMTextDXF& record)
{
    TakeScale();
    const CPoint2D position = Placed(record.position);
    const double height = Scaled(record.height);
    const CPoint2D direction = DirectionOf(record.rotation);
    if (record.text.isEmpty() || !AreFinite(position, height, record.rectWidth, direction)
        || !CanAddTextStyle(record.style))
    {
        return false;
    }
    const CName& layer = Layer(record.layer);
    TextStyle(record.style, false);
    WriteStart("MTEXT", layer);
    WriteColor(record.color);
    output.WriteTag(100, "AcDbMText");
    WritePoint(10, position);
    output.WriteReal(30, 0.0);
    output.WriteReal(40, height);
    output.WriteReal(41, record.rectWidth);
    output.WriteTag(71, AttachmentOf(record.alignment));
    output.WriteTag(72, 1);
    WriteTextPieces(record.text);
    WriteStyleName(record.style);
    WritePoint(11, direction);
    output.WriteReal(31, 0.0);
    Count(texts::Texts());
    return true;
}

void CDXFWriterImpl::WriteTextPieces(const QString& text)
{
    int from = 0;
    for (; text.size() - from > kTextPiece; from += kTextPiece) {
        output.WriteText(3, text.constData() + from, kTextPiece);
    }
    output.WriteText(1, text.constData() + from, text.size() - from);
}

} // namespace VelorExchange::dxf
