// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/Findings.h"

#include <QByteArray>
#include <QtGlobal>

#include <cstddef>

namespace velorx {

/// The marker ahead of every record of a binary map.
constexpr qint32 kSxfRecordMarker = 0x7FFF7FFF;

/// Marker and head of a record, in bytes.
constexpr qint64 kSxfRecordStart = 32;

/// Looks through one record of a binary map.
class CSxfRecordCheck
{
public:
    /// `record` is a whole record from its marker on, as long as it says itself, at `position` in its file.
    CSxfRecordCheck(const QByteArray& record, qint64 position, CFindings& results);

    void Run();

private:
    enum class EElement { Int16, Int32, Float, Double };

    bool TakeContour(int vertices);
    bool TakeContours();
    bool TakeDrawing();
    bool TakeExtraBlock();
    bool TakeAttributes();
    bool TakeAttribute();
    void CheckCoordinates(qint64 count);
    bool Skip(qint64 size);
    bool Fail(const SFindingKind& kind, const QString& detail);
    template <class T>
    bool Take(T& value);

    const QByteArray& bytes;
    qint64 start;
    CFindings& findings;
    qint64 at = 0; ///< In the record.
    qint64 metricEnd = 0;
    quint32 flags = 0;
    bool isText = false;
    EElement element = EElement::Int16;
    bool hasHeights = false;
};

} // namespace velorx
