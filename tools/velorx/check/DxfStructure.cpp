// SPDX-License-Identifier: MIT
#include "tools/velorx/check/DxfStructure.h"

#include "tools/velorx/check/DxfKindsOfFinding.h"
#include "tools/velorx/formats/DxfKinds.h"

#include <algorithm>

namespace velorx {

using namespace dxffindings;

namespace {

constexpr int kComment = 999;

// These matter to the reader; of others it does not matter where they stand.
constexpr const char* kReadSections[] = {"HEADER", "TABLES", "BLOCKS", "ENTITIES"};

std::string InCapitals(std::string_view text)
{
    std::string capitals(text);
    std::transform(capitals.begin(), capitals.end(), capitals.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    return capitals;
}

bool IsRead(const std::string& entity)
{
    for (std::size_t kind = 0; kind < kDxfKinds; ++kind) {
        if (entity == EntityName(kind)) {
            return true;
        }
    }
    return false;
}

bool IsPart(const std::string& entity)
{
    return entity == "VERTEX" || entity == "ATTRIB" || entity == "SEQEND";
}

} // namespace

void CDxfStructure::Take(const SDxfPair& pair)
{
    if (pair.code == kComment) {
        return;
    }
    if (pair.code == 0) {
        TakeMark(pair);
        return;
    }
    if (section.isOpen) {
        TakeValue(pair);
    } else if (!isOutside) {
        findings.Add(kOutside, pair.codePlace);
        isOutside = true;
    }
}

void CDxfStructure::TakeMark(const SDxfPair& pair)
{
    object = InCapitals(pair.value);
    isEntity = false;
    const SPlace& place = pair.valuePlace;
    if (object == "SECTION" || object == "ENDSEC" || object == "EOF") {
        TakeSectionMark(place);
    } else if (section.name == "TABLES") {
        TakeTableMark(place);
    } else if (section.name == "BLOCKS") {
        TakeBlockMark(place);
    } else if (section.name == "ENTITIES") {
        TakeEntity(place);
    } else if (!section.isOpen) {
        Stray(place);
    }
}

void CDxfStructure::TakeSectionMark(const SPlace& place)
{
    const bool isEndOfSection = object == "ENDSEC";
    isEnded = object == "EOF";
    if (isEndOfSection && !section.isOpen) {
        Stray(place);
    }
    CloseSection(isEndOfSection);
    if (object == "SECTION") {
        section = {true, place, std::string()};
        isSectionNamed = false;
        isOutside = false;
    }
}

void CDxfStructure::CloseSection(bool isMarked)
{
    Close(table, kOpenTable);
    Close(sequence, kOpenSequence);
    Close(block, kOpenBlock);
    hasObjects = hasObjects || section.name == "OBJECTS";
    if (!isMarked) {
        Close(section, kOpenSection);
    }
    section = SOpen();
}

void CDxfStructure::TakeTableMark(const SPlace& place)
{
    if (object == "TABLE") {
        Close(table, kOpenTable);
        table = {true, place, std::string()};
    } else if (object == "ENDTAB") {
        if (!table.isOpen) {
            Stray(place);
        }
        table = SOpen();
    }
}

void CDxfStructure::TakeBlockMark(const SPlace& place)
{
    if (object == "BLOCK") {
        Close(sequence, kOpenSequence);
        Close(block, kOpenBlock);
        block = {true, place, std::string()};
    } else if (object == "ENDBLK") {
        Close(sequence, kOpenSequence);
        if (!block.isOpen) {
            Stray(place);
        }
        block = SOpen();
    } else if (block.isOpen) {
        TakeEntity(place);
    } else {
        Stray(place);
    }
}

void CDxfStructure::TakeEntity(const SPlace& place)
{
    isEntity = true;
    if (IsPart(object)) {
        TakePart(place);
        return;
    }
    Close(sequence, kOpenSequence);
    if (object == "POLYLINE") {
        sequence = {true, place, object};
    } else if (object == "INSERT") {
        sequence = {false, place, object}; // it is open if it says so, or once a part comes
    }
    if (!IsRead(object)) {
        findings.Add(kUnread, place, Shown(object));
    }
}

void CDxfStructure::TakePart(const SPlace& place)
{
    const bool isOfInsert = sequence.name == "INSERT";
    if (object == "ATTRIB" && isOfInsert) {
        sequence.isOpen = true;
    } else if (object == "SEQEND" && sequence.isOpen) {
        sequence = SOpen();
    } else if (object != "VERTEX" || !sequence.isOpen || isOfInsert) {
        Stray(place);
    }
}

void CDxfStructure::TakeValue(const SDxfPair& pair)
{
    constexpr int kName = 2;
    constexpr int kPartsFollow = 66;
    constexpr int kSpace = 67;
    if (!isSectionNamed) {
        NameSection(pair);
    } else if (pair.code == kName && (object == "TABLE" || object == "BLOCK")) {
        (object == "TABLE" ? table : block).name = std::string(pair.value);
    } else if (pair.code == kPartsFollow && isEntity && object == "INSERT") {
        sequence.isOpen = sequence.isOpen || pair.value == "1";
    } else if (pair.code == kSpace && isEntity && pair.value == "1" && !IsPart(object)) {
        findings.Add(kPaperSpace, pair.codePlace, Shown(object));
    }
}

void CDxfStructure::NameSection(const SDxfPair& pair)
{
    section.name = InCapitals(pair.value);
    isSectionNamed = true;
    const bool matters = std::any_of(std::begin(kReadSections), std::end(kReadSections),
                                     [this](const char* name) { return section.name == name; });
    if (hasObjects && matters) {
        findings.Add(kLateSection, section.place, Shown(section.name));
    }
}

void CDxfStructure::Finish(const SPlace& end)
{
    if (!isEnded) {
        findings.Add(kNoEnd, end);
        CloseSection(false);
    }
}

void CDxfStructure::Close(SOpen& open, const SFindingKind& kind)
{
    if (open.isOpen) {
        findings.Add(kind, open.place, Shown(open.name));
    }
    open = SOpen();
}

void CDxfStructure::Stray(const SPlace& place)
{
    findings.Add(kStray, place, Shown(object));
}

} // namespace velorx
