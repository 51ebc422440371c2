// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "VelorExchange/mif/Attribute.h"

#include <QDate>
#include <QString>

#include <vector>

namespace velorx {

/// The column of a table that tells the layer of each object, where a table holds several layers.
constexpr char kMifLayerColumn[] = "LAYER";

/// The column of a table that tells the classifier code of an SXF object.
constexpr char kMifCodeColumn[] = "SXF_CODE";

/// What the attributes of an object of a table mean to the stream.
struct SMifMeaning
{
    CFeatureAttributes attributes; ///< Null for none. Without the two columns above.
    QString layer; ///< Empty where the table tells none.
    int code = 0;
    int lostDates = 0; ///< Dates that the library could not read, and which are left out.
    int doubtful = 0; ///< Logical values that read as false, also where the table says "T".
    int shortened = 0; ///< Numbers of single precision with all the digits that such have.
};

/// Turns the attributes of a table's objects into those of features. Objects that follow one another and
/// have the same share them.
class CMifAttributes
{
public:
    /// The result is valid until the next call.
    const SMifMeaning& Of(const std::vector<VelorExchange::mif::CAttributeMIF>& record);

private:
    bool IsLast(const std::vector<VelorExchange::mif::CAttributeMIF>& record) const;
    void Interpret();

    // The library gives the day of reading for a date that it cannot read.
    const QDate today = QDate::currentDate();
    std::vector<VelorExchange::mif::CAttributeMIF> last;
    SMifMeaning meaning;
};

} // namespace velorx
