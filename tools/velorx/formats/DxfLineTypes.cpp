// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfLineTypes.h"

#include <boost/variant2/variant.hpp>

#include <algorithm>
#include <cmath>

namespace velorx {

using namespace VelorExchange::dxf;

namespace {

enum ECode {
    kDescription = 3,
    kText = 9,
    kOffsetX = 44,
    kOffsetY = 45,
    kScale = 46,
    kDash = 49,
    kRotation = 50,
    kKind = 74,
    kShape = 75,
    kStyle = 340
};

enum EKind { kAbsolute = 1, kIsText = 2, kIsShape = 4 };

double NumberOf(const QString& value)
{
    const double number = value.toDouble();
    return std::isfinite(number) ? number : 0.0;
}

// What letters and shapes have in common.
template <class TElement>
void Fill(TElement& element, int code, const QString& value)
{
    switch (code) {
    case kOffsetX:
        element.offsetX = NumberOf(value);
        break;
    case kOffsetY:
        element.offsetY = NumberOf(value);
        break;
    case kScale:
        element.scale = NumberOf(value);
        break;
    case kRotation:
        element.rotation = NumberOf(value);
        break;
    case kStyle:
        element.style = value;
        break;
    default:
        break;
    }
}

void AddKind(std::vector<CLineElementDXF>& pattern, int kind)
{
    if ((kind & kIsText) != 0) {
        CLineTextDXF text;
        text.absolute = (kind & kAbsolute) != 0;
        pattern.emplace_back(text);
    } else if ((kind & kIsShape) != 0) {
        CLineShapeDXF shape;
        shape.absolute = (kind & kAbsolute) != 0;
        pattern.emplace_back(shape);
    }
}

void Take(std::vector<CLineElementDXF>& pattern, int code, const QString& value)
{
    if (code == kDash) {
        pattern.emplace_back(NumberOf(value));
        return;
    }
    if (pattern.empty()) {
        return;
    }
    if (code == kKind) {
        AddKind(pattern, value.toInt());
    } else if (auto* text = boost::variant2::get_if<CLineTextDXF>(&pattern.back())) {
        Fill(*text, code, value);
        if (code == kText) {
            text->text = value;
        }
    } else if (auto* shape = boost::variant2::get_if<CLineShapeDXF>(&pattern.back())) {
        Fill(*shape, code, value);
        if (code == kShape) {
            shape->number = value.toInt();
        }
    }
}

// Whether the style is known, which then has its name.
template <class TElement>
bool NameStyle(TElement& element, const QHash<QString, QString>& names)
{
    const auto found = names.constFind(element.style.toUpper());
    if (found == names.constEnd() || found->isEmpty()) {
        return false;
    }
    element.style = *found;
    return true;
}

} // namespace

void CDxfLineTypes::Add(const QString& name, const CDxfGroupList& groups)
{
    CLineStyleDXF lineType;
    lineType.name = name;
    for (const auto& [code, value] : groups) {
        if (code == kDescription) {
            lineType.description = value;
        } else {
            Take(lineType.pattern, code, value);
        }
    }
    const QString key = name.toCaseFolded();
    if (!lineTypes.contains(key)) {
        lineTypes.insert(key, lineType);
    }
}

int CDxfLineTypes::NameStyles(const QHash<QString, QString>& textStyles,
                              const QHash<QString, QString>& shapeFiles)
{
    int damaged = 0;
    for (CLineStyleDXF& lineType : lineTypes) {
        auto& pattern = lineType.pattern;
        const auto end = std::remove_if(pattern.begin(), pattern.end(), [&](auto& element) {
            if (auto* text = boost::variant2::get_if<CLineTextDXF>(&element)) {
                return !NameStyle(*text, textStyles);
            }
            auto* shape = boost::variant2::get_if<CLineShapeDXF>(&element);
            return shape != nullptr && !NameStyle(*shape, shapeFiles);
        });
        damaged += end != pattern.end() ? 1 : 0;
        pattern.erase(end, pattern.end());
    }
    return damaged;
}

int CDxfLineTypes::WithSymbols() const
{
    const auto isSymbol = [](const CLineElementDXF& element) { return element.index() != 0; };
    return static_cast<int>(std::count_if(
        lineTypes.begin(), lineTypes.end(), [&isSymbol](const CLineStyleDXF& lineType) {
            return std::any_of(lineType.pattern.begin(), lineType.pattern.end(), isSymbol);
        }));
}

const CLineStyleDXF* CDxfLineTypes::Find(const QString& name) const
{
    const auto found = lineTypes.constFind(name.toCaseFolded());
    return found != lineTypes.constEnd() ? &*found : nullptr;
}

} // namespace velorx
