// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFWriterImpl_p.h"

#include "tests/support/MifWriting.h"

#include <QDir>

using namespace VelorExchange;
using namespace VelorExchange::mif;
using namespace VelorExchange::test;

namespace {

QStringList FilesIn(const CMifWriting& writing)
{
    return QDir(writing.folder.path()).entryList(QDir::Files, QDir::Name);
}

} // namespace

TEST(MIFWriterImpl, ForbiddenCharactersOfALayerBecomeUnderlines)
{
    EXPECT_EQ(SanitizeLayerName(QStringLiteral("a\\b/c\"d*e?f:g|h<i>j")),
              QStringLiteral("a_b_c_d_e_f_g_h_i_j"));
    EXPECT_EQ(SanitizeLayerName(QStringLiteral("план.1 [x]^-")), QStringLiteral("план.1 [x]^-"));
}

TEST(MIFWriterImpl, EachLayerHasAPair)
{
    CMifWriting writing;
    EXPECT_TRUE(writing->AddPoint(CPointMIF(), QStringLiteral("b")));
    EXPECT_TRUE(writing->AddPoint(CPointMIF(), QStringLiteral("a/b")));
    EXPECT_TRUE(writing->AddPoint(CPointMIF(), QStringLiteral("слой")));
    writing.Rewrite();
    EXPECT_EQ(FilesIn(writing),
              (QStringList{QStringLiteral("a_b.MID"), QStringLiteral("a_b.MIF"),
                           QStringLiteral("b.MID"), QStringLiteral("b.MIF"),
                           QStringLiteral("слой.MID"), QStringLiteral("слой.MIF")}));
}

TEST(MIFWriterImpl, LayersThatDifferInForbiddenCharactersShareAFile)
{
    CMifWriting writing;
    EXPECT_TRUE(writing->AddPoint(CPointMIF(), QStringLiteral("a:b")));
    EXPECT_TRUE(writing->AddPoint(CPointMIF(), QStringLiteral("a?b")));
    writing.Rewrite();
    EXPECT_EQ(FilesIn(writing).size(), 2);
    EXPECT_EQ(writing.File("a_b.MID"), "\n\n");
}

TEST(MIFWriterImpl, LayerNamedAsAPathStaysInTheFolder)
{
    CMifWriting writing;
    ASSERT_TRUE(QDir(writing.folder.path()).mkdir(QStringLiteral("inner")));
    for (const char* layer : {"../x", "..", "/etc/x", "a/../../x",
                              ".."
                              "\\x"})
    {
        EXPECT_TRUE(writing->AddPoint(CPointMIF(), QString::fromUtf8(layer)));
    }
    writing->Rewrite(writing.Name("inner"), nullptr);
    EXPECT_TRUE(FilesIn(writing).isEmpty());
    EXPECT_EQ(QDir(writing.Name("inner")).entryList(QDir::Files | QDir::Hidden).size(), 8);
    EXPECT_NE(writing.File("inner/.._x.MIF"), "missing");
    EXPECT_NE(writing.File("inner/...MIF"), "missing");
}

TEST(MIFWriterImpl, EmptyLayerIsRefused)
{
    CMifWriting writing;
    EXPECT_FALSE(writing->AddPoint(CPointMIF(), QString()));
    EXPECT_FALSE(writing->AddText(CTextMIF(), QString()));
    EXPECT_FALSE(writing->AddPolyline({{}, {{1, 2}, {3, 4}}, {}, false}, QString()));
    EXPECT_FALSE(writing->AddRegion({{}, {{1, 2}, {3, 4}, {5, 6}}, {}, {}, {}}, QString()));
    EXPECT_EQ(writing.Report(), "");
}

TEST(MIFWriterImpl, TemporaryFileThatCannotBeMadeRefusesTheObject)
{
    CMifWriting writing;
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc");
    EXPECT_FALSE(writing->AddPoint(CPointMIF(), kLayer));
    before.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    EXPECT_EQ(writing.Report(), "");
    writing.Rewrite();
    EXPECT_TRUE(FilesIn(writing).isEmpty());
    EXPECT_TRUE(writing->AddPoint(CPointMIF(), kLayer));
}

TEST(MIFWriterImpl, RewriteCanRunAgainAndGoOn)
{
    CMifWriting writing;
    writing->AddPoint(CPointMIF(), kLayer);
    const std::string once = writing.Data();
    EXPECT_EQ(writing.Data(), once);
    writing->AddPoint(CPointMIF(), kLayer);
    EXPECT_EQ(writing.Data(), once + once);
    EXPECT_EQ(writing.File("a.MID"), "\n\n");
}

TEST(MIFWriterImpl, InitForgetsEverythingButThePrecision)
{
    CMifWriting writing;
    writing->SetPrecision(2);
    writing->AddPoint(CPointMIF(), QStringLiteral("old"));
    writing->Init(&writing.log);
    writing->AddPoint(CPointMIF(), kLayer);
    EXPECT_EQ(writing.Data(), "POINT 0.00 0.00\n");
    EXPECT_EQ(FilesIn(writing).size(), 2);
}

TEST(MIFWriterImpl, WorksWithoutALog)
{
    CMifWriting writing;
    writing->Init(nullptr);
    EXPECT_TRUE(writing->AddPoint(CPointMIF(), kLayer));
    writing->Rewrite(QStringLiteral("/no/such/folder"), nullptr);
    EXPECT_EQ(writing.Data(), "POINT 0.0000 0.0000\n");
}

TEST(MIFWriterImpl, WithoutObjectsNothingIsWritten)
{
    CMifWriting writing;
    writing.Rewrite();
    EXPECT_TRUE(FilesIn(writing).isEmpty());
}

TEST(MIFWriterImpl, TemporaryFilesVanishWithTheWriter)
{
    const QTemporaryDir temporary;
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", temporary.path().toLocal8Bit());
    {
        CMifWriting writing;
        EXPECT_TRUE(writing->AddPoint(CPointMIF(), kLayer));
    }
    before.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    EXPECT_TRUE(QDir(temporary.path()).entryList(QDir::Files).isEmpty());
}

TEST(MIFWriterImpl, NullMayBeDeleted)
{
    DeleteMIFWriter(nullptr);
}
