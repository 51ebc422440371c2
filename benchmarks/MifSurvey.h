// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace bench {

/// Kinds of objects in a table such as a survey office hands over.
enum class EMifKind { Parcel, Contour, Height, Note };

/// One object with its attributes, the same for every program that writes or generates a table.
struct CMifObject
{
    EMifKind kind = EMifKind::Height;
    std::vector<double> coordinates; ///< x and y in turn. A note has its two corners.
    std::string name; ///< ASCII.
    std::string use; ///< One of few.
    int number = 0;
    double area = 0;
    float height = 0;
};

/// Gives one object after the other, always the same ones.
class CMifSurvey
{
public:
    /// Valid until the next call.
    const CMifObject& Next();

private:
    double Random(double limit);
    void Ring(int count, double x, double y, double radius);

    std::uint64_t state = 88172645463325252U;
    int number = 0;
    CMifObject object;
};

} // namespace bench
