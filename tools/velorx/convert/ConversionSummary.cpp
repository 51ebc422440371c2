// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/ConversionSummary.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace velorx {

namespace {

qint64 Converted(const std::vector<SConvertedFile>& files)
{
    return std::count_if(files.begin(), files.end(),
                         [](const SConvertedFile& file) { return file.error.empty(); });
}

QByteArray FileText(const SConvertedFile& file)
{
    return file.error.empty() ? file.report.ToText().toUtf8()
                              : QByteArray::fromStdString(file.error) + '\n';
}

QJsonObject FileJson(const SConvertedFile& file)
{
    QJsonObject object = file.report.ToJson();
    object.insert(QStringLiteral("source"), QString::fromUtf8(file.source.c_str()));
    object.insert(QStringLiteral("target"), QString::fromUtf8(file.target.c_str()));
    object.insert(QStringLiteral("result"), file.error.empty());
    object.insert(QStringLiteral("error"), QString::fromUtf8(file.error.c_str()));
    return object;
}

} // namespace

QByteArray SummaryText(const std::vector<SConvertedFile>& files)
{
    if (files.size() == 1) {
        return FileText(files.front());
    }
    QByteArray text;
    for (const SConvertedFile& file : files) {
        text += QByteArray::fromStdString(file.source + " -> " + file.target) + '\n';
        text += FileText(file) + '\n';
    }
    return text + QByteArray::number(Converted(files)) + " of "
        + QByteArray::number(qint64(files.size())) + " files converted\n";
}

QByteArray SummaryJson(const std::vector<SConvertedFile>& files)
{
    QJsonArray rows;
    for (const SConvertedFile& file : files) {
        rows.append(FileJson(file));
    }
    const qint64 converted = Converted(files);
    return QJsonDocument(QJsonObject{{QStringLiteral("files"), rows},
                                     {QStringLiteral("converted"), converted},
                                     {QStringLiteral("failed"), qint64(files.size()) - converted}})
        .toJson();
}

} // namespace velorx
