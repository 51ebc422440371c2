// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/Pnr.h"

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <memory>
#include <optional>
#include <vector>

namespace velorx {

/// What a map holds of an object and the library's reader leaves out.
struct SSxfDetails
{
    qint32 code = 0; ///< Classifier code, of texts too.
    std::optional<qint32> thickness; ///< Of a line's own drawing, thousandths of a millimetre.
    std::optional<VelorExchange::pnr::PnrPointImage> mark; ///< A point's own drawing.
    std::optional<VelorExchange::pnr::PnrTextImage> letters; ///< A text's own drawing.
    QStringList parts; ///< Of a text, without what marks them in the file.
    std::vector<qint16>
        aligns; ///< Of the parts, 20 to 31 where the map tells one; there may be fewer.
};

/// Goes through the objects of a map beside the library's reader. Memory follows the largest object.
class ISxfDetails
{
public:
    ISxfDetails() = default;
    ISxfDetails(const ISxfDetails&) = delete;
    ISxfDetails(ISxfDetails&&) = delete;
    ISxfDetails& operator=(const ISxfDetails&) = delete;
    ISxfDetails& operator=(ISxfDetails&&) = delete;
    virtual ~ISxfDetails() = default;

    /// Those of the next object, in file order. What is not there stays at its default, behind the last
    /// object and from the first fault on as well.
    virtual SSxfDetails Next() = 0;
};

/// Those of a binary map.
std::unique_ptr<ISxfDetails> MakeSxfBinaryDetails(const QString& path);

/// Those of a map in text form.
std::unique_ptr<ISxfDetails> MakeSxfTextDetails(const QString& path);

} // namespace velorx
