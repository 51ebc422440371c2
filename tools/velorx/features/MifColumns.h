// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "VelorExchange/mif/Attribute.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <vector>

namespace velorx {

/// The row of a feature in its table, and what became of its values.
struct SMifRow
{
    std::vector<VelorExchange::mif::CAttributeMIF> attributes;
    int cut = 0; ///< Texts cut to the 254 letters of the widest column.
    int inOneLine = 0; ///< Texts whose line breaks became blanks.
    int unknownLetters = 0; ///< Texts with letters that the code page lacks.
    int notFinite = 0; ///< Numbers that are none, and are left out.
};

/// The columns of one table, made as attributes come.
///
/// The library writes a value only under exactly the name and type of its column, and gives all texts
/// one width, all doubles five decimals, and dates and logical values no type at all. So names are made
/// legal and distinct here, each type of an attribute has a column of its own unless an earlier one
/// holds it too, dates and logical values become text, and `TypeOf` tells what the header should say.
/// Memory grows with the columns.
class CMifColumns
{
public:
    CMifColumns() = default;

    /// Appends a value that is not an attribute of the source under the column `name`, which no
    /// attribute gets.
    void AddOwn(SMifRow& row, const char* name, const QVariant& value);

    /// Appends the attributes of a feature.
    void Add(SMifRow& row, const std::vector<SFeatureAttribute>& attributes);

    /// What the type of a column should be called; empty where the library's is right.
    QString TypeOf(const QString& column) const;

    /// Names of columns that are called otherwise in the source, since the last call.
    struct SRenamed
    {
        QString source;
        QString column;
        bool isForType; ///< The column holds what does not fit another of the same attribute.
    };
    std::vector<SRenamed> TakeRenamed();

private:
    struct SColumn
    {
        QString name;
        int type = 0; ///< Of `QMetaType`.
        int longest = 0; ///< Letters of its longest text.
        int whole = 0; ///< Most digits in front of the point.
        int decimals = 0; ///< Most digits behind it.
    };

    /// Columns of an attribute, for a feature that has several of one name also of the n-th of them.
    using CKey = QPair<QString, int>;

    SColumn& ColumnFor(const QString& source, int occurrence, int type);
    QString Unused(const QString& source);
    static void Measure(SColumn& column, const QVariant& value);

    std::vector<SColumn> columns;
    QHash<CKey, std::vector<std::size_t>> bySource;
    QHash<QString, std::size_t> byName;
    QSet<QString> used; ///< Names without regard to case.
    std::vector<SRenamed> renamed;
};

} // namespace velorx
