// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/NumberFormatter_p.h"
#include "VelorExchange/pnr/PnrTxtWriterImpl_p.h"

#include <cstddef>

namespace VelorExchange::pnr {

constexpr quint16 kDefaultAlign = 24;

template <std::size_t N>
void CPnrTxtWriterImpl::Put(const char (&words)[N])
{
    output.Put(words, N - 1);
}

// "WORD value\n"
template <std::size_t N>
void CPnrTxtWriterImpl::PutField(const char (&word)[N], qint64 value)
{
    Put(word);
    Put(" ");
    PutInt(value);
    Put("\n");
}

template <std::size_t N>
void CPnrTxtWriterImpl::PutField(const char (&word)[N], const QString& value)
{
    Put(word);
    Put(" ");
    Put(value);
    Put("\n");
}

inline void CPnrTxtWriterImpl::PutInt(qint64 value)
{
    output.Commit(VelorExchange::PutInt(output.Room(kIntRoom), value));
}

} // namespace VelorExchange::pnr
