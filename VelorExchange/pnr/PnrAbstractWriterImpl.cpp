// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/PnrAbstractWriterImpl_p.h"

#include "VelorExchange/foundation/ExportLog.h"
#include "VelorExchange/foundation/FileError.h"
#include "VelorExchange/foundation/TemporaryFile_p.h"
#include "VelorExchange/pnr/SxfLayout_p.h"
#include "VelorExchange/pnr/Texts_p.h"

#include <QDate>
#include <QRectF>

#include <algorithm>
#include <cmath>
#include <utility>

namespace VelorExchange::pnr {

namespace {

constexpr int kLongestValue = 255;

enum EGroupKind : quint32 { GroupPoint = 0, GroupLine = 1, GroupSquare = 2 };

PnrSemantic Link(qint32 code, const QString& name, qint32 number)
{
    PnrSemantic semantic;
    semantic.semanticType = sxf::kSemanticKindReference;
    semantic.code = code;
    semantic.dataType = sxf::DataInt32;
    semantic.name = name;
    semantic.value = number;
    return semantic;
}

} // namespace

CPnrAbstractWriterImpl::CPnrAbstractWriterImpl(bool, std::shared_ptr<IContext> conversion)
    : IPnrWriter(std::move(conversion))
{
    MakeFiles();
}

void CPnrAbstractWriterImpl::MakeFiles()
{
    file = std::make_unique<QFile>();
    body = std::make_unique<CSpool>();
    head = std::make_unique<CSpool>();
    fileKeys = {FileKey(false), FileKey(true)};
}

void CPnrAbstractWriterImpl::Init(bool ofUserMap, CExportLog* report)
{
    userMap = ofUserMap;
    log = report;
    objectCount = 0;
    MakeFiles();
}

bool CPnrAbstractWriterImpl::Open(const QString& fileName, const PnrFileParams& fileParams)
{
    params = fileParams;
    file->setFileName(fileName);
    fileKeys = {FileKey(false), FileKey(true)};
    return body->IsOpen() && head->IsOpen();
}

QString CPnrAbstractWriterImpl::FileKey(bool ofUserMap) const
{
    return (ofUserMap ? texts::UserMapPrefix() : texts::TerrainMapPrefix()) + QLatin1Char(' ')
        + file->fileName();
}

void CPnrAbstractWriterImpl::CountInLog(bool ofUserMap, const QString& kind)
{
    if (log) {
        log->UpStatistic(fileKeys[ofUserMap ? 1 : 0], kind);
    }
}

bool CPnrAbstractWriterImpl::IsWhole(const CBaseObject* object)
{
    return object
        && std::all_of(object->holders.begin(), object->holders.end(),
                       [](const auto& holder) { return holder != nullptr; });
}

void CPnrAbstractWriterImpl::Register(const CBaseObject& object)
{
    QRectF bounds(params.x, params.y, params.width, params.height);
    object.UniteBounds(bounds);
    params.x = bounds.x();
    params.y = bounds.y();
    params.width = bounds.width();
    params.height = bounds.height();
    ++objectCount;
}

bool CPnrAbstractWriterImpl::WriteWithTexts(const PnrTextGroup& group)
{
    const qint32 n = objectCount;
    qint32 number = n + 2;
    for (const auto& label : group.texts) {
        if (label) {
            label->semantics.push_back(
                Link(sxf::kSemanticLinkToObject, texts::LinkToObject(), n + 1));
        }
        if (group.object) {
            group.object->semantics.push_back(
                Link(sxf::kSemanticLinkToText, texts::LinkToText(), number));
        }
        ++number;
    }
    bool result = WriteByKind(group);
    for (const auto& label : group.texts) {
        result = WriteText(label.get()) && result;
    }
    return result;
}

bool CPnrAbstractWriterImpl::WriteByKind(const PnrTextGroup& group)
{
    CBaseObject* object = group.object.get();
    switch (group.kind) {
    case GroupPoint:
        return WritePoint(dynamic_cast<CPointObject*>(object));
    case GroupLine:
        return WriteLine(dynamic_cast<CLineObject*>(object));
    case GroupSquare:
        return WriteSquare(dynamic_cast<CSquareObject*>(object));
    default:
        return object != nullptr;
    }
}

QString CPnrAbstractWriterImpl::ValueText(const PnrSemantic& semantic)
{
    if (semantic.semanticType == sxf::kSemanticKindDate) {
        return semantic.value.toDate().toString(QStringLiteral("yyyyMMdd"));
    }
    return semantic.value.toString()
        .replace(QLatin1Char('\n'), QLatin1Char(' '))
        .left(kLongestValue);
}

bool CPnrAbstractWriterImpl::IsFinite(const QVariant& value)
{
    const int type = value.userType();
    return (type != QMetaType::Double && type != QMetaType::Float)
        || std::isfinite(value.toDouble());
}

bool CPnrAbstractWriterImpl::HasFiniteBounds() const
{
    return std::isfinite(params.x) && std::isfinite(params.y)
        && std::isfinite(params.x + params.width) && std::isfinite(params.y + params.height);
}

std::array<CPoint2D, 4> CPnrAbstractWriterImpl::Corners() const
{
    const double right = params.x + params.width;
    const double top = params.y + params.height;
    return {{{params.x, params.y}, {right, params.y}, {right, top}, {params.x, top}}};
}

bool CPnrAbstractWriterImpl::WriteTarget(const QByteArray& headBytes, const QByteArray& tail)
{
    if (!head->Append(headBytes.constData(), static_cast<std::size_t>(headBytes.size()))
        || !body->Append(tail.constData(), static_cast<std::size_t>(tail.size())) || !head->Flush()
        || !body->Flush() || !file->open(QIODevice::WriteOnly))
    {
        return false;
    }
    try {
        AppendFileContents(*file, head->File());
        AppendFileContents(*file, body->File());
    } catch (const FileError&) {
        file->close();
        return false;
    }
    const bool flushed = file->flush();
    file->close();
    return flushed;
}

void CPnrAbstractWriterImpl::CloseTemporaries()
{
    body->Close();
    head->Close();
}

} // namespace VelorExchange::pnr
