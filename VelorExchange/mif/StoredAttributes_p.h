// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/mif/Attribute.h"

#include <QString>
#include <QVariant>

#include <memory>
#include <vector>

namespace VelorExchange::mif {

/// A column of a table that is written.
struct CWrittenColumn
{
    QString name;
    int type = 0; ///< As `QVariant::userType` tells it.
};

/// The names and types of a record's attributes, in their order. Records in a row mostly share one.
using CShape = std::vector<CWrittenColumn>;

/// The attributes of all records of a layer, in the order of writing. Repeated names, and texts that
/// repeat from one record to the next, are held once.
class CStoredAttributes
{
public:
    struct CRecord
    {
        std::shared_ptr<const CShape> shape;
        std::vector<QVariant> values;
    };

    void Add(const std::vector<CAttributeMIF>& attributes);

    const std::vector<CRecord>& Records() const { return records; }

    /// The union of the records' names without regard to case, each with the type it has first. One
    /// text column "TEXT" if there are none.
    std::vector<CWrittenColumn> CollectColumns() const;

private:
    std::vector<CRecord> records;
};

/// Makes the rows of a ".mid" for given columns.
class CRowMaker
{
public:
    explicit CRowMaker(const std::vector<CWrittenColumn>& tableColumns) : columns(tableColumns) { }

    /// The row with its line feed: for each column the value of the first attribute of exactly that
    /// name and type. Valid until the next call.
    const QString& Row(const CStoredAttributes::CRecord& record);

private:
    void FindPlaces(const CShape& newShape);
    void AppendValue(const QVariant& value);
    void AppendReal(const QVariant& value, double number);

    const std::vector<CWrittenColumn>& columns;
    const CShape* shape = nullptr; // to which `places` belong
    std::vector<int> places; // of each column's value in a record, or -1
    QString row;
};

} // namespace VelorExchange::mif
