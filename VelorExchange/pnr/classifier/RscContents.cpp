// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/classifier/FloatingPointGuard_p.h"
#include "VelorExchange/pnr/classifier/PanoramaRscClsReader.h"
#include "VelorExchange/pnr/classifier/RscRecord_p.h"

#include <utility>

namespace VelorExchange::pnr {

QString CPanoramaRscClsReader::LayerName(int layer) const
{
    return QString::fromLocal8Bit(mapGetRscSegmentName(hRsc, layer, -1));
}

void CPanoramaRscClsReader::GetLayers(std::vector<CLayer>& layers) const
{
    if (hLibrary == nullptr) {
        return;
    }
    const CFloatingPointGuard guard;
    const int count = mapGetRscSegmentCount(hRsc);
    for (int layer = 0; layer < count; ++layer) {
        layers.push_back({LayerName(layer)});
    }
}

void CPanoramaRscClsReader::GetObjectsInLayer(EObjectType type, int layer,
                                              std::vector<CObject>& objects) const
{
    if (hLibrary == nullptr) {
        return;
    }
    const CFloatingPointGuard guard;
    const QString layerName = LayerName(layer);
    const int count = mapGetRscObjectCountInLayer(hRsc, layer);
    for (int number = 1; number <= count; ++number) {
        if (mapGetRscObjectLocalInLayer(hRsc, layer, number) != type) {
            continue;
        }
        const char* name = mapGetRscObjectNameInLayer(hRsc, layer, number, -1);
        const int code = mapGetRscObjectExcodeInLayer(hRsc, layer, number);
        objects.push_back({QString::fromLocal8Bit(name), layerName, code, number, type});
    }
}

CPanoramaRscClsReader::CObject CPanoramaRscClsReader::ObjectByNumber(int number) const
{
    CRscRecord record;
    mapGetRscObject(hRsc, number, record.Clear());
    CObject object;
    object.name = record.Text(RscObjectLayout::kName, RscObjectLayout::kNameEnd);
    object.layerName = LayerName(record.Int(RscObjectLayout::kLayer));
    object.code = record.Int(RscObjectLayout::kCode);
    object.number = number;
    object.type = static_cast<EObjectType>(record.Int(RscObjectLayout::kKind));
    return object;
}

void CPanoramaRscClsReader::GetAllObjects(std::map<unsigned, CObject>& objects)
{
    if (hLibrary == nullptr) {
        return;
    }
    const CFloatingPointGuard guard;
    const int count = mapGetRscObjectCount(hRsc);
    for (int number = 1; number <= count; ++number) {
        CObject object = ObjectByNumber(number);
        objects[static_cast<unsigned>(object.code)] = std::move(object);
    }
}

void CPanoramaRscClsReader::GetAllObjects(std::map<QString, CObject>& objects)
{
    if (hLibrary == nullptr) {
        return;
    }
    const CFloatingPointGuard guard;
    const int count = mapGetRscObjectCount(hRsc);
    for (int number = 1; number <= count; ++number) {
        const QString key = QString::fromLocal8Bit(mapGetRscObjectKey(hRsc, number, -1));
        objects[key] = ObjectByNumber(number);
    }
}

} // namespace VelorExchange::pnr
