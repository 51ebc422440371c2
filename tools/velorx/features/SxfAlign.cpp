// SPDX-License-Identifier: MIT
#include "tools/velorx/features/SxfAlign.h"

#include "tools/velorx/formats/SxfCodes.h"

#include <algorithm>
#include <iterator>

namespace velorx {

namespace {

constexpr EFeatureAlign kAlong[] = {EFeatureAlign::Left, EFeatureAlign::Right,
                                    EFeatureAlign::Centre};

// The map's words say where the letters are, ours where their place is: a text at the "top" stands on its
// line, as the upper number of a fraction does, and one at the "bottom" hangs from it
// (SxfAlign.PutsTheUpperNumberOfAFractionOnItsLine).
constexpr EFeatureVertical kAcross[] = {EFeatureVertical::Baseline, EFeatureVertical::Middle,
                                        EFeatureVertical::Top, EFeatureVertical::Bottom};

template <class T, std::size_t size>
int IndexOf(const T (&values)[size], T value)
{
    return static_cast<int>(std::find(std::begin(values), std::end(values), value)
                            - std::begin(values));
}

} // namespace

SSxfAlign FromSxfAlign(int align)
{
    if (align < kFirstSxfAlign || align > kLastSxfAlign) {
        return {};
    }
    const int row = align - kFirstSxfAlign;
    constexpr int kColumns = static_cast<int>(std::size(kAlong));
    return {kAlong[row % kColumns], kAcross[row / kColumns]};
}

int ToSxfAlign(const SSxfAlign& align)
{
    constexpr int kColumns = static_cast<int>(std::size(kAlong));
    return kFirstSxfAlign + IndexOf(kAcross, align.across) * kColumns
        + IndexOf(kAlong, align.along);
}

} // namespace velorx
