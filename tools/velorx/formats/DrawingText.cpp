// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DrawingText.h"

#include <QTextCodec>

#include <algorithm>

namespace velorx {

namespace {

constexpr ushort kFirstBeyondAscii = 0x80;
constexpr int kDigits = 4;
constexpr int kHexadecimal = 16;

} // namespace

bool HasPlaceInDrawing(QChar c)
{
    static const QTextCodec* const codec = QTextCodec::codecForName("windows-1251");
    return c.unicode() < kFirstBeyondAscii || (!c.isSurrogate() && codec->canEncode(c));
}

QString TextForDrawing(const QString& text, bool& isWhole)
{
    if (std::all_of(text.begin(), text.end(), HasPlaceInDrawing)) {
        return text;
    }
    QString written;
    for (const QChar c : text) {
        if (HasPlaceInDrawing(c)) {
            written += c;
        } else if (c.isSurrogate()) {
            isWhole = false;
            written += c;
        } else {
            written += QStringLiteral("\\U+")
                + QString::number(c.unicode(), kHexadecimal).rightJustified(kDigits, '0').toUpper();
        }
    }
    return written;
}

} // namespace velorx
