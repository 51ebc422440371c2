// SPDX-License-Identifier: MIT
#include "tools/velorx/check/DxfValues.h"

#include "tools/velorx/check/DxfKindsOfFinding.h"

#include <QByteArray>

#include <charconv>
#include <cmath>
#include <limits>

namespace velorx {

namespace {

struct SCodeRange
{
    int first;
    int last;
    EDxfValue value;
};

// Codes that are in none of these ranges have texts.
constexpr SCodeRange kRanges[] = {
    {10, 59, EDxfValue::Real},        {60, 99, EDxfValue::Integer},
    {110, 149, EDxfValue::Real},      {160, 179, EDxfValue::Integer},
    {210, 239, EDxfValue::Real},      {270, 299, EDxfValue::Integer},
    {370, 389, EDxfValue::Integer},   {400, 409, EDxfValue::Integer},
    {420, 429, EDxfValue::Integer},   {440, 459, EDxfValue::Integer},
    {460, 469, EDxfValue::Real},      {1010, 1059, EDxfValue::Real},
    {1060, 1071, EDxfValue::Integer},
};

constexpr int kFirstWideCode = 160;
constexpr int kLastWideCode = 169;

QByteArray Bytes(std::string_view value)
{
    return QByteArray::fromRawData(value.data(), static_cast<int>(value.size()));
}

} // namespace

EDxfValue DxfValueOf(int code)
{
    for (const SCodeRange& range : kRanges) {
        if (code <= range.last) {
            return code >= range.first ? range.value : EDxfValue::Text;
        }
    }
    return EDxfValue::Text;
}

bool IsDxfInteger(int code, std::string_view value)
{
    bool isNumber = false;
    const qlonglong number = Bytes(value).toLongLong(&isNumber);
    const bool isWide = code >= kFirstWideCode && code <= kLastWideCode;
    return isNumber
        && (isWide
            || (number >= std::numeric_limits<qint32>::min()
                && number <= std::numeric_limits<quint32>::max()));
}

// Nearly all numbers are plain ones. What is not is asked of Qt, as the library does.
bool IsDxfReal(std::string_view value, bool& isFinite)
{
    double number = 0.0;
    const char* end = value.data() + value.size();
    const std::from_chars_result result = std::from_chars(value.data(), end, number);
    bool isNumber = result.ec == std::errc() && result.ptr == end;
    if (!isNumber) {
        number = Bytes(value).toDouble(&isNumber);
    }
    isFinite = std::isfinite(number);
    return isNumber;
}

void CheckDxfValue(const SDxfPair& pair, CFindings& findings)
{
    const EDxfValue type = DxfValueOf(pair.code);
    if (type == EDxfValue::Text) {
        return;
    }
    const QString detail = QStringLiteral("group %1: ").arg(pair.code);
    bool isFinite = true;
    if (type == EDxfValue::Integer) {
        if (!IsDxfInteger(pair.code, pair.value)) {
            findings.Add(dxffindings::kBadInteger, pair.valuePlace, detail + Shown(pair.value));
        }
    } else if (!IsDxfReal(pair.value, isFinite)) {
        findings.Add(dxffindings::kBadReal, pair.valuePlace, detail + Shown(pair.value));
    } else if (!isFinite) {
        findings.Add(dxffindings::kNotFinite, pair.valuePlace, detail + Shown(pair.value));
    }
}

} // namespace velorx
