// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/CodePage1251_p.h"
#include "VelorExchange/dxf/write/DXFWriterImpl_p.h"
#include "VelorExchange/dxf/write/Finite_p.h"
#include "VelorExchange/dxf/write/Names_p.h"
#include "VelorExchange/dxf/write/Texts_p.h"
#include "VelorExchange/foundation/ExportLog.h"

namespace VelorExchange::dxf {

namespace {

constexpr int kHidden = 1;
constexpr int kLocked = 4;
constexpr int kLayerColor = 7;
constexpr int kNoteLayerColor = 8;
constexpr double kLastHeight = 2.5;
constexpr int kBold = 0x2000000;
constexpr int kItalic = 0x1000000;
constexpr int kNoHandle = -1;

int ColorOfLayer(const CName& layer)
{
    return layer.text == "Dimensions" || layer.text == "Notes" ? kNoteLayerColor : kLayerColor;
}

} // namespace

// Turns to a table for one record, and returns where to turn back to. The first record of a table
// comes behind the table's head.
QFile& CDXFWriterImpl::BeginRecord(QTemporaryFile& table, std::string_view name, bool isFirst)
{
    QFile& back = *output.Target();
    output.SetTarget(table);
    if (isFirst) {
        output.WriteAscii(2, name);
        WriteNewHandle();
        output.WriteTag(100, "AcDbSymbolTable");
    }
    return back;
}

int CDXFWriterImpl::AddLayer(const QString& name, bool visible, bool locked)
{
    return Layer(name, visible, locked).handle;
}

const CName& CDXFWriterImpl::Layer(const QString& name, bool visible, bool locked)
{
    if (const CName* known = layers.Find(name)) {
        return *known;
    }
    QFile& back = BeginRecord(layerTable, "LAYER", layers.IsEmpty());
    const CName& layer = layers.Add(name, nextHandle);
    output.WriteTag(0, "LAYER");
    WriteNewHandle();
    output.WriteTag(100, "AcDbSymbolTableRecord");
    output.WriteTag(100, "AcDbLayerTableRecord");
    output.WriteEncoded(2, layer.text);
    output.WriteTag(70, (visible ? 0 : kHidden) + (locked ? kLocked : 0));
    output.WriteTag(62, ColorOfLayer(layer));
    output.WriteTag(6, "CONTINUOUS");
    output.WriteTag(390, "F");
    output.SetTarget(back);
    if (log != nullptr) {
        log->UpStatistic(texts::Layers()); // also within a block
    }
    return layer;
}

int CDXFWriterImpl::AddTextStyle(const CTextStyleDXF& style, bool shapeFile)
{
    TakeScale();
    if (!CanAddTextStyle(style)) {
        return kNoHandle;
    }
    const CName* name = TextStyle(style, shapeFile);
    return name != nullptr ? name->handle : kNoHandle;
}

// False if the style would have to be written and has a number that is not finite.
bool CDXFWriterImpl::CanAddTextStyle(const CTextStyleDXF& style)
{
    return SafeName(style.name).isEmpty() || textStyles.Find(style.name) != nullptr
        || AreFinite(Scaled(style.height), Scaled(kLastHeight), style.widthFactor,
                     style.obliqueAngle);
}

// Null for a style without a name.
const CName* CDXFWriterImpl::TextStyle(const CTextStyleDXF& style, bool shapeFile)
{
    if (const CName* known = textStyles.Find(style.name)) {
        return known;
    }
    if (SafeName(style.name).isEmpty()) {
        return nullptr;
    }
    const double height = Scaled(style.height);
    const double lastHeight = Scaled(kLastHeight);
    QFile& back = BeginRecord(styleTable, "STYLE", textStyles.IsEmpty());
    const CName& name = textStyles.Add(style.name, nextHandle);
    output.WriteTag(0, "STYLE");
    WriteNewHandle();
    output.WriteTag(100, "AcDbSymbolTableRecord");
    output.WriteTag(100, "AcDbTextStyleTableRecord");
    output.WriteEncoded(2, shapeFile ? QByteArray() : name.text);
    output.WriteTag(70, shapeFile ? 1 : 0);
    output.WriteReal(40, height);
    output.WriteReal(41, style.widthFactor);
    output.WriteReal(50, style.obliqueAngle);
    output.WriteTag(71, 0);
    output.WriteReal(42, lastHeight);
    output.WriteTag(3, style.fontFile);
    output.WriteTag(4, "");
    if (!style.faceName.isEmpty()) {
        output.WriteTag(1001, "ACAD");
        output.WriteTag(1000, style.faceName);
        output.WriteTag(1071, (style.bold ? kBold : 0) + (style.italic ? kItalic : 0));
    }
    output.SetTarget(back);
    return &name;
}

bool CDXFWriterImpl::HasBlock(const QString& name) const
{
    return blockHandles.count(SafeName(name)) != 0;
}

// The candidates after "NoName" are "_1", "_2" and so on: the counter follows the name as given. Held
// by Tables.ImageNamesForAnEmptyNameGoOnWithoutTheWord.
QString CDXFWriterImpl::MakeImageName(const QString& name) const
{
    const QString given = WithinCodePage1251(name);
    QString candidate = given.isEmpty() ? QStringLiteral("NoName") : given;
    for (int i = 1; imageDefs.count(candidate) != 0; ++i) {
        candidate = given + QLatin1Char('_') + QString::number(i);
    }
    return candidate;
}

} // namespace VelorExchange::dxf
