// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/TagOutput_p.h"

#include "VelorExchange/dxf/write/CodePage1251_p.h"
#include "VelorExchange/foundation/FileError.h"
#include "VelorExchange/foundation/TemporaryFile_p.h"

#include <algorithm>

namespace VelorExchange::dxf {

namespace {

// A text is encoded in parts of so many QChars.
constexpr int kTextPart = 65536;

bool IsLineBreak(char c)
{
    return c == '\r' || c == '\n';
}

} // namespace

void AppendValue(QByteArray& out, const QChar* text, int size)
{
    const int start = out.size();
    AppendCodePage1251(out, text, size);
    std::replace_if(out.begin() + start, out.end(), IsLineBreak, ' ');
}

CTagOutput::CTagOutput() : begin(new char[kBufferSize]), end(begin.get()) { }

void CTagOutput::SetTarget(QFile& file)
{
    if (target != &file) {
        WriteGathered();
        target = &file;
    }
}

void CTagOutput::Flush()
{
    WriteGathered();
    if (target != nullptr && !target->flush()) {
        Fail();
    }
}

void CTagOutput::Reset()
{
    target = nullptr;
    end = begin.get();
    failed = false;
}

void CTagOutput::Abandon(QFile& file)
{
    end = begin.get();
    target = &file;
}

void CTagOutput::WriteText(int code, const QChar* text, int size)
{
    PutCode(code);
    QByteArray bytes;
    for (int from = 0; from < size;) {
        int part = std::min(size - from, kTextPart);
        // A letter of two QChars stays in one part.
        part += static_cast<int>(from + part < size && text[from + part - 1].isHighSurrogate());
        bytes.clear();
        AppendValue(bytes, text + from, part);
        WriteBytes(bytes);
        from += part;
    }
    MakeRoom();
    PutLineEnd();
}

void CTagOutput::WriteAscii(int code, std::string_view text)
{
    PutCode(code);
    WriteBytes(text);
    MakeRoom();
    PutLineEnd();
}

void CTagOutput::WriteBytes(std::string_view bytes)
{
    while (!bytes.empty()) {
        MakeRoom();
        const auto room = static_cast<std::size_t>(begin.get() + kBufferSize - end);
        const std::size_t part = std::min(bytes.size(), room);
        std::memcpy(end, bytes.data(), part);
        end += part;
        bytes.remove_prefix(part);
    }
}

void CTagOutput::WriteFile(QFile& source)
{
    WriteGathered();
    failed = true; // stays so if the copying throws
    AppendFileContents(*target, source);
    failed = false;
}

void CTagOutput::WriteGathered()
{
    const auto size = static_cast<qint64>(end - begin.get());
    end = begin.get();
    if (size > 0) {
        WriteToTarget(begin.get(), size);
    }
}

// A write that comes short is gone on with, so that the one that fails tells why.
void CTagOutput::WriteToTarget(const char* data, qint64 size)
{
    while (size > 0) {
        const qint64 written = target->write(data, size);
        if (written <= 0) {
            Fail();
        }
        data += written;
        size -= written;
    }
}

void CTagOutput::Fail()
{
    failed = true;
    throw FileError(*target);
}

} // namespace VelorExchange::dxf
