// SPDX-License-Identifier: MIT
#include "tools/velorx/check/CheckReport.h"

#include "tools/velorx/TextTable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace velorx {

namespace {

QString PlaceText(const SPlace& place)
{
    QString text;
    if (place.part[0] != '\0') {
        text += QLatin1String(place.part) + QLatin1Char(' ');
    }
    if (place.line > 0) {
        text += QStringLiteral("line %1").arg(place.line);
    } else if (place.byte >= 0) {
        text += QStringLiteral("byte %1").arg(place.byte);
    }
    return text.trimmed();
}

QString FindingText(const SFinding& finding)
{
    QString text = QStringLiteral("    ") + PlaceText(finding.place);
    if (!finding.detail.isEmpty()) {
        text += QStringLiteral(": ") + Printable(finding.detail);
    }
    return text + (finding.count > 1 ? QStringLiteral(" (%1 times)").arg(finding.count) : QString())
        + QLatin1Char('\n');
}

QString KindText(const SFindingsOfKind& kind)
{
    QString text = QStringLiteral("  %1 %2\n").arg(kind.count).arg(QLatin1String(kind.kind->text));
    qint64 left = kind.count;
    for (const SFinding& finding : kind.first) {
        text += FindingText(finding);
        left -= finding.count;
    }
    return left > 0 ? text + QStringLiteral("    ... and %1 more\n").arg(left) : text;
}

QString LevelText(const CFindings& findings, ELevel level, const char* headline)
{
    QString text;
    for (const SFindingsOfKind& kind : findings.Kinds()) {
        if (kind.kind->level == level) {
            text += KindText(kind);
        }
    }
    return text.isEmpty() ? text : QLatin1String(headline) + text;
}

QJsonObject FindingJson(const SFinding& finding)
{
    QJsonObject json{{QStringLiteral("detail"), finding.detail},
                     {QStringLiteral("count"), finding.count}};
    if (finding.place.line > 0) {
        json.insert(QStringLiteral("line"), finding.place.line);
    }
    if (finding.place.byte >= 0) {
        json.insert(QStringLiteral("byte"), finding.place.byte);
    }
    if (finding.place.part[0] != '\0') {
        json.insert(QStringLiteral("part"), QLatin1String(finding.place.part));
    }
    return json;
}

QJsonObject KindJson(const SFindingsOfKind& kind)
{
    QJsonArray places;
    for (const SFinding& finding : kind.first) {
        places.append(FindingJson(finding));
    }
    const bool isFault = kind.kind->level == ELevel::Fault;
    return {{QStringLiteral("kind"), QLatin1String(kind.kind->id)},
            {QStringLiteral("level"), isFault ? QStringLiteral("fault") : QStringLiteral("remark")},
            {QStringLiteral("what"), QLatin1String(kind.kind->text)},
            {QStringLiteral("count"), kind.count},
            {QStringLiteral("first"), places}};
}

QJsonObject FileJson(const SCheckedFile& file)
{
    QJsonArray kinds;
    for (const SFindingsOfKind& kind : file.findings.Kinds()) {
        kinds.append(KindJson(kind));
    }
    return {{QStringLiteral("file"), QString::fromUtf8(file.name.c_str())},
            {QStringLiteral("description"), QString::fromStdString(file.description)},
            {QStringLiteral("sound"), file.IsSound()},
            {QStringLiteral("error"), QString::fromUtf8(file.error.c_str())},
            {QStringLiteral("findings"), kinds}};
}

} // namespace

QByteArray CheckText(const SCheckedFile& file)
{
    const QString faults = LevelText(file.findings, ELevel::Fault, "Wrong\n");
    const QString remarks = LevelText(file.findings, ELevel::Remark, "To know\n");
    const QString verdict =
        faults.isEmpty() ? QStringLiteral(", nothing wrong\n") : QStringLiteral("\n");
    return QByteArray::fromStdString(file.name + ": " + file.description)
        + (verdict + faults + remarks).toUtf8();
}

QByteArray CheckJson(const std::vector<SCheckedFile>& files)
{
    QJsonArray rows;
    for (const SCheckedFile& file : files) {
        rows.append(FileJson(file));
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("files"), rows}}).toJson();
}

} // namespace velorx
