// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/mif/OutputBlock_p.h"

#include <QString>

#include <vector>

class QTextCodec;

namespace VelorExchange::mif {

/// Turns text into what `QString::toLocal8Bit` gives, through a table for the characters that are one
/// byte whatever stands beside them.
class CLocalEncoder
{
public:
    /// Appends the bytes of `text` by the codec of the moment.
    void Put(COutputBlock& block, const QString& text);

private:
    void Follow(QTextCodec* current);

    QTextCodec* codec = nullptr;
    std::vector<char> bytes; // by character of the basic plane, 0 where the codec has to be asked
};

} // namespace VelorExchange::mif
