// SPDX-License-Identifier: MIT
#include "tools/velorx/features/DxfStyles.h"

#include "tools/velorx/features/PlainText.h"
#include "tools/velorx/formats/DxfSurvey.h"

#include <boost/variant2/variant.hpp>

#include <algorithm>
#include <iterator>

namespace velorx {

using namespace VelorExchange::dxf;

namespace {

constexpr const char* kOutlineFonts[] = {".ttf", ".ttc", ".otf", ".pfb"};

// Line types that are none, or that stand for another which is not known here.
constexpr const char* kSolidLines[] = {"", "continuous", "bylayer", "byblock"};

struct SFontFile
{
    const char* file;
    const char* typeface;
    bool isBold;
    bool isItalic;
};

// Files whose names are not those of their typefaces.
constexpr SFontFile kFontFiles[] = {
    {"arial", "Arial", false, false},
    {"arialbd", "Arial", true, false},
    {"ariali", "Arial", false, true},
    {"arialbi", "Arial", true, true},
    {"arialn", "Arial Narrow", false, false},
    {"arialnb", "Arial Narrow", true, false},
    {"arialni", "Arial Narrow", false, true},
    {"times", "Times New Roman", false, false},
    {"timesbd", "Times New Roman", true, false},
    {"timesi", "Times New Roman", false, true},
    {"timesbi", "Times New Roman", true, true},
    {"cour", "Courier New", false, false},
    {"courbd", "Courier New", true, false},
    {"couri", "Courier New", false, true},
    {"courbi", "Courier New", true, true},
    {"calibri", "Calibri", false, false},
    {"calibrib", "Calibri", true, false},
    {"calibrii", "Calibri", false, true},
    {"tahoma", "Tahoma", false, false},
    {"tahomabd", "Tahoma", true, false},
    {"verdana", "Verdana", false, false},
    {"verdanab", "Verdana", true, false},
    {"verdanai", "Verdana", false, true},
};

} // namespace

SDxfTypeface TypefaceFromFile(const QString& fontFile)
{
    const int folder = std::max(fontFile.lastIndexOf(u'/'), fontFile.lastIndexOf(u'\\'));
    const QString file = fontFile.mid(folder + 1);
    const bool isOutline =
        std::any_of(std::begin(kOutlineFonts), std::end(kOutlineFonts), [&file](const char* end) {
            return file.endsWith(QLatin1String(end), Qt::CaseInsensitive);
        });
    if (!isOutline) {
        return {};
    }
    const QString name = file.left(file.lastIndexOf(u'.'));
    for (const SFontFile& known : kFontFiles) {
        if (name.compare(QLatin1String(known.file), Qt::CaseInsensitive) == 0) {
            return {QLatin1String(known.typeface), known.isBold, known.isItalic};
        }
    }
    return {name, false, false};
}

QString FontFileOf(const SDxfTypeface& typeface)
{
    for (const SFontFile& known : kFontFiles) {
        if (known.isBold == typeface.isBold && known.isItalic == typeface.isItalic
            && typeface.name.compare(QLatin1String(known.typeface), Qt::CaseInsensitive) == 0)
        {
            return QLatin1String(known.file) + QLatin1String(".ttf");
        }
    }
    return typeface.name + QLatin1String(".ttf");
}

void CDxfStyles::Add(const CLayerDXF& layer)
{
    const QString key = layer.name.toCaseFolded();
    if (!layers.contains(key)) {
        layers.insert(key, layer);
    }
}

QString CDxfStyles::LayerName(const QString& name) const
{
    if (name.isEmpty()) {
        return QStringLiteral("0");
    }
    if (name.contains(QLatin1String("\\U+")) || name.contains(QLatin1String("\\M+"))) {
        return PlainOfText(name).text;
    }
    const auto found = layers.constFind(name.toCaseFolded());
    return found != layers.constEnd() ? found->name : name;
}

CLayerDXF CDxfStyles::Layer(const QString& name) const
{
    return layers.value(name.toCaseFolded());
}

std::shared_ptr<const SFeatureLineType> CDxfStyles::LineType(const QString& name)
{
    const QString key = name.toCaseFolded();
    const auto found = lineTypes.constFind(key);
    if (found != lineTypes.constEnd()) {
        return *found;
    }
    const bool isSolid =
        std::any_of(std::begin(kSolidLines), std::end(kSolidLines),
                    [&key](const char* solid) { return key == QLatin1String(solid); });
    if (isSolid) {
        return *lineTypes.insert(key, nullptr);
    }
    auto type = std::make_shared<SFeatureLineType>();
    type->name = name;
    if (const CLineStyleDXF* style = survey.LineType(name)) {
        type->name = style->name;
        for (const CLineElementDXF& element : style->pattern) {
            if (const double* dash = boost::variant2::get_if<double>(&element)) {
                type->dashes.push_back(*dash * survey.LineTypeScale());
            }
        }
    }
    return *lineTypes.insert(key, std::move(type));
}

SDxfTypeface CDxfStyles::Typeface(const QString& name) const
{
    const CTextStyleDXF* style = survey.TextStyle(name);
    if (style == nullptr) {
        return {};
    }
    return style->faceName.isEmpty() ? TypefaceFromFile(style->fontFile)
                                     : SDxfTypeface{style->faceName, style->bold, style->italic};
}

} // namespace velorx
