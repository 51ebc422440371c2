// SPDX-License-Identifier: MIT
#include "tools/velorx/check/SxfChecker.h"

#include "tools/velorx/check/SxfKindsOfFinding.h"
#include "tools/velorx/check/SxfRecordCheck.h"
#include "tools/velorx/formats/SxfHeader.h"

#include <QtEndian>

#include <algorithm>

namespace velorx {

using namespace sxffindings;

namespace {

constexpr qint64 kLengthOffset = 4;
constexpr qint64 kVersionOffset = 8;
constexpr qint64 kChecksumOffset = 12;
constexpr qint64 kDescriptorOffset = 400;
constexpr qint64 kDescriptorLengthOffset = 404;
constexpr qint64 kCountOffset = 440;
constexpr qint64 kRecordsOffset = 452;

constexpr qint32 kVersion = 0x40000;
constexpr qint32 kHeaderLength = 400;
constexpr qint32 kDescriptorMagic = 0x544144; // "DAT" and a zero
constexpr qint32 kDescriptorLength = 52;
constexpr qint64 kBlockSize = 1048576;

// The sum is one of signed bytes.
quint32 SumOf(const QByteArray& bytes)
{
    quint32 sum = 0;
    for (const char byte : bytes) {
        sum += static_cast<quint32>(static_cast<signed char>(byte));
    }
    return sum;
}

QString Hexadecimal(quint32 number)
{
    constexpr int kBase = 16;
    return QStringLiteral("0x") + QString::number(number, kBase);
}

} // namespace

QString CSxfChecker::Check(const QString& path, CFindings& found,
                           VelorExchange::dxf::IDXFProgress* progress)
{
    file.setFileName(path);
    findings = &found;
    if (!file.open(QIODevice::ReadOnly)) {
        return file.errorString();
    }
    if (progress != nullptr) {
        progress->Begin(QString(), file.size());
    }
    if (CheckHeader()) {
        CheckSum();
        CheckRecords(progress);
    }
    if (progress != nullptr) {
        progress->Finish();
    }
    file.close();
    return {};
}

// What is not there is 0.
qint32 CSxfChecker::Number(qint64 offset)
{
    QByteArray bytes = file.seek(offset) ? file.read(sizeof(qint32)) : QByteArray();
    bytes.resize(sizeof(qint32));
    return qFromLittleEndian<qint32>(bytes.constData());
}

// False where there is no use in going on.
bool CSxfChecker::CheckHeader()
{
    constexpr quint32 kHalf = 16;
    if (!IsSxfContent(file.peek(kVersionOffset))) {
        findings->Add(kNoMagic, {0, 0});
        return false;
    }
    const qint32 version = Number(kVersionOffset);
    if (version != kVersion) {
        const quint32 major = static_cast<quint32>(version) >> kHalf;
        findings->Add(kOtherVersion, {0, kVersionOffset},
                      major > 0 ? QString::number(major) : QString::number(version));
        return false;
    }
    if (file.size() < kRecordsOffset) {
        findings->Add(kShortHeader, {0, file.size()});
    }
    struct SField
    {
        qint64 offset;
        qint32 value;
    };
    constexpr SField kFields[] = {{kLengthOffset, kHeaderLength},
                                  {kDescriptorOffset, kDescriptorMagic},
                                  {kDescriptorLengthOffset, kDescriptorLength}};
    for (const SField& field : kFields) {
        const qint32 value = Number(field.offset);
        if (value != field.value) {
            findings->Add(kBadHeader, {0, field.offset}, QString::number(value));
        }
    }
    return true;
}

void CSxfChecker::CheckSum()
{
    quint32 sum = 0;
    file.seek(0);
    for (QByteArray block = file.read(kBlockSize); !block.isEmpty(); block = file.read(kBlockSize))
    {
        sum += SumOf(block);
    }
    file.seek(kChecksumOffset);
    sum -= SumOf(file.read(sizeof(quint32)));
    const auto told = static_cast<quint32>(Number(kChecksumOffset));
    if (sum != told) {
        findings->Add(kBadChecksum, {0, kChecksumOffset},
                      QStringLiteral("tells %1, is %2").arg(Hexadecimal(told), Hexadecimal(sum)));
    }
}

void CSxfChecker::CheckRecords(VelorExchange::dxf::IDXFProgress* progress)
{
    const qint32 told = Number(kCountOffset);
    position = kRecordsOffset;
    qint64 records = 0;
    while (records < told && FindRecord()) {
        ++records;
        if (!CheckRecord()) {
            position += static_cast<qint64>(sizeof(qint32)); // behind its marker, to the next one
        }
        if (progress != nullptr) {
            progress->SetPosition(position);
        }
    }
    if (told < 0 || records < told) {
        findings->Add(kBadRecordCount, {0, kCountOffset},
                      QStringLiteral("tells %1, has %2").arg(told).arg(records));
    } else if (position < file.size()) {
        findings->Add(kBehindRecords, {0, position}, QString(), file.size() - position);
    }
}

// Goes to the next marker if there is none here.
bool CSxfChecker::FindRecord()
{
    const QByteArray marker = [] {
        QByteArray bytes(sizeof(qint32), '\0');
        qToLittleEndian(kSxfRecordMarker, bytes.data());
        return bytes;
    }();
    file.seek(position);
    if (file.peek(marker.size()) == marker) {
        return true;
    }
    if (position < file.size()) {
        findings->Add(kOutOfStep, {0, position});
    }
    while (position < file.size()) {
        file.seek(position);
        const QByteArray block = file.read(kBlockSize);
        const int found = block.indexOf(marker);
        if (found >= 0) {
            position += found;
            return true;
        }
        // A marker may begin at the end of the block.
        const qint64 step = block.size() - (marker.size() - 1);
        position += step > 0 ? step : block.size();
    }
    position = file.size();
    return false;
}

// False if the record does not tell where the next one is.
bool CSxfChecker::CheckRecord()
{
    const qint64 length = Number(position + static_cast<qint64>(sizeof(qint32)));
    if (length < kSxfRecordStart || length > file.size() - position) {
        findings->Add(kBadLength, {0, position}, QStringLiteral("length %1").arg(length));
        return false;
    }
    file.seek(position);
    const QByteArray record = file.read(length);
    if (record.size() != length) {
        return false;
    }
    CSxfRecordCheck(record, position, *findings).Run();
    position += length;
    return true;
}

} // namespace velorx
