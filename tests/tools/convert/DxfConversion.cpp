// SPDX-License-Identifier: MIT
#include "tests/tools/convert/DxfConversion.h"

#include "tests/support/DxfChecker.h"
#include "tests/support/DxfRecorder.h"
#include "tests/support/DxfTags.h"
#include "tests/support/LocaleCodec.h"
#include "tools/velorx/convert/Conversion.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sstream>

namespace velorx::test {

namespace {

QByteArray ContentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::string LayersText(const SConversionLoss& loss)
{
    std::string text;
    for (const auto& [layer, count] : loss.layers) {
        text += (text.empty() ? " (" : ", ") + layer.toStdString() + ' ' + std::to_string(count);
    }
    return text.empty() ? text : text + ')';
}

} // namespace

SConverted Converted(const QByteArray& source, int version, int precision)
{
    const VelorExchange::test::CLocaleCodec codec("windows-1251");
    const QTemporaryDir folder;
    SConversionJob job;
    job.source = folder.filePath(QStringLiteral("source.dxf"));
    job.target = folder.filePath(QStringLiteral("target.dxf"));
    job.targetName = QStringLiteral("target.dxf");
    job.options.drawingVersion = version;
    job.options.precision = precision;
    QFile file(job.source);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(source);
    file.close();
    SConverted converted;
    converted.problem = ConvertDxfToDxf(job, converted.report);
    converted.drawing = ContentOf(job.target);
    if (converted.problem.isEmpty()) {
        for (const std::string& problem : VelorExchange::test::ProblemsOf(converted.drawing)) {
            ADD_FAILURE() << problem;
        }
    }
    return converted;
}

std::string Section(const char* name, const std::string& groups)
{
    return std::string("0 SECTION\n2 ") + name + '\n' + groups + "0 ENDSEC\n";
}

QByteArray Drawing(const std::string& sections)
{
    return VelorExchange::test::Tags((sections + "0 EOF\n").c_str());
}

QByteArray WithEntities(const std::string& groups)
{
    return Drawing(Section("ENTITIES", groups));
}

QByteArray WithTables(const std::string& records, const std::string& entities)
{
    return Drawing(Section("TABLES", records) + Section("ENTITIES", entities));
}

QByteArray WithBlock(const std::string& block, const std::string& entities)
{
    return Drawing(Section("BLOCKS", "0 BLOCK\n2 B\n" + block + "0 ENDBLK\n")
                   + Section("ENTITIES", entities));
}

std::string LossesOf(const QByteArray& source, int version)
{
    const SConverted converted = Converted(source, version);
    EXPECT_EQ(converted.problem.toStdString(), "");
    std::string text;
    for (const SConversionLoss& loss : converted.report.losses) {
        text +=
            std::to_string(loss.count) + ' ' + loss.what.toStdString() + LayersText(loss) + '\n';
    }
    return text;
}

std::string ResultOf(const QByteArray& source, const char* operation, int version)
{
    const VelorExchange::test::CLocaleCodec codec("windows-1251");
    std::istringstream lines(VelorExchange::test::Recorded(Converted(source, version).drawing));
    std::string text;
    for (std::string line; std::getline(lines, line);) {
        if (line.rfind(operation, 0) == 0) {
            text += line + '\n';
        }
    }
    return text;
}

std::string RecordsOf(const QByteArray& source, const char* name, int version)
{
    using namespace VelorExchange::test;
    std::string text;
    for (const CTags& record :
         VelorExchange::test::RecordsOf(ParseTags(Converted(source, version).drawing), name))
    {
        text += AsText(record);
    }
    return text;
}

} // namespace velorx::test
