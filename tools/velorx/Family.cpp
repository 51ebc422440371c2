// SPDX-License-Identifier: MIT
#include "tools/velorx/Family.h"

#include "tools/velorx/DxfContent.h"
#include "tools/velorx/DxfSummary.h"

#include <QFileInfo>
#include <QStringList>

namespace velorx {

namespace {

template <class T>
std::unique_ptr<ISummary> Make()
{
    return std::make_unique<T>();
}

constexpr SFamily kFamilies[] = {
    {"DXF", "DXF drawing", "dxf", IsDxfContent, Make<CDxfSummary>},
};

} // namespace

const SFamily* FindFamily(const QString& path, const QByteArray& head)
{
    const QString extension = QFileInfo(path).suffix();
    for (const SFamily& family : kFamilies) {
        if (extension.compare(QLatin1String(family.extension), Qt::CaseInsensitive) == 0) {
            return &family;
        }
    }
    for (const SFamily& family : kFamilies) {
        if (family.isContent(head)) {
            return &family;
        }
    }
    return nullptr;
}

QString KnownExtensions()
{
    QStringList extensions;
    for (const SFamily& family : kFamilies) {
        extensions.append(QStringLiteral("*.") + QLatin1String(family.extension));
    }
    return extensions.join(QStringLiteral(", "));
}

} // namespace velorx
