// SPDX-License-Identifier: MIT
// The example programs write drawings that pass the checker.
#include "tests/support/DxfChecker.h"
#include "tests/support/DxfTags.h"

#include <QProcess>
#include <QTemporaryDir>

using namespace VelorExchange::test;

namespace {

// The drawing that a program writes when it is given a path and perhaps another argument.
QByteArray DrawingOf(const char* program, const QStringList& more = {})
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("example.dxf"));
    QProcess process;
    process.start(QString::fromLocal8Bit(program), QStringList{path} + more);
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    for (const std::string& problem : ProblemsOf(bytes)) {
        ADD_FAILURE() << problem;
    }
    return bytes;
}

std::vector<std::string> KindsOf(const QByteArray& drawing)
{
    return ValuesOf(SectionOf(ParseTags(drawing), "ENTITIES"), 0);
}

} // namespace

TEST(Examples, ProgramInCWritesADrawing)
{
#ifdef VELOREXCHANGE_DXFFLAT
    for (const char* version : {"1015", "1018"}) {
        const QByteArray drawing = DrawingOf(VELOREXCHANGE_DXFFLAT, {QString::fromLatin1(version)});
        EXPECT_TRUE(drawing.contains(QByteArray("AC") + version + "\r\n"));
        EXPECT_EQ(KindsOf(drawing),
                  (std::vector<std::string>{"LWPOLYLINE", "HATCH", "MTEXT", "IMAGE"}));
        EXPECT_EQ(ValuesOf(SectionOf(ParseTags(drawing), "ENTITIES"), 8).at(0), "\xC4\xEE\xEC");
    }
#else
    GTEST_SKIP() << "the examples are not built";
#endif
}

TEST(Examples, ProgramFromScratchWritesADrawing)
{
#ifdef VELOREXCHANGE_DXFFROMSCRATCH
    EXPECT_EQ(KindsOf(DrawingOf(VELOREXCHANGE_DXFFROMSCRATCH)),
              (std::vector<std::string>{"LWPOLYLINE", "INSERT", "ATTRIB", "SEQEND", "INSERT",
                                        "ATTRIB", "SEQEND", "HATCH"}));
#else
    GTEST_SKIP() << "the examples are not built";
#endif
}
