// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/pnr/BlockFile_p.h"
#include "VelorExchange/pnr/IPnrReader.h"
#include "VelorExchange/pnr/SxfLayout_p.h"
#include "VelorExchange/pnr/SxfRecord_p.h"

#include <array>
#include <string>

namespace VelorExchange::pnr {

/// Reads a binary SXF file of version 4: once for the checksum, once for the records. Holds the
/// header, a block of the file and the record in hand.
class CPnrBinReader final : public IPnrReader
{
public:
    explicit CPnrBinReader(IContext* host) : IPnrReader(host) { }

    bool Read(const QString& fileName) override;
    const std::wstring& GetLastError() const override { return lastError; }
    bool Open(const QString& fileName) override;

private:
    bool ReadRecords();
    bool ReadRecord(CSxfRecordParser& parser);
    template <class Object>
    bool ReadObject(CSxfRecordParser& parser, const CSxfRecordHead& head, CByteCursor& cursor);
    void ReadHeader();
    CSxfFrame Frame() const;
    quint32 SumFile();
    template <class T>
    T HeaderField(int offset) const;
    bool Fail(const wchar_t* message);

    CBlockFile file;
    std::array<char, sxf::kRecordsOffset> header{}; // zeros where the file is shorter
    std::wstring lastError;
};

} // namespace VelorExchange::pnr
