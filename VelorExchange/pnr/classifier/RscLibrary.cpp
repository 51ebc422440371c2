// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/classifier/RscLibrary_p.h"

#include <type_traits>

namespace VelorExchange::pnr {

namespace {

template <auto Pointer>
void Assign(CPanoramaRscClsReader& reader, void* address)
{
    using CFunction = std::remove_reference_t<decltype(reader.*Pointer)>;
    // What a loaded library gives by name is an address without a type.
    reader.*Pointer = reinterpret_cast<CFunction>(address);
}

template <auto Pointer>
bool IsAssigned(const CPanoramaRscClsReader& reader)
{
    return reader.*Pointer != nullptr;
}

template <auto Pointer>
constexpr CRscOperation Operation(const char* name)
{
    return {name, &Assign<Pointer>, &IsAssigned<Pointer>};
}

} // namespace

const CRscLibrary::COperations& CRscLibrary::Operations()
{
    using R = CPanoramaRscClsReader;
    static constexpr COperations operations{
        Operation<&R::mapOpenRsc>("mapOpenRsc"),
        Operation<&R::mapCloseRsc>("mapCloseRsc"),
        Operation<&R::mapCreateTempSite>("mapCreateTempSite"),
        Operation<&R::mapCloseMap>("mapCloseMap"),
        Operation<&R::mapCreateBitmapEx>("mapCreateBitmapEx"),
        Operation<&R::mapPaintExampleObject>("mapPaintExampleObject"),
        Operation<&R::mapCloseBitmap>("mapCloseBitmap"),
        Operation<&R::mapGetRscSegmentCount>("mapGetRscSegmentCount"),
        Operation<&R::mapGetRscSegmentName>("mapGetRscSegmentName"),
        Operation<&R::mapGetRscSemanticClassificatorCount>("mapGetRscSemanticClassificatorCount"),
        Operation<&R::mapGetRscSemanticClassificatorCode>("mapGetRscSemanticClassificatorCode"),
        Operation<&R::mapGetRscSemanticClassificatorName>("mapGetRscSemanticClassificatorName"),
        Operation<&R::mapGetRscObjectCountInLayer>("mapGetRscObjectCountInLayer"),
        Operation<&R::mapGetRscObjectLocalInLayer>("mapGetRscObjectLocalInLayer"),
        Operation<&R::mapGetRscObjectNameInLayer>("mapGetRscObjectNameInLayer"),
        Operation<&R::mapGetRscObjectExcodeInLayer>("mapGetRscObjectExcodeInLayer"),
        Operation<&R::mapGetRscObjectCount>("mapGetRscObjectCount"),
        Operation<&R::mapGetRscObject>("mapGetRscObject"),
        Operation<&R::mapGetRscSemanticCount>("mapGetRscSemanticCount"),
        Operation<&R::mapGetRscSemanticCodeByNumber>("mapGetRscSemanticCodeByNumber"),
        Operation<&R::mapGetRscSemanticExByCode>("mapGetRscSemanticExByCode"),
        Operation<&R::mapGetRscObjectKey>("mapGetRscObjectKey"),
    };
    return operations;
}

} // namespace VelorExchange::pnr
