// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/StoredAttributes_p.h"

#include "VelorExchange/foundation/NumberFormatter_p.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <utility>

namespace VelorExchange::mif {

namespace {

struct CLessWithoutCase
{
    bool operator()(const QString& a, const QString& b) const
    {
        return a.compare(b, Qt::CaseInsensitive) < 0;
    }
};

constexpr std::size_t kRealRoom = 40;

// The shortest text that reads back as `value`, as Qt writes it, for numbers that Qt writes without an
// exponent for certain. Null for others.
char* PutShortest(char* out, double value)
{
    constexpr double kLeast = 1e-4;
    constexpr double kMostWhole = 1e5;
    constexpr double kMost = 1e15;
    const double size = std::fabs(value);
    if (!(size >= kLeast && size < kMost) || (size >= kMostWhole && value == std::floor(value))) {
        return nullptr;
    }
    return std::to_chars(out, out + kRealRoom, value, std::chars_format::fixed).ptr;
}

bool HasShape(const std::vector<CAttributeMIF>& attributes, const CShape& shape)
{
    return std::equal(attributes.begin(), attributes.end(), shape.begin(), shape.end(),
                      [](const CAttributeMIF& attribute, const CWrittenColumn& column) {
                          return attribute.value.userType() == column.type
                              && attribute.name == column.name;
                      });
}

std::shared_ptr<const CShape> ShapeOf(const std::vector<CAttributeMIF>& attributes)
{
    auto shape = std::make_shared<CShape>();
    shape->reserve(attributes.size());
    for (const CAttributeMIF& attribute : attributes) {
        shape->push_back({attribute.name, attribute.value.userType()});
    }
    return shape;
}

bool AreEqualTexts(const QVariant& a, const QVariant& b)
{
    return a.userType() == QMetaType::QString && b.userType() == QMetaType::QString
        && a.isNull() == b.isNull() && a.toString() == b.toString();
}

} // namespace

void CStoredAttributes::Add(const std::vector<CAttributeMIF>& attributes)
{
    const CRecord* const last = records.empty() ? nullptr : &records.back();
    const bool isLikeLast = last != nullptr && HasShape(attributes, *last->shape);
    CRecord record;
    record.shape = isLikeLast ? last->shape : ShapeOf(attributes);
    record.values.reserve(attributes.size());
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        const QVariant& value = attributes[i].value;
        const bool repeats = isLikeLast && AreEqualTexts(value, last->values[i]);
        record.values.push_back(repeats ? last->values[i] : value);
    }
    records.push_back(std::move(record));
}

std::vector<CWrittenColumn> CStoredAttributes::CollectColumns() const
{
    std::vector<CWrittenColumn> columns;
    std::map<QString, bool, CLessWithoutCase> known;
    const CShape* last = nullptr;
    for (const CRecord& record : records) {
        if (record.shape.get() == last) {
            continue;
        }
        last = record.shape.get();
        for (const CWrittenColumn& column : *record.shape) {
            if (known.emplace(column.name, true).second) {
                columns.push_back(column);
            }
        }
    }
    if (columns.empty()) {
        columns.push_back({QStringLiteral("TEXT"), QMetaType::QString});
    }
    return columns;
}

void CRowMaker::FindPlaces(const CShape& newShape)
{
    std::map<std::pair<QString, int>, int> first;
    for (std::size_t i = 0; i < newShape.size(); ++i) {
        first.emplace(std::make_pair(newShape[i].name, newShape[i].type), static_cast<int>(i));
    }
    places.clear();
    for (const CWrittenColumn& column : columns) {
        const auto found = first.find({column.name, column.type});
        places.push_back(found == first.end() ? -1 : found->second);
    }
    shape = &newShape;
}

void CRowMaker::AppendReal(const QVariant& value, double number)
{
    char text[kRealRoom];
    char* const end = PutShortest(text, number);
    if (end == nullptr) {
        row += value.toString();
    } else {
        row += QLatin1String(text, end);
    }
}

// As `QVariant::toString` makes it; texts between quotes, without a look at quotes inside.
void CRowMaker::AppendValue(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::QString:
        row += QLatin1Char('"');
        row += *static_cast<const QString*>(value.constData());
        row += QLatin1Char('"');
        break;
    case QMetaType::Int: {
        char text[kIntRoom];
        row += QLatin1String(text, PutInt(text, *static_cast<const int*>(value.constData())));
        break;
    }
    case QMetaType::Double:
        AppendReal(value, *static_cast<const double*>(value.constData()));
        break;
    case QMetaType::Float:
        AppendReal(value, static_cast<double>(*static_cast<const float*>(value.constData())));
        break;
    default:
        row += value.toString();
        break;
    }
}

const QString& CRowMaker::Row(const CStoredAttributes::CRecord& record)
{
    if (record.shape.get() != shape) {
        FindPlaces(*record.shape);
    }
    row.resize(0);
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (i != 0) {
            row += QLatin1Char(';');
        }
        if (places[i] < 0) {
            continue;
        }
        const QVariant& value = record.values[static_cast<std::size_t>(places[i])];
        if (value.isNull()) {
            continue;
        }
        AppendValue(value);
    }
    row += QLatin1Char('\n');
    return row;
}

} // namespace VelorExchange::mif
