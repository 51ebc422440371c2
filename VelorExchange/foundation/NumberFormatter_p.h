// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <cstddef>

namespace VelorExchange {

/// The most digits behind the point that `PutFixed` takes.
constexpr int kMostFixedDigits = 17;

/// Bytes that `PutFixed` may use: a sign, 309 digits, the point, 17 digits.
constexpr std::size_t kFixedRoom = 328;

/// Bytes that `PutInt` and `PutHex` may use.
constexpr std::size_t kIntRoom = 20;

/// Writes `value` in fixed notation at `out` and returns the end of it: byte for byte the text of
/// `QString::number(value, 'f', digits)`, ties, signed zeros, "inf" and "nan" included, whatever the
/// locale. `digits` is 0 to `kMostFixedDigits`; `out` has `kFixedRoom` bytes.
char* PutFixed(char* out, double value, int digits);

/// Writes `value` in decimal at `out`, which has `kIntRoom` bytes, and returns the end of it.
char* PutInt(char* out, qint64 value);

/// Writes `value` in base 16, lower case, at `out`, which has `kIntRoom` bytes, and returns the end.
char* PutHex(char* out, quint64 value);

/// Appends what `QString::number(value, 'f', digits)` gives, for any value and any `digits`.
void AppendFixed(QByteArray& out, double value, int digits);

/// Appends `value` in decimal.
void AppendInt(QByteArray& out, qint64 value);

} // namespace VelorExchange
