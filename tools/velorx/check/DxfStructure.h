// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/DxfPair.h"

#include <string>
#include <string_view>

namespace velorx {

/// Follows what is open in a drawing: sections, tables, blocks, and the parts of polylines and inserts.
class CDxfStructure
{
public:
    /// `results` outlives this object.
    explicit CDxfStructure(CFindings& results) : findings(results) { }

    void Take(const SDxfPair& pair);

    /// The file ends behind its last pair, at `end`.
    void Finish(const SPlace& end);

    /// Name of the section at hand in capital letters; empty outside of sections.
    const std::string& Section() const { return section.name; }

    /// Name of the object at hand in capital letters, the last value of a group 0.
    const std::string& Object() const { return object; }

    /// Whether the object at hand is an entity, of the drawing or of a block.
    bool IsEntity() const { return isEntity; }

    /// Whether the mark of the end has come.
    bool IsEnded() const { return isEnded; }

private:
    /// Something that is open.
    struct SOpen
    {
        bool isOpen = false;
        SPlace place; ///< Where it was opened.
        std::string name;
    };

    void TakeMark(const SDxfPair& pair);
    void TakeSectionMark(const SPlace& place);
    void TakeTableMark(const SPlace& place);
    void TakeBlockMark(const SPlace& place);
    void TakeEntity(const SPlace& place);
    void TakePart(const SPlace& place);
    void TakeValue(const SDxfPair& pair);
    void NameSection(const SDxfPair& pair);
    void CloseSection(bool isMarked);
    void Close(SOpen& open, const SFindingKind& kind);
    void Stray(const SPlace& place);

    CFindings& findings;
    SOpen section;
    SOpen table;
    SOpen block;
    SOpen sequence; ///< A polyline or an insert whose parts are to come; its name tells which.
    std::string object;
    bool isSectionNamed = false;
    bool isEntity = false;
    bool hasObjects = false; ///< The section OBJECTS has been.
    bool isOutside = false; ///< Groups outside of sections have been told of, up to the next one.
    bool isEnded = false;
};

} // namespace velorx
