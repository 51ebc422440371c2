// SPDX-License-Identifier: MIT
// HEADER: the version, on which the decoding of all text hangs, and the extents.
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

namespace VelorExchange::dxf {

namespace {

constexpr int kVersionDigits = 4; // of AC1015
constexpr int kUnknownVersion = 1009;

} // namespace

CDXFReaderImpl::EOutcome CDXFReaderImpl::ReadHeader()
{
    CHeaderDXF header;
    CDXFTag tag = input.ReadLoneTag();
    while (tag.code != CDXFTag::kNoCode) {
        ReportPosition();
        if (input.Is(tag, 9, "$ACADVER")) {
            if (!ReadVersion()) {
                return EOutcome::GoOn;
            }
            tag = input.ReadLoneTag();
        } else if (input.Is(tag, 9, "$EXTMIN")) {
            tag = ReadExtent(header.extMin);
        } else if (input.Is(tag, 9, "$EXTMAX")) {
            tag = ReadExtent(header.extMax);
        } else if (input.Is(tag, 0, "ENDSEC")) {
            header.version = version;
            callback->OnHeader(header);
            return EOutcome::GoOn;
        } else {
            tag = input.ReadLoneTag();
        }
    }
    return EOutcome::GoOn;
}

// Looks for the next group 1, wherever it stands; false if there is none up to the end of the file.
bool CDXFReaderImpl::ReadVersion()
{
    while (!input.AtEnd()) {
        const CDXFTag tag = input.ReadLoneTag();
        if (tag.code != 1) {
            continue;
        }
        bool ok = false;
        const int number = input.Text(tag.value).right(kVersionDigits).toInt(&ok);
        version = ok ? number : kUnknownVersion;
        input.SetVersion(version);
        return true;
    }
    return false;
}

CDXFTag CDXFReaderImpl::ReadExtent(CPoint3D& corner)
{
    for (;;) {
        const CDXFTag tag = input.ReadLoneTag();
        switch (tag.code) {
        case 10:
            corner.x = input.ToDouble(tag.value);
            break;
        case 20:
            corner.y = input.ToDouble(tag.value);
            break;
        case 30:
            corner.z = input.ToDouble(tag.value);
            break;
        default:
            return tag;
        }
    }
}

} // namespace VelorExchange::dxf
