// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/Factory.h"

#include "VelorExchange/pnr/ByteCursor_p.h"
#include "VelorExchange/pnr/PnrBinReader_p.h"
#include "VelorExchange/pnr/PnrBinWriterImpl_p.h"
#include "VelorExchange/pnr/PnrTxtReader_p.h"
#include "VelorExchange/pnr/PnrTxtWriterImpl_p.h"
#include "VelorExchange/pnr/SxfLayout_p.h"

#include <QFile>

#include <array>
#include <utility>

namespace VelorExchange::pnr {

IPnrReader* CreateReader(bool text, IPnrReader::IContext* context)
{
    if (text) {
        return new CPnrTxtReader(context);
    }
    return new CPnrBinReader(context);
}

void DeleteReader(IPnrReader* reader)
{
    delete reader;
}

IPnrWriter* CreatePnrWriter(bool text, bool second, std::shared_ptr<IPnrWriter::IContext> context)
{
    if (text) {
        return new CPnrTxtWriterImpl(second, std::move(context));
    }
    return new CPnrBinWriterImpl(second, std::move(context));
}

void DeletePnrWriter(IPnrWriter* writer)
{
    delete writer;
}

bool IsTxtFile(const QString& fileName, bool& text)
{
    constexpr int kReadSize = sxf::kVersionOffset + static_cast<int>(sizeof(qint32));
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    std::array<char, kReadSize> bytes{};
    const bool complete = file.read(bytes.data(), kReadSize) == kReadSize;
    text = !complete
        || CByteCursor::LoadLittleEndian<qint32>(bytes.data() + sxf::kMagicOffset) != sxf::kMagic
        || CByteCursor::LoadLittleEndian<qint32>(bytes.data() + sxf::kVersionOffset)
            != sxf::kVersion;
    return true;
}

} // namespace VelorExchange::pnr
