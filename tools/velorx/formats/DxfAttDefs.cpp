// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfAttDefs.h"

namespace velorx {

using VelorExchange::dxf::CAttribDXF;

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;

enum EFlag { kHidden = 1, kConstant = 2, kVerified = 4, kPreset = 8 };

// The writer sets a definition by its base line, and by the left end, the middle or the right one; the
// point of the last two stands in groups 11 and 21.
void SetPlace(const CDxfGroups& groups, CAttribDXF& text, bool& isMoved)
{
    constexpr int kBaseLine = 12;
    constexpr int kCentre = 1;
    constexpr int kRight = 2;
    const int horizontal = groups.Integer(72);
    const bool isAnchored = (horizontal == kCentre || horizontal == kRight)
        && groups.Integer(74) == 0 && groups.Has(11);
    isMoved = horizontal != 0 && !isAnchored;
    text.alignment = isAnchored ? horizontal + kBaseLine : kBaseLine;
    text.position = {groups.Number(isAnchored ? 11 : 10), groups.Number(isAnchored ? 21 : 20)};
    if (groups.Number(230, 1.0) < 0) {
        text.position.x = -text.position.x;
    }
}

} // namespace

void CDxfAttDefs::BeginBlock(const QString& name)
{
    const QString key = name.toCaseFolded();
    block = blocks.contains(key) ? QString() : key;
}

void CDxfAttDefs::Add(const SDxfSurveyEntity& entity, const CDecode& decode, CDxfTally& tally)
{
    const CDxfGroups& groups = entity.groups;
    SDxfAttDef definition;
    CAttribDXF& text = definition.text;
    text.tag = decode(groups.Text(2));
    text.text = decode(groups.Text(1));
    text.layer = entity.layer;
    text.style.name = groups.Has(7) ? decode(groups.Text(7)) : text.style.name;
    text.style.widthFactor = groups.Number(41, 1.0);
    text.style.obliqueAngle = groups.Number(51) * kDegree;
    text.height = groups.Number(40);
    text.rotation = groups.Number(50) * kDegree;
    text.hidden = (groups.Integer(70) & kHidden) != 0;
    definition.hasNumber = groups.Has(62);
    definition.number = groups.Integer(62);
    definition.hasTrueColour = groups.Has(420);
    definition.trueColour = groups.Integer(420);
    bool isMoved = false;
    SetPlace(groups, text, isMoved);
    const QString prompt = decode(groups.Text(3));
    const bool hasFlags = (groups.Integer(70) & (kConstant | kVerified | kPreset)) != 0;
    tally.Lose(EDxfLoss::TextAlignments, entity.layer, isMoved ? 1 : 0);
    tally.Lose(EDxfLoss::AttDefFlags, entity.layer, hasFlags ? 1 : 0);
    tally.Lose(EDxfLoss::AttDefPrompts, entity.layer,
               prompt.isEmpty() || prompt == text.tag ? 0 : 1);
    if (!block.isEmpty()) {
        blocks[block].push_back(definition);
    }
}

const SDxfAttDef* CDxfAttDefs::Find(const QString& name, std::size_t position) const
{
    const auto found = blocks.constFind(name.toCaseFolded());
    return found != blocks.constEnd() && position < found->size() ? &(*found)[position] : nullptr;
}

} // namespace velorx
