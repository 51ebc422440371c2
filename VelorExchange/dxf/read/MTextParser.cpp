// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/Angles_p.h"
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

#include <cmath>

namespace VelorExchange::dxf {

namespace {

constexpr double kHalfTurnSlack = 7e-07;
constexpr double kNoAngle = 1e-08;

double NotNegative(double angle)
{
    return angle < 0 ? angle + kTwoPi : angle;
}

// The angle of the direction (x, y), 0 to 2 pi, counted from the negative Y axis and turned back. The
// steps are those that all results hang on to the last bit.
double Rotation(double x, double y)
{
    const double a = NotNegative(std::atan2(0 - 10 * x, 0 - 10 * y));
    const double b = NotNegative(std::atan2(-10.0, 0));
    double d = std::fmod(a - b, kTwoPi);
    if (std::abs(d) - kPi > kHalfTurnSlack) {
        d += d < 0 ? kTwoPi : -kTwoPi;
    }
    if (std::abs(d) < kNoAngle) {
        d = 0;
    }
    return NotNegative(-d);
}

} // namespace

// MTEXT: the pieces of group 3, joined by ";", then group 1. The direction alone tells the rotation;
// group 50 is not read.
CDXFTag CDXFReaderImpl::ReadMText()
{
    const CDXFTag next = tags.ReadObject();
    if (IsPaperSpace()) {
        return next;
    }
    CMTextDXF text;
    FillText(text);
    text.text = tags.Value(3) + text.text;
    text.rectWidth = tags.Double(41);
    text.alignment = tags.Int(71);
    text.rotation = Rotation(tags.Double(11, 1.0), tags.Double(21));
    Deliver(text, &IDXFReader::OnMText);
    return next;
}

} // namespace VelorExchange::dxf
