// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifAttributes.h"

#include "tools/velorx/formats/SingleNumber.h"

#include <algorithm>
#include <limits>

namespace velorx {

using VelorExchange::mif::CAttributeMIF;

namespace {

bool IsColumn(const CAttributeMIF& attribute, const char* name, QMetaType::Type type)
{
    return attribute.value.userType() == type
        && attribute.name.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

// Whether the table may tell more digits of a number than the library, which reads Float in single precision.
bool IsFull(const QVariant& value)
{
    return value.userType() == QMetaType::Float
        && ShortestOf(value.toFloat()).digits > std::numeric_limits<float>::digits10;
}

} // namespace

const SMifMeaning& CMifAttributes::Of(const std::vector<CAttributeMIF>& record)
{
    if (!IsLast(record)) {
        last = record;
        Interpret();
    }
    return meaning;
}

// `QVariant` would hold 1 and true for the same.
bool CMifAttributes::IsLast(const std::vector<CAttributeMIF>& record) const
{
    return std::equal(record.begin(), record.end(), last.begin(), last.end(),
                      [](const CAttributeMIF& one, const CAttributeMIF& other) {
                          return one.value.userType() == other.value.userType()
                              && one.value == other.value && one.name == other.name;
                      });
}

void CMifAttributes::Interpret()
{
    meaning = {};
    std::vector<SFeatureAttribute> attributes;
    attributes.reserve(last.size());
    for (const CAttributeMIF& attribute : last) {
        if (IsColumn(attribute, kMifLayerColumn, QMetaType::QString)) {
            meaning.layer = attribute.value.toString();
        } else if (IsColumn(attribute, kMifCodeColumn, QMetaType::Int)) {
            meaning.code = attribute.value.toInt();
        } else if (attribute.value.userType() == QMetaType::QDate
                   && attribute.value.toDate() == today) {
            ++meaning.lostDates;
        } else {
            const bool isFalse =
                attribute.value.userType() == QMetaType::Bool && !attribute.value.toBool();
            meaning.doubtful += isFalse ? 1 : 0;
            meaning.shortened += IsFull(attribute.value) ? 1 : 0;
            attributes.push_back({attribute.name, attribute.value});
        }
    }
    if (!attributes.empty()) {
        meaning.attributes =
            std::make_shared<const std::vector<SFeatureAttribute>>(std::move(attributes));
    }
}

} // namespace velorx
