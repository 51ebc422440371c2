// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/pnr/PnrAbstractWriterImpl_p.h"

#include <cstddef>
#include <memory>
#include <utility>

namespace VelorExchange::pnr {

/// Writes the text form of SXF. Objects go to the temporary file as they come; the passport and the
/// frame, which need the final bounds, are made at the end.
class CPnrTxtWriterImpl final : public CPnrAbstractWriterImpl
{
public:
    CPnrTxtWriterImpl(bool second, std::shared_ptr<IContext> conversion)
        : CPnrAbstractWriterImpl(second, std::move(conversion))
    {
    }

    bool Close() override;
    bool WriteText(CTextObject* object) override;
    bool WriteSquare(CSquareObject* object) override;
    bool WriteLine(CLineObject* object) override;
    bool WritePoint(CPointObject* object) override;

private:
    // Each puts one part of the object in hand into `output`.
    template <std::size_t N>
    void Put(const char (&words)[N]);
    void Put(const QString& value);
    void PutInt(qint64 value);
    void PutReal(double value);
    template <std::size_t N>
    void PutField(const char (&word)[N], qint64 value);
    template <std::size_t N>
    void PutField(const char (&word)[N], const QString& value);
    void PutContour(const CAbstractVertexHolder& holder, bool inThePlan);
    template <class Point>
    void PutPoint(const Point& vertex, bool inThePlan);
    void PutContours(const CBaseObject& object);
    void PutTextContour(const CTextObject& object, const QString& part);
    void PutSemantics(const CBaseObject& object);
    void PutAlignment(qint32 align, qint64 index);
    void PutMark(const PnrPointImage& image);
    void PutTextImage(const PnrTextImage& image);
    void PutOwnText(const CTextObject& object);
    void PutClassifiedText(const CTextObject& object);
    void PutPassport();
    void PutCornerLine(const char* name, const CPoint2D& corner);
    void PutFrame();

    void BeginObject();

    /// Spools the object unless it holds a number that is not finite.
    bool EndObject(const CBaseObject& object, bool ofUserMap, const QString& kindName);

    bool WriteFile();
    bool FailToWrite();

    bool finite = true; // all numbers of the object in hand are
};

} // namespace VelorExchange::pnr
