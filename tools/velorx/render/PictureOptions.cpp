// SPDX-License-Identifier: MIT
#include "tools/velorx/render/PictureOptions.h"

#include <QString>

#include <utility>

namespace velorx {

namespace {

constexpr qint64 kMostPixels = 100'000'000;

constexpr std::pair<const char*, quint32> kColours[] = {
    {"white", 0xFFFFFFFF},  {"black", 0xFF000000},  {"grey", 0xFF808080},
    {"gray", 0xFF808080},   {"silver", 0xFFC0C0C0}, {"ivory", 0xFFFFFFF0},
    {"red", 0xFFFF0000},    {"green", 0xFF008000},  {"blue", 0xFF0000FF},
    {"yellow", 0xFFFFFF00}, {"navy", 0xFF000080},   {"transparent", 0x00000000},
};

constexpr std::pair<const char*, EPictureFormat> kEndings[] = {
    {".png", EPictureFormat::Png},
    {".svg", EPictureFormat::Svg},
    {".pdf", EPictureFormat::Pdf},
};

constexpr quint32 kOpaque = 0xFF000000;

} // namespace

std::string ParseSize(const std::string& text, int& width, int& height)
{
    const QString size = QString::fromStdString(text);
    const int cross = size.indexOf(QLatin1Char('x'), 0, Qt::CaseInsensitive);
    bool isWidth = false;
    bool isHeight = false;
    const qint64 wide = size.left(cross).toLongLong(&isWidth);
    const qint64 high = size.mid(cross + 1).toLongLong(&isHeight);
    if (cross < 0 || !isWidth || !isHeight || wide < 1 || high < 1) {
        return text + " is not a size in pixels like 1600x1200 (A4 is 794x1123)";
    }
    if (wide > kGreatestSide || high > kGreatestSide || wide * high > kMostPixels) {
        return text + " is too large: a side has up to " + std::to_string(kGreatestSide)
            + " pixels, a picture up to " + std::to_string(kMostPixels);
    }
    width = static_cast<int>(wide);
    height = static_cast<int>(high);
    return {};
}

bool ParseColour(const std::string& text, quint32& colour)
{
    constexpr int kDigits = 6;
    constexpr int kHexadecimal = 16;
    const QString name = QString::fromStdString(text).toLower();
    for (const auto& [known, value] : kColours) {
        if (name == QLatin1String(known)) {
            colour = value;
            return true;
        }
    }
    bool isNumber = false;
    const quint32 value = name.mid(1).toUInt(&isNumber, kHexadecimal);
    if (!name.startsWith(QLatin1Char('#')) || name.size() != kDigits + 1 || !isNumber) {
        return false;
    }
    colour = kOpaque | value;
    return true;
}

std::string KnownColours()
{
    std::string names;
    for (const auto& entry : kColours) {
        names += (names.empty() ? "" : ", ") + std::string(entry.first);
    }
    return names;
}

bool FindPictureFormat(const std::string& name, EPictureFormat& format)
{
    for (const auto& [ending, known] : kEndings) {
        if (QString::fromUtf8(name.c_str()).endsWith(QLatin1String(ending), Qt::CaseInsensitive)) {
            format = known;
            return true;
        }
    }
    return false;
}

} // namespace velorx
