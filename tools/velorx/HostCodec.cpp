// SPDX-License-Identifier: MIT
#include "tools/velorx/HostCodec.h"

#include <QFile>

namespace velorx {

namespace {

constexpr ushort kRawByteBase = 0xDC00;
constexpr ushort kLastRawByte = kRawByteBase + 0xFF;

// A low surrogate behind a high one is half of an ordinary character.
bool IsRawByte(const QChar* text, int at)
{
    const ushort unit = text[at].unicode();
    return unit >= kRawByteBase && unit <= kLastRawByte
        && (at == 0 || !text[at - 1].isHighSurrogate());
}

// Control characters do not count: IBM code pages exchange three of them.
bool IsAsciiTransparent(const QTextCodec& codec)
{
    QString ascii;
    for (ushort c = ' '; c < 0x7F; ++c) {
        ascii.append(QChar(c));
    }
    return codec.fromUnicode(ascii) == ascii.toLatin1()
        && codec.toUnicode(ascii.toLatin1()) == ascii;
}

const QTextCodec* FindCodePage(const std::string& name)
{
    const QTextCodec* codec =
        name.empty() ? nullptr : QTextCodec::codecForName(QByteArray::fromStdString(name));
    return codec != nullptr && IsAsciiTransparent(*codec) ? codec : nullptr;
}

} // namespace

QString CHostCodec::convertToUnicode(const char* in, int length, ConverterState* state) const
{
    return codePage.toUnicode(in, length, state);
}

QByteArray CHostCodec::convertFromUnicode(const QChar* in, int length, ConverterState* state) const
{
    QByteArray bytes;
    int begin = 0;
    for (int at = 0; at <= length; ++at) {
        if (at < length && !IsRawByte(in, at)) {
            continue;
        }
        if (at > begin) {
            bytes += codePage.fromUnicode(in + begin, at - begin, state);
        }
        if (at < length) {
            bytes += static_cast<char>(in[at].unicode() - kRawByteBase);
        }
        begin = at + 1;
    }
    return bytes;
}

bool SetCodePage(const std::string& name)
{
    const QTextCodec* codePage = FindCodePage(name);
    if (codePage == nullptr) {
        return false;
    }
    QTextCodec::setCodecForLocale(new CHostCodec(*codePage));
    return true; // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): Qt owns every codec
}

bool IsCodePage(const std::string& name)
{
    return FindCodePage(name) != nullptr;
}

QString LocalCodePage()
{
    const QTextCodec* local = QTextCodec::codecForLocale();
    const auto* host = dynamic_cast<const CHostCodec*>(local);
    // There is always one.
    return host != nullptr
        ? host->PageName()
        : QString::fromLatin1(local->name()); // NOLINT(clang-analyzer-core.CallAndMessage)
}

QString PathFromBytes(const std::string& bytes)
{
    QString path;
    path.reserve(static_cast<int>(bytes.size()));
    for (const char c : bytes) {
        const bool isPlain = c >= ' ' && c <= '~';
        const ushort byte = static_cast<unsigned char>(c);
        path.append(QChar(isPlain ? byte : static_cast<ushort>(kRawByteBase + byte)));
    }
    return path;
}

QString TextOfPath(const QString& path)
{
    const QByteArray bytes = QFile::encodeName(path);
    const QString text = QString::fromUtf8(bytes);
    return text.contains(QChar::ReplacementCharacter) ? QString::fromLocal8Bit(bytes) : text;
}

QString PathOfText(const QString& text)
{
    return PathFromBytes(text.toUtf8().toStdString());
}

} // namespace velorx
