// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifDetails.h"

#include <string_view>

namespace velorx {

namespace {

constexpr char kJustify[][16] = {"", "Justify Center\n", "Justify Right\n"};

bool StartsWith(std::string_view line, std::string_view word)
{
    return line.substr(0, word.size()) == word;
}

// A pen in the library's form.
QByteArray PenLine(const VelorExchange::mif::CPenMIF& pen)
{
    const quint32 color =
        ((pen.color & 0xFFU) << 16U) | (pen.color & 0xFF00U) | ((pen.color >> 16U) & 0xFFU);
    return "PEN (" + QByteArray::number(pen.width) + ", " + QByteArray::number(pen.pattern) + ", "
        + QByteArray::number(color) + ")\n";
}

QByteArray CountLine(qint64 count)
{
    return QByteArray::number(count) + '\n';
}

} // namespace

void CMifDetailWriter::StartObject()
{
    ++object;
    current = next != end && next->object == object ? next++ : nullptr;
    isCountNext = false;
}

void CMifDetailWriter::TakeRegion(QByteArray& out)
{
    StartObject();
    const bool hasRings = current != nullptr && !current->rings.empty();
    out += "REGION " + CountLine(hasRings ? static_cast<qint64>(current->rings.size()) : 1);
    isCountNext = hasRings;
}

// The count of a region of several rings, or one of its vertices. True if the line is done with.
bool CMifDetailWriter::TakeNumbers(QByteArray& out)
{
    if (isCountNext) {
        isCountNext = false;
        ring = 0;
        verticesLeft = current->rings[ring];
        out += CountLine(verticesLeft);
        return true;
    }
    if (verticesLeft == 0 && ++ring < current->rings.size()) {
        verticesLeft = current->rings[ring];
        out += CountLine(verticesLeft);
    }
    --verticesLeft;
    return false;
}

// Every line of the library starts with a number or a word that tells it from all others.
void CMifDetailWriter::Take(const char* begin, const char* lineEnd, QByteArray& out)
{
    const std::string_view line(begin, static_cast<std::size_t>(lineEnd - begin));
    if (StartsWith(line, "REGION")) {
        TakeRegion(out);
        return;
    }
    if (StartsWith(line, "POINT") || StartsWith(line, "PLINE") || StartsWith(line, "TEXT")) {
        StartObject();
    } else if (current != nullptr) {
        const char first = line.empty() ? '\0' : line.front();
        const bool isNumber = first == '-' || (first >= '0' && first <= '9');
        if (isNumber && !current->rings.empty() && TakeNumbers(out)) {
            return;
        }
        if (current->hasPen && StartsWith(line, "PEN")) {
            out += PenLine(current->pen);
            return;
        }
        if (current->justify != 0 && StartsWith(line, "FONT")) {
            out.append(begin, static_cast<int>(line.size()));
            out += kJustify[current->justify];
            return;
        }
    }
    out.append(begin, static_cast<int>(line.size()));
}

} // namespace velorx
