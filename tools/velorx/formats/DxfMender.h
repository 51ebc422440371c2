// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <QTemporaryFile>

#include <vector>

namespace velorx {

/// Copies a text drawing so that the library's reader takes its entities for what they are.
///
/// - Objects embedded in texts are left out: their groups would spoil those of the text.
/// - Points, ellipses and splines lose the direction of their plane: the reader would apply it to points that
///   stand in the plan already. Arcs of ellipses turn the other way where it looks down.
/// - Of polylines, hatches and inserts whose plane looks down, bulges, arcs, angles and factors
///   change their sense, as the reader turns over their points alone.
///
/// Everything else is copied byte for byte. Memory holds one object.
class CDxfMender
{
public:
    /// Both are open and outlive this object.
    CDxfMender(QIODevice& source, QIODevice& target) : in(source), out(target) { }

    /// Copies all; false if the target takes less than it is given.
    bool Run();

private:
    /// A group: both of its lines with their ends.
    struct SGroup
    {
        QByteArray code;
        QByteArray value;
        int number = -1; ///< Of the code.
    };
    using CMend = void (CDxfMender::*)();
    struct SKind
    {
        const char* name;
        CMend mend;
    };
    static const SKind kKinds[];

    void MendObject();
    bool WriteObject();
    void DropEmbedded();
    void DropPlane();
    void MendEllipse();
    void MendPolyline();
    void MendVertex();
    void MendInsert();
    void MendHatch();
    bool IsBehind() const;
    SGroup* Find(int code);
    static double Number(const SGroup& group);
    static void SetValue(SGroup& group, const QByteArray& text);
    static void Negate(SGroup& group);

    QIODevice& in;
    QIODevice& out;
    std::vector<SGroup> object; ///< From its kind to its last group.
    bool isPolylineBehind = false; ///< Whether vertices that follow belong to one.
};

/// Opens `copy` and mends the drawing at `path` into it; false if one of them cannot be read or written.
bool Mend(const QString& path, QTemporaryFile& copy);

} // namespace velorx
