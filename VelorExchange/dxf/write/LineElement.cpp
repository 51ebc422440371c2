// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/LineElement_p.h"

#include "VelorExchange/dxf/write/Angles_p.h"
#include "VelorExchange/dxf/write/StyleLines_p.h"

#include <initializer_list>

namespace VelorExchange::dxf {

namespace {

constexpr QChar kQuote = u'"';

// Where the first of `keys` that occurs begins, or -1.
qsizetype FindKey(QStringView part, std::initializer_list<QLatin1String> keys)
{
    for (const QLatin1String& key : keys) {
        const auto at = part.indexOf(key);
        if (at >= 0) {
            return at;
        }
    }
    return -1;
}

// All that follows a key that stands first. One that stands further back yields too much, which then
// is no number: held by LineStyleFile.KeyBehindOtherLettersHasNoValue.
QStringView ValueOf(QStringView part, qsizetype key)
{
    const auto length = part.size() - 2 + key;
    return part.right(std::min(length, part.size()));
}

struct CUnit
{
    char16_t letter;
    double factor;
    double divisor;
};

// What a rotation is multiplied by and divided by, in the order in which the letters are looked for.
constexpr CUnit kUnits[] = {{u'D', 1, 1},     {u'd', 1, 1},  {u'R', 180, kPi},
                            {u'r', 180, kPi}, {u'G', 9, 10}, {u'g', 9, 10}};

void ReadRotation(QStringView value, double& rotation)
{
    for (const CUnit& unit : kUnits) {
        const auto at = value.indexOf(unit.letter);
        if (at >= 0) {
            double number = 0.0;
            if (ToNumber(value.left(at), number)) {
                rotation = number * unit.factor / unit.divisor;
            }
            return;
        }
    }
    ToNumber(value, rotation);
}

// The parts with a key, which texts and shapes share. False for a part without one.
template <class Element>
bool ReadKeyedPart(QStringView part, Element& element)
{
    using Latin = QLatin1String;
    qsizetype at = FindKey(part, {Latin("S="), Latin("s=")});
    if (at >= 0) {
        ToNumber(ValueOf(part, at), element.scale);
        return true;
    }
    at = FindKey(part, {Latin("A="), Latin("a="), Latin("R="), Latin("r=")});
    if (at >= 0) {
        element.absolute = part.at(at) == QChar(u'A');
        ReadRotation(ValueOf(part, at), element.rotation);
        return true;
    }
    at = FindKey(part, {Latin("X="), Latin("x=")});
    if (at >= 0) {
        ToNumber(ValueOf(part, at), element.offsetX);
        return true;
    }
    at = FindKey(part, {Latin("Y="), Latin("y=")});
    if (at >= 0) {
        ToNumber(ValueOf(part, at), element.offsetY);
        return true;
    }
    return false;
}

void ReadTextPart(QStringView part, CLineTextDXF& text)
{
    const auto opening = part.indexOf(kQuote);
    if (opening < 0) {
        text.style = part.toString();
        return;
    }
    const auto closing = part.indexOf(kQuote, opening + 1);
    if (closing >= 0) {
        text.text = part.mid(opening + 1, closing - opening - 1).toString();
    }
}

CLineTextDXF ReadText(QStringView content)
{
    CLineTextDXF text;
    CLineCutter cutter(content);
    while (!cutter.Rest().isEmpty()) {
        const QStringView part = cutter.TakeToCommaOrEnd();
        if (!ReadKeyedPart(part, text)) {
            ReadTextPart(part, text);
        }
    }
    return text;
}

CLineShapeDXF ReadShape(QStringView content, const std::map<QString, int>& shapes)
{
    CLineShapeDXF shape;
    CLineCutter cutter(content);
    while (!cutter.Rest().isEmpty()) {
        const QStringView part = cutter.TakeToCommaOrEnd();
        if (ReadKeyedPart(part, shape) || part.contains(QLatin1String(".shx"))) {
            continue;
        }
        const auto found = shapes.find(part.toString());
        if (found != shapes.end()) {
            shape.number = found->second;
        }
    }
    return shape;
}

} // namespace

void ReadLineElement(QStringView content, const std::map<QString, int>& shapes,
                     const QString& shapeStyle, std::vector<CLineElementDXF>& pattern)
{
    if (content.contains(kQuote)) {
        CLineTextDXF text = ReadText(content);
        if (!text.text.isEmpty()) {
            pattern.emplace_back(std::move(text));
        }
        return;
    }
    CLineShapeDXF shape = ReadShape(content, shapes);
    if (shape.number != 0) {
        shape.style = shapeStyle;
        pattern.emplace_back(std::move(shape));
    }
}

} // namespace VelorExchange::dxf
