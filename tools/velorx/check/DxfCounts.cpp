// SPDX-License-Identifier: MIT
#include "tools/velorx/check/DxfCounts.h"

#include "tools/velorx/check/Bytes.h"
#include "tools/velorx/check/DxfKindsOfFinding.h"

#include <QByteArray>

#include <cstddef>

namespace velorx {

namespace {

struct SRule
{
    int countCode; ///< 0 for no rule.
    int itemCode;
};

struct SEntityRules
{
    const char* name;
    SRule rules[3];
};

constexpr SEntityRules kEntities[] = {
    {"LWPOLYLINE", {{90, 10}, {0, 0}, {0, 0}}},
    {"MLINE", {{72, 11}, {0, 0}, {0, 0}}},
    {"SPLINE", {{72, 40}, {73, 10}, {74, 11}}},
    {"IMAGE", {{91, 14}, {0, 0}, {0, 0}}},
};

constexpr int kFirstOfExtendedData = 1000;

int EntityWithCounts(const std::string& name)
{
    for (std::size_t i = 0; i < std::size(kEntities); ++i) {
        if (name == kEntities[i].name) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

} // namespace

void CDxfCounts::Take(const SDxfPair& pair, const CDxfStructure& structure)
{
    if (pair.code == 0) {
        Finish();
        entity = structure.IsEntity() ? EntityWithCounts(structure.Object()) : -1;
        return;
    }
    if (entity < 0 || pair.code >= kFirstOfExtendedData) {
        return;
    }
    const auto& rules = kEntities[static_cast<std::size_t>(entity)].rules;
    for (std::size_t i = 0; i < told.size(); ++i) {
        if (rules[i].countCode != 0 && pair.code == rules[i].countCode) {
            told[i].isTold = true;
            told[i].count = Bytes(pair.value).toLongLong();
            told[i].place = pair.valuePlace;
        } else if (rules[i].countCode != 0 && pair.code == rules[i].itemCode) {
            ++told[i].met;
        }
    }
}

void CDxfCounts::Finish()
{
    for (const STold& counted : told) {
        if (entity >= 0 && counted.isTold && counted.count != counted.met) {
            const char* name = kEntities[static_cast<std::size_t>(entity)].name;
            findings.Add(dxffindings::kBadCount, counted.place,
                         QStringLiteral("%1 tells %2, has %3")
                             .arg(QLatin1String(name))
                             .arg(counted.count)
                             .arg(counted.met));
        }
    }
    told = {};
    entity = -1;
}

} // namespace velorx
