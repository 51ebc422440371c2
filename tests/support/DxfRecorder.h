// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/DXF.h"

#include <map>
#include <string>
#include <vector>

namespace VelorExchange::test {

/// Writes every report of progress as one line.
class CProgressRecorder final : public dxf::IDXFProgress
{
public:
    std::string text; ///< All lines.
    std::vector<qint64> positions; ///< What SetPosition got.

    void Begin(const QString& title, qint64 total) override;
    void SetPosition(qint64 position) override;
    void Finish() override;
};

/// Writes every call it gets as one line of text: the operation's name without "On", then the fields
/// that are not at their default, numbers in their shortest exact form.
class CDxfRecorder final : public dxf::IDXFReader
{
public:
    std::string text; ///< All lines.
    std::map<std::string, int> counts; ///< Calls by name of the operation.
    std::vector<dxf::CBlockDXF> blocks; ///< Copies of all blocks.
    std::vector<int> refused; ///< Stages that OnSection refuses.
    bool recordsGates = false; ///< Whether OnSection writes a line too.
    dxf::IDXFProgress* progress = nullptr; ///< What GetProgress returns; not owned.

    bool OnSection(int stage) override;
    bool OnPolyline(const dxf::CPolylineDXF& record) override;
    bool OnMLine(const dxf::CMLineDXF& record) override;
    bool OnEllipse(const dxf::CEllipseDXF& record) override;
    bool OnLWPolyline(const dxf::CLWPolylineDXF& record) override;
    bool OnSpline(const dxf::CSplineDXF& record) override;
    bool OnSolid(const dxf::CSolidDXF& record) override;
    bool OnLine(const dxf::CLineDXF& record) override;
    bool On3DFace(const dxf::C3DFaceDXF& record) override;
    bool OnXLine(const dxf::CXLineDXF& record) override;
    bool OnRay(const dxf::CRayDXF& record) override;
    bool OnArc(const dxf::CArcDXF& record) override;
    bool OnImage(const dxf::CImageDXF& record) override;
    bool OnInsert(const dxf::CInsertDXF& record) override;
    bool OnHatch(const dxf::CHatchDXF& record) override;
    bool OnMText(const dxf::CMTextDXF& record) override;
    bool OnText(const dxf::CTextDXF& record) override;
    bool OnPoint(const dxf::CPointDXF& record) override;
    bool OnBlock(const dxf::CBlockDXF& record) override;
    bool OnTextStyle(const dxf::CTextStyleDXF& record) override;
    bool OnMLineStyle(const dxf::CMLineStyleDXF& record) override;
    bool OnLineStyle(const dxf::CLineStyleDXF& record) override;
    bool OnLayer(const dxf::CLayerDXF& record) override;
    bool OnHeader(const dxf::CHeaderDXF& record) override;
    dxf::IDXFProgress* GetProgress() override { return progress; }

private:
    template <class Record>
    bool Write(const char* operation, const Record& record);
};

/// Reads `bytes` as a drawing file, through a temporary file. Returns what `Read` returned.
bool ReadBytes(const QByteArray& bytes, dxf::IDXFReader& host);

/// The recorder's text for `bytes`, with "false" as a last line where `Read` returned false.
std::string Recorded(const QByteArray& bytes);

/// Groups from "code value" pairs given one a line: "0 LINE\n8 A\n" is four lines of the file. A code
/// alone has an empty value.
QByteArray Tags(const char* lines, const char* lineEnd = "\r\n");

/// A whole file: `entities`, in the form of `Tags`, as its ENTITIES section.
QByteArray Entities(const char* entities);

/// The same with a BLOCKS section that holds `entities` in the block "B".
QByteArray Block(const char* entities);

/// The recorder's text for what `ParseBlock` makes of `entities`, in the form of `Tags`, read as a block.
std::string Replayed(const char* entities, const dxf::CInsertDXF& insert);

/// A number in its shortest exact form.
std::string Shortest(double value);

} // namespace VelorExchange::test
