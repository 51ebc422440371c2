// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/IPnrReader.h"
#include "VelorExchange/pnr/IPnrWriter.h"

#include <utility>

namespace VelorExchange::pnr {

IPnrReader::~IPnrReader() = default;
IPnrWriter::~IPnrWriter() = default;
IPnrWriter::IContext::~IContext() = default;

IPnrWriter::IPnrWriter(std::shared_ptr<IContext> conversion) : context(std::move(conversion)) { }

} // namespace VelorExchange::pnr
