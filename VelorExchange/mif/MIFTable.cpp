// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/FileError.h"
#include "VelorExchange/foundation/TemporaryFile_p.h"
#include "VelorExchange/mif/MIFWriterImpl_p.h"
#include "VelorExchange/mif/Texts_p.h"

#include <QDir>
#include <QFile>

#include <cmath>

namespace VelorExchange::mif {

namespace {

struct CTypeText
{
    int type;
    const char* text;
};

constexpr CTypeText kTypeTexts[] = {{QMetaType::Int, "INTEGER"},
                                    {QMetaType::Double, "DECIMAL(20,5)"},
                                    {QMetaType::QString, "CHAR(80)"},
                                    {QMetaType::Short, "SMALLINT"},
                                    {QMetaType::Float, "FLOAT"}};

// Empty for any other type, dates and logical values among them.
QString ColumnTypeText(int type)
{
    for (const CTypeText& known : kTypeTexts) {
        if (known.type == type) {
            return QLatin1String(known.text);
        }
    }
    return QString();
}

// A rectangle of the host may hold anything, but no file ever "nan".
QString Bound(double value, int precision)
{
    return QString::number(std::isfinite(value) ? value : 0.0, 'f', precision);
}

bool Write(QFile& file, const COutputBlock& block)
{
    return file.write(block.Data(), block.Size()) == block.Size();
}

// Leaves a temporary file at its end, where writing goes on, also when copying it failed.
class CAtItsEnd
{
public:
    explicit CAtItsEnd(QFile& temporaryFile) : file(temporaryFile) { }
    CAtItsEnd(const CAtItsEnd&) = delete;
    CAtItsEnd& operator=(const CAtItsEnd&) = delete;
    ~CAtItsEnd() { file.seek(file.size()); }

private:
    QFile& file;
};

} // namespace

void CMIFWriterImpl::Rewrite(const QString& folder, const QRectF* bounds)
{
    for (const auto& [layer, spool] : filesByLayer) {
        const CStoredAttributes& attributes = attributesByLayer[layer];
        const std::vector<CWrittenColumn> columns = attributes.CollectColumns();
        const QString name = folder + QDir::separator() + layer;
        const QRectF& layerBounds = bounds != nullptr ? *bounds : boundsByLayer[layer];
        if (!WriteGeometry(layer, name + QStringLiteral(".MIF"), layerBounds, columns)) {
            if (log != nullptr) {
                log->ClearStatistics(layer + QStringLiteral(".MIF"));
            }
            LogFailure(name + QStringLiteral(".MIF"));
        } else if (!WriteRows(name + QStringLiteral(".MID"), attributes, columns)) {
            LogFailure(name + QStringLiteral(".MID"));
        }
    }
}

void CMIFWriterImpl::LogFailure(const QString& name) const
{
    if (log != nullptr) {
        log->AddString(texts::WriteError() + name);
    }
}

// False if the file can't be opened or the layer's temporary file lacks something. Throws `FileError`
// if the file can't be completed.
bool CMIFWriterImpl::WriteGeometry(const QString& layer, const QString& name, const QRectF& bounds,
                                   const std::vector<CWrittenColumn>& columns)
{
    QTemporaryFile& spool = *filesByLayer[layer];
    QFile file(name);
    if (!spool.flush() || spool.size() != sizesByLayer[layer] || !file.open(QIODevice::WriteOnly)) {
        return false;
    }
    const CAtItsEnd guard(spool);
    block.Clear();
    encoder.Put(block, Header(columns, bounds));
    if (!Write(file, block)) {
        throw FileError(file);
    }
    AppendFileContents(file, spool);
    if (!file.flush()) {
        throw FileError(file);
    }
    return true;
}

bool CMIFWriterImpl::WriteRows(const QString& name, const CStoredAttributes& attributes,
                               const std::vector<CWrittenColumn>& columns)
{
    constexpr qint64 kBlockSize = 65536;
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return false;
    }
    bool isComplete = true;
    CRowMaker maker(columns);
    block.Clear();
    for (const CStoredAttributes::CRecord& record : attributes.Records()) {
        encoder.Put(block, maker.Row(record));
        if (block.Size() >= kBlockSize) {
            isComplete = Write(file, block) && isComplete;
            block.Clear();
        }
    }
    return Write(file, block) && isComplete;
}

QString CMIFWriterImpl::Header(const std::vector<CWrittenColumn>& columns,
                               const QRectF& bounds) const
{
    const CPoint2D first = Transformed({bounds.left(), bounds.top() + bounds.height()});
    const CPoint2D second = Transformed({bounds.left() + bounds.width(), bounds.top()});
    QString header = QStringLiteral("Version 450\n"
                                    "CharSet \"WindowsCyrillic\"\n"
                                    "Delimiter \";\"\n"
                                    "CoordSys Nonearth Units \"m\"\n");
    header += QStringLiteral("Bounds (%1, %2) (%3, %4)\n")
                  .arg(Bound(first.x, precision), Bound(first.y, precision),
                       Bound(second.x, precision), Bound(second.y, precision));
    header += QStringLiteral("Columns ") + QString::number(columns.size()) + QLatin1Char('\n');
    for (const CWrittenColumn& column : columns) {
        header += column.name + QLatin1Char(' ') + ColumnTypeText(column.type) + QLatin1Char('\n');
    }
    return header;
}

} // namespace VelorExchange::mif
