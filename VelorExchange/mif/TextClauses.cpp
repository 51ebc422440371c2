// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

namespace VelorExchange::mif {

// Angle degrees. 0 leaves the angle as it was.
void CMIFReader::ReadAngle(CTextMIF& text)
{
    const double degrees = line.ToDouble(SplitLine(kBlanks, 2)[1]);
    if (degrees != 0.0) {
        text.angle = ToRadians(degrees);
    }
}

// Spacing lines
void CMIFReader::ReadSpacing(CTextMIF& text)
{
    text.spacing = line.ToDouble(SplitLine(kBlanks, 2)[1]);
}

// Justify Left | Center | Right. The last of these words that is found stands.
void CMIFReader::ReadJustify(CTextMIF& text)
{
    struct CSide
    {
        CWord word;
        int value;
    };
    static constexpr CSide kSides[] = {
        {CWord("center"), 1}, {CWord("left"), 0}, {CWord("right"), 2}};
    for (const CSide& side : kSides) {
        if (line.Contains(side.word)) {
            text.justify = side.value;
        }
    }
}

// Label Line {Simple | Arrow} x y
void CMIFReader::ReadLabel(CTextMIF& text)
{
    text.labelArrow = line.Contains(CWord("arrow")) ? 1 : 0;
    text.labelPoint = PointAt(SplitLine(kBlanks, 5), 3);
}

} // namespace VelorExchange::mif
