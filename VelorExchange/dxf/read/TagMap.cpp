// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/TagMap_p.h"

namespace VelorExchange::dxf {

namespace {

constexpr char kJoint = ';';

bool IsIn(int code, std::initializer_list<int> codes)
{
    // Written out, since the library's search is not inlined for lists this short.
    for (const int other : codes) { // NOLINT(readability-use-anyofallof)
        if (code == other) {
            return true;
        }
    }
    return false;
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
    CDXFTag tag;
    while (!input.AtEnd()) {
        tag = input.ReadTagAhead();
        if (tag.code == 0) {
            return tag;
        }
        Store(tag);
    }
    return tag;
}

CDXFTag CDXFTagMap::ReadObject(CChain chain)
{
    Clear();
    input.StartObject();
    CDXFTag tag;
    while (!input.AtEnd()) {
        tag = input.ReadTagAhead();
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

// Zeros that follow each other stand as one value with a count.
void CDXFTagMap::StoreZero(int code)
{
    CSlot& slot = slots[static_cast<std::size_t>(code)];
    if (slot.round == round && values[slot.last].span.source == CTextSpan::Zero) {
        ++values[slot.last].count;
    } else {
        Store(code, kZeroSpan, false);
    }
}

// `tag` starts a repetition. Returns the one behind it: read but not stored.
CDXFTag CDXFTagMap::ReadChain(CDXFTag tag, CChain chain)
{
    Store(tag);
    bool consumed = true;
    for (const auto* code = chain.begin() + 1; code != chain.end(); ++code) {
        if (consumed) {
            tag = input.ReadTag();
        }
        consumed = input.CodeContains(tag, *code);
        if (consumed) {
            Store(tag);
        } else {
            StoreZero(*code);
        }
    }
    return consumed ? input.ReadTag() : tag;
}

CDXFTag CDXFTagMap::ReadUntil(CCodes stopCodes)
{
    CDXFTag tag;
    while (!input.AtEnd()) {
        tag = input.ReadTagAhead();
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

// Null for none, and for several.
const CDXFTagMap::CStored* CDXFTagMap::OnlyValueOf(int code) const
{
    const CSlot* const slot = SlotOf(code);
    if (slot == nullptr || slot->first != slot->last || values[slot->first].count != 1) {
        return nullptr;
    }
    return &values[slot->first];
}

bool CDXFTagMap::Single(int code, CTextSpan& span) const
{
    const CStored* const value = OnlyValueOf(code);
    if (value != nullptr) {
        span = value->span;
    }
    return value != nullptr;
}

QString CDXFTagMap::Joined(const CSlot& slot) const
{
    QString text;
    for (quint32 place = slot.first; place != kNone; place = values[place].next) {
        const QString value = input.Text(values[place].span);
        for (quint32 i = 0; i < values[place].count; ++i) {
            if (place != slot.first || i > 0) {
                text += QLatin1Char(kJoint);
            }
            text += value;
        }
    }
    return text;
}

QString CDXFTagMap::Value(int code, const QString& absent) const
{
    const CSlot* const slot = SlotOf(code);
    return slot != nullptr ? Joined(*slot) : absent;
}

// Several values, joined, never convert.
int CDXFTagMap::Int(int code, int absent) const
{
    const CStored* const value = OnlyValueOf(code);
    if (value != nullptr) {
        return input.ToInt(value->span);
    }
    return Has(code) ? 0 : absent;
}

double CDXFTagMap::Double(int code, double absent) const
{
    const CStored* const value = OnlyValueOf(code);
    if (value != nullptr) {
        return input.ToDouble(value->span);
    }
    return Has(code) ? 0.0 : absent;
}

QStringList CDXFTagMap::Split(int code) const
{
    QStringList items;
    const CSlot* const slot = SlotOf(code);
    for (quint32 place = slot != nullptr ? slot->first : kNone; place != kNone;
         place = values[place].next)
    {
        const CStored& value = values[place];
        for (quint32 i = 0; i < value.count; ++i) {
            items += input.Text(value.span).split(QLatin1Char(kJoint), Qt::SkipEmptyParts);
        }
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
        const CStored& value = values[place];
        double number = 0.0;
        if (value.span.source == CTextSpan::Zero) {
            items.insert(items.end(), value.count, 0.0);
        } else if (input.ToPlainDouble(value.span, number)) {
            items.push_back(number);
        } else {
            for (const QString& part :
                 input.Text(value.span).split(QLatin1Char(kJoint), Qt::SkipEmptyParts)) {
                items.push_back(part.toDouble());
            }
        }
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
