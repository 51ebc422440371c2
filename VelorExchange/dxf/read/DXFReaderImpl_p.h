// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/read/LayerTable_p.h"
#include "VelorExchange/dxf/read/NameCache_p.h"
#include "VelorExchange/dxf/read/ObjectCoordinates_p.h"
#include "VelorExchange/dxf/read/TagMap_p.h"
#include "VelorExchange/dxf/read/TagReader_p.h"
#include "VelorExchange/dxf/records/IDXFReader.h"

#include <QMultiMap>
#include <QString>

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

class QIODevice;

namespace VelorExchange::dxf {

class CHatchBoundary;

/// Reads one drawing: walks its sections, and has one parser for each kind of object. A parser gathers
/// the object's groups, fills a record, delivers it and returns the group that it stopped at, with which
/// the loop that called it goes on.
///
/// Memory: the object in hand, `layers`, the `images` that wait for their file names, and the block in
/// hand; nothing that grows with the drawing.
class CDXFReaderImpl final
{
public:
    /// `device` is open for reading, `host` not null; both outlive the reader.
    CDXFReaderImpl(QIODevice& device, IDXFReader* host);
    ~CDXFReaderImpl();
    Q_DISABLE_COPY_MOVE(CDXFReaderImpl)

    /// Reads all sections. False if the file ends inside a block.
    bool ReadSections();

private:
    using CParser = CDXFTag (CDXFReaderImpl::*)();
    struct CSection;
    struct CEntityName;
    static const CSection kSections[];
    static const CEntityName kEntityNames[];

    enum class EOutcome { GoOn, Done, Failed };

    // The sections.
    EOutcome ReadSection(const CDXFTag& name);
    void SkipSection(bool reportsPosition);
    EOutcome ReadHeader();
    EOutcome ReadTables();
    EOutcome ReadBlocks();
    EOutcome ReadEntities();
    EOutcome ReadObjects();
    void ReportPosition();

    // Inside HEADER.
    bool ReadVersion();
    CDXFTag ReadExtent(CPoint3D& corner);

    // Inside TABLES, BLOCKS and OBJECTS.
    CDXFTag ReadLayer();
    CDXFTag ReadTextStyle();
    CDXFTag ReadLineStyle();
    CDXFTag ReadMLineStyle();
    CDXFTag ReadImageDef();
    void DeliverImages(const QString& key, const QString& path);
    bool ReadBlock(CDXFTag& tag);
    CDXFTag ReadEndOfBlock();

    // Inside ENTITIES and a block. False at the end of the file; `tag` is where it stopped.
    bool ReadEntityLoop(CDXFTag& tag);
    CParser ParserOf(const CDXFTag& tag) const;
    CDXFTag ReadAttDef();
    CDXFTag ReadPoint();
    CDXFTag ReadXLine();
    CDXFTag ReadLine();
    CDXFTag ReadText();
    CDXFTag ReadSpline();
    CDXFTag ReadPolyline();
    CDXFTag ReadLWPolyline();
    CDXFTag ReadMLine();
    CDXFTag ReadMText();
    CDXFTag ReadArc();
    CDXFTag ReadSolid();
    CDXFTag ReadHatch();
    CDXFTag Read3DFace();
    CDXFTag ReadRay();
    CDXFTag ReadImage();
    CDXFTag ReadEllipse();
    CDXFTag ReadInsert();

    // Parts of the parsers.
    void AppendPolylineVertex(CPolylineDXF& polyline, const CObjectCoordinates& coordinates,
                              bool splineFit);
    void FillLWPolylineVertices(CLWPolylineDXF& polyline);
    double LWPolylineWidth();
    void FillText(CTextDXF& text);
    void FillLineOfText(CTextDXF& text);
    void FillClip(CImageDXF& image);
    CAttribDXF MakeAttribute();
    CMLineSegmentDXF MLineSegment(std::size_t i) const;
    void FillPoints(std::vector<CPoint3D>& points, int xCode, int yCode, int zCode,
                    const CObjectCoordinates* coordinates);
    void FinishHatch(CHatchDXF& hatch);

    // What the parsers share, all of it on `tags`.
    bool IsPaperSpace() const { return tags.Int(67) == 1; }
    CObjectCoordinates Coordinates() const { return CObjectCoordinates(tags.Extrusion()); }
    CPoint2D PlanPoint(const CObjectCoordinates& coordinates, int xCode, int yCode) const;
    void FillName(CNameCache::CName& name, const QString& text) const;
    const CNameCache::CName* KnownName(int code);
    QString Name(int code, const QString& absent);
    const CNameCache::CName& EntityLayer();
    quint32 Color(const CNameCache::CName& layer) const;
    QString LineType(const CNameCache::CName& layer);
    void FillLayerAndColor(QString& layer, quint32& color);
    void FillHead(CEntityDXF& entity); // all but the line type
    void FillStyledHead(CEntityDXF& entity);

    /// To the host, or into the block in hand.
    template <class Record>
    void Deliver(Record& record, bool (IDXFReader::*operation)(const Record&))
    {
        if (currentBlock) {
            currentBlock->entities.emplace_back(std::move(record));
        } else {
            (callback->*operation)(record);
        }
    }

    CTagReader input;
    CDXFTagMap tags; // the object in hand
    int version;
    IDXFReader* callback;
    std::unique_ptr<CBlockDXF> currentBlock;
    CLayerTable layers;
    QMultiMap<QString, CImageDXF> images; // by group 340
    CNameCache names;
    unsigned namesDecoder = 0; // what `names` was decoded with
    CNameCache::CName uncommonLayer; // of the object in hand, where `names` cannot hold it
    std::unique_ptr<CHatchBoundary> hatchBoundary; // made for the first hatch
    std::vector<double> lists[9]; // scratch for the lists of coordinates
};

} // namespace VelorExchange::dxf
