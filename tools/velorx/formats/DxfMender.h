// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfRawObject.h"

#include <QHash>
#include <QIODevice>
#include <QString>
#include <QTemporaryFile>

namespace velorx {

/// Copies a text drawing so that the library's reader takes its entities for what they are.
///
/// - Objects embedded in texts are left out: their groups would spoil those of the text.
/// - Long texts have their direction where the reader looks for it; those seen from behind run the other way
///   from their other side, so that they cover their place and can be read.
/// - Texts of one line that stand at their top, middle or bottom move to their base line, which is where the
///   reader looks for them.
/// - Points, ellipses, splines, faces, lines without ends, long texts and polylines in space lose the direction
///   of their plane: the reader would apply it to points that stand in the plan already. Arcs of ellipses turn
///   the other way where it looks down.
/// - Of polylines in the plan, hatches and inserts whose plane looks down, bulges, arcs, angles and factors
///   change their sense, as the reader turns over their points alone.
/// - Faces of meshes, which have no place of their own, are left out from among their vertices.
/// - Traces become solids; leaders become polylines or splines with a solid as their arrow head.
///
/// Everything else is copied byte for byte. Memory holds one object that is looked at, and grows with the
/// names of dimension styles.
class CDxfMender
{
public:
    /// Both are open and outlive this object.
    CDxfMender(QIODevice& source, QIODevice& target) : in(source), out(target) { }

    /// Copies all; false if the target takes less than it is given.
    bool Run();

private:
    using CMend = void (CDxfMender::*)();
    struct SKind
    {
        const char* name;
        CMend mend;
    };
    static const SKind kKinds[];

    bool Take(SDxfRawGroup group);
    bool FinishObject();
    void BeginObject(const SDxfRawGroup& kind);
    void DropEmbedded();
    void DropPlane();
    void MendText();
    void MendTextLine();
    void MendAttribute();
    void MoveToBaseLine(int vertical);
    void MendEllipse();
    void MendPolyline();
    void MendOldPolyline();
    void MendVertex();
    void MendInsert();
    void MendHatch();
    void MendTrace();
    void MendLeader();
    void KeepArrowSize();

    QIODevice& in;
    QIODevice& out;
    CDxfRawObject object; ///< The one in hand, if it is looked at.
    CMend mend = nullptr; ///< What to do with it; null for one that is not looked at.
    bool isPolylineBehind = false; ///< Whether vertices that follow belong to one.
    bool isBody = false; ///< Whether vertices that follow belong to a mesh that tells its faces.
    QHash<QByteArray, double> arrowSizes; ///< In file units, by dimension style in capitals.
};

/// Opens `copy` and mends the drawing at `path` into it. Returns a path to read it from as long as `copy` lives;
/// empty if one of them cannot be read or written.
QString Mend(const QString& path, QTemporaryFile& copy);

} // namespace velorx
