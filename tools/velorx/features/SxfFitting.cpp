// SPDX-License-Identifier: MIT
#include "tools/velorx/features/SxfFitting.h"

#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/formats/SxfCodec.h"
#include "tools/velorx/formats/SxfCodes.h"
#include "tools/velorx/TextTable.h"

#include <QDate>

#include <algorithm>
#include <cmath>

namespace velorx {

using namespace VelorExchange::pnr;
using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;

namespace {

constexpr int kLongestValue = 254; // so that the byte that counts the zeros too can tell it
constexpr qint32 kTypeDouble = 8;
constexpr qint32 kTypeText = 126;
constexpr qint32 kDateKind = 17;
constexpr int kDateSize = 8;

// At these the text form's reader starts another object or stops, wherever they stand in a line.
constexpr const char* kWords[] = {".OBJ", ".END", ".DAT"};

bool IsFinite(const CPoint2D& point)
{
    return std::isfinite(point.x) && std::isfinite(point.y);
}

bool IsFinite(const CPoint3D& point)
{
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

template <class Holder>
bool AllFinite(const CAbstractVertexHolder& holder)
{
    const auto& vertices = static_cast<const Holder&>(holder).vertices;
    return std::all_of(vertices.begin(), vertices.end(),
                       [](const auto& vertex) { return IsFinite(vertex); });
}

bool IsFinite(const CAbstractVertexHolder& holder)
{
    return holder.Is2D() ? AllFinite<CVertexHolder2D>(holder) : AllFinite<CVertexHolder3D>(holder);
}

bool IsNumber(const QVariant& value)
{
    const int type = value.userType();
    return type == QMetaType::Double || type == QMetaType::Float;
}

bool HasLayer(const CBaseObject& object)
{
    return std::any_of(object.semantics.begin(), object.semantics.end(),
                       [](const PnrSemantic& s) { return s.code == kSxfLayerCode; });
}

bool IsInteger(const PnrSemantic& semantic)
{
    return semantic.dataType == 1 || semantic.dataType == 2 || semantic.dataType == 4;
}

// Only the kinds with a drawing of their own have a place for the layer in the text form.
bool HasDrawing(const CBaseObject& object)
{
    if (const auto* line = dynamic_cast<const CLineObject*>(&object)) {
        return line->image != nullptr;
    }
    if (const auto* area = dynamic_cast<const CSquareObject*>(&object)) {
        return area->image != nullptr;
    }
    if (const auto* point = dynamic_cast<const CPointObject*>(&object)) {
        return point->image != nullptr;
    }
    const auto* text = dynamic_cast<const CTextObject*>(&object);
    return text != nullptr && text->hasOwnImage;
}

} // namespace

bool CSxfFitting::Fit(CBaseObject& object)
{
    if (!FitContours(object)) {
        return false;
    }
    FitLayer(object);
    FitSemantics(object);
    return true;
}

bool CSxfFitting::IsTooLong(const CAbstractVertexHolder& contour) const
{
    return !isTextForm && contour.Count() > kMostInBinary;
}

bool CSxfFitting::FitContours(CBaseObject& object)
{
    auto& holders = object.holders;
    const bool isArea = dynamic_cast<const CSquareObject*>(&object) != nullptr;
    if (holders.empty() || (isArea && holders.front()->Count() == 0)) {
        tally.Lose(QStringLiteral("objects without a vertex"), object.layer);
        return false;
    }
    const auto empty = std::remove_if(holders.begin(), holders.end(),
                                      [](const auto& holder) { return holder->Count() == 0; });
    if (empty == holders.begin()) {
        tally.Lose(QStringLiteral("objects without a vertex"), object.layer);
        return false;
    }
    holders.erase(empty, holders.end());
    if (!std::all_of(holders.begin(), holders.end(),
                     [](const auto& holder) { return IsFinite(*holder); }))
    {
        tally.Lose(QStringLiteral("objects with coordinates that are not finite"), object.layer);
        return false;
    }
    if (!isTextForm && holders.size() > kMostInBinary) {
        tally.Lose(QStringLiteral("objects of more than 32767 contours"), object.layer);
        return false;
    }
    return true;
}

void CSxfFitting::FitLayer(CBaseObject& object)
{
    if (object.layer.isEmpty()) {
        object.layer = QLatin1String(kSxfNoLayer);
    }
    const QString layer = object.layer;
    if (isTextForm) {
        // Its reader takes the last word of the line.
        object.layer = InOneLine(layer).replace(QLatin1Char(' '), QLatin1Char('_'));
    }
    const bool isPlain = isTextForm && HasDrawing(object) && object.layer == layer;
    if (layer != QLatin1String(kSxfNoLayer) && !isPlain && !HasLayer(object)) {
        PnrSemantic name;
        name.code = kSxfLayerCode;
        name.value = layer;
        object.semantics.insert(object.semantics.begin(), name);
    }
}

void CSxfFitting::FitSemantics(CBaseObject& object)
{
    auto& semantics = object.semantics;
    const auto unfit = std::remove_if(semantics.begin(), semantics.end(), [](const auto& s) {
        return IsNumber(s.value) && !std::isfinite(s.value.toDouble());
    });
    if (unfit != semantics.end()) {
        tally.Lose(QStringLiteral("attributes that are not finite numbers"), object.layer,
                   semantics.end() - unfit);
        semantics.erase(unfit, semantics.end());
    }
    for (PnrSemantic& semantic : semantics) {
        FitValue(semantic, object.layer);
    }
}

// Scaled numbers have become real ones on reading. What has no type of a number is text, whose scale counts
// its characters.
void CSxfFitting::FitValue(PnrSemantic& semantic, const QString& layer)
{
    if (isTextForm && (IsInteger(semantic) || semantic.dataType == kTypeDouble)) {
        tally.Lose(QStringLiteral("attributes that are numbers became text"), layer);
        semantic.value = IsNumber(semantic.value) ? QVariant(PlainNumber(semantic.value.toDouble()))
                                                  : semantic.value;
    }
    if (IsInteger(semantic) && semantic.scale == 0 && !IsNumber(semantic.value)) {
        return;
    }
    if (IsInteger(semantic) || semantic.dataType == kTypeDouble || IsNumber(semantic.value)) {
        semantic.dataType = kTypeDouble;
        semantic.scale = 0;
        return;
    }
    semantic.dataType = kTypeText;
    if (semantic.semanticType == kDateKind && semantic.value.toDate().isValid()) {
        semantic.scale = kDateSize;
        return;
    }
    const QString told = semantic.value.toString();
    QString value = InOneLine(told);
    if (value != told) {
        tally.Lose(
            QStringLiteral("attributes with line breaks or words of the format, written otherwise"),
            layer);
    }
    if (value.size() > kLongestValue) {
        tally.Lose(QStringLiteral("attributes were cut to 254 characters"), layer);
        value.truncate(kLongestValue);
    }
    CountLetters(value, layer);
    semantic.semanticType = semantic.semanticType == kDateKind ? -1 : semantic.semanticType;
    semantic.scale = static_cast<quint8>(value.size());
    semantic.value = value;
}

void CSxfFitting::CountLetters(const QString& text, const QString& layer)
{
    const bool isAscii = std::all_of(text.begin(), text.end(),
                                     [](QChar c) { return c < QChar(0x80) && c > QChar(0x1F); });
    if (!isAscii && !SxfCodec().canEncode(text)) {
        tally.Lose(
            QStringLiteral(
                "texts and attributes with letters that the code page lacks, \"?\" in the result"),
            layer);
    }
}

QString CSxfFitting::InOneLine(QString text) const
{
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    for (QChar& c : text) {
        c = c == QLatin1Char('\n') || c == QLatin1Char('\r') || c.isNull() ? QLatin1Char(' ') : c;
    }
    if (isTextForm) {
        for (const char* word : kWords) {
            for (int at = 0; (at = text.indexOf(QLatin1String(word), at, Qt::CaseInsensitive)) >= 0;
                 ++at) {
                text.insert(at + 1, QLatin1Char(' '));
            }
        }
    }
    return text;
}

} // namespace velorx
