// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/NumberFormatter_p.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

namespace VelorExchange::dxf {

/// Appends a value as it stands in its line: in Windows-1251, a blank for each line break, which would
/// end the value.
void AppendValue(QByteArray& out, const QChar* text, int size);

/// The one place where tags become bytes: numbers in fixed or decimal notation, text in Windows-1251,
/// lines ended by CR LF.
///
/// Bytes gather in a buffer of fixed size, which goes to the target when it is full, when the target
/// changes and on `Flush`. A write that fails throws `FileError` built on its file, drops what was
/// gathered and leaves `HasFailed` true.
class CTagOutput
{
public:
    CTagOutput();

    /// Where tags go; null at the start, and then nothing may be written.
    QFile* Target() const { return target; }

    /// Flushes to the present target and turns to another, which is not owned.
    void SetTarget(QFile& file);

    /// Writes out what is gathered. What QFile itself still holds is flushed too.
    void Flush();

    /// Forgets the target, what is gathered, and a failure.
    void Reset();

    /// Forgets what is gathered and turns to `file`, without writing anything.
    void Abandon(QFile& file);

    /// True once an operation on a file has failed.
    bool HasFailed() const { return failed; }

    /// Digits of reals; beyond 0 to 17 they follow `QString::number`.
    void SetPrecision(int digits) { precision = digits; }

    /// A group with a fixed text, which is ASCII.
    template <std::size_t Size>
    void WriteTag(int code, const char (&text)[Size])
    {
        static_assert(Size < kRoom / 2);
        PutCode(code);
        std::memcpy(end, text, Size - 1);
        end += Size - 1;
        PutLineEnd();
    }

    /// The same for a text of any length.
    void WriteAscii(int code, std::string_view text);

    /// A group with a text, as `AppendValue` makes it.
    void WriteTag(int code, const QString& text) { WriteText(code, text.constData(), text.size()); }

    /// The same for a part of a text.
    void WriteText(int code, const QChar* text, int size);

    /// A group with an integer.
    void WriteTag(int code, int value)
    {
        PutCode(code);
        end = PutInt(end, value);
        PutLineEnd();
    }

    /// A group with a handle, hexadecimal in lower case.
    void WriteHandle(int code, int value)
    {
        PutCode(code);
        end = PutHex(end, static_cast<quint32>(value));
        PutLineEnd();
    }

    /// A group with a finite real, with as many digits as the precision in force.
    void WriteReal(int code, double value) { WriteReal(code, value, precision); }

    /// The same with so many digits.
    void WriteReal(int code, double value, int digits)
    {
        PutCode(code);
        if (digits < 0 || digits > kMostFixedDigits) {
            WriteBytes(QByteArray::number(value, 'f', digits));
            MakeRoom();
        } else {
            end = PutFixed(end, value, digits);
        }
        PutLineEnd();
    }

    /// A group whose value comes from `AppendValue`.
    void WriteEncoded(int code, const QByteArray& value)
    {
        WriteAscii(code, {value.constData(), static_cast<std::size_t>(value.size())});
    }

    /// Bytes as they stand.
    void WriteBytes(std::string_view bytes);
    void WriteBytes(const QByteArray& bytes)
    {
        WriteBytes(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    }

    /// The whole of another file.
    void WriteFile(QFile& source);

private:
    // No group but a long text needs more: a code, a number of 328 bytes and two line ends.
    static constexpr std::size_t kRoom = 512;
    static constexpr std::size_t kBufferSize = 262144;

    void MakeRoom()
    {
        if (static_cast<std::size_t>(begin.get() + kBufferSize - end) < kRoom) {
            WriteGathered();
        }
    }
    void PutCode(int code)
    {
        MakeRoom();
        end = PutInt(end, code);
        PutLineEnd();
    }
    void PutLineEnd()
    {
        *end++ = '\r';
        *end++ = '\n';
    }
    void WriteGathered();
    void WriteToTarget(const char* data, qint64 size);
    [[noreturn]] void Fail();

    std::unique_ptr<char[]> begin;
    char* end;
    QFile* target = nullptr;
    int precision = 6;
    bool failed = false;
};

} // namespace VelorExchange::dxf
