// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/Extents.h"
#include "tools/velorx/formats/SxfHeader.h"
#include "tools/velorx/info/ISummary.h"
#include "tools/velorx/info/Listed.h"
#include "VelorExchange/Pnr.h"

#include <QString>

#include <array>
#include <cstddef>

namespace velorx {

/// What is in an SXF map of either form.
class CSxfSummary final : public ISummary, public VelorExchange::pnr::IPnrReader::IContext
{
public:
    /// Kinds of objects.
    enum EKind : std::size_t { kLines, kSquares, kPoints, kTexts, kKinds };

    struct SCounts
    {
        qint64 objects = 0;
        qint64 contours = 0;
        qint64 vertices = 0; ///< Of all contours.
    };

    QString Read(const QString& path, VelorExchange::dxf::IDXFProgress* bar) override;
    QString ToText() const override;
    QJsonObject ToJson() const override;

    void AddText(VelorExchange::pnr::CTextObject* text) override;
    void AddSquare(VelorExchange::pnr::CSquareObject* square) override;
    void AddLine(VelorExchange::pnr::CLineObject* line) override;
    void AddPoint(VelorExchange::pnr::CPointObject* point) override;

    bool result = false; ///< What `IPnrReader::Read` returned.
    QString message; ///< What the reader says of a failure; can be empty all the same.
    SSxfHeader header;
    std::array<SCounts, kKinds> counts{}; ///< By kind.
    qint64 objects = 0; ///< Of all kinds.
    qint64 subContours = 0; ///< Contours beyond the first of an object.
    CTally<QString> layers; ///< Objects by layer.
    CTally<qint32> semantics; ///< Attributes by their code.
    CTally<qint32> semanticTypes; ///< Attributes by their storage type; -1 in text form.
    CExtents extents; ///< Of all vertices, as delivered.

private:
    void Count(EKind kind, const VelorExchange::pnr::CBaseObject& object);

    VelorExchange::dxf::IDXFProgress* progress = nullptr;
};

/// How a kind of object is called, and the operation that delivers it.
struct SSxfKind
{
    const char* name;
    const char* operation;
};

/// By `CSxfSummary::EKind`.
constexpr SSxfKind kSxfKinds[CSxfSummary::kKinds] = {
    {"Line", "AddLine"},
    {"Area", "AddSquare"},
    {"Point", "AddPoint"},
    {"Text", "AddText"},
};

} // namespace velorx
