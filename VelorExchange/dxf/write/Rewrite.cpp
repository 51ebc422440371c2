// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/DXFWriterImpl_p.h"
#include "VelorExchange/dxf/write/Templates_p.h"
#include "VelorExchange/foundation/FileError.h"

namespace VelorExchange::dxf {

namespace {

// Handles that the templates point at and the writer's own objects take.
constexpr int kMLineDictionary = 0x17;
constexpr int kStandardMLineStyle = 0x18;
constexpr int kImageVariables = 0x8E;
constexpr int kImageDictionary = 0x8F;

constexpr int kNewVersion = 1018;

// Turns the output back to the entities on every way out; what is gathered for a file that is about
// to close goes with it.
class CTargetGuard
{
public:
    CTargetGuard(CTagOutput& tagOutput, QFile& file) : output(tagOutput), home(file) { }
    ~CTargetGuard() { output.Abandon(home); }
    CTargetGuard(const CTargetGuard&) = delete;
    CTargetGuard& operator=(const CTargetGuard&) = delete;

private:
    CTagOutput& output;
    QFile& home;
};

} // namespace

void CDXFWriterImpl::Rewrite(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        throw FileError(file);
    }
    const CTargetGuard guard(output, entities);
    output.SetTarget(file);
    WriteHeaderAndClasses();
    WriteTables();
    WriteSections();
    output.Flush();
}

void CDXFWriterImpl::WriteHeaderAndClasses()
{
    const CTemplates& templates = TemplatesOf(version);
    output.WriteTag(0, "SECTION");
    output.WriteTag(2, "HEADER");
    output.WriteBytes(templates.header);
    // What the counter will be at when each block has its record.
    output.WriteTag(9, "$HANDSEED");
    output.WriteHandle(5, nextHandle + static_cast<int>(blockHandles.size()));
    output.WriteTag(0, "ENDSEC");
    output.WriteTag(0, "SECTION");
    output.WriteBytes(templates.classes);
    if (!imageDefs.empty()) {
        WriteImageClasses();
    }
    output.WriteTag(0, "ENDSEC");
}

void CDXFWriterImpl::WriteImageClasses()
{
    output.WriteTag(0, "CLASS");
    output.WriteTag(1, "IMAGE");
    output.WriteTag(2, "AcDbRasterImage");
    output.WriteTag(3, "ISM");
    output.WriteTag(90, 127);
    if (version == kNewVersion) {
        output.WriteTag(91, static_cast<int>(imageDefs.size()));
    }
    output.WriteTag(280, 0);
    output.WriteTag(281, 1);
    output.WriteTag(0, "CLASS");
    output.WriteTag(1, "RASTERVARIABLES");
    output.WriteTag(2, "AcDbRasterVariables");
    output.WriteTag(3, "ISM");
    output.WriteTag(90, 0);
    if (version == kNewVersion) {
        output.WriteTag(91, 1);
    }
    output.WriteTag(280, 0);
    output.WriteTag(281, 0);
}

void CDXFWriterImpl::WriteTables()
{
    const CTemplates& templates = TemplatesOf(version);
    output.WriteTag(0, "SECTION");
    output.WriteTag(2, "TABLES");
    output.WriteBytes(templates.viewports);
    WriteTable(lineTypeTable);
    WriteTable(layerTable);
    WriteTable(styleTable);
    output.WriteBytes(templates.tables); // ends within the BLOCK_RECORD table
    WriteBlockRecords();
    output.WriteTag(0, "ENDTAB");
    output.WriteTag(0, "ENDSEC");
}

void CDXFWriterImpl::WriteTable(QTemporaryFile& records)
{
    output.WriteTag(0, "TABLE");
    output.WriteFile(records);
    output.WriteTag(0, "ENDTAB");
}

void CDXFWriterImpl::WriteBlockRecords()
{
    for (const auto& block : blockHandles) {
        output.WriteTag(0, "BLOCK_RECORD");
        WriteNewHandle();
        output.WriteTag(100, "AcDbSymbolTableRecord");
        output.WriteTag(100, "AcDbBlockTableRecord");
        output.WriteTag(2, block.first);
        output.WriteTag(340, "0");
    }
}

void CDXFWriterImpl::WriteSections()
{
    const CTemplates& templates = TemplatesOf(version);
    output.WriteTag(0, "SECTION");
    output.WriteBytes(templates.blocks);
    output.WriteFile(blocks);
    output.WriteTag(0, "ENDSEC");
    output.WriteTag(0, "SECTION");
    output.WriteTag(2, "ENTITIES");
    output.WriteFile(entities);
    output.WriteTag(0, "ENDSEC");
    output.WriteTag(0, "SECTION");
    output.WriteBytes(templates.objects);
    output.WriteFile(objects);
    WriteDictionaries();
    output.WriteTag(0, "ENDSEC");
    output.WriteTag(0, "EOF");
}

void CDXFWriterImpl::WriteDictionaries()
{
    output.WriteTag(0, "DICTIONARY");
    output.WriteHandle(5, kMLineDictionary);
    output.WriteTag(100, "AcDbDictionary");
    output.WriteTag(3, "STANDARD");
    output.WriteHandle(350, kStandardMLineStyle);
    for (const auto& [name, handle] : mlineStyles) {
        output.WriteTag(3, name);
        output.WriteHandle(350, handle);
    }
    output.WriteTag(0, "DICTIONARY");
    output.WriteHandle(5, kImageDictionary);
    output.WriteTag(100, "AcDbDictionary");
    output.WriteTag(281, 1);
    for (const auto& [name, handle] : imageDefs) {
        output.WriteTag(3, name);
        output.WriteHandle(350, handle);
    }
    if (imageDefs.empty()) {
        return;
    }
    output.WriteTag(0, "RASTERVARIABLES");
    output.WriteHandle(5, kImageVariables);
    output.WriteTag(102, "{ACAD_REACTORS");
    output.WriteTag(330, "C");
    output.WriteTag(102, "}");
    output.WriteTag(100, "AcDbRasterVariables");
    output.WriteTag(90, 0);
    output.WriteTag(70, 0);
    output.WriteTag(71, 1);
    output.WriteTag(72, 1);
}

} // namespace VelorExchange::dxf
