// SPDX-License-Identifier: MIT
#include "tools/velorx/info/RscSummary.h"

#include <QFile>

#include <algorithm>

namespace velorx {

QString CRscSummary::Read(const QString& path, VelorExchange::dxf::IDXFProgress* /*bar*/)
{
    if (library.isEmpty()) {
        return QStringLiteral("a classifier is read through Panorama's own library, "
                              "which --library PATH names");
    }
    CReader* const reader = CReader::GetInstance(library);
    if (reader == nullptr) {
        return QFile::exists(library)
            ? QStringLiteral("the file that --library names is no library that reads classifiers")
            : QStringLiteral("there is no library where --library says");
    }
    result = reader->Open(path);
    if (result) {
        reader->GetLayers(layers);
        std::map<QString, CReader::CObject> byKey;
        reader->GetAllObjects(byKey);
        for (const auto& [key, object] : byKey) {
            objects.push_back({key, object});
        }
        reader->GetSemantics(semantics);
        reader->Close();
    }
    CReader::KillInstance();
    std::sort(objects.begin(), objects.end(),
              [](const SObject& a, const SObject& b) { return a.object.number < b.object.number; });
    return result ? QString() : QStringLiteral("the library cannot open the classifier");
}

std::map<QString, qint64> CRscSummary::ObjectsByLayer() const
{
    std::map<QString, qint64> counts;
    for (const SObject& object : objects) {
        ++counts[object.object.layerName];
    }
    return counts;
}

} // namespace velorx
