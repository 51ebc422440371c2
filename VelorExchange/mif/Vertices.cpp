// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace VelorExchange::mif {

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
    return PointAt(SplitLine(kBlanks, 2), 0);
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
