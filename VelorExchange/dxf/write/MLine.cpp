// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/Angles_p.h"
#include "VelorExchange/dxf/write/CodePage1251_p.h"
#include "VelorExchange/dxf/write/DXFWriterImpl_p.h"
#include "VelorExchange/dxf/write/Finite_p.h"
#include "VelorExchange/dxf/write/Texts_p.h"
#include "VelorExchange/foundation/Coincidence_p.h"

#include <cmath>

namespace VelorExchange::dxf {

namespace {

constexpr int kHasVertices = 1;
constexpr int kIsClosed = 2;
constexpr int kElementParameters = 2;

// The direction from `point` to `next`.
double DirectionTo(const CPoint2D& point, const CPoint2D& next)
{
    double angle = std::atan2(point.y - next.y, point.x - next.x);
    if (angle < 0) {
        angle += kTwoPi;
    }
    return angle - kPi;
}

} // namespace

bool CDXFWriterImpl::PlanJoints(const CMLineDXF& record, std::vector<CJoint>& joints) const
{
    CFiniteCheck check;
    for (const CVertexDXF& vertex : record.vertices) {
        joints.push_back({Placed(CPoint2D{vertex.point.x, vertex.point.y}), 0.0, 0.0, false});
        check << joints.back().point << vertex.point.z;
    }
    joints.front().isEnd = true;
    joints.back().isEnd = true;
    double before = 0.0;
    for (std::size_t i = 0; i < joints.size(); ++i) {
        CJoint& joint = joints[i];
        if (i + 1 == joints.size()) {
            joint.direction = before;
            joint.miter = record.style.endAngle + before;
        } else {
            joint.direction = DirectionTo(joint.point, joints[i + 1].point);
            joint.miter = i == 0 ? record.style.startAngle + joint.direction
                                 : (before + joint.direction + kPi) * 0.5;
        }
        before = joint.direction;
        check << joint.direction << joint.miter;
        for (const double offset : record.style.offsets) {
            check << OffsetAt(joint, offset);
        }
    }
    return check.IsPassed();
}

// The distance along the miter at which an element passes.
double CDXFWriterImpl::OffsetAt(const CJoint& joint, double offset)
{
    return joint.isEnd ? offset : offset / std::sin(joint.miter - joint.direction);
}

// Asks the context for the element's line types and finds out whether they can be written.
bool CDXFWriterImpl::PlanLineTypes(const CMLineStyleDXF& style,
                                   std::vector<CLineTypePlan>& lineTypes)
{
    if (context == nullptr) {
        return true;
    }
    for (const QString& name : style.lineTypes) {
        CLineTypePlan lineType;
        if (context->GetLineStyle(name, lineType.style)) {
            if (!PlanLineStyle(lineType.style, lineType.plan)) {
                return false;
            }
            lineTypes.push_back(std::move(lineType));
        }
    }
    return true;
}

bool CDXFWriterImpl::AddMLine(const CMLineDXF& record)
{
    const CMLineStyleDXF& style = record.style;
    if (record.vertices.size() < 2 || style.name.isEmpty() || style.body.isEmpty()
        || style.offsets.empty())
    {
        return false;
    }
    std::vector<CJoint> joints;
    std::vector<CLineTypePlan> lineTypes;
    TakeScale();
    if (!PlanJoints(record, joints) || !PlanLineTypes(style, lineTypes)) {
        return false;
    }
    for (const CLineTypePlan& lineType : lineTypes) {
        LineStyle(lineType.style, lineType.plan);
    }
    const int styleHandle = MLineStyle(style);
    WriteStart("MLINE", Layer(record.layer));
    output.WriteTag(100, "AcDbMline");
    output.WriteTag(2, style.name);
    output.WriteHandle(340, styleHandle);
    output.WriteTag(70, 1);
    const bool isClosed =
        CoincideInPlan(record.vertices.front().point, record.vertices.back().point);
    output.WriteTag(71, kHasVertices + (isClosed ? kIsClosed : 0));
    output.WriteTag(72, static_cast<int>(joints.size()));
    output.WriteTag(73, static_cast<int>(style.offsets.size()));
    WritePoint(10, joints.front().point);
    output.WriteReal(30, record.vertices.front().point.z);
    WritePoint(210, CPoint3D{0, 0, 1});
    for (std::size_t i = 0; i < joints.size(); ++i) {
        WriteJoint(joints[i], record.vertices[i].point.z, style.offsets);
    }
    Count(texts::MultiLines());
    return true;
}

int CDXFWriterImpl::MLineStyle(const CMLineStyleDXF& style)
{
    const auto known = mlineStyles.find(style.name);
    if (known != mlineStyles.end()) {
        return known->second;
    }
    QFile& back = *output.Target();
    const int handle = nextHandle;
    output.SetTarget(objects);
    output.WriteTag(0, "MLINESTYLE");
    WriteNewHandle();
    output.WriteTag(100, "AcDbMlineStyle");
    QByteArray body;
    AppendCodePage1251(body, style.body.constData(), style.body.size());
    output.WriteBytes(body);
    mlineStyles[style.name] = handle;
    output.SetTarget(back);
    return handle;
}

void CDXFWriterImpl::WriteJoint(const CJoint& joint, double z, const std::vector<double>& offsets)
{
    WritePoint(11, CPoint3D{joint.point.x, joint.point.y, z});
    WritePoint(12, CPoint3D{std::cos(joint.direction), std::sin(joint.direction), 0.0});
    WritePoint(13, CPoint3D{std::cos(joint.miter), std::sin(joint.miter), 0.0});
    for (const double offset : offsets) {
        output.WriteTag(74, kElementParameters);
        output.WriteReal(41, OffsetAt(joint, offset));
        output.WriteReal(41, 0.0);
        output.WriteTag(75, 0);
    }
}

} // namespace VelorExchange::dxf
