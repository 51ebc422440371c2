// SPDX-License-Identifier: MIT
// The 22 functions of the closed library, with its layouts of the two records written out.
#include "tests/pnr/classifier/StandIn.h"

#include <cstring>
#include <sstream>
#include <string_view>

using standin::Current;

#define RSC_FUNCTION extern "C" __attribute__((visibility("default")))

namespace {

void Print(std::ostream& out, int value)
{
    out << value;
}

void Print(std::ostream& out, const char* text)
{
    out << '"' << text << '"';
}

void Print(std::ostream& out, const void* handle)
{
    out << "0x" << std::hex << reinterpret_cast<std::uintptr_t>(handle) << std::dec;
}

void Print(std::ostream& out, std::string_view words)
{
    out << words;
}

// Writes down a call and lets the test act inside it.
template <class... Arguments>
void Note(const char* function, Arguments... arguments)
{
    std::ostringstream line;
    line << function << '(';
    const char* separator = "";
    ((line << separator, Print(line, arguments), separator = ", "), ...);
    line << ")\n";
    Current().calls += line.str();
    if (Current().onCall) {
        Current().onCall(function);
    }
}

const char* Name(const std::string& name)
{
    return Current().namesAreNull ? nullptr : name.c_str();
}

void PutInt(void* record, std::size_t offset, int value)
{
    std::memcpy(static_cast<char*>(record) + offset, &value, 4);
}

void PutText(void* record, std::size_t offset, const std::string& text)
{
    std::memcpy(static_cast<char*>(record) + offset, text.c_str(), text.size() + 1);
}

// The `number`-th object, from 1, of a layer.
const standin::Object& InLayer(int layer, int number)
{
    for (const standin::Object& object : Current().objects) {
        if (object.layer == layer && --number == 0) {
            return object;
        }
    }
    static const standin::Object none{-1, -1, -1, "no such object", "no such key"};
    return none;
}

const standin::Semantic& ByCode(int code)
{
    for (const standin::Semantic& semantic : Current().semantics) {
        if (semantic.code == code) {
            return semantic;
        }
    }
    static const standin::Semantic none{-1, -1, "no such semantic"};
    return none;
}

struct LoadNote
{
    LoadNote() { Current().calls += "loaded\n"; }
    ~LoadNote() { Current().calls += "freed\n"; }
};
const LoadNote loadNote;

} // namespace

RSC_FUNCTION void* mapOpenRsc(const char* file)
{
    Note("mapOpenRsc", file);
    return reinterpret_cast<void*>(Current().rsc);
}

RSC_FUNCTION void mapCloseRsc(void* rsc)
{
    Note("mapCloseRsc", rsc);
}

RSC_FUNCTION void* mapCreateTempSite(const char* file)
{
    Note("mapCreateTempSite", file);
    return reinterpret_cast<void*>(Current().map);
}

RSC_FUNCTION void mapCloseMap(void* map)
{
    Note("mapCloseMap", map);
}

RSC_FUNCTION void* mapCreateBitmapEx(int width, int height)
{
    Note("mapCreateBitmapEx", width, height);
    return reinterpret_cast<void*>(Current().bitmap);
}

RSC_FUNCTION int mapPaintExampleObject(void* map, void* dc, void* rectangle, int object)
{
    int sides[4] = {};
    std::memcpy(sides, rectangle, sizeof(sides));
    std::ostringstream words;
    words << '[' << sides[0] << ' ' << sides[1] << ' ' << sides[2] << ' ' << sides[3] << ']';
    Note("mapPaintExampleObject", map, dc, std::string_view(words.str()), object);
    return Current().painted;
}

RSC_FUNCTION void mapCloseBitmap(void* bitmap)
{
    Note("mapCloseBitmap", bitmap);
}

RSC_FUNCTION int mapGetRscSegmentCount(void* rsc)
{
    Note("mapGetRscSegmentCount", rsc);
    return static_cast<int>(Current().layers.size());
}

RSC_FUNCTION const char* mapGetRscSegmentName(void* rsc, int layer, int last)
{
    Note("mapGetRscSegmentName", rsc, layer, last);
    return Name(Current().layers.at(static_cast<std::size_t>(layer)));
}

RSC_FUNCTION int mapGetRscSemanticClassificatorCount(void* rsc, int code)
{
    Note("mapGetRscSemanticClassificatorCount", rsc, code);
    return static_cast<int>(ByCode(code).values.size());
}

RSC_FUNCTION int mapGetRscSemanticClassificatorCode(void* rsc, int code, int index)
{
    Note("mapGetRscSemanticClassificatorCode", rsc, code, index);
    return ByCode(code).values.at(static_cast<std::size_t>(index)).first;
}

RSC_FUNCTION const char* mapGetRscSemanticClassificatorName(void* rsc, int code, int index,
                                                            int last)
{
    Note("mapGetRscSemanticClassificatorName", rsc, code, index, last);
    return Name(ByCode(code).values.at(static_cast<std::size_t>(index)).second);
}

RSC_FUNCTION int mapGetRscObjectCountInLayer(void* rsc, int layer)
{
    Note("mapGetRscObjectCountInLayer", rsc, layer);
    int count = 0;
    for (const standin::Object& object : Current().objects) {
        count += object.layer == layer ? 1 : 0;
    }
    return count;
}

RSC_FUNCTION int mapGetRscObjectLocalInLayer(void* rsc, int layer, int number)
{
    Note("mapGetRscObjectLocalInLayer", rsc, layer, number);
    return InLayer(layer, number).kind;
}

RSC_FUNCTION const char* mapGetRscObjectNameInLayer(void* rsc, int layer, int number, int last)
{
    Note("mapGetRscObjectNameInLayer", rsc, layer, number, last);
    return Name(InLayer(layer, number).name);
}

RSC_FUNCTION int mapGetRscObjectExcodeInLayer(void* rsc, int layer, int number)
{
    Note("mapGetRscObjectExcodeInLayer", rsc, layer, number);
    return InLayer(layer, number).code;
}

RSC_FUNCTION int mapGetRscObjectCount(void* rsc)
{
    Note("mapGetRscObjectCount", rsc);
    return static_cast<int>(Current().objects.size());
}

RSC_FUNCTION int mapGetRscObject(void* rsc, int number, void* record)
{
    Note("mapGetRscObject", rsc, number);
    const standin::Object& object = Current().objects.at(static_cast<std::size_t>(number - 1));
    PutInt(record, 4, object.code);
    PutInt(record, 8, object.kind);
    PutInt(record, 12, object.layer);
    PutText(record, 32, object.name);
    return number;
}

RSC_FUNCTION int mapGetRscSemanticCount(void* rsc)
{
    Note("mapGetRscSemanticCount", rsc);
    return static_cast<int>(Current().semantics.size());
}

RSC_FUNCTION int mapGetRscSemanticCodeByNumber(void* rsc, int number)
{
    Note("mapGetRscSemanticCodeByNumber", rsc, number);
    return Current().semantics.at(static_cast<std::size_t>(number - 1)).code;
}

RSC_FUNCTION int mapGetRscSemanticExByCode(void* rsc, void* record, int code)
{
    Note("mapGetRscSemanticExByCode", rsc, code);
    const standin::Semantic& semantic = ByCode(code);
    PutInt(record, 0, semantic.code);
    PutInt(record, 4, semantic.kind);
    PutText(record, 24, semantic.name);
    PutInt(record, 92, semantic.linkedList);
    return 1;
}

RSC_FUNCTION const char* mapGetRscObjectKey(void* rsc, int number, int last)
{
    Note("mapGetRscObjectKey", rsc, number, last);
    return Name(Current().objects.at(static_cast<std::size_t>(number - 1)).key);
}
