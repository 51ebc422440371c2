// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Arc.h"
#include "VelorExchange/dxf/records/Attrib.h"
#include "VelorExchange/dxf/records/Face3D.h"
#include "VelorExchange/dxf/records/Hatch.h"
#include "VelorExchange/dxf/records/Image.h"
#include "VelorExchange/dxf/records/Insert.h"
#include "VelorExchange/dxf/records/Line.h"
#include "VelorExchange/dxf/records/LineStyle.h"
#include "VelorExchange/dxf/records/LWPolyline.h"
#include "VelorExchange/dxf/records/MLine.h"
#include "VelorExchange/dxf/records/MText.h"
#include "VelorExchange/dxf/records/Point.h"
#include "VelorExchange/dxf/records/Polyline.h"
#include "VelorExchange/dxf/records/Spline.h"
#include "VelorExchange/dxf/records/Text.h"
#include "VelorExchange/dxf/records/TextStyle.h"
#include "VelorExchange/dxf/records/XLine.h"
#include "VelorExchange/foundation/Export.h"
#include "VelorExchange/foundation/Point.h"

#include <QString>

namespace VelorExchange {

class CExportLog;

namespace dxf {

/// Writes drawings as ASCII DXF of version AC1015 or AC1018.
///
/// Made by `CreateDXFWriter`, given back to `DeleteDXFWriter`. The order of calls: `Init` where the
/// version or the log matters, elements in any order, `Rewrite` once or several times. Each element
/// goes to temporary files at once; memory grows with the number of distinct names alone. A writer
/// belongs to one thread at a time.
///
/// Angles of records are radians, but the slant of text styles is degrees. Plan positions pass through
/// the context; heights (z) never do. Line weights are millimetres. Colours are 0x00BBGGRR, 0xFFFFFFFF
/// means by block and 256 by layer. Names are made safe: blanks around them go, characters that drawing
/// programs refuse become "_". Text is written in Windows-1251; a letter that it lacks becomes "?", in
/// names "_".
///
/// An operation that adds an element returns true if something was written. One whose record holds a
/// number that is not finite where it would be written returns false and changes nothing. A file
/// operation that fails throws `FileError`; after that only `Init` and the destruction are allowed.
class VELOREXCHANGE_EXPORT IDXFWriter
{
public:
    /// What the host can add to the writer; owned by the host. Called within `Init` and the operations
    /// that add something.
    class IContext
    {
    public:
        /// Maps a plan position into the drawing.
        virtual CPoint2D TransformPoint(const CPoint2D& in) = 0;

        /// Fills in the line style called `name`; false if there is none.
        virtual bool GetLineStyle(const QString& name, CLineStyleDXF& style) = 0;

        /// Fills in a text style of which only the name is set.
        virtual void CompleteTextStyle(CTextStyleDXF& style) = 0;

        /// The factor from plan lengths to drawing lengths.
        virtual double GetScale() = 0;

        IDXFWriter* writer = nullptr; ///< Set by the writer that is made with this context.

    protected:
        IContext() = default;
        /// Copies of a context belong to whoever made them.
        IContext(const IContext&) = default;
        /// Takes over `writer` like any other value.
        IContext& operator=(const IContext&) = default;
        ~IContext() = default;
    };

    IContext* context; ///< Not owned; null means that positions and lengths stay as they are.

    virtual ~IDXFWriter();
    IDXFWriter(const IDXFWriter&) = delete;
    IDXFWriter& operator=(const IDXFWriter&) = delete;

    /// Starts a new drawing of version 1015 or, for any other number, 1018. `log` (not owned, may be
    /// null) counts layers and elements from now on. The precision stays. Not with a block open.
    virtual void Init(int version, CExportLog* log) = 0;

    /// Writes the whole drawing to `fileName`, in place of what is there. More elements and another
    /// `Rewrite` can follow. Not with a block open. After a failure what was written stays on the disk.
    virtual void Rewrite(const QString& fileName) = 0;

    /// Sets the number of decimals of real values, 6 at the start, and the tolerance that goes with it.
    virtual void SetPrecision(int digits) = 0;

    /// The number of decimals.
    virtual int GetPrecision() const = 0;

    /// Differences up to this size count as none: 0.1 to the power of the precision.
    virtual double GetTolerance() const = 0;

    /// Registers a layer; returns its handle. `visible` and `locked` count for the first call with a
    /// name alone. Elements register their layers themselves, visible and not locked.
    virtual int AddLayer(const QString& name, bool visible, bool locked) = 0;

    /// Registers a line style; returns its handle, or -1 for one without a name or with a number that
    /// is not finite.
    virtual int AddLineStyle(const CLineStyleDXF& style) = 0;

    /// Registers a text style; returns its handle, or -1 for one whose name is empty when made safe or
    /// that has a number that is not finite. `shapeFile` makes it the entry of a shape file.
    virtual int AddTextStyle(const CTextStyleDXF& style, bool shapeFile) = 0;

    /// ARC; a circle is an arc too.
    virtual bool AddArc(const CArcDXF& record) = 0;

    /// LINE.
    virtual bool AddLine(const CLineDXF& record) = 0;

    /// MLINE. False without two points, a style name, a style body or an offset.
    virtual bool AddMLine(const CMLineDXF& record) = 0;

    /// 3DFACE.
    virtual bool Add3DFace(const C3DFaceDXF& record) = 0;

    /// POINT, without its thickness.
    virtual bool AddPoint(const CPointDXF& record) = 0;

    /// SPLINE of third degree, without its fit points.
    virtual bool AddSpline(const CSplineDXF& record) = 0;

    /// HATCH from `outline` and `markedBoundaries`. False without a pattern name or for an outline that
    /// encloses nothing.
    virtual bool AddHatch(const CHatchDXF& record) = 0;

    /// XLINE, in the plan.
    virtual bool AddXLine(const CXLineDXF& record) = 0;

    /// IMAGE with its definition. False without a name. Within a block the second half of the element
    /// lands outside it, and so does what follows: images belong outside blocks.
    virtual bool AddImage(const CImageDXF& record) = 0;

    /// ATTRIB if `withValue`, otherwise ATTDEF.
    virtual bool AddAttribute(const CAttribDXF& record, bool withValue) = 0;

    /// INSERT with its attributes. False without a block name.
    virtual bool AddInsert(const CInsertDXF& record) = 0;

    /// MTEXT. False without text.
    virtual bool AddMText(const CMTextDXF& record) = 0;

    /// TEXT, in one line and up to 255 characters. False without text.
    virtual bool AddText(const CTextDXF& record) = 0;

    /// POLYLINE in space. False without vertices.
    virtual bool Add3DPolyline(const CPolylineDXF& record) = 0;

    /// LWPOLYLINE. False without vertices.
    virtual bool AddPolyline(const CLWPolylineDXF& record) = 0;

    /// Opens a block; elements go to it until `EndBlock`. Blocks can be nested. With `byBlockColor` its
    /// elements take the insert's colour. A non-empty `xrefPath` makes it an outside reference.
    virtual bool BeginBlock(const QString& name, bool byBlockColor, const QString& xrefPath) = 0;

    /// Closes the innermost open block; false if none is open.
    virtual bool EndBlock() = 0;

    /// True while a block is open.
    virtual bool IsInBlock() const = 0;

    /// True if a block of that name has been begun.
    virtual bool HasBlock(const QString& name) const = 0;

    /// The handle that the next record takes.
    virtual int GetNextHandle() const = 0;

    /// An image name not yet used, made from `name`.
    virtual QString MakeImageName(const QString& name) const = 0;

protected:
    /// `host` stays the host's, can be null, and outlives the writer.
    explicit IDXFWriter(IContext* host) : context(host) { }
};

/// A new writer, set up as by `Init(1018, nullptr)`. `context` is not owned and may be null. Throws
/// `FileError` if a temporary file can't be opened. Belongs to the caller, who gives it back to
/// `DeleteDXFWriter`.
VELOREXCHANGE_EXPORT IDXFWriter* CreateDXFWriter(IDXFWriter::IContext* context);

/// Destroys a writer with its temporary files. Null is ignored.
VELOREXCHANGE_EXPORT void DeleteDXFWriter(IDXFWriter* writer);

} // namespace dxf
} // namespace VelorExchange
