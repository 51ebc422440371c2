// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/pnr/SxfText_p.h"

#include <QFile>
#include <QString>
#include <QTextDecoder>
#include <QTextEncoder>

#include <cstddef>
#include <memory>
#include <vector>

namespace VelorExchange::pnr {

/// Some bytes of a line.
struct CTxtSpan
{
    const char* data = nullptr;
    std::size_t size = 0;

    const char* begin() const { return data; }
    const char* end() const { return data + size; }
};

/// Cuts a file into lines as QTextStream does: at LF, with one CR in front of it left out. A file
/// that starts with a byte order mark is read by its own encoding, any other as text of SXF.
///
/// The buffer holds a block of the file and, while lines are kept, all bytes from the first of them
/// on.
class CTxtLines
{
public:
    bool Open(const QString& fileName);
    void Close();

    /// The next line; false at the end of the file. The span stays valid until the next call, and
    /// behind it stands a byte that may be read: CR or LF.
    bool Next(CTxtSpan& line);

    /// Keeps all bytes from `line`, the last one, on, until the next call.
    void KeepFrom(const CTxtSpan& line);

    /// Where the kept bytes begin, until the next call of `Next`.
    const char* Kept() const { return buffer.data() + kept; }

    /// Keeps nothing any more.
    void Release() { kept = kNothing; }

    QString Decode(const CTxtSpan& span);

private:
    static constexpr std::size_t kNothing = static_cast<std::size_t>(-1);

    bool Fill();
    bool Read();
    bool ReadMarked();
    void MakeRoom();
    void Append(const char* data, std::size_t size);
    void LookForByteOrderMark(const char* data, std::size_t size);

    QFile file;
    std::vector<char> buffer;
    std::size_t begin = 0; // of the next line
    std::size_t end = 0;
    std::size_t kept = kNothing;
    bool started = false;
    CSxfText text;
    std::unique_ptr<QTextDecoder> marked; // for a file with a byte order mark
    std::unique_ptr<QTextEncoder> toUtf8;
};

} // namespace VelorExchange::pnr
