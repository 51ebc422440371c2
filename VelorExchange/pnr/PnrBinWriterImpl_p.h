// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/pnr/PnrAbstractWriterImpl_p.h"
#include "VelorExchange/pnr/SxfLayout_p.h"

#include <memory>
#include <utility>
#include <vector>

namespace VelorExchange::pnr {

/// Writes SXF version 4. Records go to the temporary file as they come; the header is made at the
/// end, when bounds, count and checksum are known.
class CPnrBinWriterImpl final : public CPnrAbstractWriterImpl
{
public:
    CPnrBinWriterImpl(bool second, std::shared_ptr<IContext> conversion)
        : CPnrAbstractWriterImpl(second, std::move(conversion))
    {
    }

    bool Close() override;
    bool WriteText(CTextObject* object) override;
    bool WriteSquare(CSquareObject* object) override;
    bool WriteLine(CLineObject* object) override;
    bool WritePoint(CPointObject* object) override;

private:
    using CHolders = std::vector<std::unique_ptr<CAbstractVertexHolder>>;

    // Each puts one part of the record in hand into `output`.
    void BeginRecord(const CBaseObject& object, quint32 kind, bool drawn);
    void PutFirstContour(const CHolders& holders, qint64 subContours);
    void PutContours(const CHolders& holders);
    void PutFurtherContour(const CAbstractVertexHolder& holder);
    void PutVertices(const CAbstractVertexHolder& holder);
    template <class Point>
    void PutVertices(const std::vector<Point>& vertices);
    void PutTextBlock(const QString& part, quint16 align);
    void PutDrawing(const PnrLineImage& image);
    void PutDrawing(const PnrSquareImage& image);
    void PutDrawing(const PnrPointImage& image);
    void PutDrawing(const PnrTextImage& image);
    void PutDrawingHead(const sxf::CDrawingLayout& layout);
    void PutPadded(const QString& name, std::size_t size);
    void PutSemantics(const CBaseObject& object);
    void PutSemantic(const PnrSemantic& semantic);

    /// The metric as it stands in the record so far.
    qint64 MetricSize() const;

    /// Sets the lengths, and spools the record unless it holds a number that is not finite.
    bool EndRecord(const CBaseObject& object, qint64 metric);

    template <class Object>
    bool WriteFigure(const Object& object, const QString& kindName);
    void PutFrame();
    QByteArray HeaderBytes();

    bool finite = true; // all numbers of the record in hand are
};

} // namespace VelorExchange::pnr
