// SPDX-License-Identifier: MIT
#include "tools/velorx/info/SxfSummary.h"

#include "tools/velorx/formats/SxfCodes.h"

#include <memory>

namespace velorx {

using namespace VelorExchange::pnr;

namespace {

template <class Holder>
void AddVertices(const CAbstractVertexHolder& holder, CExtents& extents)
{
    for (const auto& vertex : static_cast<const Holder&>(holder).vertices) {
        extents.Add(vertex.x, vertex.y);
    }
}

// The attribute counts ahead of what the library tells, which of the text form is the last word of the
// name. Its writer counts a zero behind the name.
QString LayerOf(const CBaseObject& object)
{
    QString layer = object.layer;
    for (const PnrSemantic& semantic : object.semantics) {
        if (semantic.code == kSxfLayerCode && !semantic.value.toString().isEmpty()) {
            layer = semantic.value.toString();
        }
    }
    while (layer.endsWith(QChar(QChar::Null))) {
        layer.chop(1);
    }
    return layer;
}

} // namespace

QString CSxfSummary::Read(const QString& path, VelorExchange::dxf::IDXFProgress* bar)
{
    header = ReadSxfHeader(path);
    progress = bar;
    if (progress != nullptr) {
        progress->Begin(QString(), header.declaredRecords);
    }
    const std::unique_ptr<IPnrReader, void (*)(IPnrReader*)> reader(
        CreateReader(header.isText, this), DeleteReader);
    result = reader->Read(path);
    message = QString::fromStdWString(reader->GetLastError());
    if (progress != nullptr) {
        progress->Finish();
        progress = nullptr;
    }
    if (result) {
        return header.fault;
    }
    const QString noMessage = QStringLiteral("the map ends inside a record");
    return message.isEmpty() ? noMessage : message;
}

void CSxfSummary::AddText(CTextObject* text)
{
    Count(kTexts, *text);
}

void CSxfSummary::AddSquare(CSquareObject* square)
{
    Count(kSquares, *square);
}

void CSxfSummary::AddLine(CLineObject* line)
{
    Count(kLines, *line);
}

void CSxfSummary::AddPoint(CPointObject* point)
{
    Count(kPoints, *point);
}

void CSxfSummary::Count(EKind kind, const CBaseObject& object)
{
    SCounts& count = counts[kind];
    const auto contours = static_cast<qint64>(object.holders.size());
    ++objects;
    ++count.objects;
    count.contours += contours;
    subContours += contours > 1 ? contours - 1 : 0;
    for (const auto& holder : object.holders) {
        count.vertices += holder->Count();
        holder->Is2D() ? AddVertices<CVertexHolder2D>(*holder, extents)
                       : AddVertices<CVertexHolder3D>(*holder, extents);
    }
    layers.Add(LayerOf(object));
    for (const PnrSemantic& semantic : object.semantics) {
        semantics.Add(semantic.code);
        semanticTypes.Add(semantic.dataType);
    }
    if (progress != nullptr) {
        progress->SetPosition(objects);
    }
}

} // namespace velorx
