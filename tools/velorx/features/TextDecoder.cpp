// SPDX-License-Identifier: MIT
#include "tools/velorx/features/TextDecoder.h"

#include <QTextCodec>

#include <algorithm>
#include <iterator>
#include <utility>

namespace velorx {

namespace {

constexpr QChar kLineFeed = u'\n';
constexpr int kHexadecimal = 16;
constexpr int kUnicodeDigits = 4;

// The codes that stand for a letter behind "%%".
constexpr std::pair<char16_t, char16_t> kPercentLetters[] = {
    {u'c', u'\u00D8'}, {u'd', u'\u00B0'}, {u'p', u'\u00B1'}, {u'%', u'%'}};

// The code pages of `\M+nXXXX`, from n = 1 on.
constexpr const char* kCodePages[] = {"Shift_JIS", "Big5", "EUC-KR", "johab", "GB18030"};

} // namespace

SPlainText CTextDecoder::Decode()
{
    while (at < in.size()) {
        const bool isCode =
            TakePercent() || TakeUnicode() || TakeDoubleByte() || TakeCaret() || TakeFormat();
        if (!isCode) {
            Put(in.at(at++));
        }
    }
    while (out.text.endsWith(kLineFeed)) {
        out.text.chop(1);
    }
    return std::move(out);
}

void CTextDecoder::Put(QChar c)
{
    out.text += c;
    if (c.isSpace()) {
        return;
    }
    if (!hasLetter) {
        out.letters = now;
        hasLetter = true;
    } else if (!(now == out.letters)) {
        out.isSimplified = true;
    }
}

void CTextDecoder::Put(const QString& letters)
{
    for (const QChar c : letters) {
        Put(c);
    }
}

bool CTextDecoder::TakePercent()
{
    if (At(at) != u'%' || At(at + 1) != u'%') {
        return false;
    }
    const QChar code = At(at + 2).toLower();
    for (const auto& [known, letter] : kPercentLetters) {
        if (code == known) {
            at += 3;
            Put(letter);
            return true;
        }
    }
    if (code == u'u') {
        now.isUnderlined = !now.isUnderlined;
    } else if (code == u'o' || code == u'k') {
        out.isSimplified = true;
    } else {
        return TakeByNumber();
    }
    at += 3;
    return true;
}

// Three decimal digits; beyond ASCII they count in the local codec.
bool CTextDecoder::TakeByNumber()
{
    constexpr int kDigits = 3;
    constexpr int kLastByte = 255;
    const QString digits = in.mid(at + 2, kDigits);
    if (digits.size() != kDigits
        || !std::all_of(digits.begin(), digits.end(), &CTextDecoder::IsDigit)
        || digits.toInt() > kLastByte)
    {
        return false;
    }
    const char byte = static_cast<char>(digits.toInt());
    const QString letter = QString::fromLocal8Bit(&byte, 1);
    const bool isLetter = letter.size() == 1 && letter.at(0) != QChar::ReplacementCharacter;
    at += 2 + kDigits;
    Put(isLetter ? letter.at(0) : QChar(QLatin1Char(byte)));
    return true;
}

bool CTextDecoder::TakeUnicode()
{
    if (in.midRef(at, 3) != QLatin1String("\\U+")) {
        return false;
    }
    bool isNumber = false;
    const QStringRef digits = in.midRef(at + 3, kUnicodeDigits);
    const ushort letter = digits.toUShort(&isNumber, kHexadecimal);
    if (!isNumber || digits.size() != kUnicodeDigits) {
        return false;
    }
    at += 3 + kUnicodeDigits;
    Put(letter);
    return true;
}

bool CTextDecoder::TakeDoubleByte()
{
    constexpr int kCodes = static_cast<int>(std::size(kCodePages));
    if (in.midRef(at, 3) != QLatin1String("\\M+")) {
        return false;
    }
    const int page = At(at + 3).digitValue();
    bool isNumber = false;
    const QStringRef digits = in.midRef(at + 4, kUnicodeDigits);
    const ushort bytes = digits.toUShort(&isNumber, kHexadecimal);
    const QTextCodec* codec =
        page >= 1 && page <= kCodes ? QTextCodec::codecForName(kCodePages[page - 1]) : nullptr;
    if (codec == nullptr || !isNumber || digits.size() != kUnicodeDigits) {
        return false;
    }
    const char pair[] = {static_cast<char>(bytes >> 8U), static_cast<char>(bytes & 0xFFU)};
    const QString letters =
        pair[0] == 0 ? codec->toUnicode(pair + 1, 1) : codec->toUnicode(pair, 2);
    at += 4 + kUnicodeDigits;
    Put(letters);
    return true;
}

// "^I" and its like are control characters, "^ " is the caret itself; "x^2" is what it looks like.
bool CTextDecoder::TakeCaret()
{
    if (At(at) != u'^') {
        return false;
    }
    const QChar code = At(at + 1);
    if (code != u' ' && (code < u'@' || code > u'_')) {
        return false;
    }
    at += 2;
    if (code == u' ') {
        Put(u'^');
    } else if (code == u'I') {
        Put(u' ');
    } else if (code == u'J' || (code == u'M' && in.midRef(at, 2) != QLatin1String("^J"))) {
        Put(kLineFeed);
    }
    return true;
}

} // namespace velorx
