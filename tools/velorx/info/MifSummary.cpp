// SPDX-License-Identifier: MIT
#include "tools/velorx/info/MifSummary.h"

#include "tools/velorx/formats/MifFiles.h"

#include <QFileInfo>

#include <stdexcept>

namespace velorx {

using namespace VelorExchange::mif;

QString CMifSummary::Read(const QString& path, VelorExchange::dxf::IDXFProgress* bar)
{
    const std::optional<SMifFiles> files = FindMifFiles(path);
    if (!files) {
        return MifFilesProblem();
    }
    progress = bar;
    fileSize = QFileInfo(path).size();
    header = ReadMifHeader(path);
    follower = std::make_unique<CMifRows>(path, files->rows);
    const QString error = Run(files->name);
    rowsTaken = follower->Taken();
    rowsLeft = follower->Left();
    follower.reset();
    if (progress != nullptr) {
        progress->Finish();
        progress = nullptr;
    }
    return error;
}

QString CMifSummary::Run(const QString& name)
{
    try {
        result = VelorExchange::mif::Read(name, this);
    } catch (const std::length_error&) {
        return QStringLiteral("the table tells a count that cannot be");
    }
    return result ? QString() : QStringLiteral("the header cannot be read");
}

// ---- Records ----------------------------------------------------------------------------------

template <class Record>
void CMifSummary::Count(EKind kind, const Record& record)
{
    ++records[kind];
    attributesTotal += static_cast<qint64>(record.attributes.size());
    recordsWithoutAttributes += record.attributes.empty() ? 1 : 0;
    if (!follower->Deliver()) {
        return;
    }
    ++objects[kind];
    if (rows.size() < static_cast<std::size_t>(rowsWanted)) {
        rows.push_back({kind, record.attributes});
    }
}

template <class Record>
void CMifSummary::CountCorners(EKind kind, const Record& record)
{
    Count(kind, record);
    extents.Add(record.corner1);
    extents.Add(record.corner2);
}

template <class Record>
void CMifSummary::CountPoints(EKind kind, const Record& record)
{
    Count(kind, record);
    for (const VelorExchange::CPoint2D& point : record.points) {
        extents.Add(point);
    }
}

void CMifSummary::AddArc(const CArcMIF& arc)
{
    CountCorners(kArcs, arc);
}

void CMifSummary::AddRoundRect(const CRoundRectMIF& rect)
{
    CountCorners(kRoundRects, rect);
}

void CMifSummary::AddEllipse(const CRectMIF& rect)
{
    CountCorners(kEllipses, rect);
}

void CMifSummary::AddRect(const CRectMIF& rect)
{
    CountCorners(kRects, rect);
}

void CMifSummary::AddText(const CTextMIF& text)
{
    CountCorners(kTexts, text);
}

void CMifSummary::AddPolyline(const CPolylineMIF& line)
{
    CountPoints(kPolylines, line);
}

void CMifSummary::AddRegion(const CRegionMIF& region)
{
    CountPoints(kRegions, region);
}

void CMifSummary::AddPoint(const CPointMIF& point)
{
    Count(kPoints, point);
    extents.Add(point.position);
}

// ---- Progress ---------------------------------------------------------------------------------

void CMifSummary::SetProgressRange(int /*total*/)
{
    if (progress != nullptr) {
        progress->Begin(QString(), fileSize);
    }
}

void CMifSummary::SetProgress(int position)
{
    follower->Report(static_cast<quint32>(position));
    if (progress != nullptr) {
        progress->SetPosition(follower->Position());
    }
}

void CMifSummary::Finish() { }

} // namespace velorx
