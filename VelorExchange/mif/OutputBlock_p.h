// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/NumberFormatter_p.h"

#include <QByteArray>
#include <QtGlobal>

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

    void Put(char c)
    {
        *Room(1) = c;
        ++end;
    }

    void Put(std::string_view text)
    {
        std::memcpy(Room(text.size()), text.data(), text.size());
        end += text.size();
    }

    void PutInteger(qint64 value) { end = PutInt(Room(kIntRoom), value); }

    /// What `QString::number(value, 'f', digits)` gives, for any `digits`.
    void PutReal(double value, int digits)
    {
        if (digits >= 0 && digits <= kMostFixedDigits) {
            end = PutFixed(Room(kFixedRoom), value, digits);
        } else {
            const QByteArray text = QByteArray::number(value, 'f', digits);
            Put(std::string_view(text.constData(), static_cast<std::size_t>(text.size())));
        }
    }

    /// Where the next bytes go, with room for `size` of them.
    char* Room(std::size_t size)
    {
        if (static_cast<std::size_t>(limit - end) < size) {
            Grow(size);
        }
        return end;
    }

    /// Takes what has been put into the room up to `newEnd`.
    void SetEnd(char* newEnd) { end = newEnd; }

private:
    void Grow(std::size_t size);

    std::unique_ptr<char[]> begin;
    char* end = nullptr;
    char* limit = nullptr;
};

} // namespace VelorExchange::mif
