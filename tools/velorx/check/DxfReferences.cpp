// SPDX-License-Identifier: MIT
#include "tools/velorx/check/DxfReferences.h"

#include "tools/velorx/check/DxfKindsOfFinding.h"

#include <algorithm>
#include <vector>

namespace velorx {

namespace {

constexpr int kMostNames = 100000;
constexpr int kNameCode = 2;

/// Names that need no definition.
constexpr const char* kPredefined[][3] = {
    {"0"}, {"BYLAYER", "BYBLOCK", "CONTINUOUS"}, {"STANDARD"}, {}};

struct SDefinition
{
    const char* section;
    const char* object;
};

/// By `EWhat`: where a group 2 defines such a thing.
constexpr SDefinition kDefinitions[] = {
    {"TABLES", "LAYER"}, {"TABLES", "LTYPE"}, {"TABLES", "STYLE"}, {"BLOCKS", "BLOCK"}};

const SFindingKind* const kKinds[] = {&dxffindings::kNoLayer, &dxffindings::kNoLineType,
                                      &dxffindings::kNoStyle, &dxffindings::kNoBlock};

QString Decoded(std::string_view value)
{
    return QString::fromLocal8Bit(value.data(), static_cast<int>(value.size()));
}

} // namespace

/// A group that names something.
struct CDxfReferences::SRule
{
    int code;
    const char* object; ///< Of this entity; null for any.
    EWhat what;
};

const std::array<CDxfReferences::SRule, 7> CDxfReferences::kRules = {{
    {8, nullptr, Layer},
    {6, nullptr, LineType},
    {7, "TEXT", Style},
    {7, "MTEXT", Style},
    {7, "ATTRIB", Style},
    {7, "ATTDEF", Style},
    {kNameCode, "INSERT", Block},
}};

CDxfReferences::CDxfReferences()
{
    for (std::size_t what = 0; what < kCount; ++what) {
        for (const char* name : kPredefined[what]) {
            if (name != nullptr) {
                names[what].defined.insert(QLatin1String(name));
            }
        }
    }
}

void CDxfReferences::Take(const SDxfPair& pair, const CDxfStructure& structure)
{
    constexpr int kLineTypeOfLayer = 6;
    if (structure.IsEntity()) {
        for (const SRule& rule : kRules) {
            if (rule.code == pair.code
                && (rule.object == nullptr || structure.Object() == rule.object)) {
                Use(rule.what, pair);
            }
        }
        return;
    }
    for (std::size_t what = 0; what < kCount; ++what) {
        const SDefinition& definition = kDefinitions[what];
        const bool isHere =
            structure.Section() == definition.section && structure.Object() == definition.object;
        if (isHere && pair.code == kNameCode && names[what].defined.size() < kMostNames) {
            names[what].defined.insert(Decoded(pair.value).toUpper());
        } else if (isHere && what == Layer && pair.code == kLineTypeOfLayer) {
            Use(LineType, pair);
        }
    }
}

// Definitions may follow, of blocks above all.
void CDxfReferences::Use(EWhat what, const SDxfPair& pair)
{
    const QString name = Decoded(pair.value);
    const QString folded = name.toUpper();
    auto& used = names[what].used;
    const auto found = used.find(folded);
    if (found != used.end()) {
        ++found->count;
    } else if (!name.isEmpty() && used.size() < kMostNames) {
        used.insert(folded, {pair.valuePlace, name, 1});
    }
}

void CDxfReferences::Finish(CFindings& findings) const
{
    for (std::size_t what = 0; what < kCount; ++what) {
        std::vector<SUse> undefined;
        for (auto use = names[what].used.begin(); use != names[what].used.end(); ++use) {
            const bool isKnown =
                names[what].defined.contains(use.key()) || names[what].defined.size() >= kMostNames;
            if (!isKnown) {
                undefined.push_back(*use);
            }
        }
        std::sort(undefined.begin(), undefined.end(), [](const SUse& one, const SUse& other) {
            return one.place.line < other.place.line;
        });
        for (const SUse& use : undefined) {
            findings.Add(*kKinds[what], use.place, Shown(use.name.toLocal8Bit().toStdString()),
                         use.count);
        }
    }
}

} // namespace velorx
