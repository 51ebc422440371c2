// SPDX-License-Identifier: MIT
// Reads the input as a line type file that is its own shape source too: each style that comes has a
// name, a description and elements, and the elements have what they draw.
#include "VelorExchange/dxf/write/StyleFiles.h"

#include "MemoryFile.h"

#include <cstdint>

using namespace VelorExchange::dxf;

namespace {

bool DrawsSomething(const CLineElementDXF& element)
{
    if (const auto* text = boost::variant2::get_if<CLineTextDXF>(&element)) {
        return !text->text.isEmpty() && !text->text.contains(QLatin1Char(' '));
    }
    const auto* shape = boost::variant2::get_if<CLineShapeDXF>(&element);
    return shape == nullptr || (shape->number > 0 && !shape->style.isEmpty());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz::CMemoryFile file(data, size);
    std::list<CLineStyleDXF> styles;
    const bool found = GetLineStylesFromFile(file.Path(), styles, file.Path());
    for (const CLineStyleDXF& style : styles) {
        if (style.name.isEmpty() || style.description.isEmpty() || style.pattern.empty()) {
            __builtin_trap();
        }
        for (const CLineElementDXF& element : style.pattern) {
            if (!DrawsSomething(element)) {
                __builtin_trap();
            }
        }
    }
    if (found == styles.empty()) {
        __builtin_trap();
    }
    return 0;
}
