// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/pnr/ByteOutput_p.h"
#include "VelorExchange/pnr/IPnrWriter.h"
#include "VelorExchange/pnr/Objects.h"
#include "VelorExchange/pnr/Spool_p.h"
#include "VelorExchange/pnr/SxfText_p.h"

#include <QFile>
#include <QString>

#include <array>
#include <memory>

namespace VelorExchange::pnr {

/// What both writers share. Holds the object in hand; the rest goes to temporary files.
class CPnrAbstractWriterImpl : public IPnrWriter
{
public:
    void Init(bool userMap, CExportLog* log) override;
    void SetPrecision(int digits) override { precision = digits; }
    int GetPrecision() const override { return precision; }
    bool Open(const QString& fileName, const PnrFileParams& params) override;
    bool WriteWithTexts(const PnrTextGroup& group) override;

protected:
    /// The second argument is there for hosts and has no effect.
    CPnrAbstractWriterImpl(bool second, std::shared_ptr<IContext> conversion);

    /// False for null and for an object with a null contour, of which nothing is written.
    static bool IsWhole(const CBaseObject* object);

    /// Takes the object into bounds and count, once it is certain to be written.
    void Register(const CBaseObject& object);

    /// Counts an object in the report under the target's name.
    void CountInLog(bool ofUserMap, const QString& kind);

    /// The name under which the report counts.
    QString FileKey(bool ofUserMap) const;

    /// The vertex on its way to the file.
    CPoint2D Converted(const CPoint2D& point) { return context->Transform2D(point); }
    CPoint3D Converted(const CPoint3D& point) { return context->Transform3D(point); }

    /// What stands in a file for the value where it is written as text.
    static QString ValueText(const PnrSemantic& semantic);

    /// False if the value is a number that is not finite.
    static bool IsFinite(const QVariant& value);

    bool HasFiniteBounds() const;

    /// Corners of the bounds in the order of the frame.
    std::array<CPoint2D, 4> Corners() const;

    /// Makes the target of the head's bytes, the spooled objects and the tail; false if a file took
    /// fewer bytes than given. The target is only touched once all objects are in the temporary file.
    bool WriteTarget(const QByteArray& headBytes, const QByteArray& tail);

    void CloseTemporaries();

    CExportLog* log = nullptr;
    std::unique_ptr<QFile> file; // the target
    std::unique_ptr<CSpool> body;
    std::unique_ptr<CSpool> head;
    PnrFileParams params; // its rectangle grows with the objects
    int precision = 4;
    bool userMap = false;
    qint32 objectCount = 0;

    CSxfText text;
    CByteOutput output; // the object in hand

private:
    void MakeFiles();
    bool WriteByKind(const PnrTextGroup& group);

    std::array<QString, 2> fileKeys; // by userMap
};

} // namespace VelorExchange::pnr
