// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/SxfCodec.h"

namespace velorx {

namespace {

constexpr char kDefaultCodec[] = "windows-1251";

// Letters of three scripts: no code page of several bytes a character has a single one for each.
bool IsSingleByte(const QTextCodec& codec)
{
    static const QString letters = QString::fromUtf8("\xC3\xA9\xD0\x96\xE6\x97\xA5");
    return codec.fromUnicode(letters).size() == letters.size();
}

} // namespace

const QTextCodec& SxfCodec()
{
    const QTextCodec* local = QTextCodec::codecForLocale();
    return IsSingleByte(*local) ? *local : *QTextCodec::codecForName(kDefaultCodec);
}

QString SxfFieldText(const QByteArray& field)
{
    const int end = field.indexOf('\0');
    return SxfCodec().toUnicode(end < 0 ? field : field.left(end)).trimmed();
}

} // namespace velorx
