// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/TxtLines_p.h"

#include <QTextCodec>

#include <algorithm>
#include <cstring>

namespace VelorExchange::pnr {

namespace {

constexpr std::size_t kBlockSize = 262144;

} // namespace

bool CTxtLines::Open(const QString& fileName)
{
    Close();
    file.setFileName(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return false;
    }
    buffer.resize(kBlockSize);
    return true;
}

void CTxtLines::Close()
{
    file.close();
    begin = 0;
    end = 0;
    kept = kNothing;
    started = false;
    marked.reset();
    toUtf8.reset();
}

bool CTxtLines::Next(CTxtSpan& line)
{
    std::size_t searched = 0; // of the bytes from `begin` on
    const char* newLine = nullptr;
    for (;;) {
        const char* from = buffer.data() + begin + searched;
        searched = end - begin;
        const auto size = static_cast<std::size_t>(buffer.data() + end - from);
        newLine = size > 0 ? static_cast<const char*>(std::memchr(from, '\n', size)) : nullptr;
        if (newLine || !Fill()) {
            break;
        }
    }
    if (!newLine && begin == end) {
        return false;
    }
    line.data = buffer.data() + begin;
    line.size = static_cast<std::size_t>((newLine ? newLine : buffer.data() + end) - line.data);
    begin += line.size + (newLine ? 1 : 0);
    if (line.size > 0 && line.data[line.size - 1] == '\r') {
        --line.size;
    }
    return true;
}

void CTxtLines::KeepFrom(const CTxtSpan& line)
{
    kept = static_cast<std::size_t>(line.data - buffer.data());
}

// Moves what is still needed to the front, and makes the buffer larger where that is all of it. One
// byte stays free for the line feed that Fill puts behind the last one.
void CTxtLines::MakeRoom()
{
    const std::size_t first = std::min(begin, kept);
    if (first > 0) {
        std::memmove(buffer.data(), buffer.data() + first, end - first);
    }
    begin -= first;
    end -= first;
    kept -= kept == kNothing ? 0 : first;
    if (buffer.size() - end < kBlockSize / 2) {
        buffer.resize(buffer.size() * 2);
    }
}

bool CTxtLines::Fill()
{
    if (!file.isOpen()) {
        return false;
    }
    MakeRoom();
    const bool more = marked ? ReadMarked() : Read();
    buffer[end] = '\n'; // so that whatever looks at the last line meets its end
    return more;
}

bool CTxtLines::Read()
{
    const qint64 got = file.read(buffer.data() + end, static_cast<qint64>(buffer.size() - end - 1));
    if (got <= 0) {
        return false;
    }
    const auto size = static_cast<std::size_t>(got);
    if (!started) {
        started = true;
        LookForByteOrderMark(buffer.data(), size);
    }
    if (marked) {
        const std::vector<char> first(buffer.data(), buffer.data() + size);
        Append(first.data(), first.size());
    } else {
        end += size;
    }
    return true;
}

bool CTxtLines::ReadMarked()
{
    const QByteArray block = file.read(static_cast<qint64>(kBlockSize));
    if (block.isEmpty()) {
        return false; // to the decoder nothing would mean the end of a character cut short
    }
    Append(block.constData(), static_cast<std::size_t>(block.size()));
    return true;
}

void CTxtLines::LookForByteOrderMark(const char* data, std::size_t size)
{
    const QByteArray bytes =
        QByteArray::fromRawData(data, static_cast<int>(std::min<std::size_t>(size, 4)));
    if (QTextCodec* codec = QTextCodec::codecForUtfText(bytes, nullptr)) {
        marked.reset(codec->makeDecoder());
        toUtf8.reset(QTextCodec::codecForName("UTF-8")->makeEncoder(QTextCodec::IgnoreHeader));
    }
}

void CTxtLines::Append(const char* data, std::size_t size)
{
    const QByteArray bytes = toUtf8->fromUnicode(marked->toUnicode(data, static_cast<int>(size)));
    const auto more = static_cast<std::size_t>(bytes.size());
    if (buffer.size() - end <= more) {
        buffer.resize(end + more + 1);
    }
    std::memcpy(buffer.data() + end, bytes.constData(), more);
    end += more;
}

// Qt's decoder drops one byte order mark at the start, so it is given one.
QString CTxtLines::Decode(const CTxtSpan& span)
{
    if (!marked) {
        return text.Decode(span.data, span.size);
    }
    QByteArray bytes("\xEF\xBB\xBF");
    bytes.append(span.data, static_cast<int>(span.size));
    return QString::fromUtf8(bytes);
}

} // namespace VelorExchange::pnr
