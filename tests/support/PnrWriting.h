// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/Pnr.h"

#include <QByteArray>
#include <QDate>
#include <QFile>
#include <QTemporaryDir>

#include <initializer_list>
#include <memory>
#include <utility>

/// One life of a writer: made, opened on a file of its own folder, closed and read back.
class CPnrWriting
{
public:
    struct COptions
    {
        bool text = false;
        bool userMap = false;
        VelorExchange::CExportLog* log = nullptr;
        std::shared_ptr<VelorExchange::pnr::IPnrWriter::IContext> context = nullptr;
        VelorExchange::pnr::PnrFileParams params = {QStringLiteral("Карта"), 5000, 0, 0, 0, 0};
        QString fileName; ///< Instead of one in the own folder.
    };

    explicit CPnrWriting(const COptions& options)
        : fileName(options.fileName.isEmpty() ? folder.filePath(QStringLiteral("map"))
                                              : options.fileName),
          writer(VelorExchange::pnr::CreatePnrWriter(options.text, false, options.context),
                 VelorExchange::pnr::DeletePnrWriter)
    {
        writer->Init(options.userMap, options.log);
        opened = writer->Open(fileName, options.params);
    }

    VelorExchange::pnr::IPnrWriter* operator->() const { return writer.get(); }
    const QString& FileName() const { return fileName; }
    bool Opened() const { return opened; }

    /// Closes the writer; the bytes of the target, or null if there is none.
    QByteArray Close()
    {
        closed = writer->Close();
        QFile file(fileName);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    bool Closed() const { return closed; }

private:
    QTemporaryDir folder;
    QString fileName;
    std::unique_ptr<VelorExchange::pnr::IPnrWriter, void (*)(VelorExchange::pnr::IPnrWriter*)>
        writer;
    bool opened = false;
    bool closed = false;
};

/// A contour in the plan.
inline std::unique_ptr<VelorExchange::pnr::CVertexHolder2D>
Plan(std::initializer_list<VelorExchange::CPoint2D> vertices)
{
    auto holder = std::make_unique<VelorExchange::pnr::CVertexHolder2D>();
    holder->vertices = vertices;
    return holder;
}

/// A contour in space.
inline std::unique_ptr<VelorExchange::pnr::CVertexHolder3D>
Space(std::initializer_list<VelorExchange::CPoint3D> vertices)
{
    auto holder = std::make_unique<VelorExchange::pnr::CVertexHolder3D>();
    holder->vertices = vertices;
    return holder;
}

inline VelorExchange::pnr::PnrSemantic Attribute(int code, int dataType, const QVariant& value,
                                                 int scale = 0, int semanticType = -1)
{
    VelorExchange::pnr::PnrSemantic semantic;
    semantic.semanticType = semanticType;
    semantic.code = code;
    semantic.dataType = dataType;
    semantic.scale = static_cast<quint8>(scale);
    semantic.value = value;
    return semantic;
}

/// Today as the files have it.
inline QByteArray Today()
{
    return QDate::currentDate().toString(QStringLiteral("yyyyMMdd")).toLatin1();
}

/// The file with "YYYYMMDD" in place of the day it was written.
inline QByteArray WithoutDate(QByteArray file)
{
    return file.replace(Today(), "YYYYMMDD");
}
