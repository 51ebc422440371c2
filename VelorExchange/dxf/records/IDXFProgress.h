// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Export.h"

#include <QString>
#include <QtGlobal>

namespace VelorExchange::dxf {

/// Where a reader reports how far it is. Owned by the host; called on the thread of the read.
class VELOREXCHANGE_EXPORT IDXFProgress
{
public:
    /// Reading starts. `title` is empty; `total` is the size of the file in bytes.
    virtual void Begin(const QString& title, qint64 total) = 0;

    /// The reader stands at byte `position`, which never falls and ends at the total.
    virtual void SetPosition(qint64 position) = 0;

    /// Reading has ended, whatever its result.
    virtual void Finish() = 0;

protected:
    ~IDXFProgress() = default;
};

} // namespace VelorExchange::dxf
