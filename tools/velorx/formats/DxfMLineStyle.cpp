// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfMLineStyle.h"

#include "tools/velorx/TextTable.h"

#include <algorithm>

namespace velorx {

using VelorExchange::dxf::CMLineStyleDXF;

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;

enum ECode { kName = 2, kLineType = 6, kOffset = 49, kStartAngle = 51, kEndAngle = 52 };

CMLineStyleGroups TwoLines()
{
    const QString right = QStringLiteral("90.0");
    const QString byLayer = QStringLiteral("256");
    const QString none = QStringLiteral("BYLAYER");
    const QString zero = QStringLiteral("0");
    return {{70, zero},
            {3, QString()},
            {62, byLayer},
            {51, right},
            {52, right},
            {71, QStringLiteral("2")},
            {kOffset, QStringLiteral("0.5")},
            {62, byLayer},
            {kLineType, none},
            {kOffset, QStringLiteral("-0.5")},
            {62, byLayer},
            {kLineType, none}};
}

bool IsOffset(const std::pair<int, QString>& group)
{
    return group.first == kOffset;
}

void AddToBody(CMLineStyleDXF& style, int code, const QString& value)
{
    style.body += QString::number(code) + QStringLiteral("\r\n") + value + QStringLiteral("\r\n");
}

} // namespace

CMLineStyleDXF MakeMLineStyle(const QString& name, const CMLineStyleGroups& groups, double scale,
                              const std::function<QString(const QString&)>& lineType)
{
    const bool isUsable = std::any_of(groups.begin(), groups.end(), IsOffset);
    CMLineStyleDXF style;
    style.name = name;
    AddToBody(style, kName, name);
    for (auto [code, value] : isUsable ? groups : TwoLines()) {
        switch (code) {
        case kOffset:
            style.offsets.push_back(value.toDouble() * scale);
            value = PlainNumber(style.offsets.back());
            break;
        case kLineType:
            value = lineType(value);
            style.lineTypes.push_back(value);
            break;
        case kStartAngle:
            style.startAngle = value.toDouble() * kDegree;
            break;
        case kEndAngle:
            style.endAngle = value.toDouble() * kDegree;
            break;
        default:
            break;
        }
        AddToBody(style, code, value);
    }
    return style;
}

} // namespace velorx
