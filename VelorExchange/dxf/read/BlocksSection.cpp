// SPDX-License-Identifier: MIT
// BLOCKS: each block is gathered whole and handed over at its end.
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

namespace VelorExchange::dxf {

// A block still open at the end of the section stays open: it swallows what follows, as
// BlocksSection.OpenBlockSwallowsEntities holds.
CDXFReaderImpl::EOutcome CDXFReaderImpl::ReadBlocks()
{
    CDXFTag tag = input.ReadLoneTag();
    while (tag.code != CDXFTag::kNoCode) {
        ReportPosition();
        if (input.Is(tag, 0, "BLOCK") && !ReadBlock(tag)) {
            return EOutcome::Failed;
        }
        if (input.Is(tag, 0, "ENDBLK")) {
            tag = ReadEndOfBlock();
        } else if (input.Is(tag, 0, "ENDSEC")) {
            return EOutcome::GoOn;
        } else {
            tag = input.ReadLoneTag();
        }
    }
    return EOutcome::GoOn;
}

// Leaves in `tag` what ended the entities. False at the end of the file.
bool CDXFReaderImpl::ReadBlock(CDXFTag& tag)
{
    tag = tags.ReadObject();
    currentBlock = std::make_unique<CBlockDXF>();
    currentBlock->name = tags.Value(2);
    return ReadEntityLoop(tag);
}

CDXFTag CDXFReaderImpl::ReadEndOfBlock()
{
    const CDXFTag next = tags.ReadObject();
    if (currentBlock) {
        callback->OnBlock(*currentBlock);
        currentBlock.reset();
    }
    return next;
}

} // namespace VelorExchange::dxf
