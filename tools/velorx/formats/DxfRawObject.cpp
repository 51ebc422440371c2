// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfRawObject.h"

#include <algorithm>
#include <utility>

namespace velorx {

namespace {

bool IsLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

bool IsBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

// Another text in place of the one in the line, ahead of its end.
void Replace(QByteArray& line, const QByteArray& text)
{
    int end = line.size();
    while (end > 0 && IsLineEnd(line.at(end - 1))) {
        --end;
    }
    line.replace(0, end, text);
}

} // namespace

int NumberOfCode(std::string_view line)
{
    constexpr std::size_t kMostDigits = 4;
    while (!line.empty() && IsBlank(line.front())) {
        line.remove_prefix(1);
    }
    while (!line.empty() && IsBlank(line.back())) {
        line.remove_suffix(1);
    }
    if (line.empty() || line.size() > kMostDigits || (line.size() > 1 && line.front() == '0')) {
        return -1;
    }
    int code = 0;
    for (const char c : line) {
        if (c < '0' || c > '9') {
            return -1;
        }
        code = code * 10 + (c - '0');
    }
    return code;
}

QByteArray DxfNumber(double number)
{
    constexpr int kDigits = 17;
    return QByteArray::number(number, 'g', kDigits);
}

bool CDxfRawObject::Write(QIODevice& target) const
{
    return std::all_of(groups.begin(), groups.end(), [&target](const SDxfRawGroup& group) {
        return target.write(group.code) == group.code.size()
            && target.write(group.value) == group.value.size();
    });
}

const SDxfRawGroup* CDxfRawObject::Find(int code) const
{
    const auto found =
        std::find_if(groups.begin(), groups.end(),
                     [code](const SDxfRawGroup& group) { return group.number == code; });
    return found != groups.end() ? &*found : nullptr;
}

SDxfRawGroup* CDxfRawObject::Find(int code)
{
    return const_cast<SDxfRawGroup*>(std::as_const(*this).Find(code));
}

double CDxfRawObject::Number(int code, double absent) const
{
    const SDxfRawGroup* group = Find(code);
    return group != nullptr ? NumberOf(*group) : absent;
}

int CDxfRawObject::Integer(int code) const
{
    const SDxfRawGroup* group = Find(code);
    return group != nullptr ? IntegerOf(*group) : 0;
}

EDxfPlane CDxfRawObject::Plane() const
{
    return PlaneIn([this](int code, double absent) { return Number(code, absent); });
}

// The kind lends its line ends, which the last group of a file can lack.
void CDxfRawObject::Set(int code, const QByteArray& text)
{
    if (SDxfRawGroup* group = Find(code)) {
        SetValue(*group, text);
    } else if (!groups.empty()) {
        groups.insert(groups.begin() + 1, NewGroup(code, text));
    }
}

void CDxfRawObject::SetKind(const QByteArray& name)
{
    SetValue(groups.front(), name);
}

SDxfRawGroup CDxfRawObject::NewGroup(int code, const QByteArray& text) const
{
    SDxfRawGroup group = groups.front();
    Replace(group.code, QByteArray::number(code));
    Replace(group.value, text);
    group.number = code;
    return group;
}

void CDxfRawObject::Drop(const std::vector<int>& codes)
{
    const auto isAmong = [&codes](const SDxfRawGroup& group) {
        return std::find(codes.begin(), codes.end(), group.number) != codes.end();
    };
    groups.erase(std::remove_if(groups.begin(), groups.end(), isAmong), groups.end());
}

void CDxfRawObject::DropFrom(int code)
{
    if (const SDxfRawGroup* first = Find(code)) {
        groups.erase(groups.begin() + (first - groups.data()), groups.end());
    }
}

double CDxfRawObject::NumberOf(const SDxfRawGroup& group)
{
    return group.value.trimmed().toDouble();
}

int CDxfRawObject::IntegerOf(const SDxfRawGroup& group)
{
    return group.value.trimmed().toInt();
}

void CDxfRawObject::SetValue(SDxfRawGroup& group, const QByteArray& text)
{
    Replace(group.value, text);
}

void CDxfRawObject::Negate(SDxfRawGroup& group)
{
    const QByteArray text = group.value.trimmed();
    if (text.startsWith('-')) {
        SetValue(group, text.mid(1));
    } else {
        SetValue(group, '-' + (text.startsWith('+') ? text.mid(1) : text));
    }
}

} // namespace velorx
