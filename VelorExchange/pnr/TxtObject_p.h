// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/pnr/Objects.h"
#include "VelorExchange/pnr/TxtBlock_p.h"

#include <cstddef>

namespace VelorExchange::pnr {

/// Fills objects from the lines of a block. Each operation returns false on a fault of the format.
class CTxtObjectParser
{
public:
    explicit CTxtObjectParser(const CTxtBlock& source) : block(source) { }

    bool Read(CLineObject& line) const;
    bool Read(CSquareObject& square) const;
    bool Read(CPointObject& point) const;
    bool Read(CTextObject& text) const;

private:
    bool ReadHead(CBaseObject& object) const;
    bool ReadMetric(CBaseObject& object) const;
    bool ReadContour(CBaseObject& object, std::size_t& index) const;
    void ReadSemantics(CBaseObject& object) const;
    bool FindMetric(std::size_t& index) const;
    std::size_t FindDrawing(std::string_view word) const;
    bool ReadDrawing(CLineObject& line) const;
    bool ReadDrawing(CSquareObject& square) const;
    void ReadDrawing(CTextObject& text) const;
    void ReadTextField(const CTxtSpan& line, PnrTextImage& image) const;
    qint16 SumAlignments() const;
    QString JoinTextLines() const;

    const CTxtBlock& block;
};

} // namespace VelorExchange::pnr
