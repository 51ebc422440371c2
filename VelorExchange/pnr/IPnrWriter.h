// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Export.h"
#include "VelorExchange/foundation/ExportLog.h"
#include "VelorExchange/foundation/Point.h"

#include <QString>

#include <memory>
#include <vector>

namespace VelorExchange::pnr {

struct CBaseObject;
struct CLineObject;
struct CPointObject;
struct CSquareObject;
struct CTextObject;

/// What a writer is told about the map.
struct PnrFileParams
{
    QString name; ///< Name of the map.
    qint32 scale = 0; ///< Denominator of the scale.
    double x = 0.0; ///< Corner of the rectangle with which the bounds start.
    double y = 0.0; ///< Corner of the rectangle with which the bounds start.
    double width = 0.0; ///< Extent in x; bounds without extent are replaced by the first vertex.
    double height = 0.0; ///< Extent in y.
};

/// An object and the texts that name it.
struct PnrTextGroup
{
    std::vector<std::shared_ptr<CTextObject>> texts; ///< Its texts.
    std::shared_ptr<CBaseObject> object; ///< The object.
    quint32 kind = 0; ///< What `object` is: 0 a point, 1 a line, 2 an area.
};

/// Writes one SXF map. Made by `CreatePnrWriter`; then `Init`, `SetPrecision`, `Open`, the `Write`
/// operations in any order, `Close`, and `DeletePnrWriter`. Objects go to a temporary file as they
/// come; the target is made by `Close`.
///
/// Objects and texts stay the host's. A `Write` operation returns false and writes nothing for a
/// null object, and for one that holds a number that is not finite in what it would write.
class VELOREXCHANGE_EXPORT IPnrWriter
{
public:
    /// The host's conversion of coordinates, applied to every vertex on its way to the file.
    class VELOREXCHANGE_EXPORT IContext
    {
    public:
        virtual ~IContext();
        /// For vertices of contours in space.
        virtual CPoint3D Transform3D(const CPoint3D& point) = 0;
        /// For vertices of contours in the plan.
        virtual CPoint2D Transform2D(const CPoint2D& point) = 0;
    };

    IPnrWriter(const IPnrWriter&) = delete;
    IPnrWriter& operator=(const IPnrWriter&) = delete;
    virtual ~IPnrWriter();

    /// Starts afresh, with no object written. `userMap` makes a user map instead of a terrain map;
    /// `log` may be null, stays the host's and outlives the writer.
    virtual void Init(bool userMap, CExportLog* log) = 0;

    /// Decimals of the numbers in the text form, 4 unless told. The binary form has no use for it.
    virtual void SetPrecision(int digits) = 0;
    virtual int GetPrecision() const = 0; ///< What `SetPrecision` set.

    /// Takes the target's name, which is not opened before `Close`. False if there is no place for
    /// temporary files.
    virtual bool Open(const QString& fileName, const PnrFileParams& params) = 0;

    /// Makes the target. Without an object nothing is made, a file that stands there stays as it
    /// is, and the result is true. False if something could not be written.
    virtual bool Close() = 0;

    /// Writes the object and then its texts, tied together by attributes that are added to both.
    /// False if one of them could not be written, or `kind` does not fit the object.
    virtual bool WriteWithTexts(const PnrTextGroup& group) = 0;

    /// The binary writer returns true also when the disk is full, which `Close` then tells.
    virtual bool WriteText(CTextObject* text) = 0;
    virtual bool WriteSquare(CSquareObject* square) = 0; ///< See `WriteText`.
    virtual bool WriteLine(CLineObject* line) = 0; ///< See `WriteText`.
    virtual bool WritePoint(CPointObject* point) = 0; ///< See `WriteText`.

protected:
    /// `conversion` may be null: then coordinates are written as they are.
    explicit IPnrWriter(std::shared_ptr<IContext> conversion);

    std::shared_ptr<IContext> context; ///< The conversion, or null.
};

} // namespace VelorExchange::pnr
