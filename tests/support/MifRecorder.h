// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/mif/IMIFReader.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <map>
#include <string>

class QTextCodec;

namespace VelorExchange::test {

/// Writes every call it gets as one line of text: the operation, the geometry, then the fields that
/// aren't at their default, then the attributes as name=type:value.
class CMifRecorder final : public mif::IMIFReader
{
public:
    std::string text; ///< All lines.
    std::map<std::string, int> counts; ///< Calls by operation; progress and `Finish` don't count.
    std::size_t attributesTotal = 0; ///< Of all records.
    bool recordsProgress = false; ///< Whether the progress operations and `Finish` write lines too.

    void AddArc(const mif::CArcMIF& arc) override;
    void AddRoundRect(const mif::CRoundRectMIF& rect) override;
    void AddEllipse(const mif::CRectMIF& rect) override;
    void AddRect(const mif::CRectMIF& rect) override;
    void AddText(const mif::CTextMIF& text) override;
    void AddPolyline(const mif::CPolylineMIF& line) override;
    void AddRegion(const mif::CRegionMIF& region) override;
    void AddPoint(const mif::CPointMIF& point) override;
    void SetProgressRange(int total) override;
    void SetProgress(int position) override;
    void Finish() override;

private:
    void Begin(const char* operation);
    void End(const mif::CAttributeHolderMIF& record);
    void Put(const char* name, const std::string& value);
    void Put(const char* name, const CPoint2D& value);
    void Put(const mif::CPenMIF& pen);
    void Put(const mif::CBrushMIF& brush, int usualPattern);
};

/// Files in a folder of their own, gone at the end.
class CMifPair
{
public:
    CMifPair() = default;
    explicit CMifPair(const QByteArray& mif) { Write("mif", mif); }
    CMifPair(const QByteArray& mif, const QByteArray& mid)
    {
        Write("mif", mif);
        Write("mid", mid);
    }

    void Write(const char* extension, const QByteArray& bytes) const;

    /// Without extension.
    QString Path() const { return folder.filePath(QStringLiteral("pair")); }

private:
    QTemporaryDir folder;
};

/// The calls for a pair, with "false" as a last line where `Read` returned false.
std::string Recorded(const CMifPair& pair, bool withProgress = false);

/// The calls for a data section without columns.
std::string RecordedObjects(const QByteArray& data);

/// Sets the local codec for the time of a test.
class CLocalCodec
{
public:
    explicit CLocalCodec(const char* name);
    CLocalCodec(const CLocalCodec&) = delete;
    CLocalCodec& operator=(const CLocalCodec&) = delete;
    ~CLocalCodec();

private:
    QTextCodec* before;
};

} // namespace VelorExchange::test
