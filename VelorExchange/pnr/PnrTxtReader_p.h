// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/pnr/IPnrReader.h"
#include "VelorExchange/pnr/TxtBlock_p.h"
#include "VelorExchange/pnr/TxtLines_p.h"
#include "VelorExchange/pnr/TxtObject_p.h"

#include <string>

namespace VelorExchange::pnr {

/// Reads the text form of SXF line by line. Holds a block of the file and the lines of the object in
/// hand.
class CPnrTxtReader final : public IPnrReader
{
public:
    explicit CPnrTxtReader(IContext* host) : IPnrReader(host) { }

    bool Read(const QString& fileName) override;
    const std::wstring& GetLastError() const override { return lastError; }
    bool Open(const QString& fileName) override;

private:
    bool ReadDeclared();
    bool ReadObjects();
    bool ParseBlock(const CTxtBlock& block);
    template <class Object>
    bool ReadObject(const CTxtObjectParser& parser);
    bool Fail(const wchar_t* message);

    CTxtLines lines;
    qint32 declared = 0;
    qint32 counted = 0;
    std::wstring lastError;
};

} // namespace VelorExchange::pnr
