// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/DXFWriterImpl_p.h"
#include "VelorExchange/dxf/write/Finite_p.h"

#include <cmath>

namespace VelorExchange::dxf {

namespace {

using boost::variant2::get_if;

constexpr int kNoHandle = -1;
constexpr int kAlignment = 65; // the letter A
constexpr int kTextFollows = 2;
constexpr int kShapeFollows = 4;

CTextStyleDXF TextStyleOf(const CLineTextDXF& text)
{
    CTextStyleDXF style;
    style.name = text.style;
    return style;
}

CTextStyleDXF TextStyleOf(const CLineShapeDXF& shape)
{
    CTextStyleDXF style;
    style.name = shape.style;
    style.fontFile = shape.style;
    return style;
}

template <class Element>
bool IsFinite(const Element& element)
{
    return AreFinite(element.rotation, element.scale, element.offsetX, element.offsetY);
}

// Group 74 of a dash: what kind of element stands behind it.
int KindOfFollower(const std::vector<CLineElementDXF>& pattern, std::size_t dash)
{
    if (dash + 1 == pattern.size()) {
        return 0;
    }
    const CLineElementDXF& next = pattern[dash + 1];
    if (const auto* text = get_if<CLineTextDXF>(&next)) {
        return kTextFollows + static_cast<int>(text->absolute);
    }
    if (const auto* shape = get_if<CLineShapeDXF>(&next)) {
        return kShapeFollows + static_cast<int>(shape->absolute);
    }
    return 0;
}

struct CDashes
{
    int count = 0;
    double length = 0.0;
};

CDashes DashesOf(const std::vector<CLineElementDXF>& pattern)
{
    CDashes dashes;
    for (const CLineElementDXF& element : pattern) {
        if (const auto* dash = get_if<double>(&element)) {
            ++dashes.count;
            dashes.length += std::fabs(*dash);
        }
    }
    return dashes;
}

} // namespace

int CDXFWriterImpl::AddLineStyle(const CLineStyleDXF& style)
{
    TakeScale();
    CLineStylePlan plan;
    if (!PlanLineStyle(style, plan)) {
        return kNoHandle;
    }
    const CName* name = LineStyle(style, plan);
    return name != nullptr ? name->handle : kNoHandle;
}

// False if the style would have to be written and has a number that is not finite. Here the context
// completes the text styles of a new style.
bool CDXFWriterImpl::PlanLineStyle(const CLineStyleDXF& style, CLineStylePlan& plan)
{
    if (style.name.isEmpty() || lineStyles.Find(style.name) != nullptr) {
        return true;
    }
    plan.isNew = true;
    if (!AreFinite(DashesOf(style.pattern).length)) {
        return false;
    }
    for (std::size_t i = 1; i < style.pattern.size(); ++i) {
        if (const auto* text = get_if<CLineTextDXF>(&style.pattern[i])) {
            CTextStyleDXF textStyle = TextStyleOf(*text);
            if (context != nullptr) {
                context->CompleteTextStyle(textStyle);
            }
            if (!IsFinite(*text) || !CanAddTextStyle(textStyle)) {
                return false;
            }
            plan.textStyles.push_back(std::move(textStyle));
        } else if (const auto* shape = get_if<CLineShapeDXF>(&style.pattern[i])) {
            if (!IsFinite(*shape) || !CanAddTextStyle(TextStyleOf(*shape))) {
                return false;
            }
        }
    }
    return true;
}

// Null for a style without a name.
const CName* CDXFWriterImpl::LineStyle(const CLineStyleDXF& style, const CLineStylePlan& plan)
{
    if (style.name.isEmpty()) {
        return nullptr;
    }
    const CName* known = lineStyles.Find(style.name);
    if (known != nullptr || !plan.isNew) {
        return known;
    }
    QFile& back = BeginRecord(lineTypeTable, "LTYPE", lineStyles.IsEmpty());
    const CName& name = lineStyles.Add(style.name, nextHandle);
    const QString description = style.description.trimmed();
    const CDashes dashes = DashesOf(style.pattern);
    output.WriteTag(0, "LTYPE");
    WriteNewHandle();
    output.WriteTag(100, "AcDbSymbolTableRecord");
    output.WriteTag(100, "AcDbLinetypeTableRecord");
    output.WriteEncoded(2, name.text);
    output.WriteTag(70, 0);
    if (description.isEmpty()) {
        output.WriteEncoded(3, name.text);
    } else {
        output.WriteTag(3, description);
    }
    output.WriteTag(72, kAlignment);
    output.WriteTag(73, dashes.count);
    output.WriteReal(40, dashes.length);
    WritePattern(style, plan);
    output.SetTarget(back);
    return &name;
}

// A text or a shape in the first place has no dash to follow and is left out. Held by
// LineTypes.ComplexElementInTheFirstPlaceWritesNothing.
void CDXFWriterImpl::WritePattern(const CLineStyleDXF& style, const CLineStylePlan& plan)
{
    auto textStyle = plan.textStyles.begin();
    for (std::size_t i = 0; i < style.pattern.size(); ++i) {
        const CLineElementDXF& element = style.pattern[i];
        if (const auto* dash = get_if<double>(&element)) {
            output.WriteReal(49, *dash);
            output.WriteTag(74, KindOfFollower(style.pattern, i));
        } else if (i == 0) {
            continue;
        } else if (const auto* shape = get_if<CLineShapeDXF>(&element)) {
            WriteComplexElement(*shape, shape->number, TextStyleOf(*shape), true);
        } else if (const auto* text = get_if<CLineTextDXF>(&element)) {
            WriteComplexElement(*text, 0, *textStyle++, false);
            output.WriteTag(9, text->text);
        }
    }
}

template <class Element>
void CDXFWriterImpl::WriteComplexElement(const Element& element, int number,
                                         const CTextStyleDXF& style, bool shapeFile)
{
    output.WriteTag(75, number);
    if (const CName* name = TextStyle(style, shapeFile)) {
        output.WriteHandle(340, name->handle);
    }
    output.WriteReal(46, element.scale);
    output.WriteReal(50, element.rotation);
    output.WriteReal(44, element.offsetX);
    output.WriteReal(45, element.offsetY);
}

} // namespace VelorExchange::dxf
