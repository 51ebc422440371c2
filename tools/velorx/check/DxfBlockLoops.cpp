// SPDX-License-Identifier: MIT
#include "tools/velorx/check/DxfBlockLoops.h"

#include "tools/velorx/check/DxfKindsOfFinding.h"

#include <set>
#include <vector>

namespace velorx {

namespace {

constexpr int kMostInserts = 100000;
constexpr int kNameCode = 2;

QString Folded(std::string_view name)
{
    return QString::fromLocal8Bit(name.data(), static_cast<int>(name.size())).toUpper();
}

} // namespace

void CDxfBlockLoops::Take(const SDxfPair& pair, const CDxfStructure& structure)
{
    if (pair.code != kNameCode || structure.Section() != "BLOCKS") {
        return;
    }
    if (structure.Object() == "BLOCK") {
        current = Folded(pair.value);
    } else if (structure.Object() == "INSERT" && insertCount < kMostInserts) {
        const bool isNew = blocks[current].emplace(Folded(pair.value), pair.valuePlace).second;
        insertCount += isNew ? 1 : 0;
    }
}

// Depth first: an insert of a block that is on the way down closes a loop.
void CDxfBlockLoops::Finish(CFindings& findings) const
{
    std::set<QString> seen;
    std::set<QString> onTheWay;
    std::vector<SStep> steps;
    const auto enter = [&](CBlocks::const_iterator block) {
        if (block != blocks.end() && seen.insert(block->first).second) {
            onTheWay.insert(block->first);
            steps.push_back({block, block->second.begin()});
        }
    };
    for (auto start = blocks.begin(); start != blocks.end(); ++start) {
        enter(start);
        while (!steps.empty()) {
            SStep& step = steps.back();
            if (step.next == step.block->second.end()) {
                onTheWay.erase(step.block->first);
                steps.pop_back();
                continue;
            }
            const auto& [name, place] = *step.next;
            ++step.next;
            if (onTheWay.count(name) > 0) {
                findings.Add(dxffindings::kBlockLoop, place,
                             Shown(name.toLocal8Bit().toStdString()));
            } else {
                enter(blocks.find(name));
            }
        }
    }
}

} // namespace velorx
