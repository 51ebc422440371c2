// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/TxtObject_p.h"

#include "VelorExchange/pnr/FixedNumber_p.h"

#include <cstring>

namespace VelorExchange::pnr {

namespace {

constexpr int kNoCode = -1;

// Spares words the conversion; white space other than the blank may stand in front of a number.
bool MayBeNumber(const CTxtSpan& token)
{
    const char c = token.size > 0 ? *token.data : '.';
    return (c >= '0' && c <= '9') || c == '-' || c == '+' || c < ' ' || c > '~';
}

// The coordinates where all of them are plain numbers; else false, with some of them set.
template <class... Values>
bool ParsePlain(const CTxtSpan& line, Values&... values)
{
    const char* p = line.begin();
    const auto next = [&p, &line](double& value) {
        while (*p == ' ' && p != line.end()) {
            ++p;
        }
        p = p != line.end() ? ParseFixed(p, value) : nullptr;
        return p && (p == line.end() || *p == ' ');
    };
    return (next(values) && ...);
}

void Parse(const CTxtBlock& block, const CTxtSpan& line, CPoint2D& point)
{
    if (!ParsePlain(line, point.x, point.y)) {
        CTxtTokens tokens(line);
        point.x = block.Double(tokens.Next());
        point.y = block.Double(tokens.Next());
    }
}

void Parse(const CTxtBlock& block, const CTxtSpan& line, CPoint3D& point)
{
    if (!ParsePlain(line, point.x, point.y, point.z)) {
        CTxtTokens tokens(line);
        point.x = block.Double(tokens.Next());
        point.y = block.Double(tokens.Next());
        point.z = block.Double(tokens.Next());
    }
}

template <class Holder>
std::unique_ptr<CAbstractVertexHolder> ParseHolder(const CTxtBlock& block, std::size_t first,
                                                   std::size_t count)
{
    auto holder = std::make_unique<Holder>();
    holder->vertices.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        Parse(block, block.Line(first + i), holder->vertices[i]);
    }
    return holder;
}

} // namespace

bool CTxtObjectParser::Read(CLineObject& line) const
{
    if (!ReadHead(line) || !ReadMetric(line) || (line.code == 0 && !ReadDrawing(line))) {
        return false;
    }
    ReadSemantics(line);
    return true;
}

bool CTxtObjectParser::Read(CSquareObject& square) const
{
    if (!ReadHead(square) || !ReadMetric(square) || (square.code == 0 && !ReadDrawing(square))) {
        return false;
    }
    ReadSemantics(square);
    return true;
}

// The mark in the file is not read: a point without a code always gets the default one
// (PnrTxtReader.GivesAPointWithoutCodeTheDefaultMark).
bool CTxtObjectParser::Read(CPointObject& point) const
{
    if (!ReadHead(point) || !ReadMetric(point)) {
        return false;
    }
    ReadSemantics(point);
    if (point.code == 0) {
        point.image = std::make_unique<PnrPointImage>();
        point.hasImage = true;
    }
    return true;
}

bool CTxtObjectParser::ReadHead(CBaseObject& object) const
{
    std::size_t index = 0;
    if (block.Find(".OBJ", index)) {
        CTxtTokens tokens(block.Line(index));
        tokens.Next();
        object.code = block.Int(tokens.Next());
    }
    object.codeText = QString::number(object.code);
    if (block.Find(".SEG", index)) {
        object.layer = block.Text(CTxtTokens::Last(block.Line(index)));
    }
    return object.code != kNoCode;
}

bool CTxtObjectParser::ReadMetric(CBaseObject& object) const
{
    std::size_t index = 0;
    const int subContours =
        block.Find(".MET", index) ? block.Int(CTxtTokens::Last(block.Line(index))) : 0;
    if (subContours < 0) {
        return true;
    }
    if (subContours != 0) {
        ++index;
    } else if (!FindMetric(index)) {
        return false;
    }
    for (qint64 i = 0; i <= subContours; ++i) {
        if (!ReadContour(object, index)) {
            return false;
        }
    }
    return true;
}

// The first line whose first token is an integer other than 0.
bool CTxtObjectParser::FindMetric(std::size_t& index) const
{
    for (index = 0; index < block.Count(); ++index) {
        const CTxtSpan token = CTxtTokens(block.Line(index)).Next();
        if (MayBeNumber(token) && block.Int(token) != 0) {
            return true;
        }
    }
    return false;
}

// `index` goes on to the line behind the contour. The line between two contours of a mixed text is
// one of text.
bool CTxtObjectParser::ReadContour(CBaseObject& object, std::size_t& index) const
{
    if (index < block.Count()) {
        const CTxtSpan line = block.Line(index);
        index += std::memchr(line.data, '>', line.size) ? 1 : 0;
    }
    if (index >= block.Count()) {
        return false;
    }
    const int count = block.Int(CTxtTokens(block.Line(index)).Next());
    ++index;
    if (count <= 0 || static_cast<std::size_t>(count) > block.Count() - index) {
        return false;
    }
    const auto vertices = static_cast<std::size_t>(count);
    const bool in2D = CTxtTokens::Count(block.Line(index)) == 2;
    object.holders.push_back(in2D ? ParseHolder<CVertexHolder2D>(block, index, vertices)
                                  : ParseHolder<CVertexHolder3D>(block, index, vertices));
    index += vertices;
    return true;
}

void CTxtObjectParser::ReadSemantics(CBaseObject& object) const
{
    std::size_t index = 0;
    if (!block.Find(".SEM", index)) {
        return;
    }
    const int count = block.Int(CTxtTokens::Last(block.Line(index)));
    for (int i = 0; i < count && ++index < block.Count(); ++i) {
        const CTxtSpan line = block.Line(index);
        const auto* blank = static_cast<const char*>(std::memchr(line.data, ' ', line.size));
        if (!blank) {
            continue;
        }
        PnrSemantic& semantic = object.semantics.emplace_back();
        semantic.code = block.Int({line.data, static_cast<std::size_t>(blank - line.data)});
        semantic.value =
            block.Text({blank, static_cast<std::size_t>(line.end() - blank)}).trimmed();
    }
}

} // namespace VelorExchange::pnr
