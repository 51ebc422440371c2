// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfHiddenTags.h"

namespace velorx {

namespace {

constexpr int kName = 2;
constexpr int kFlags = 70;
constexpr int kHidden = 1;

} // namespace

void CDxfHiddenTags::Take(const SDxfSurveyEntity& entity, const CDecode& decode)
{
    if (entity.kind == "INSERT") {
        block = decode(entity.groups.Text(kName)).toCaseFolded();
    } else if (entity.kind == "ATTRIB") {
        SUse& use = uses[{block, decode(entity.groups.Text(kName))}];
        ++((entity.groups.Integer(kFlags) & kHidden) != 0 ? use.hidden : use.shown);
    }
}

bool CDxfHiddenTags::IsHidden(const QString& name, const QString& tag) const
{
    const SUse use = uses.value({name.toCaseFolded(), tag});
    return use.hidden > 0 && use.shown == 0;
}

qint64 CDxfHiddenTags::Mixed() const
{
    qint64 count = 0;
    for (const SUse& use : uses) {
        count += use.shown > 0 ? use.hidden : 0;
    }
    return count;
}

} // namespace velorx
