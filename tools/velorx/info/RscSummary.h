// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/info/InfoOptions.h"
#include "tools/velorx/info/ISummary.h"
#include "VelorExchange/Classifier.h"

#include <QString>

#include <map>
#include <utility>
#include <vector>

namespace velorx {

/// What is in an RSC classifier, as Panorama's closed library tells it. Holds its names whole: a
/// classifier is a list of names.
class CRscSummary final : public ISummary
{
public:
    using CReader = VelorExchange::pnr::CPanoramaRscClsReader;

    explicit CRscSummary(const SInfoOptions& options) : library(options.library) { }

    /// `bar` is not used: the library tells nothing while it works.
    QString Read(const QString& path, VelorExchange::dxf::IDXFProgress* bar) override;
    QString ToText() const override;
    QJsonObject ToJson() const override;

    struct SObject
    {
        QString key; ///< Unlike in all objects of the classifier.
        CReader::CObject object;
    };

    bool result = false; ///< Whether the library opened the classifier.
    std::vector<CReader::CLayer> layers; ///< In the classifier's order.
    std::vector<SObject> objects; ///< By number.
    std::map<unsigned, std::pair<QString, CReader::ESemanticsType>> semantics; ///< By code.

    /// Objects by the name of their layer.
    std::map<QString, qint64> ObjectsByLayer() const;

private:
    QString library;
};

} // namespace velorx
