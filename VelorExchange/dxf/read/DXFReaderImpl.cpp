// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

#include "VelorExchange/dxf/read/HatchBoundary_p.h"

namespace VelorExchange::dxf {

namespace {

constexpr int kOldestVersion = 1009;
constexpr int kNoGate = 0;

} // namespace

struct CDXFReaderImpl::CSection
{
    const char* name;
    EOutcome (CDXFReaderImpl::*read)();
    int gate; // what the host is asked with
    bool reportsWhenSkipped;
};

const CDXFReaderImpl::CSection CDXFReaderImpl::kSections[] = {
    {"HEADER", &CDXFReaderImpl::ReadHeader, kNoGate, false},
    {"TABLES", &CDXFReaderImpl::ReadTables, 1, false},
    {"BLOCKS", &CDXFReaderImpl::ReadBlocks, 2, false},
    {"ENTITIES", &CDXFReaderImpl::ReadEntities, 3, true},
    {"OBJECTS", &CDXFReaderImpl::ReadObjects, 4, false},
};

CDXFReaderImpl::CDXFReaderImpl(QIODevice& device, IDXFReader* host)
    : input(device), tags(input), version(kOldestVersion), callback(host)
{
    input.SetVersion(version);
}

CDXFReaderImpl::~CDXFReaderImpl() = default;

void CDXFReaderImpl::ReportPosition()
{
    IDXFProgress* const progress = callback->GetProgress();
    if (progress != nullptr) {
        progress->SetPosition(input.Position());
    }
}

bool CDXFReaderImpl::ReadSections()
{
    while (!input.AtEnd()) {
        CDXFTag tag = input.ReadLoneTag();
        ReportPosition();
        if (input.Is(tag, 0, "EOF")) {
            return true;
        }
        if (!input.Is(tag, 0, "SECTION")) {
            continue;
        }
        tag = input.ReadLoneTag();
        if (tag.code != 2) {
            continue;
        }
        const EOutcome outcome = ReadSection(tag);
        if (outcome != EOutcome::GoOn) {
            return outcome == EOutcome::Done;
        }
    }
    return true;
}

CDXFReaderImpl::EOutcome CDXFReaderImpl::ReadSection(const CDXFTag& name)
{
    for (const CSection& section : kSections) {
        if (!input.Is(name, 2, section.name)) {
            continue;
        }
        if (section.gate != kNoGate && !callback->OnSection(section.gate)) {
            SkipSection(section.reportsWhenSkipped);
            return EOutcome::GoOn;
        }
        return (this->*section.read)();
    }
    SkipSection(false);
    return EOutcome::GoOn;
}

void CDXFReaderImpl::SkipSection(bool reportsPosition)
{
    while (!input.AtEnd()) {
        const CDXFTag tag = input.ReadLoneTag();
        if (reportsPosition) {
            ReportPosition();
        }
        if (input.Is(tag, 0, "ENDSEC")) {
            return;
        }
    }
}

// How the section ends is not looked at: the next one can always follow.
CDXFReaderImpl::EOutcome CDXFReaderImpl::ReadEntities()
{
    CDXFTag tag = input.ReadLoneTag();
    ReadEntityLoop(tag);
    return EOutcome::GoOn;
}

} // namespace VelorExchange::dxf
