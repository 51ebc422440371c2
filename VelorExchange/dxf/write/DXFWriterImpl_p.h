// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/write/HatchOutline_p.h"
#include "VelorExchange/dxf/write/IDXFWriter.h"
#include "VelorExchange/dxf/write/NameTable_p.h"
#include "VelorExchange/dxf/write/TagOutput_p.h"

#include <QTemporaryFile>

#include <array>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

namespace VelorExchange::dxf {

/// The writer: formats each element into one of six temporary files, from which `Rewrite` puts the
/// drawing together.
///
/// In memory it holds the names with their handles, one temporary file per open or waiting block, the
/// output buffer, and the positions of the element in hand.
///
/// Each element operation has the same steps: transform and compute, refuse what is not finite,
/// register layer and styles, write, count. All calls into the context come before the first byte, so
/// that a host may use the writer within them.
class CDXFWriterImpl final : public IDXFWriter
{
public:
    explicit CDXFWriterImpl(IContext* host);
    CDXFWriterImpl(const CDXFWriterImpl&) = delete;
    CDXFWriterImpl& operator=(const CDXFWriterImpl&) = delete;
    ~CDXFWriterImpl() override;

    void Init(int newVersion, CExportLog* newLog) override;
    void Rewrite(const QString& fileName) override;
    void SetPrecision(int digits) override;
    int GetPrecision() const override { return precision; }
    double GetTolerance() const override { return tolerance; }
    int AddLayer(const QString& name, bool visible, bool locked) override;
    int AddLineStyle(const CLineStyleDXF& style) override;
    int AddTextStyle(const CTextStyleDXF& style, bool shapeFile) override;
    bool AddArc(const CArcDXF& record) override;
    bool AddLine(const CLineDXF& record) override;
    bool AddMLine(const CMLineDXF& record) override;
    bool Add3DFace(const C3DFaceDXF& record) override;
    bool AddPoint(const CPointDXF& record) override;
    bool AddSpline(const CSplineDXF& record) override;
    bool AddHatch(const CHatchDXF& record) override;
    bool AddXLine(const CXLineDXF& record) override;
    bool AddImage(const CImageDXF& record) override;
    bool AddAttribute(const CAttribDXF& record, bool withValue) override;
    bool AddInsert(const CInsertDXF& record) override;
    bool AddMText(const CMTextDXF& record) override;
    bool AddText(const CTextDXF& record) override;
    bool Add3DPolyline(const CPolylineDXF& record) override;
    bool AddPolyline(const CLWPolylineDXF& record) override;
    bool BeginBlock(const QString& name, bool byBlockColor, const QString& xrefPath) override;
    bool EndBlock() override;
    bool IsInBlock() const override { return blockDepth > 0; }
    bool HasBlock(const QString& name) const override;
    int GetNextHandle() const override { return nextHandle; }
    QString MakeImageName(const QString& name) const override;

private:
    // What is found out about a line style before anything is written.
    struct CLineStylePlan
    {
        bool isNew = false;
        std::vector<CTextStyleDXF> textStyles; // one for each text element behind the first element
    };

    struct CLineTypePlan
    {
        CLineStyleDXF style;
        CLineStylePlan plan;
    };

    // The computed part of a text or an attribute.
    struct CTextPlan
    {
        CPoint2D position;
        double height = 0.0;
        double rotation = 0.0; // degrees
    };

    // A joint of a multiline.
    struct CJoint
    {
        CPoint2D point;
        double direction = 0.0;
        double miter = 0.0;
        bool isEnd = false; // the first or the last joint
    };

    // Image names are one whatever their case.
    struct CCaseless
    {
        bool operator()(const QString& a, const QString& b) const
        {
            return a.compare(b, Qt::CaseInsensitive) < 0;
        }
    };

    // DXFWriterImpl.cpp
    static void StartFile(QTemporaryFile& file);
    CPoint2D Placed(const CPoint2D& point) const;
    CPoint3D Placed(const CPoint3D& point) const;
    void TakeScale();
    double Scaled(double length) const { return length * scale; }
    void Count(const QString& kind);

    // Rewrite.cpp
    void WriteHeaderAndClasses();
    void WriteImageClasses();
    void WriteTables();
    void WriteTable(QTemporaryFile& records);
    void WriteBlockRecords();
    void WriteSections();
    void WriteDictionaries();

    // Tables.cpp
    const CName& Layer(const QString& name, bool visible = true, bool locked = false);
    const CName* TextStyle(const CTextStyleDXF& style, bool shapeFile);
    bool CanAddTextStyle(const CTextStyleDXF& style);
    QFile& BeginRecord(QTemporaryFile& table, std::string_view name, bool isFirst);

    // LineTypes.cpp
    const CName* LineStyle(const CLineStyleDXF& style, const CLineStylePlan& plan);
    bool PlanLineStyle(const CLineStyleDXF& style, CLineStylePlan& plan);
    void WritePattern(const CLineStyleDXF& style, const CLineStylePlan& plan);
    template <class Element>
    void WriteComplexElement(const Element& element, int number, const CTextStyleDXF& style,
                             bool shapeFile);

    // EntityHead.cpp
    void WriteNewHandle(int code = 5);
    void WriteStart(std::string_view name, const CName& layer);
    void WriteLayer(const CName& layer);
    void WriteColor(quint32 color);
    int ColorIndex(quint32 color);
    void WriteLineWeight(double weight);
    bool PlanHead(const CEntityDXF& record, CLineStylePlan& plan);
    void WriteEntityHead(const CEntityDXF& record, const CLineStylePlan& plan,
                         std::string_view subclass, std::string_view name);
    void WriteSequenceEnd(const CName& layer);
    void WritePoint(int code, const CPoint2D& point);
    void WritePoint(int code, const CPoint3D& point);

    // Polylines.cpp
    bool PlaceVertices(const std::vector<CVertexDXF>& vertices,
                       std::vector<CPoint3D>& placed) const;
    void WriteBulge(double bulge);

    // Texts.cpp
    bool PlanText(const CTextDXF& record, CTextPlan& plan);
    void WriteTextBody(const CTextDXF& record, const CTextPlan& plan, std::string_view name);
    void WriteAttribute(const CAttribDXF& record, const CTextPlan& plan, bool withValue);
    void WriteTextPieces(const QString& text);
    void WriteStyleName(const CTextStyleDXF& style);

    // Hatch.cpp
    bool PrepareHoles(const CHatchDXF& record, std::vector<CHatchOutline>& holes) const;
    void WriteHatchLoop(const CHatchOutline& boundary, int flags);
    void WriteHatchPattern(const CHatchDXF& record, const CPoint2D& origin);

    // MLine.cpp
    static double OffsetAt(const CJoint& joint, double offset);
    bool PlanJoints(const CMLineDXF& record, std::vector<CJoint>& joints) const;
    bool PlanLineTypes(const CMLineStyleDXF& style, std::vector<CLineTypePlan>& lineTypes);
    int MLineStyle(const CMLineStyleDXF& style);
    void WriteJoint(const CJoint& joint, double z, const std::vector<double>& offsets);

    // Image.cpp
    int WriteImageDefinition(const CImageDXF& record, const CPoint2D& size, int image,
                             int& reactor);
    void WriteClip(const CImageDXF& record);

    // Blocks.cpp
    void CollectBlocks();

    CExportLog* log = nullptr;
    QTemporaryFile layerTable;
    QTemporaryFile lineTypeTable;
    QTemporaryFile styleTable;
    QTemporaryFile entities;
    QTemporaryFile blocks;
    QTemporaryFile objects;
    std::vector<std::unique_ptr<QTemporaryFile>> nestedBlocks;
    CTagOutput output; // its target is where tags go now
    int version = 1018;
    int precision = 6;
    double tolerance = 0.0;
    double scale = 1.0; // of the operation in hand
    int nextHandle = 0;
    std::map<QString, int, CCaseless> imageDefs;
    std::map<QString, int> mlineStyles;
    CNameTable lineStyles;
    CNameTable layers;
    CNameTable textStyles;
    std::map<QString, int> blockHandles;
    std::vector<bool> blockColorFlags;
    int blockDepth = 0;

    struct CKnownColor
    {
        quint32 color = 0;
        int index = 250; // that of colour 0
    };
    std::array<CKnownColor, 256> knownColors{}; // finding an index means going through the table
};

} // namespace VelorExchange::dxf
