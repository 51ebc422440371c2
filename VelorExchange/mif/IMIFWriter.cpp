// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/IMIFWriter.h"

namespace VelorExchange::mif {

IMIFWriter::IContext::~IContext() = default;

IMIFWriter::~IMIFWriter() = default;

} // namespace VelorExchange::mif
