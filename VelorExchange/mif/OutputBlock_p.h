// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/NumberFormatter_p.h"

#include <QByteArray>
#include <QString>

#include <cstring>
#include <memory>
#include <string_view>

namespace VelorExchange::mif {

/// The bytes of one object on their way into a file. Room is kept for the next object.
class COutputBlock
{
public:
    void Clear() { end = begin.get(); }
    const char* Data() const { return begin.get(); }
    qint64 Size() const { return end - begin.get(); }

    void Put(char c) { *Room(1)++ = c; }

    void Put(std::string_view text)
    {
        std::memcpy(Room(text.size()), text.data(), text.size());
        end += text.size();
    }

    /// By the local codec.
    void PutText(const QString& text)
    {
        const QByteArray bytes = text.toLocal8Bit();
        Put(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    }

    void PutInteger(qint64 value) { end = PutInt(Room(kIntRoom), value); }

    /// What `QString::number(value, 'f', digits)` gives, for any `digits`.
    void PutReal(double value, int digits)
    {
        if (digits >= 0 && digits <= kMostFixedDigits) {
            end = PutFixed(Room(kFixedRoom), value, digits);
        } else {
            PutText(QString::number(value, 'f', digits));
        }
    }

private:
    // Where the next bytes go, with room for `size` of them.
    char*& Room(std::size_t size)
    {
        if (static_cast<std::size_t>(limit - end) < size) {
            Grow(size);
        }
        return end;
    }
    void Grow(std::size_t size);

    std::unique_ptr<char[]> begin;
    char* end = nullptr;
    char* limit = nullptr;
};

} // namespace VelorExchange::mif
