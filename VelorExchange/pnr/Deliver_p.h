// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/pnr/IPnrReader.h"
#include "VelorExchange/pnr/Objects.h"

namespace VelorExchange::pnr {

// The operation of the host that takes the object; with a null host the object goes nowhere.

inline void Deliver(IPnrReader::IContext* host, CLineObject& line)
{
    if (host) {
        host->AddLine(&line);
    }
}

inline void Deliver(IPnrReader::IContext* host, CSquareObject& square)
{
    if (host) {
        host->AddSquare(&square);
    }
}

inline void Deliver(IPnrReader::IContext* host, CPointObject& point)
{
    if (host) {
        host->AddPoint(&point);
    }
}

inline void Deliver(IPnrReader::IContext* host, CTextObject& text)
{
    if (host) {
        host->AddText(&text);
    }
}

} // namespace VelorExchange::pnr
