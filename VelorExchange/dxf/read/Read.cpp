// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/Read.h"

#include "VelorExchange/dxf/read/BlockExpander_p.h"
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

#include <QFile>

namespace VelorExchange::dxf {

bool Read(const QString& path, IDXFReader* reader)
{
    QFile file(path);
    // Blocks are large already: a second buffer would only copy them.
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return false;
    }
    const qint64 size = file.size();
    if (IDXFProgress* const progress = reader->GetProgress()) {
        progress->Begin(QString(), size);
    }
    CDXFReaderImpl impl(file, reader);
    const bool result = impl.ReadSections();
    if (IDXFProgress* const progress = reader->GetProgress()) {
        progress->SetPosition(size);
        progress->Finish();
    }
    return result;
}

bool ParseBlock(const CBlockDXF& block, const CInsertDXF& insert, IDXFReader* reader)
{
    CBlockExpander expander(reader, insert);
    for (const CEntityVariantDXF& entity : block.entities) {
        boost::variant2::visit(expander, entity);
    }
    return true;
}

} // namespace VelorExchange::dxf
