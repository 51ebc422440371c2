// SPDX-License-Identifier: MIT
#include "tests/support/DxfDrawing.h"

#include "tests/support/DxfChecker.h"

#include <QFile>

#include <gtest/gtest.h>

namespace VelorExchange::test {

using VelorExchange::dxf::CreateDXFWriter;
using VelorExchange::dxf::IDXFWriter;

CDrawing::CDrawing(int version, IDXFWriter::IContext* context, VelorExchange::CExportLog* log)
    : writer(CreateDXFWriter(context))
{
    if (version != 1018 || log != nullptr) {
        writer->Init(version, log);
    }
}

QByteArray CDrawing::Bytes()
{
    QByteArray bytes = UncheckedBytes();
    for (const std::string& problem : ProblemsOf(bytes)) {
        ADD_FAILURE() << problem;
    }
    return bytes;
}

QByteArray CDrawing::UncheckedBytes()
{
    const QString path = folder.filePath(QStringLiteral("drawing.dxf"));
    writer->Rewrite(path);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

bool CTestContext::GetLineStyle(const QString& name, VelorExchange::dxf::CLineStyleDXF& style)
{
    calls += "line style " + name.toStdString() + "\n";
    style.name = name;
    style.pattern = {1.0, -0.5};
    return name != QLatin1String("unknown");
}

void CTestContext::CompleteTextStyle(VelorExchange::dxf::CTextStyleDXF& style)
{
    calls += "text style " + style.name.toStdString() + "\n";
    style.fontFile = QStringLiteral("completed");
    style.height = 1.5;
}

} // namespace VelorExchange::test
