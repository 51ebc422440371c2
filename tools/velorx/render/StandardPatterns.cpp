// SPDX-License-Identifier: MIT
#include "tools/velorx/render/StandardPatterns.h"

#include "tools/velorx/features/MifNumbers.h"

#include <string>
#include <string_view>

namespace velorx {

namespace {

using VelorExchange::dxf::CHatchLineDXF;

/// A family of lines. Neighbours with one name are one pattern.
struct SRow
{
    std::string_view name;
    double angle; ///< Degrees.
    double x; ///< Of the first line.
    double y;
    double shift; ///< Along the line, from each line to the next.
    double gap;
    double dashes[6]; ///< Up to the first 0 behind a gap; a dot is `kDot`.
};

constexpr double kDot = 0.01;

// An eighth of an inch, the usual distance of lines, is 8 pixels here.
constexpr SRow kRows[] = {
    {"ANSI31", 45, 0, 0, 0, 8, {}},
    {"ANSI32", 45, 0, 0, 0, 24, {}},
    {"ANSI32", 45, 11.3, 0, 0, 24, {}},
    {"ANSI33", 45, 0, 0, 0, 16, {}},
    {"ANSI33", 45, 11.3, 0, 0, 16, {8, -4}},
    {"ANSI34", 45, 0, 0, 0, 48, {}},
    {"ANSI34", 45, 11.3, 0, 0, 48, {}},
    {"ANSI34", 45, 22.6, 0, 0, 48, {}},
    {"ANSI34", 45, 33.9, 0, 0, 48, {}},
    {"ANSI35", 45, 0, 0, 0, 16, {}},
    {"ANSI35", 45, 11.3, 0, 0, 16, {20, -4, kDot, -4}},
    {"ANSI36", 45, 0, 0, 14, 8, {20, -4, kDot, -4}},
    {"ANSI37", 45, 0, 0, 0, 8, {}},
    {"ANSI37", 135, 0, 0, 0, 8, {}},
    {"ANSI38", 45, 0, 0, 0, 8, {}},
    {"ANSI38", 135, 0, 0, 16, 8, {20, -12}},
    {"ANGLE", 0, 0, 0, 0, 16, {12, -4}},
    {"ANGLE", 90, 0, 0, 0, 16, {12, -4}},
    {"BRICK", 0, 0, 0, 0, 12, {}},
    {"BRICK", 90, 0, 0, 0, 24, {12, -12}},
    {"BRICK", 90, 12, 0, 0, 24, {-12, 12}},
    {"CROSS", 0, 0, 0, 16, 16, {8, -24}},
    {"CROSS", 90, 4, -4, 16, 16, {8, -24}},
    {"DASH", 0, 0, 0, 8, 8, {8, -8}},
    {"DOTS", 0, 0, 0, 3, 6, {kDot, -6}},
    {"EARTH", 0, 0, 0, 16, 16, {16, -16}},
    {"EARTH", 0, 0, 6, 16, 16, {16, -16}},
    {"EARTH", 0, 0, 12, 16, 16, {16, -16}},
    {"EARTH", 90, 2, 14, 16, 16, {16, -16}},
    {"EARTH", 90, 8, 14, 16, 16, {16, -16}},
    {"EARTH", 90, 14, 14, 16, 16, {16, -16}},
    {"GRASS", 90, 0, 0, 20, 20, {6, -34}},
    {"GRASS", 45, 0, 0, 0, 28.3, {5, -23.3}},
    {"GRASS", 135, 0, 0, 0, 28.3, {5, -23.3}},
    {"HEX", 0, 0, 0, 0, 13.86, {8, -16}},
    {"HEX", 120, 0, 0, 0, 13.86, {8, -16}},
    {"HEX", 60, 8, 0, 0, 13.86, {8, -16}},
    {"HONEY", 0, 0, 0, 12, 6.93, {8, -16}},
    {"HONEY", 120, 0, 0, 12, 6.93, {8, -16}},
    {"HONEY", 60, 0, 0, 12, 6.93, {-16, 8}},
    {"LINE", 0, 0, 0, 0, 8, {}},
    {"NET", 0, 0, 0, 0, 8, {}},
    {"NET", 90, 0, 0, 0, 8, {}},
    {"NET3", 0, 0, 0, 0, 8, {}},
    {"NET3", 60, 0, 0, 0, 8, {}},
    {"NET3", 120, 0, 0, 0, 8, {}},
    {"PLAST", 0, 0, 0, 0, 16, {}},
    {"PLAST", 0, 0, 2, 0, 16, {}},
    {"PLAST", 0, 0, 4, 0, 16, {}},
    {"SACNCR", 45, 0, 0, 0, 6, {}},
    {"SACNCR", 45, 4.2, 0, 0, 6, {kDot, -6}},
    {"SQUARE", 0, 0, 0, 0, 8, {8, -8}},
    {"SQUARE", 90, 0, 0, 0, 8, {8, -8}},
    {"STEEL", 45, 0, 0, 0, 8, {}},
    {"STEEL", 45, 0, 4, 0, 8, {}},
    {"TRIANG", 60, 0, 0, 12, 20.78, {12, -12}},
    {"TRIANG", 120, 0, 0, 12, 20.78, {12, -12}},
    {"TRIANG", 0, -6, 10.39, 12, 20.78, {12, -12}},
    {"ZIGZAG", 0, 0, 0, 8, 8, {8, -8}},
    {"ZIGZAG", 90, 8, 0, 8, 8, {8, -8}},
};

enum class EBrush { Lines, Crossed, Dots };

/// A range of brush patterns, from the coarsest to the finest.
struct SBrush
{
    int first;
    int last;
    EBrush kind;
    double angle;
    double gap; ///< Of the first.
    double step; ///< Less for each one after it.
};

constexpr SBrush kBrushes[] = {
    {3, 3, EBrush::Lines, 0, 8, 0},         {4, 4, EBrush::Lines, 90, 8, 0},
    {5, 5, EBrush::Lines, 45, 8, 0},        {6, 6, EBrush::Lines, 135, 8, 0},
    {7, 7, EBrush::Crossed, 0, 8, 0},       {8, 8, EBrush::Crossed, 45, 8, 0},
    {12, 18, EBrush::Dots, 0, 9, 1},        {19, 23, EBrush::Lines, 0, 10, 1.5},
    {24, 28, EBrush::Lines, 90, 10, 1.5},   {29, 33, EBrush::Lines, 45, 10, 1.5},
    {34, 38, EBrush::Lines, 135, 10, 1.5},  {39, 43, EBrush::Crossed, 0, 10, 1.5},
    {44, 47, EBrush::Crossed, 45, 10, 1.5},
};

constexpr std::string_view kPlain = "ANSI31";

CHatchLineDXF LineOf(const SRow& row)
{
    CHatchLineDXF line;
    line.angle = row.angle;
    line.baseX = row.x;
    line.baseY = row.y;
    line.offsetX = row.shift;
    line.offsetY = row.gap;
    for (const double dash : row.dashes) {
        if (dash == 0) {
            break;
        }
        line.dashes.push_back(dash);
    }
    return line;
}

std::vector<CHatchLineDXF> FindRows(std::string_view name)
{
    std::vector<CHatchLineDXF> lines;
    for (const SRow& row : kRows) {
        if (row.name == name) {
            lines.push_back(LineOf(row));
        }
    }
    return lines;
}

std::vector<CHatchLineDXF> FindBrush(int number)
{
    constexpr double kAcross = 90.0;
    std::vector<CHatchLineDXF> lines;
    for (const SBrush& brush : kBrushes) {
        if (number < brush.first || number > brush.last) {
            continue;
        }
        CHatchLineDXF line;
        line.angle = brush.angle;
        line.offsetY = brush.gap - brush.step * (number - brush.first);
        if (brush.kind == EBrush::Dots) {
            line.dashes = {kDot, -line.offsetY};
            line.offsetX = line.offsetY / 2;
        }
        lines.push_back(line);
        if (brush.kind == EBrush::Crossed) {
            line.angle += kAcross;
            lines.push_back(line);
        }
    }
    return lines;
}

} // namespace

std::vector<CHatchLineDXF> StandardPattern(const QString& name)
{
    const int brush = MifNumber(name);
    std::vector<CHatchLineDXF> lines =
        brush > 0 ? FindBrush(brush) : FindRows(name.trimmed().toUpper().toStdString());
    return lines.empty() ? FindRows(kPlain) : lines;
}

} // namespace velorx
