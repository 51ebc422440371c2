// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifFeatureSource.h"

#include "tools/velorx/features/MifCodePage.h"
#include "tools/velorx/features/MifFeatureReader.h"
#include "tools/velorx/formats/MifFiles.h"
#include "tools/velorx/formats/MifHeader.h"
#include "tools/velorx/HostCodec.h"
#include "VelorExchange/mif/Read.h"

#include <QFileInfo>

#include <stdexcept>
#include <utility>

namespace velorx {

namespace {

// What the library passes over, and a person has to know.
void RemarkOnHeader(const QString& path, CFeatureTally& tally)
{
    const SMifHeader header = ReadMifHeader(path);
    if (!header.coordSys.isEmpty()
        && !header.coordSys.startsWith(QLatin1String("Nonearth"), Qt::CaseInsensitive))
    {
        tally.Remark(
            QStringLiteral("Coordinates are those of the table; its coordinate system is not "
                           "carried over: %1")
                .arg(header.coordSys));
    }
    const QString page = CodePageOfCharset(header.charset);
    if (!page.isEmpty() && !IsLocalCodePage(page)) {
        tally.Remark(QStringLiteral(
                         "The table says CharSet \"%1\", but its text is read as %2; --codepage %3 "
                         "may be what is wanted")
                         .arg(header.charset, LocalCodePage(), page));
    }
}

} // namespace

CMifFeatureSource::CMifFeatureSource(QString file, const SReadingOptions& readingOptions)
    : path(std::move(file)), options(readingOptions)
{
}

QString CMifFeatureSource::Read(IFeatureSink& sink, CFeatureTally& tally)
{
    if (!QFileInfo(path).isReadable()) {
        return QStringLiteral("it cannot be opened");
    }
    const std::optional<SMifFiles> files = FindMifFiles(path);
    if (!files) {
        return MifFilesProblem();
    }
    const QString name = QFileInfo(TextOfPath(files->name)).fileName();
    sink.TakeHead({name});
    RemarkOnHeader(path, tally);
    if (!QFileInfo::exists(files->rows)) {
        tally.Remark(
            QStringLiteral("There is no .mid beside the table: its objects have no attributes"));
    }
    CMifFeatureReader reader(*files, name, options, sink, tally);
    bool isRead = false;
    QString problem;
    try {
        isRead = VelorExchange::mif::Read(files->name, &reader);
    } catch (const std::length_error&) {
        problem = QStringLiteral("the table tells a count that cannot be");
    }
    if (options.progress != nullptr) {
        options.progress->Finish();
    }
    return isRead || !problem.isEmpty() ? problem : QStringLiteral("the header cannot be read");
}

} // namespace velorx
