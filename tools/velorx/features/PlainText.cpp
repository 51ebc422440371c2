// SPDX-License-Identifier: MIT
#include "tools/velorx/features/PlainText.h"

#include "tools/velorx/features/TextDecoder.h"

#include <QStringList>

#include <vector>

namespace velorx {

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;

// Knows the codes of formatting as well.
class CMTextDecoder final : public CTextDecoder
{
public:
    using CTextDecoder::CTextDecoder;

protected:
    bool TakeFormat() override;

private:
    using CTake = bool (CMTextDecoder::*)(int from);
    struct SFormat
    {
        char16_t code;
        CTake take;
    };
    static const SFormat kFormats[];

    bool TakeBrace();

    // Of what follows a format's letter, which stands ahead of `from`.
    bool TakeItself(int from);
    bool TakeBlank(int from);
    bool TakeLineFeed(int from);
    bool TakeUnderline(int from);
    bool TakeOtherLine(int from);
    bool TakeFont(int from);
    bool TakeHeight(int from);
    bool TakeWidth(int from);
    bool TakeSlant(int from);
    bool TakeIndex(int from);
    bool TakeTrueColour(int from);
    bool TakeUnkept(int from);
    bool TakeParagraph(int from);
    bool TakeStack(int from);
    bool TakeNumber(int from, double& number, bool* isFactor = nullptr);
    bool TakeArgument(int from, QString& argument);

    std::vector<SLetters> outer; ///< Of the braces that are open.
};

const CMTextDecoder::SFormat CMTextDecoder::kFormats[] = {
    {u'P', &CMTextDecoder::TakeLineFeed},  {u'N', &CMTextDecoder::TakeLineFeed},
    {u'X', &CMTextDecoder::TakeLineFeed},  {u'~', &CMTextDecoder::TakeBlank},
    {u'\\', &CMTextDecoder::TakeItself},   {u'{', &CMTextDecoder::TakeItself},
    {u'}', &CMTextDecoder::TakeItself},    {u'L', &CMTextDecoder::TakeUnderline},
    {u'l', &CMTextDecoder::TakeUnderline}, {u'O', &CMTextDecoder::TakeOtherLine},
    {u'o', &CMTextDecoder::TakeOtherLine}, {u'K', &CMTextDecoder::TakeOtherLine},
    {u'k', &CMTextDecoder::TakeOtherLine}, {u'f', &CMTextDecoder::TakeFont},
    {u'F', &CMTextDecoder::TakeFont},      {u'H', &CMTextDecoder::TakeHeight},
    {u'W', &CMTextDecoder::TakeWidth},     {u'Q', &CMTextDecoder::TakeSlant},
    {u'C', &CMTextDecoder::TakeIndex},     {u'c', &CMTextDecoder::TakeTrueColour},
    {u'T', &CMTextDecoder::TakeUnkept},    {u'A', &CMTextDecoder::TakeUnkept},
    {u'p', &CMTextDecoder::TakeParagraph}, {u'S', &CMTextDecoder::TakeStack},
};

bool CMTextDecoder::TakeBrace()
{
    if (At(at) == u'{') {
        outer.push_back(now);
    } else if (At(at) != u'}') {
        return false;
    } else if (!outer.empty()) {
        now = outer.back();
        outer.pop_back();
    }
    ++at;
    return true;
}

bool CMTextDecoder::TakeFormat()
{
    if (TakeBrace()) {
        return true;
    }
    if (At(at) != u'\\') {
        return false;
    }
    for (const SFormat& format : kFormats) {
        if (At(at + 1) == format.code) {
            return (this->*format.take)(at + 2);
        }
    }
    return false;
}

bool CMTextDecoder::TakeItself(int from)
{
    at = from;
    Put(At(from - 1));
    return true;
}

bool CMTextDecoder::TakeBlank(int from)
{
    at = from;
    Put(u' ');
    return true;
}

bool CMTextDecoder::TakeLineFeed(int from)
{
    at = from;
    Put(u'\n');
    return true;
}

bool CMTextDecoder::TakeUnderline(int from)
{
    at = from;
    now.isUnderlined = At(from - 1) == u'L';
    return true;
}

bool CMTextDecoder::TakeOtherLine(int from)
{
    at = from;
    out.isSimplified = true;
    return true;
}

// "Arial|b1|i0|c204|p34"; fonts of shapes are no typefaces.
bool CMTextDecoder::TakeFont(int from)
{
    QString argument;
    if (!TakeArgument(from, argument)) {
        return false;
    }
    const QStringList parts = argument.split(u'|');
    const bool isShapes = parts.front().endsWith(QLatin1String(".shx"), Qt::CaseInsensitive);
    now.font = isShapes ? QString() : parts.front().trimmed();
    now.isBold = parts.contains(QStringLiteral("b1"));
    now.isItalic = parts.contains(QStringLiteral("i1"));
    return true;
}

bool CMTextDecoder::TakeHeight(int from)
{
    double number = 0.0;
    bool isFactor = false;
    if (!TakeNumber(from, number, &isFactor)) {
        return false;
    }
    if (isFactor) {
        now.heightFactor *= number;
    } else {
        now.height = number;
        now.heightFactor = 1.0;
    }
    return true;
}

bool CMTextDecoder::TakeWidth(int from)
{
    return TakeNumber(from, now.widthFactor);
}

bool CMTextDecoder::TakeSlant(int from)
{
    double degrees = 0.0;
    const bool isTaken = TakeNumber(from, degrees);
    now.slant = isTaken ? degrees * kDegree : now.slant;
    return isTaken;
}

bool CMTextDecoder::TakeIndex(int from)
{
    constexpr double kLastIndex = 256;
    double index = 0.0;
    if (!TakeNumber(from, index)) {
        return false;
    }
    now.colour = index >= 0 && index <= kLastIndex ? static_cast<int>(index) : -1;
    now.trueColour = -1;
    return true;
}

bool CMTextDecoder::TakeTrueColour(int from)
{
    constexpr double kLastColour = 0xFFFFFF;
    double colour = 0.0;
    if (!TakeNumber(from, colour)) {
        return false;
    }
    now.trueColour = colour >= 0 && colour <= kLastColour ? static_cast<qint64>(colour) : -1;
    return true;
}

// Space between letters and the place of a line's smaller letters.
bool CMTextDecoder::TakeUnkept(int from)
{
    double number = 0.0;
    return TakeNumber(from, number);
}

bool CMTextDecoder::TakeParagraph(int from)
{
    QString argument;
    const bool isTaken = TakeArgument(from, argument);
    out.isSimplified = out.isSimplified || isTaken;
    return isTaken;
}

// A letter above another, "1/2", "1#2", "1^2"; either can be missing.
bool CMTextDecoder::TakeStack(int from)
{
    QString parts[2];
    int part = 0;
    int end = from;
    for (; At(end) != u';'; ++end) {
        const QChar c = At(end);
        if (end >= in.size()) {
            return false;
        }
        if (c == u'\\' && QStringLiteral(";/#^\\{}").contains(At(end + 1))) {
            parts[part] += At(++end);
        } else if (part == 0 && (c == u'/' || c == u'#' || c == u'^')) {
            part = 1;
        } else {
            parts[part] += c;
        }
    }
    at = end + 1;
    const QString upper = CTextDecoder(parts[0].trimmed()).Decode().text;
    const QString lower = CTextDecoder(parts[1].trimmed()).Decode().text;
    const bool isFraction = !upper.isEmpty() && !lower.isEmpty();
    QString stacked = isFraction ? upper + u'/' + lower : upper + lower;
    if (isFraction && !out.text.isEmpty() && IsDigit(out.text.back())) {
        stacked.prepend(u' ');
    }
    Put(stacked);
    out.isSimplified = true;
    return true;
}

// A decimal number, "x" for a factor where that is possible, and a semicolon, which some programs leave out.
bool CMTextDecoder::TakeNumber(int from, double& number, bool* isFactor)
{
    int end = from;
    while (IsDigit(At(end)) || At(end) == u'.' || (end == from && At(end) == u'-')) {
        ++end;
    }
    bool isNumber = false;
    const double value = in.midRef(from, end - from).toDouble(&isNumber);
    if (!isNumber) {
        return false;
    }
    number = value;
    if (isFactor != nullptr && At(end).toLower() == u'x') {
        *isFactor = true;
        ++end;
    }
    at = At(end) == u';' ? end + 1 : end;
    return true;
}

bool CMTextDecoder::TakeArgument(int from, QString& argument)
{
    const int end = in.indexOf(u';', from);
    if (end < 0) {
        return false;
    }
    argument = in.mid(from, end - from);
    at = end + 1;
    return true;
}

} // namespace

bool SLetters::operator==(const SLetters& other) const
{
    return font == other.font && isBold == other.isBold && isItalic == other.isItalic
        && isUnderlined == other.isUnderlined && height == other.height
        && heightFactor == other.heightFactor && widthFactor == other.widthFactor
        && slant == other.slant && colour == other.colour && trueColour == other.trueColour;
}

SPlainText PlainOfText(const QString& coded)
{
    return CTextDecoder(coded).Decode();
}

SPlainText PlainOfMText(const QString& coded)
{
    return CMTextDecoder(coded).Decode();
}

} // namespace velorx
