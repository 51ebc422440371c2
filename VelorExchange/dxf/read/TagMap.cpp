// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/TagMap_p.h"

#include "VelorExchange/foundation/NumberParser_p.h"

#include <algorithm>

namespace VelorExchange::dxf {

namespace {

constexpr char kJoint = ';';

bool IsIn(int code, std::initializer_list<int> codes)
{
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

// Calls `take` for each part of `bytes` between the joints, empty ones left out.
template <class Take>
void ForEachPart(std::string_view bytes, Take take)
{
    while (!bytes.empty()) {
        const std::size_t size = std::min(bytes.find(kJoint), bytes.size());
        if (size > 0) {
            take(bytes.substr(0, size));
        }
        bytes.remove_prefix(std::min(size + 1, bytes.size()));
    }
}

} // namespace

void CDXFTagMap::Clear()
{
    values.clear();
    if (++round == 0) { // after 2^32 objects the old numbers would come again
        slots.fill(CSlot());
        round = 1;
    }
}

CDXFTag CDXFTagMap::ReadObject()
{
    Clear();
    input.StartObject();
    return ReadUntil({0});
}

CDXFTag CDXFTagMap::ReadObject(CChain chain)
{
    Clear();
    input.StartObject();
    CDXFTag tag;
    while (!input.AtEnd()) {
        tag = input.ReadTag();
        while (tag.code == *chain.begin()) {
            tag = ReadChain(tag, chain);
        }
        if (tag.code == 0) {
            return tag;
        }
        Store(tag);
    }
    return tag;
}

// Returns the tag behind the repetition: read but not stored.
CDXFTag CDXFTagMap::ReadChain(const CDXFTag& first, CChain chain)
{
    Store(first);
    CDXFTag tag = first;
    bool consumed = true;
    for (auto code = chain.begin() + 1; code != chain.end(); ++code) {
        if (consumed) {
            tag = input.ReadTag();
        }
        consumed = tag.code == *code || input.CodeContains(tag, *code);
        if (consumed) {
            Store(tag);
        } else {
            Store(*code, kZeroSpan, false);
        }
    }
    return consumed ? input.ReadTag() : tag;
}

CDXFTag CDXFTagMap::ReadUntil(CCodes stopCodes)
{
    CDXFTag tag;
    while (!input.AtEnd()) {
        tag = input.ReadTag();
        if (IsIn(tag.code, stopCodes)) {
            return tag;
        }
        Store(tag);
    }
    return tag;
}

CDXFTag CDXFTagMap::ReadWhile(CCodes allowedCodes)
{
    CDXFTag tag = input.ReadTag();
    while (IsIn(tag.code, allowedCodes)) {
        Store(tag);
        tag = input.ReadTag();
    }
    return tag;
}

bool CDXFTagMap::Single(int code, CTextSpan& span) const
{
    const CSlot* const slot = SlotOf(code);
    if (slot == nullptr || slot->first != slot->last) {
        return false;
    }
    span = SpanAt(slot->first);
    return true;
}

QString CDXFTagMap::Joined(const CSlot& slot) const
{
    QString text = input.Text(SpanAt(slot.first));
    for (quint32 place = slot.first; place != slot.last;) {
        place = values[place].next;
        text += QLatin1Char(kJoint);
        text += input.Text(SpanAt(place));
    }
    return text;
}

QString CDXFTagMap::Value(int code, const QString& absent) const
{
    const CSlot* const slot = SlotOf(code);
    return slot != nullptr ? Joined(*slot) : absent;
}

int CDXFTagMap::Int(int code, int absent) const
{
    const CSlot* const slot = SlotOf(code);
    if (slot == nullptr) {
        return absent;
    }
    return slot->first == slot->last ? input.ToInt(SpanAt(slot->first)) : 0;
}

double CDXFTagMap::Double(int code, double absent) const
{
    const CSlot* const slot = SlotOf(code);
    if (slot == nullptr) {
        return absent;
    }
    return slot->first == slot->last ? input.ToDouble(SpanAt(slot->first)) : 0.0;
}

QStringList CDXFTagMap::Split(int code) const
{
    QStringList items;
    const CSlot* const slot = SlotOf(code);
    for (quint32 place = slot != nullptr ? slot->first : kNone; place != kNone;
         place = values[place].next)
    {
        const CTextSpan span = SpanAt(place);
        ForEachPart(input.Bytes(span),
                    [&](std::string_view part) { items.append(input.Text(span, part)); });
    }
    return items;
}

void CDXFTagMap::SplitDoubles(int code, std::vector<double>& items) const
{
    items.clear();
    const CSlot* const slot = SlotOf(code);
    for (quint32 place = slot != nullptr ? slot->first : kNone; place != kNone;
         place = values[place].next)
    {
        const CTextSpan span = SpanAt(place);
        double value = 0.0;
        const std::string_view bytes = input.Bytes(span);
        if (ParsePlainDouble(bytes.data(), bytes.size(), value)) {
            items.push_back(value);
            continue;
        }
        ForEachPart(bytes, [&](std::string_view part) {
            items.push_back(ParsePlainDouble(part.data(), part.size(), value)
                                ? value
                                : input.Text(span, part).toDouble());
        });
    }
}

CPoint2D CDXFTagMap::Point2D(int xCode, int yCode) const
{
    return {Double(xCode), Double(yCode)};
}

CPoint3D CDXFTagMap::Point3D(int xCode, int yCode, int zCode) const
{
    return {Double(xCode), Double(yCode), Double(zCode)};
}

CPoint3D CDXFTagMap::Extrusion() const
{
    return Point3D(210, 220, 230);
}

} // namespace VelorExchange::dxf
