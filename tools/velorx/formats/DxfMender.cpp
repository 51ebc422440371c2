// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfMender.h"

#include <QFile>

#include <algorithm>
#include <cmath>

namespace velorx {

namespace {

constexpr double kTwoPi = 6.283185307179586;
constexpr double kHalfTurn = 180.0;
constexpr int kDigits = 17;

int NumberOfCode(const QByteArray& line)
{
    bool isNumber = false;
    const int code = line.trimmed().toInt(&isNumber);
    return isNumber ? code : -1;
}

bool IsPlaneCode(int code)
{
    return code == 210 || code == 220 || code == 230;
}

} // namespace

const CDxfMender::SKind CDxfMender::kKinds[] = {
    {"MTEXT", &CDxfMender::DropEmbedded},      {"ATTRIB", &CDxfMender::DropEmbedded},
    {"ATTDEF", &CDxfMender::DropEmbedded},     {"POINT", &CDxfMender::DropPlane},
    {"SPLINE", &CDxfMender::DropPlane},        {"ELLIPSE", &CDxfMender::MendEllipse},
    {"LWPOLYLINE", &CDxfMender::MendPolyline}, {"POLYLINE", &CDxfMender::MendPolyline},
    {"VERTEX", &CDxfMender::MendVertex},       {"INSERT", &CDxfMender::MendInsert},
    {"HATCH", &CDxfMender::MendHatch},
};

bool CDxfMender::Run()
{
    while (!in.atEnd()) {
        SGroup group;
        group.code = in.readLine();
        group.value = in.readLine();
        group.number = NumberOfCode(group.code);
        if (group.number == 0) {
            MendObject();
            if (!WriteObject()) {
                return false;
            }
        }
        object.push_back(std::move(group));
    }
    MendObject();
    return WriteObject();
}

void CDxfMender::MendObject()
{
    if (object.empty() || object.front().number != 0) {
        return;
    }
    const QByteArray name = object.front().value.trimmed().toUpper();
    isPolylineBehind = isPolylineBehind && name == "VERTEX";
    for (const SKind& kind : kKinds) {
        if (name == kind.name) {
            (this->*kind.mend)();
            return;
        }
    }
}

bool CDxfMender::WriteObject()
{
    for (const SGroup& group : object) {
        if (out.write(group.code) != group.code.size()
            || out.write(group.value) != group.value.size()) {
            return false;
        }
    }
    object.clear();
    return true;
}

CDxfMender::SGroup* CDxfMender::Find(int code)
{
    const auto found = std::find_if(object.begin(), object.end(),
                                    [code](const SGroup& group) { return group.number == code; });
    return found != object.end() ? &*found : nullptr;
}

double CDxfMender::Number(const SGroup& group)
{
    return group.value.trimmed().toDouble();
}

// The line end stays.
void CDxfMender::SetValue(SGroup& group, const QByteArray& text)
{
    int end = group.value.size();
    while (end > 0 && (group.value.at(end - 1) == '\n' || group.value.at(end - 1) == '\r')) {
        --end;
    }
    group.value = text + group.value.mid(end);
}

// As text, so that no digit gets lost.
void CDxfMender::Negate(SGroup& group)
{
    const QByteArray text = group.value.trimmed();
    if (text.startsWith('-')) {
        SetValue(group, text.mid(1));
    } else {
        SetValue(group, '-' + (text.startsWith('+') ? text.mid(1) : text));
    }
}

bool CDxfMender::IsBehind() const
{
    const auto component = [this](int code) {
        const auto found = std::find_if(object.begin(), object.end(), [code](const SGroup& group) {
            return group.number == code;
        });
        return found != object.end() ? Number(*found) : 0.0;
    };
    constexpr double kNear = 1e-9;
    return component(230) < 0 && std::fabs(component(210)) <= kNear
        && std::fabs(component(220)) <= kNear;
}

void CDxfMender::DropEmbedded()
{
    constexpr int kEmbeddedObject = 101;
    const auto first = std::find_if(object.begin(), object.end(), [](const SGroup& group) {
        return group.number == kEmbeddedObject;
    });
    object.erase(first, object.end());
}

void CDxfMender::DropPlane()
{
    const auto isPlane = [](const SGroup& group) { return IsPlaneCode(group.number); };
    object.erase(std::remove_if(object.begin(), object.end(), isPlane), object.end());
}

// Seen from above, the arc runs from its end to its start.
void CDxfMender::MendEllipse()
{
    SGroup* start = Find(41);
    SGroup* end = Find(42);
    if (IsBehind() && start != nullptr && end != nullptr) {
        const double from = kTwoPi - Number(*end);
        const double to = kTwoPi - Number(*start);
        SetValue(*start, QByteArray::number(from, 'g', kDigits));
        SetValue(*end, QByteArray::number(to, 'g', kDigits));
    }
    DropPlane();
}

void CDxfMender::MendPolyline()
{
    constexpr int kBulge = 42;
    if (!IsBehind()) {
        return;
    }
    for (SGroup& group : object) {
        if (group.number == kBulge) {
            Negate(group);
        }
    }
    isPolylineBehind = object.front().value.trimmed().toUpper() == "POLYLINE";
}

void CDxfMender::MendVertex()
{
    SGroup* bulge = Find(42);
    if (isPolylineBehind && bulge != nullptr) {
        Negate(*bulge);
    }
}

// What is turned and then mirrored is mirrored and then turned the other way.
void CDxfMender::MendInsert()
{
    if (!IsBehind()) {
        return;
    }
    if (SGroup* rotation = Find(50)) {
        Negate(*rotation);
    }
    if (SGroup* scale = Find(41)) {
        Negate(*scale);
    } else {
        SGroup mirrored = object.back();
        mirrored.code = "41"
            + mirrored.code.mid(mirrored.code.trimmed().size()
                                + mirrored.code.indexOf(mirrored.code.trimmed()));
        mirrored.number = 41;
        SetValue(mirrored, "-1");
        object.push_back(mirrored);
    }
}

// The reader turns over the points of boundaries alone. Angles of arcs that run clockwise are told with the
// other sign, so that both senses change in the same way; those of ellipses count from their axis.
void CDxfMender::MendHatch()
{
    enum ECode { kPath = 92, kEdge = 72, kBulge = 42, kStart = 50, kEnd = 51, kSense = 73 };
    enum EEdge { kPolyline = -1, kOther = 0, kArc = 2, kEllipse = 3 };
    constexpr int kStyle = 75;
    if (!IsBehind()) {
        return;
    }
    int edge = kOther;
    for (SGroup& group : object) {
        if (group.number == kStyle) {
            return; // behind the boundaries
        }
        const auto value = static_cast<int>(Number(group));
        if (group.number == kPath) {
            edge = (value & 2) != 0 ? kPolyline : kOther;
        } else if (group.number == kEdge && edge != kPolyline) {
            edge = value;
        } else if (group.number == kBulge && edge == kPolyline) {
            Negate(group);
        } else if ((group.number == kStart || group.number == kEnd) && edge == kArc) {
            SetValue(group, QByteArray::number(Number(group) + kHalfTurn, 'g', kDigits));
        } else if (group.number == kSense && (edge == kArc || edge == kEllipse)) {
            SetValue(group, value != 0 ? "0" : "1");
        }
    }
}

bool Mend(const QString& path, QTemporaryFile& copy)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && copy.open() && CDxfMender(file, copy).Run()
        && copy.flush();
}

} // namespace velorx
