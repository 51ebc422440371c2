// SPDX-License-Identifier: MIT
#include "tools/velorx/features/DxfTags.h"

#include "tools/velorx/features/CodedText.h"
#include "tools/velorx/features/DxfDataBlock.h"
#include "tools/velorx/features/DxfTargetLosses.h"
#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/formats/DrawingText.h"
#include "tools/velorx/formats/SingleNumber.h"

#include <QSet>

namespace velorx {

using VelorExchange::dxf::CAttribDXF;

namespace {

constexpr int kLongestText = 255;
constexpr double kHeight = 1.0; // hidden, but programs want one

CAttribDXF Tag(const QString& name, const QString& value)
{
    CAttribDXF tag;
    tag.tag = name;
    tag.text = value;
    tag.height = kHeight;
    tag.hidden = true;
    return tag;
}

// Without blanks and what drawings cannot hold, and not twice.
QString LegalName(const QString& name, QSet<QString>& used)
{
    QString legal = name.trimmed();
    for (QChar& c : legal) {
        if (c <= u' ' || !HasPlaceInDrawing(c)) {
            c = u'_';
        }
    }
    legal = legal.isEmpty() ? QStringLiteral("_") : legal.left(kLongestText);
    QString unused = legal;
    for (int i = 1; used.contains(unused.toCaseFolded()); ++i) {
        unused = legal + u'_' + QString::number(i);
    }
    used.insert(unused.toCaseFolded());
    return unused;
}

QString PlainText(const QVariant& value)
{
    return value.userType() == QMetaType::Float
        ? QVariant(ShortestOf(value.toFloat()).value).toString()
        : value.toString();
}

QString ValueOf(const SFeatureAttribute& attribute, const QString& layer, CFeatureTally& tally)
{
    bool isWhole = true;
    const QString value = CodedText(PlainText(attribute.value), isWhole);
    if (attribute.value.type() != QVariant::String) {
        tally.Lose(QLatin1String(losses::kTypedValues), layer);
    }
    if (!isWhole) {
        tally.Lose(QLatin1String(losses::kLetters), layer);
    }
    if (value.size() > kLongestText) {
        tally.Lose(QLatin1String(losses::kLongValues), layer);
    }
    return value;
}

} // namespace

std::vector<CAttribDXF> TagsOf(const SFeature& feature, int outlines, CFeatureTally& tally)
{
    std::vector<CAttribDXF> tags;
    QSet<QString> used = {QString::fromLatin1(kCodeTag).toCaseFolded(),
                          QString::fromLatin1(kOutlinesTag).toCaseFolded()};
    if (feature.code != 0) {
        tags.push_back(Tag(QLatin1String(kCodeTag), QString::number(feature.code)));
    }
    if (outlines > 0) {
        tags.push_back(Tag(QLatin1String(kOutlinesTag), QString::number(outlines)));
    }
    if (feature.attributes == nullptr) {
        return tags;
    }
    for (const SFeatureAttribute& attribute : *feature.attributes) {
        const QString name = LegalName(attribute.name, used);
        if (name != attribute.name) {
            tally.Lose(QLatin1String(losses::kTags), feature.layer);
        }
        tags.push_back(Tag(name, ValueOf(attribute, feature.layer, tally)));
    }
    return tags;
}

} // namespace velorx
