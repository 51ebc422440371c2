// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Export.h"
#include "VelorExchange/foundation/ExportLog.h"
#include "VelorExchange/mif/Point.h"
#include "VelorExchange/mif/Polyline.h"
#include "VelorExchange/mif/Region.h"
#include "VelorExchange/mif/Text.h"

class QRectF;

namespace VelorExchange::mif {

/// Writes objects into one pair of files per layer.
///
/// A life is `CreateMIFWriter`, `Init`, any number of `Add` operations, `Rewrite`, `DeleteMIFWriter`.
/// The geometry streams into a temporary file per layer; the attributes stay in memory until the next
/// `Init`. An `Add` operation copies what it needs of the record and returns false, with nothing
/// written, if the layer's name is empty, if the record has too few points, if a number that it would
/// write isn't finite, or if the temporary file can't be created. Characters of the layer's name that
/// can't stand in a file name (\ / " * ? : | < >) become "_", so that two layers may share a file.
/// One thread at a time.
class VELOREXCHANGE_EXPORT IMIFWriter
{
public:
    /// Maps stored coordinates to output coordinates. Implemented by the host, which owns it.
    class VELOREXCHANGE_EXPORT IContext
    {
    public:
        virtual ~IContext() = default;

        /// Called for each coordinate pair when it is written, and for the bounds of the header.
        virtual CPoint2D TransformPoint(const CPoint2D& point) = 0;
    };

    virtual ~IMIFWriter() = default;

    /// Forgets all that was added. `log` receives the counts and the failures; it isn't owned, may be
    /// null, and has to outlive the writer or the next `Init`.
    virtual void Init(CExportLog* log) = 0;

    /// Writes the pairs LAYER.MIF and LAYER.MID into `folder`, in the order of the layers' names.
    ///
    /// `bounds`, if not null, stands in every header; else each layer has its own. Both are stored
    /// coordinates. A file that can't be opened or a temporary file that came short of what was added
    /// is told to the log, and the next layer follows. Throws `FileError` if a ".MIF" can't be
    /// completed. What was added stays, so it can run again.
    virtual void Rewrite(const QString& folder, const QRectF* bounds) = 0;

    /// Digits after the point of coordinates and angles, 4 at first, for what is written from now on.
    virtual void SetPrecision(int digits) = 0;
    virtual int GetPrecision() const = 0; ///< What `SetPrecision` set.

    /// Not written: `justify`, `spacing`, the label, size and background of the font.
    virtual bool AddText(const CTextMIF& text, const QString& layer) = 0;

    /// Two points at least. Not written: `smooth`.
    virtual bool AddPolyline(const CPolylineMIF& line, const QString& layer) = 0;

    /// Three points at least; the ring isn't closed by the writer. Not written: `pen`, `center`.
    virtual bool AddRegion(const CRegionMIF& region, const QString& layer) = 0;

    /// Without a symbol if `symbol.shape` isn't above 0.
    virtual bool AddPoint(const CPointMIF& point, const QString& layer) = 0;
};

/// Makes a writer. `context` isn't owned, outlives the writer and may be null: coordinates are then
/// written as they are.
VELOREXCHANGE_EXPORT IMIFWriter* CreateMIFWriter(IMIFWriter::IContext* context);

/// Destroys a writer with its temporary files. Null is allowed.
VELOREXCHANGE_EXPORT void DeleteMIFWriter(IMIFWriter* writer);

} // namespace VelorExchange::mif
