// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/read/TagReader_p.h"
#include "VelorExchange/foundation/Point.h"

#include <QString>
#include <QStringList>

#include <array>
#include <cstddef>
#include <initializer_list>
#include <vector>

namespace VelorExchange::dxf {

/// The groups of one object, by code. A code that comes again does not overwrite: its values are one
/// text joined by ";", which is taken apart again by `Split`. So a value that holds ";" itself counts
/// as two there, and a number that comes twice does not convert.
///
/// Values are spans of the object's bytes, decoded and converted when asked for; the reader must not
/// start another object before that. A map is made once and used for many objects. Codes above 1071,
/// and texts that are no code, are never asked for and so not kept.
///
/// Memory: 16 bytes for each group of the object; a run of zeros that a chain fills in takes as much.
class CDXFTagMap final
{
public:
    /// One code of a repeating pattern. Where a repetition leaves out any but the first, it gets "0".
    using CChain = std::initializer_list<int>;
    using CCodes = std::initializer_list<int>;

    explicit CDXFTagMap(CTagReader& reader) : input(reader) { }

    /// Forgets all values.
    void Clear();

    /// True if nothing is stored.
    bool IsEmpty() const { return values.empty(); }

    /// Puts the tag's value in place of none or of an empty one, or of any with `overwrite`; appends it
    /// otherwise.
    void Store(const CDXFTag& tag, bool overwrite = false)
    {
        Store(tag.code, tag.value, overwrite);
    }

    /// Starts an object, and stores all groups up to the next 0, which it returns. At the end of the
    /// file it returns the last group, stored too, or an empty one if there was none.
    CDXFTag ReadObject();

    /// The same with a pattern: from each group `chain[0]` on, every code of the chain gets exactly one
    /// value, so that the lists of a vertex's groups stay in step.
    CDXFTag ReadObject(CChain chain);

    /// Goes on storing up to a group whose code is one of `stopCodes`; else as `ReadObject`.
    CDXFTag ReadUntil(CCodes stopCodes);

    /// Stores groups as long as their code is one of `allowedCodes`, and returns the first other one.
    CDXFTag ReadWhile(CCodes allowedCodes);

    /// True if there is a value, be it empty.
    bool Has(int code) const { return SlotOf(code) != nullptr; }

    QString Value(int code, const QString& absent = QString()) const;
    int Int(int code, int absent = 0) const;
    double Double(int code, double absent = 0.0) const;
    QStringList Split(int code) const;

    /// `Split` with each item converted, 0.0 where it does not.
    void SplitDoubles(int code, std::vector<double>& items) const;

    CPoint2D Point2D(int xCode, int yCode) const;
    CPoint3D Point3D(int xCode, int yCode, int zCode) const;

    /// Groups 210, 220 and 230; the zero vector if absent.
    CPoint3D Extrusion() const;

    /// The bytes of a code that came once; false for none, and for several.
    bool Single(int code, CTextSpan& span) const;

private:
    static constexpr int kCodes = 1072;
    static constexpr quint32 kNone = 0xFFFFFFFF;

    struct CStored
    {
        CTextSpan span;
        quint32 next; // place of the next value of the same code
        quint32 count; // how many times the value stands here; above 1 for filled in zeros alone
    };

    struct CSlot
    {
        quint32 round = 0; // filled in the round of this number, else empty
        quint32 first = 0; // places in `values`
        quint32 last = 0;
    };

    void Store(int code, const CTextSpan& span, bool overwrite);
    void StoreZero(int code);
    CDXFTag ReadChain(CDXFTag tag, CChain chain);
    const CSlot* SlotOf(int code) const;
    const CStored* OnlyValueOf(int code) const;
    QString Joined(const CSlot& slot) const;

    CTagReader& input;
    std::vector<CStored> values;
    std::array<CSlot, kCodes> slots;
    quint32 round = 1;
};

inline void CDXFTagMap::Store(int code, const CTextSpan& span, bool overwrite)
{
    if (static_cast<unsigned>(code) >= static_cast<unsigned>(kCodes)) {
        return;
    }
    const auto place = static_cast<quint32>(values.size());
    values.push_back({span, kNone, 1});
    CSlot& slot = slots[static_cast<std::size_t>(code)];
    // Only the sole value of a code can be empty and in the way.
    if (slot.round != round || overwrite || values[slot.first].span.size == 0) {
        slot = {round, place, place};
    } else {
        values[slot.last].next = place;
        slot.last = place;
    }
}

inline const CDXFTagMap::CSlot* CDXFTagMap::SlotOf(int code) const
{
    const CSlot& slot = slots[static_cast<std::size_t>(code)];
    return slot.round == round ? &slot : nullptr;
}

} // namespace VelorExchange::dxf
