// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <stdexcept>

namespace VelorExchange::mif {

namespace {

// Powers of ten that a double holds exactly, as far as a plain coordinate needs them.
constexpr double kPowers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                              1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
constexpr std::ptrdiff_t kMostDigits = 15; // all such integers are exact in a double

const char* TakeDigits(const char* p, const char* end, std::uint64_t& value)
{
    for (; p != end && static_cast<unsigned char>(*p - '0') < 10; ++p) {
        value = value * 10 + static_cast<std::uint64_t>(*p - '0');
    }
    return p;
}

// Reads `[-]digits[.digits]` of up to 15 digits at `p` and leaves `p` behind it. Both operands of the
// division are exact, so that it rounds as the conversion of the whole text does.
bool TakePlainNumber(const char*& p, const char* end, double& value)
{
    const bool isNegative = p != end && *p == '-';
    const char* const whole = p + (isNegative ? 1 : 0);
    std::uint64_t digits = 0;
    p = TakeDigits(whole, end, digits);
    std::ptrdiff_t count = p - whole;
    std::ptrdiff_t behindPoint = 0;
    if (p != end && *p == '.') {
        const char* const fraction = p + 1;
        p = TakeDigits(fraction, end, digits);
        behindPoint = p - fraction;
        count += behindPoint;
    }
    if (count == 0 || count > kMostDigits) {
        return false;
    }
    const double magnitude = static_cast<double>(digits) / kPowers[behindPoint];
    value = isNegative ? -magnitude : magnitude;
    return true;
}

// Two plain numbers with blanks between them, and nothing or a blank behind. False for all else,
// although it may be a vertex: it takes the road by tokens then.
bool TakePlainVertex(CSpan line, CPoint2D& point)
{
    const char* p = line.begin;
    if (!TakePlainNumber(p, line.end, point.x) || p == line.end || !kBlanks.Has(*p)) {
        return false;
    }
    while (p != line.end && kBlanks.Has(*p)) {
        ++p;
    }
    return TakePlainNumber(p, line.end, point.y) && (p == line.end || kBlanks.Has(*p));
}

} // namespace

std::size_t CMIFReader::RoomFor(int count, std::size_t elementSize, std::size_t bytesInFile) const
{
    constexpr std::size_t kMostBytes = std::numeric_limits<qint32>::max();
    if (count < 0 || static_cast<std::size_t>(count) > kMostBytes / elementSize) {
        throw std::length_error("count in a MIF file");
    }
    const auto left = static_cast<std::size_t>(std::max<qint64>(fileSize - scanner.Position(), 0));
    return std::min(static_cast<std::size_t>(count), left / bytesInFile + 1);
}

// A count that stands on a line of its own.
int CMIFReader::ReadCount(QFile& file)
{
    NextLine(file, true);
    return line.ToInt(line.Span());
}

CPoint2D CMIFReader::ReadVertex(QFile& file)
{
    NextLine(file, true);
    CPoint2D point;
    return TakePlainVertex(line.Span(), point) ? point : PointAt(SplitLine(kBlanks, 2), 0);
}

void CMIFReader::ReadVertices(QFile& file, int count, std::vector<CPoint2D>& points)
{
    constexpr std::size_t kLeastVertex = 4; // "1 2\n"
    points.clear();
    points.reserve(RoomFor(count, sizeof(CPoint2D), kLeastVertex));
    for (int i = 0; i < count; ++i) {
        points.push_back(ReadVertex(file));
    }
}

} // namespace VelorExchange::mif
