// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/mif/IMIFWriter.h"

#include <QByteArray>
#include <QRectF>
#include <QString>
#include <QTemporaryDir>

#include <string>

namespace VelorExchange::test {

/// A writer with a log and a folder of its own.
class CMifWriting
{
public:
    explicit CMifWriting(mif::IMIFWriter::IContext* context = nullptr)
        : writer(mif::CreateMIFWriter(context))
    {
        writer->Init(&log);
    }
    CMifWriting(const CMifWriting&) = delete;
    CMifWriting& operator=(const CMifWriting&) = delete;
    ~CMifWriting() { mif::DeleteMIFWriter(writer); }

    mif::IMIFWriter* operator->() const { return writer; }

    void Rewrite() const { writer->Rewrite(folder.path(), nullptr); }
    void Rewrite(const QRectF& bounds) const { writer->Rewrite(folder.path(), &bounds); }

    /// Name of a file in the folder, as the writer forms it.
    QString Name(const char* file) const
    {
        return folder.path() + QLatin1Char('/') + QString::fromUtf8(file);
    }

    /// Contents of a file in the folder; "missing" if there is none.
    std::string File(const char* file) const;

    /// What follows "DATA" and its blank line in the ".MIF" of the layer "a", after `Rewrite`.
    std::string Data() const;

    /// The report without its last line, the date.
    std::string Report() const;

    CExportLog log;
    QTemporaryDir folder;

private:
    mif::IMIFWriter* writer;
};

/// The layer that most tests write.
const QString kLayer = QStringLiteral("a");

} // namespace VelorExchange::test
