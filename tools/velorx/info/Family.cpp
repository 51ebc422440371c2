// SPDX-License-Identifier: MIT
#include "tools/velorx/info/Family.h"

#include "tools/velorx/formats/DxfContent.h"
#include "tools/velorx/info/DxfSummary.h"
#include "tools/velorx/info/MifSummary.h"
#include "tools/velorx/info/RscSummary.h"
#include "tools/velorx/info/SxfSummary.h"

#include <QFileInfo>
#include <QStringList>

#include <type_traits>

namespace velorx {

namespace {

template <class T>
std::unique_ptr<ISummary> Make(const SInfoOptions& options)
{
    if constexpr (std::is_constructible_v<T, const SInfoOptions&>) {
        return std::make_unique<T>(options);
    } else {
        return std::make_unique<T>();
    }
}

constexpr SFamily kFamilies[] = {
    {"DXF", "DXF drawing", "dxf", true, IsDxfContent, Make<CDxfSummary>},
    {"MIF", "MIF/MID table", "mif", true, nullptr, Make<CMifSummary>},
    {"SXF", "SXF map", "sxf", true, IsSxfContent, Make<CSxfSummary>},
    {"SXF", "SXF map", "txt", false, IsSxfTextContent, Make<CSxfSummary>},
    {"RSC", "RSC classifier", "rsc", true, nullptr, Make<CRscSummary>},
};

} // namespace

const SFamily* FindFamily(const QString& path, const QByteArray& head)
{
    const QString extension = QFileInfo(path).suffix();
    for (const SFamily& family : kFamilies) {
        if (family.extensionTells
            && extension.compare(QLatin1String(family.extension), Qt::CaseInsensitive) == 0)
        {
            return &family;
        }
    }
    for (const SFamily& family : kFamilies) {
        if (family.isContent != nullptr && family.isContent(head)) {
            return &family;
        }
    }
    return nullptr;
}

QString WhyNoFile(const QString& path)
{
    const QFileInfo info(path);
    if (info.isDir()) {
        return QStringLiteral("it is a folder, not a file");
    }
    return info.exists() && !info.isFile() ? QStringLiteral("it is no ordinary file") : QString();
}

QString WhyNoFamily(const QString& path)
{
    const QString extension = QFileInfo(path).suffix();
    for (const SFamily& family : kFamilies) {
        if (extension.compare(QLatin1String(family.extension), Qt::CaseInsensitive) == 0) {
            return QStringLiteral("it does not start like an %1").arg(family.description);
        }
    }
    if (extension.compare(QLatin1String("mid"), Qt::CaseInsensitive) == 0) {
        return QStringLiteral("it holds the rows of a table, which is read by its .mif");
    }
    return QStringLiteral("it is of no kind that velorx reads (%1)").arg(KnownExtensions());
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
