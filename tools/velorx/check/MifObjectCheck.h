// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/MifScan.h"

#include <string>

namespace velorx {

/// Looks through the objects of a table, behind "Data".
class CMifObjectCheck
{
public:
    /// Both outlive this object.
    CMifObjectCheck(CMifScan& lines, CFindings& results) : scan(lines), findings(results) { }

    /// Takes one line and what belongs to it; false at the end of the file.
    bool Next();

    /// How many rows the objects so far want.
    qint64 Objects() const { return objects; }

private:
    struct SObject;
    static const SObject kObjects[];

    void TakeObject(const SObject& object);
    void TakeNothing();
    void TakePoint();
    void TakeMultipoint();
    void TakeLine();
    void TakePolyline();
    void TakeRegion();
    void TakeBox();
    void TakeBoxAndMore(std::size_t more);
    void TakeArc();
    void TakeRoundRect();
    void TakeText();
    void TakeCollection();

    void CheckWord(const SObject& object);
    void CheckNumbers(std::size_t first, std::size_t count);
    bool TakeNumbersHere(std::size_t first, std::size_t count);
    bool TakeCountHere(int& count);
    void TakeChains(int chains, int fewest);
    bool TakeChain(int count, int fewest);
    bool TakeVertices(int count, const SPlace& place);
    bool TakeClause(const std::string& word);
    bool IsVertex() const;
    void SkipVertices(const SPlace& place, int count);
    bool NextLine();
    void Add(const SFindingKind& kind);

    CMifScan& scan;
    CFindings& findings;
    qint64 objects = 0;
    int parts = 0; ///< Of a collection, still to come, which have no row of their own.
    bool isBehindObject = false;
    SPlace start; ///< Of the object at hand.
};

} // namespace velorx
