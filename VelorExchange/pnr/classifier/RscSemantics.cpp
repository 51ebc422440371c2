// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/classifier/FloatingPointGuard_p.h"
#include "VelorExchange/pnr/classifier/PanoramaRscClsReader.h"
#include "VelorExchange/pnr/classifier/RscRecord_p.h"

#include <algorithm>
#include <array>

namespace VelorExchange::pnr {

namespace {

// The kinds of semantics that the map form takes.
constexpr std::array kMappedKinds{0, 1, 16, 17, 18, 19};

// What each filter value of the vector form selects.
struct CSemanticsFilter
{
    int type;
    int kind;
    bool onlyLinkedList;
};
constexpr std::array kFilters{
    CSemanticsFilter{0, 0, false},
    CSemanticsFilter{1, 1, false},
    CSemanticsFilter{2, 1, true},
    CSemanticsFilter{17, 17, false},
};

bool IsMapped(int kind)
{
    return std::find(kMappedKinds.begin(), kMappedKinds.end(), kind) != kMappedKinds.end();
}

bool IsSelected(const CRscRecord& semantic, int type)
{
    const int kind = semantic.Int(RscSemanticLayout::kKind);
    const bool hasLinkedList = semantic.Int(RscSemanticLayout::kLinkedList) != 0;
    return std::any_of(kFilters.begin(), kFilters.end(), [&](const CSemanticsFilter& filter) {
        return filter.type == type && filter.kind == kind
            && (hasLinkedList || !filter.onlyLinkedList);
    });
}

QString SemanticName(const CRscRecord& semantic)
{
    return semantic.Text(RscSemanticLayout::kName, RscSemanticLayout::kNameEnd);
}

} // namespace

// The two forms walk different numbers. The tests MapFormReachesTheLastSemanticButNotTheFirst and
// VectorFormNeverReachesTheLastSemantic hold that.
void CPanoramaRscClsReader::GetSemantics(
    std::map<unsigned, std::pair<QString, ESemanticsType>>& semantics)
{
    if (hLibrary == nullptr) {
        return;
    }
    const CFloatingPointGuard guard;
    CRscRecord record;
    const int count = mapGetRscSemanticCount(hRsc);
    for (int number = 2; number <= count; ++number) {
        const int code = mapGetRscSemanticCodeByNumber(hRsc, number);
        mapGetRscSemanticExByCode(hRsc, record.Clear(), code);
        const int kind = record.Int(RscSemanticLayout::kKind);
        if (IsMapped(kind)) {
            semantics[static_cast<unsigned>(code)] = {SemanticName(record),
                                                      static_cast<ESemanticsType>(kind)};
        }
    }
}

void CPanoramaRscClsReader::GetSemantics(std::vector<CSemanticObject>& semantics,
                                         ESemanticsType type) const
{
    if (hLibrary == nullptr) {
        return;
    }
    const CFloatingPointGuard guard;
    CRscRecord record;
    const int count = mapGetRscSemanticCount(hRsc);
    for (int number = type == 0 ? 2 : 1; number < count; ++number) {
        const int code = mapGetRscSemanticCodeByNumber(hRsc, number);
        mapGetRscSemanticExByCode(hRsc, record.Clear(), code);
        if (IsSelected(record, type)) {
            semantics.push_back({SemanticName(record), code});
        }
    }
}

QString CPanoramaRscClsReader::GetTCodeSemanticValue(unsigned short code, int value)
{
    if (!isOpen()) {
        return {};
    }
    const CFloatingPointGuard guard;
    const int count = mapGetRscSemanticClassificatorCount(hRsc, code);
    for (int index = 0; index < count; ++index) {
        if (mapGetRscSemanticClassificatorCode(hRsc, code, index) == value) {
            return QString::fromLocal8Bit(
                mapGetRscSemanticClassificatorName(hRsc, code, index, -1));
        }
    }
    return {};
}

} // namespace VelorExchange::pnr
