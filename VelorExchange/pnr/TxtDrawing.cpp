// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/TxtObject_p.h"

#include <limits>

namespace VelorExchange::pnr {

namespace {

constexpr double kThicknessUnit = 1000.0;

// Toward zero; what no integer can hold counts as 0.
int Cut(double value)
{
    constexpr double kLowest = std::numeric_limits<int>::min();
    constexpr double kHighest = std::numeric_limits<int>::max();
    return value >= kLowest && value <= kHighest ? static_cast<int>(value) : 0;
}

} // namespace

// The line of the sub-block that counts, or 0.
std::size_t CTxtObjectParser::FindDrawing(std::string_view word) const
{
    std::size_t image = 0;
    block.Find(".IMG", image);
    return block.FindLast(word, image);
}

bool CTxtObjectParser::ReadDrawing(CLineObject& line) const
{
    std::size_t index = FindDrawing("_LINE");
    if (index == 0) {
        return true;
    }
    auto image = std::make_unique<PnrLineImage>();
    while (++index < block.Count()) {
        if (CTxtTokens::Count(block.Line(index)) != 2) {
            return false;
        }
        CTxtTokens tokens(block.Line(index));
        const CTxtSpan word = tokens.Next();
        const CTxtSpan value = tokens.Next();
        if (word == "COLOR") {
            image->color = block.Int(value);
        } else if (word == "THICK") {
            image->thickness = Cut(block.Double(value) / kThicknessUnit * kThicknessUnit);
        }
    }
    line.image = std::move(image);
    line.hasImage = true;
    return true;
}

bool CTxtObjectParser::ReadDrawing(CSquareObject& square) const
{
    std::size_t index = FindDrawing("_SQUARE");
    if (index == 0) {
        return true;
    }
    auto image = std::make_unique<PnrSquareImage>();
    while (++index < block.Count()) {
        if (CTxtTokens::Count(block.Line(index)) != 2) {
            return false;
        }
        CTxtTokens tokens(block.Line(index));
        const CTxtSpan word = tokens.Next();
        const CTxtSpan value = tokens.Next();
        if (word == "COLOR") {
            image->color = block.Int(value);
        }
    }
    square.image = std::move(image);
    square.hasImage = true;
    return true;
}

} // namespace VelorExchange::pnr
