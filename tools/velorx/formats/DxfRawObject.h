// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfPlane.h"

#include <QByteArray>
#include <QIODevice>

#include <string_view>
#include <utility>
#include <vector>

namespace velorx {

/// A group of a drawing: both of its lines with their ends.
struct SDxfRawGroup
{
    QByteArray code;
    QByteArray value;
    int number = -1; ///< Of the code; -1 for one that the library's reader takes for none.
};

/// The number of the code in `line`, -1 for anything but a number in its shortest spelling.
int NumberOfCode(std::string_view line);

/// A number as a drawing spells it, with all of its digits.
QByteArray DxfNumber(double number);

/// An object of a drawing, byte for byte, from its kind to its last group.
class CDxfRawObject
{
public:
    bool IsEmpty() const { return groups.empty(); }
    void Clear() { groups.clear(); }
    void Add(SDxfRawGroup group) { groups.push_back(std::move(group)); }

    /// False if `target` takes less than it is given.
    bool Write(QIODevice& target) const;

    std::vector<SDxfRawGroup>& Groups() { return groups; }
    const std::vector<SDxfRawGroup>& Groups() const { return groups; }

    /// Another name for what the object is.
    void SetKind(const QByteArray& name);

    /// A group that is none of the object, with line ends like those of its kind. The object is not empty.
    SDxfRawGroup NewGroup(int code, const QByteArray& text) const;

    /// The first group of that code; null for none. Good until groups are added or dropped.
    SDxfRawGroup* Find(int code);

    /// The first number of that code, 0 for one that is none, `absent` where there is no such group.
    double Number(int code, double absent = 0.0) const;
    int Integer(int code) const;

    EDxfPlane Plane() const;

    /// Gives the first group of that code the value `text`, or puts one behind the kind of an object that has
    /// more than that.
    void Set(int code, const QByteArray& text);

    void Drop(const std::vector<int>& codes);

    /// Drops the first group of that code and all behind it.
    void DropFrom(int code);

    /// The value without its line end and blanks, as a number; 0 for none.
    static double NumberOf(const SDxfRawGroup& group);
    static int IntegerOf(const SDxfRawGroup& group);

    /// Puts another value there. The line end stays.
    static void SetValue(SDxfRawGroup& group, const QByteArray& text);

    /// Changes the sign, as text, so that no digit gets lost.
    static void Negate(SDxfRawGroup& group);

private:
    const SDxfRawGroup* Find(int code) const;

    std::vector<SDxfRawGroup> groups;
};

} // namespace velorx
