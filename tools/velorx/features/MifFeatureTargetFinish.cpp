// SPDX-License-Identifier: MIT
// What is left to do when all features have been taken: the tables on their way to their places.
#include "tools/velorx/features/MifAttributes.h"
#include "tools/velorx/features/MifCodePage.h"
#include "tools/velorx/features/MifFeatureTarget.h"
#include "tools/velorx/features/MifTableFiles.h"
#include "tools/velorx/HostCodec.h"
#include "VelorExchange/foundation/FileError.h"

#include <QDir>
#include <QFileInfo>
#include <QRectF>

#include <cmath>

namespace velorx {

using VelorExchange::FileError;

namespace {

// How the library's log begins the line of a file that it could not write.
constexpr char16_t kWriteError[] = u"Ошибка записи файла ";
constexpr char kHeaderPage[] = "windows-1251"; // that the header of every table tells

/// A folder of its own, with all that is in it, for the time of the object.
class CWorkFolder
{
public:
    explicit CWorkFolder(const QString& start)
    {
        path = start;
        for (int i = 1; !QDir().mkdir(path); ++i) {
            if (!QFileInfo::exists(path)) {
                FileError failure{QFile(path)};
                failure.error = QFileDevice::OpenError;
                throw failure;
            }
            path = start + QString::number(i);
        }
    }
    CWorkFolder(const CWorkFolder&) = delete;
    CWorkFolder& operator=(const CWorkFolder&) = delete;
    ~CWorkFolder() { QDir(path).removeRecursively(); }

    const QString& Path() const { return path; }

private:
    QString path;
};

// A drawing program computes the steps of its coordinates from the bounds, so that these have a size, and
// tables of one map have the same.
QRectF BoundsFrom(const CExtents& extents)
{
    const auto [least, greatest] = extents.Corners();
    constexpr double kLeastSize = 1.0;
    QRectF bounds(QPointF(least.x, least.y), QPointF(greatest.x, greatest.y));
    if (bounds.width() < kLeastSize) {
        bounds.adjust(-kLeastSize / 2.0, 0.0, kLeastSize / 2.0, 0.0);
    }
    if (bounds.height() < kLeastSize) {
        bounds.adjust(0.0, -kLeastSize / 2.0, 0.0, kLeastSize / 2.0);
    }
    return bounds;
}

// In the spelling of the ".mif".
SMifTablePaths PairAt(const QString& table)
{
    QString rows = table;
    const QChar last = table.back();
    rows.back() = last == QLatin1Char('F') ? QLatin1Char('D') : QLatin1Char('d');
    return {table, rows};
}

} // namespace

bool CMifFeatureTarget::TellsLayers() const
{
    const QString name = QFileInfo(options.name).completeBaseName();
    return layers.size() != 1 || (!layers.contains(name) && !layers.contains(sourceName));
}

void CMifFeatureTarget::PutTables(const QString& folder)
{
    for (const auto& table : qAsConst(tables)) {
        const QString written = folder + QLatin1Char('/') + table->name;
        const SMifTablePaths from = {written + QStringLiteral(".MIF"),
                                     written + QStringLiteral(".MID")};
        SMifTableChanges changes;
        changes.details = std::move(table->details);
        changes.typeOf = [&table](const QString& column) { return table->columns.TypeOf(column); };
        if (isFolder) {
            const QString target =
                options.path + QLatin1Char('/') + PathOfText(table->name + QStringLiteral(".mif"));
            PutMifTable(from, PairAt(target), changes);
        } else {
            changes.dropsFirst = !TellsLayers();
            changes.firstValue =
                changes.dropsFirst ? row.attributes.front().value.toString() : QString();
            PutMifTable(from, PairAt(options.path), changes);
        }
    }
}

QString CMifFeatureTarget::Finish()
{
    RemarkOnLayers();
    if (tables.isEmpty()) {
        if (!isFolder) {
            WriteEmptyMifTable(PairAt(options.path));
        }
        tally.Remark(QStringLiteral("There is nothing that a table could hold"));
        return {};
    }
    const CWorkFolder folder(options.path
                             + (isFolder ? QStringLiteral("/.parts") : QStringLiteral(".parts")));
    const QRectF bounds = BoundsFrom(extents);
    writer->Rewrite(folder.Path(), &bounds);
    if (Log().contains(QString::fromUtf16(kWriteError))) {
        FileError failure{QFile(folder.Path())};
        failure.error = QFileDevice::WriteError;
        throw failure;
    }
    PutTables(folder.Path());
    return {};
}

QString CMifFeatureTarget::Log() const
{
    QString text;
    log.GetText(text);
    return text;
}

// ---- Remarks ------------------------------------------------------------------------------------

void CMifFeatureTarget::RemarkOnColumns(STable& table)
{
    for (const CMifColumns::SRenamed& renamed : table.columns.TakeRenamed()) {
        const QString remark =
            (renamed.isForType
                 ? QStringLiteral("Values of %1 that do not fit its column are in the column %2")
                 : QStringLiteral("The attribute %1 is in the column %2"))
                .arg(renamed.source, renamed.column);
        if (!remarks.contains(remark)) {
            remarks.insert(remark);
            tally.Remark(remark);
        }
    }
}

void CMifFeatureTarget::RemarkOnLayers()
{
    for (const QString& layer : qAsConst(layersTold)) {
        if (!layers.contains(layer)) {
            tally.Lose(QStringLiteral("layers without objects"), layer);
        }
    }
    for (auto table = tables.constBegin(); isFolder && table != tables.constEnd(); ++table) {
        if (table.key() != (*table)->name) {
            tally.Remark(
                QStringLiteral("The layer %1 is in the table %2").arg(table.key(), (*table)->name));
        }
    }
    if (!IsLocalCodePage(QLatin1String(kHeaderPage))) {
        tally.Remark(QStringLiteral("The text of the tables is in %1, though their headers say "
                                    "WindowsCyrillic")
                         .arg(LocalCodePage()));
    }
}

} // namespace velorx
