// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfMender.h"

#include "tools/velorx/formats/DxfLeader.h"
#include "tools/velorx/formats/DxfLines.h"
#include "tools/velorx/formats/DxfTextAnchor.h"

#include <QFile>

#include <cmath>
#include <iterator>
#include <utility>

namespace velorx {

namespace {

constexpr double kTwoPi = 6.283185307179586;
constexpr double kDegree = kTwoPi / 360.0;
constexpr double kHalfTurn = 180.0;
constexpr int kEmbeddedObject = 101;
constexpr int kFlags = 70;
constexpr int kBody = 64;
constexpr int kInSpace = 8 + 16 + kBody; // lines in space, meshes, bodies

} // namespace

const CDxfMender::SKind CDxfMender::kKinds[] = {
    {"MTEXT", &CDxfMender::MendText},          {"TEXT", &CDxfMender::MendTextLine},
    {"ATTRIB", &CDxfMender::MendAttribute},    {"ATTDEF", &CDxfMender::DropEmbedded},
    {"POINT", &CDxfMender::DropPlane},         {"SPLINE", &CDxfMender::DropPlane},
    {"3DFACE", &CDxfMender::DropPlane},        {"XLINE", &CDxfMender::DropPlane},
    {"RAY", &CDxfMender::DropPlane},           {"ELLIPSE", &CDxfMender::MendEllipse},
    {"LWPOLYLINE", &CDxfMender::MendPolyline}, {"POLYLINE", &CDxfMender::MendOldPolyline},
    {"VERTEX", &CDxfMender::MendVertex},       {"INSERT", &CDxfMender::MendInsert},
    {"HATCH", &CDxfMender::MendHatch},         {"TRACE", &CDxfMender::MendTrace},
    {"LEADER", &CDxfMender::MendLeader},       {"DIMSTYLE", &CDxfMender::KeepArrowSize},
};

bool CDxfMender::Run()
{
    CDxfLines lines(in);
    while (lines.Next()) {
        SDxfRawGroup group;
        group.code = QByteArray(lines.Line().data(), static_cast<int>(lines.Line().size()));
        group.number = NumberOfCode(lines.Line());
        if (lines.Next()) {
            group.value = QByteArray(lines.Line().data(), static_cast<int>(lines.Line().size()));
        }
        if (!Take(std::move(group))) {
            return false;
        }
    }
    return FinishObject();
}

bool CDxfMender::Take(SDxfRawGroup group)
{
    if (group.number == 0) {
        if (!FinishObject()) {
            return false;
        }
        BeginObject(group);
    }
    object.Add(std::move(group));
    return mend != nullptr || FinishObject();
}

void CDxfMender::BeginObject(const SDxfRawGroup& kind)
{
    const QByteArray name = kind.value.trimmed().toUpper();
    isPolylineBehind = isPolylineBehind && name == "VERTEX";
    isBody = isBody && name == "VERTEX";
    mend = nullptr;
    for (const SKind& known : kKinds) {
        mend = name == known.name ? known.mend : mend;
    }
}

bool CDxfMender::FinishObject()
{
    if (mend != nullptr && !object.IsEmpty()) {
        (this->*mend)();
    }
    const bool isWritten = object.Write(out);
    object.Clear();
    return isWritten;
}

void CDxfMender::DropEmbedded()
{
    object.DropFrom(kEmbeddedObject);
}

void CDxfMender::DropPlane()
{
    object.Drop({210, 220, 230});
}

// A place to hold on to counts from 1 along the rows of three.
void CDxfMender::MendText()
{
    enum ECode { kX = 11, kY = 21, kRotation = 50, kPlace = 71 };
    constexpr int kColumns = 3;
    constexpr int kPlaces = 9;
    DropEmbedded();
    double x = object.Number(kX, 1.0);
    double y = object.Number(kY);
    if (object.Find(kX) == nullptr && object.Number(kRotation) != 0) {
        x = std::cos(object.Number(kRotation) * kDegree);
        y = std::sin(object.Number(kRotation) * kDegree);
        object.Set(kY, DxfNumber(y));
        object.Set(kX, DxfNumber(x));
        object.Drop({kRotation});
    }
    if (object.Plane() == EDxfPlane::Behind) {
        const int told = object.Integer(kPlace);
        const int place = told >= 1 && told <= kPlaces ? told - 1 : 0;
        const int column = place % kColumns;
        object.Set(kY, DxfNumber(-y));
        object.Set(kX, DxfNumber(-x));
        object.Set(kPlace, QByteArray::number(place - column + kColumns - column));
    }
    DropPlane();
}

void CDxfMender::MendTextLine()
{
    MoveToBaseLine(object.Integer(73));
}

void CDxfMender::MendAttribute()
{
    DropEmbedded();
    MoveToBaseLine(object.Integer(74));
}

// The point that a text is set by stands in groups 11 and 21. Most programs put the start of the base line into
// 10 and 20, some that point once more.
void CDxfMender::MoveToBaseLine(int vertical)
{
    constexpr double kHeights[] = {0.0, -0.3, 0.5, 1.0}; // base line, below it, middle, top
    const auto number = [this](int code, double absent) { return object.Number(code, absent); };
    if (vertical < 0 || vertical >= static_cast<int>(std::size(kHeights))
        || !IsAtAnchor(vertical, number))
    {
        return;
    }
    const double angle = object.Number(50) * kDegree;
    const double height = object.Number(40) * kHeights[vertical];
    object.Set(10, DxfNumber(object.Number(10) + height * std::sin(angle)));
    object.Set(20, DxfNumber(object.Number(20) - height * std::cos(angle)));
}

// Seen from above, the arc runs from its end to its start.
void CDxfMender::MendEllipse()
{
    enum ECode { kStart = 41, kEnd = 42 };
    if (object.Plane() == EDxfPlane::Behind) {
        const double start = object.Number(kStart);
        object.Set(kStart, DxfNumber(kTwoPi - object.Number(kEnd)));
        object.Set(kEnd, DxfNumber(kTwoPi - start));
    }
    DropPlane();
}

void CDxfMender::MendPolyline()
{
    constexpr int kBulge = 42;
    if (object.Plane() != EDxfPlane::Behind) {
        return;
    }
    for (SDxfRawGroup& group : object.Groups()) {
        if (group.number == kBulge) {
            CDxfRawObject::Negate(group);
        }
    }
}

void CDxfMender::MendOldPolyline()
{
    const int flags = object.Integer(kFlags);
    isBody = (flags & kBody) != 0;
    if ((flags & kInSpace) != 0) {
        DropPlane();
    } else {
        isPolylineBehind = object.Plane() == EDxfPlane::Behind;
    }
}

// A face of a body has numbers of vertices and no place.
void CDxfMender::MendVertex()
{
    constexpr int kPlace = 64;
    constexpr int kFace = 128;
    if (isBody && (object.Integer(kFlags) & (kPlace | kFace)) == kFace) {
        object.Clear();
        return;
    }
    SDxfRawGroup* bulge = object.Find(42);
    if (isPolylineBehind && bulge != nullptr) {
        CDxfRawObject::Negate(*bulge);
    }
}

// What is turned and then mirrored is mirrored and then turned the other way.
void CDxfMender::MendInsert()
{
    enum ECode { kScale = 41, kRotation = 50 };
    if (object.Plane() != EDxfPlane::Behind) {
        return;
    }
    if (SDxfRawGroup* rotation = object.Find(kRotation)) {
        CDxfRawObject::Negate(*rotation);
    }
    if (SDxfRawGroup* scale = object.Find(kScale)) {
        CDxfRawObject::Negate(*scale);
    } else {
        object.Set(kScale, "-1");
    }
}

// The reader turns over the points of boundaries alone. Angles of arcs that run clockwise are told with the
// other sign, so that both senses change in the same way; those of ellipses count from their axis.
void CDxfMender::MendHatch()
{
    enum ECode { kPath = 92, kEdge = 72, kBulge = 42, kStart = 50, kEnd = 51, kSense = 73 };
    enum EEdge { kPolyline = -1, kOther = 0, kArc = 2, kEllipse = 3 };
    constexpr int kStyle = 75;
    if (object.Plane() != EDxfPlane::Behind) {
        return;
    }
    int edge = kOther;
    for (SDxfRawGroup& group : object.Groups()) {
        if (group.number == kStyle) {
            return; // behind the boundaries
        }
        const int value = CDxfRawObject::IntegerOf(group);
        if (group.number == kPath) {
            edge = (value & 2) != 0 ? kPolyline : kOther;
        } else if (group.number == kEdge && edge != kPolyline) {
            edge = value;
        } else if (group.number == kBulge && edge == kPolyline) {
            CDxfRawObject::Negate(group);
        } else if ((group.number == kStart || group.number == kEnd) && edge == kArc) {
            CDxfRawObject::SetValue(group, DxfNumber(CDxfRawObject::NumberOf(group) + kHalfTurn));
        } else if (group.number == kSense && (edge == kArc || edge == kEllipse)) {
            CDxfRawObject::SetValue(group, value != 0 ? "0" : "1");
        }
    }
}

void CDxfMender::MendTrace()
{
    object.SetKind("SOLID");
}

void CDxfMender::KeepArrowSize()
{
    const SDxfRawGroup* name = object.Find(2);
    if (name != nullptr) {
        arrowSizes.insert(name->value.trimmed().toUpper(), ArrowSizeIn(object));
    }
}

void CDxfMender::MendLeader()
{
    const SDxfRawGroup* style = object.Find(3);
    const QByteArray name = style != nullptr ? style->value.trimmed().toUpper() : QByteArray();
    DrawLeader(object, arrowSizes.value(name, kUsualArrowSize));
}

QString Mend(const QString& path, QTemporaryFile& copy)
{
    QFile file(path);
    const bool isDone = file.open(QIODevice::ReadOnly) && copy.open()
        && CDxfMender(file, copy).Run() && copy.flush();
    if (!isDone) {
        return {};
    }
    // Asked for its name, the file would get one, and stay behind where the process is ended.
    const QString handle = QStringLiteral("/proc/self/fd/%1").arg(copy.handle());
    return QFile::exists(handle) ? handle : copy.fileName();
}

} // namespace velorx
