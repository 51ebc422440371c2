// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifTableFiles.h"

#include "tests/tools/RunVelorx.h"
#include "VelorExchange/foundation/FileError.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <filesystem>

namespace velorx::test {

namespace {

constexpr char kHeader[] = "Version 450\nBounds (0, 0) (1, 1)\n";
constexpr char kBody[] = "DATA\n\nPOINT 1 2\nColumns 7\n";

class MifTableFiles : public testing::Test
{
protected:
    void Make(const std::string& columns, const std::string& rows)
    {
        folder.Write("FROM.MIF", kHeader + columns + kBody);
        folder.Write("FROM.MID", rows);
    }

    void Put(const SMifTableChanges& changes)
    {
        PutMifTable({Path("FROM.MIF"), Path("FROM.MID")}, {Path("to.mif"), Path("to.mid")},
                    changes);
    }

    std::string Table() const { return ReadFile(folder.path + "/to.mif"); }
    std::string Rows() const { return ReadFile(folder.path + "/to.mid"); }
    QString Path(const char* name) const
    {
        return QString::fromStdString(folder.path) + QLatin1Char('/') + QLatin1String(name);
    }

    CTemporaryFolder folder;
    SMifTableChanges nothing{[](const QString&) { return QString(); }, false, QString(), {}};
};

} // namespace

TEST_F(MifTableFiles, WithoutChangesThePairIsMoved)
{
    Make("Columns 1\nA INTEGER\n", "1\n");
    Put(nothing);
    EXPECT_EQ(Table(), std::string(kHeader) + "Columns 1\nA INTEGER\n" + kBody);
    EXPECT_EQ(Rows(), "1\n");
    EXPECT_FALSE(std::filesystem::exists(folder.path + "/FROM.MIF"));
}

TEST_F(MifTableFiles, ColumnsGetTheTypesThatAreWanted)
{
    Make("Columns 2\nA CHAR(80)\nB INTEGER\n", "\"x\";1\n");
    SMifTableChanges changes = nothing;
    changes.typeOf = [](const QString& column) {
        return column == "A" ? QStringLiteral("CHAR(100)") : QString();
    };
    Put(changes);
    EXPECT_EQ(Table(), std::string(kHeader) + "Columns 2\nA CHAR(100)\nB INTEGER\n" + kBody);
    EXPECT_EQ(Rows(), "\"x\";1\n");
}

TEST_F(MifTableFiles, FirstColumnCanBeTakenOut)
{
    Make("Columns 2\nLAYER CHAR(80)\nB INTEGER\n", "\"a;b\";1\n\"a;b\";\n");
    SMifTableChanges changes = nothing;
    changes.dropsFirst = true;
    changes.firstValue = "a;b";
    Put(changes);
    EXPECT_EQ(Table(), std::string(kHeader) + "Columns 1\nB INTEGER\n" + kBody);
    EXPECT_EQ(Rows(), "1\n\n");
}

TEST_F(MifTableFiles, OnlyColumnTakenOutLeavesTheLibrarysEmptyOne)
{
    Make("Columns 1\nLAYER CHAR(80)\n", "\"a\"\n\"a\"\n");
    SMifTableChanges changes = nothing;
    changes.dropsFirst = true;
    changes.firstValue = "a";
    Put(changes);
    EXPECT_EQ(Table(), std::string(kHeader) + "Columns 1\nTEXT CHAR(80)\n" + kBody);
    EXPECT_EQ(Rows(), "\n\n");
}

TEST_F(MifTableFiles, DetailsGoIntoTheObjects)
{
    const std::string region = "REGION 1\n3\n0 0\n1 0\n1 1\nPEN (1, 1, 0)\nBRUSH (2, 0, 0)\n";
    std::string regions;
    for (int i = 0; i < 50'000; ++i) {
        regions += region; // more than a block of the copying
    }
    folder.Write("FROM.MIF", kHeader + std::string("Columns 1\nA INTEGER\nDATA\n\n") + regions);
    folder.Write("FROM.MID", "");
    SMifTableChanges changes = nothing;
    for (const qint64 object : {25'000, 49'999}) {
        SMifDetail detail;
        detail.object = object;
        detail.hasPen = true;
        detail.pen.pattern = 7;
        changes.details.push_back(detail);
    }
    Put(changes);
    std::string expected = regions;
    for (const std::size_t object : {49'999U, 25'000U}) {
        expected.replace(object * region.size() + region.find("(1, 1, 0)"), 9, "(1, 7, 0)");
    }
    EXPECT_TRUE(Table().substr(Table().size() - expected.size()) == expected);
}

TEST_F(MifTableFiles, WhatIsReplacedKeepsItsRights)
{
    Make("Columns 1\nA INTEGER\n", "1\n");
    folder.Write("to.mif", "old");
    chmod((folder.path + "/to.mif").c_str(), 0600);
    Put(nothing);
    struct stat status = {};
    ASSERT_EQ(stat((folder.path + "/to.mif").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(MifTableFiles, MissingFileIsAFileError)
{
    EXPECT_THROW(Put(nothing), VelorExchange::FileError);
}

TEST_F(MifTableFiles, FullDiskIsAFileError)
{
    Make("Columns 1\nA CHAR(80)\n", "1\n");
    SMifTableChanges changes = nothing;
    changes.typeOf = [](const QString&) { return QStringLiteral("CHAR(81)"); };
    EXPECT_THROW(PutMifTable({Path("FROM.MIF"), Path("FROM.MID")},
                             {QStringLiteral("/dev/full"), Path("to.mid")}, changes),
                 VelorExchange::FileError);
}

TEST_F(MifTableFiles, EmptyTableHasAHeaderAndNoRows)
{
    WriteEmptyMifTable({Path("to.mif"), Path("to.mid")});
    EXPECT_NE(Table().find("Columns 1\nTEXT CHAR(80)\nDATA\n"), std::string::npos);
    EXPECT_EQ(Rows(), "");
}

} // namespace velorx::test
