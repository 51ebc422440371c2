// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/IDXFProgress.h"

#include <QJsonObject>
#include <QString>

namespace velorx {

/// What `velorx info` gathers of one file; one class for each family of formats.
///
/// It holds counts and the names that it lists, never the objects themselves, so that its memory does
/// not follow the size of the file.
class ISummary
{
public:
    ISummary() = default;
    ISummary(const ISummary&) = delete;
    ISummary(ISummary&&) = delete;
    ISummary& operator=(const ISummary&) = delete;
    ISummary& operator=(ISummary&&) = delete;
    virtual ~ISummary() = default;

    /// Reads the file, which can be opened. `progress` stays the caller's, can be null and outlives the
    /// call. Where it returns an error in words, what was read up to there is kept all the same; an
    /// empty string is success.
    virtual QString Read(const QString& path, VelorExchange::dxf::IDXFProgress* progress) = 0;

    /// The summary for people: lines that each end with a line feed.
    virtual QString ToText() const = 0;

    /// The summary for programs.
    virtual QJsonObject ToJson() const = 0;
};

} // namespace velorx
