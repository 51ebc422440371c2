// SPDX-License-Identifier: MIT
#include "tests/pnr/classifier/ClassifierTest.h"
#include "VelorExchange/pnr/classifier/RscLibrary_p.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

namespace VelorExchange::pnr {

namespace {

int AssignedFunctions()
{
    int count = 0;
    for (const CRscOperation& operation : CRscLibrary::Operations()) {
        count += operation.isAssigned(CPanoramaRscClsReader::m_instance) ? 1 : 0;
    }
    return count;
}

} // namespace

using PanoramaRscClsReader = CClassifierTest;

// ---- GetInstance and KillInstance ---------------------------------------------------------------

TEST_F(PanoramaRscClsReader, StartsEmpty)
{
    EXPECT_FALSE(CReader::m_instance.opened);
    EXPECT_EQ(CReader::m_instance.hRsc, nullptr);
    EXPECT_EQ(CReader::m_instance.hMap, nullptr);
    EXPECT_EQ(CReader::m_instance.hLibrary, nullptr);
    EXPECT_EQ(CReader::m_instance.libraryPath, QString());
    EXPECT_EQ(AssignedFunctions(), 0);
}

TEST_F(PanoramaRscClsReader, GetInstanceLoadsTheLibrary)
{
    EXPECT_EQ(CReader::GetInstance(StandIn()), &CReader::m_instance);
    EXPECT_NE(CReader::m_instance.hLibrary, nullptr);
    EXPECT_EQ(CReader::m_instance.libraryPath, StandIn());
    EXPECT_EQ(AssignedFunctions(), 22);
    EXPECT_EQ(Calls(), "loaded\n");
}

TEST_F(PanoramaRscClsReader, GetInstanceWithTheSamePathDoesNotLoadAgain)
{
    Loaded();
    EXPECT_EQ(CReader::GetInstance(StandIn()), &CReader::m_instance);
    EXPECT_EQ(Calls(), "");
}

TEST_F(PanoramaRscClsReader, GetInstanceWithEmptyPathAsksForTheState)
{
    EXPECT_EQ(CReader::GetInstance(QString()), nullptr);
    Loaded();
    EXPECT_EQ(CReader::GetInstance(QString()), &CReader::m_instance);
    EXPECT_EQ(CReader::m_instance.libraryPath, StandIn());
    EXPECT_EQ(Calls(), "");
}

TEST_F(PanoramaRscClsReader, GetInstanceWithAnotherPathFreesTheOldLibraryFirst)
{
    Loaded();
    EXPECT_EQ(CReader::GetInstance(SecondStandIn()), &CReader::m_instance);
    EXPECT_EQ(CReader::m_instance.libraryPath, SecondStandIn());
    EXPECT_EQ(AssignedFunctions(), 22);
    EXPECT_EQ(Calls(), "freed\nloaded\n");
}

TEST_F(PanoramaRscClsReader, GetInstanceIsNullForAMissingFile)
{
    EXPECT_EQ(CReader::GetInstance(QStringLiteral("/no/such/library.so")), nullptr);
    EXPECT_EQ(CReader::m_instance.libraryPath, QString());
    EXPECT_EQ(CReader::m_instance.hLibrary, nullptr);
}

TEST_F(PanoramaRscClsReader, AMissingFileFreesTheLoadedLibrary)
{
    Loaded();
    EXPECT_EQ(CReader::GetInstance(QStringLiteral("/no/such/library.so")), nullptr);
    EXPECT_EQ(CReader::m_instance.libraryPath, QString());
    EXPECT_EQ(CReader::m_instance.hLibrary, nullptr);
    EXPECT_EQ(Calls(), "freed\n");
}

TEST_F(PanoramaRscClsReader, GetInstanceIsNullForAFileThatIsNoLibrary)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("library.so"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("not a library");
    file.close();

    Loaded();
    EXPECT_EQ(CReader::GetInstance(path), nullptr);
    EXPECT_EQ(CReader::m_instance.libraryPath, QString());
    EXPECT_EQ(CReader::m_instance.hLibrary, nullptr);
    EXPECT_EQ(Calls(), "freed\n");
}

TEST_F(PanoramaRscClsReader, GetInstanceIsNullForAFolder)
{
    EXPECT_EQ(CReader::GetInstance(QDir::tempPath()), nullptr);
    EXPECT_EQ(CReader::m_instance.libraryPath, QString());
}

TEST_F(PanoramaRscClsReader, GetInstanceLoadsAgainAfterAFailure)
{
    EXPECT_EQ(CReader::GetInstance(StandInLacking("mapOpenRsc")), nullptr);
    EXPECT_EQ(CReader::GetInstance(StandIn()), &CReader::m_instance);
    EXPECT_EQ(Calls(), "loaded\nfreed\nloaded\n");
}

TEST_F(PanoramaRscClsReader, GetInstanceTakesAPathInLocalText)
{
    const CLocalCodec codec("Windows-1251");
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("библиотека.so"));
    ASSERT_TRUE(QFile::copy(StandIn(), path));
    EXPECT_EQ(CReader::GetInstance(path), &CReader::m_instance);
    EXPECT_EQ(Calls(), "loaded\n");
}

TEST_F(PanoramaRscClsReader, GetInstanceTakesANameInTheCurrentFolder)
{
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(QStringLiteral(RSC_STAND_IN_FOLDER)));
    const CReader* reader = CReader::GetInstance(QFileInfo(StandIn()).fileName());
    ASSERT_TRUE(QDir::setCurrent(before));
    EXPECT_EQ(reader, &CReader::m_instance);
}

TEST_F(PanoramaRscClsReader, KillInstanceFreesTheLibrary)
{
    Loaded();
    CReader::KillInstance();
    EXPECT_EQ(CReader::m_instance.libraryPath, QString());
    EXPECT_EQ(CReader::m_instance.hLibrary, nullptr);
    EXPECT_EQ(CReader::GetInstance(QString()), nullptr);
    EXPECT_EQ(Calls(), "freed\n");
}

TEST_F(PanoramaRscClsReader, KillInstanceWithoutLibraryDoesNothing)
{
    CReader::KillInstance();
    EXPECT_EQ(CReader::GetInstance(QString()), nullptr);
    EXPECT_EQ(Calls(), "");
}

TEST_F(PanoramaRscClsReader, KillInstanceClosesNothing)
{
    CReader& reader = Opened();
    reader.OpenToDrawPreview(QStringLiteral("map.rsc"));
    Calls();
    CReader::KillInstance();
    EXPECT_EQ(Calls(), "freed\n");
    EXPECT_TRUE(reader.opened);
    EXPECT_NE(reader.hRsc, nullptr);
    EXPECT_NE(reader.hMap, nullptr);
}

TEST_F(PanoramaRscClsReader, LoadsAgainAfterKillInstance)
{
    Loaded();
    CReader::KillInstance();
    EXPECT_EQ(CReader::GetInstance(StandIn()), &CReader::m_instance);
    EXPECT_EQ(Calls(), "freed\nloaded\n");
}

TEST_F(PanoramaRscClsReader, KeepsOnlyTheLastFunctionWhenFreed)
{
    Loaded();
    CReader::KillInstance();
    const auto& operations = CRscLibrary::Operations();
    EXPECT_EQ(AssignedFunctions(), 1);
    EXPECT_STREQ(operations.back().name, "mapGetRscObjectKey");
    EXPECT_TRUE(operations.back().isAssigned(CReader::m_instance));
}

TEST_F(PanoramaRscClsReader, CanBeCopied)
{
    const CReader copy(Opened());
    EXPECT_EQ(copy.hRsc, CReader::m_instance.hRsc);
    EXPECT_EQ(copy.libraryPath, StandIn());
}

// ---- Without a library --------------------------------------------------------------------------

TEST_F(PanoramaRscClsReader, OpensNothingWithoutLibrary)
{
    CReader& reader = CReader::m_instance;
    EXPECT_FALSE(reader.Open(QStringLiteral("map.rsc")));
    EXPECT_FALSE(reader.isOpen());
    EXPECT_FALSE(reader.OpenToDrawPreview(QStringLiteral("map.rsc")));
    reader.Close();
    reader.CloseToDrawPriview();
    EXPECT_FALSE(isControlWordSaved);
}

TEST_F(PanoramaRscClsReader, ForgetsTheOpenClassifierWhenClosedWithoutLibrary)
{
    CReader& reader = Opened();
    CReader::KillInstance();
    EXPECT_FALSE(reader.isOpen());
    reader.Close();
    EXPECT_FALSE(reader.opened);
    EXPECT_EQ(reader.hRsc, nullptr);
    EXPECT_EQ(Calls(), "freed\n");
}

// ---- Open and Close -----------------------------------------------------------------------------

TEST_F(PanoramaRscClsReader, OpenKeepsTheHandle)
{
    CReader& reader = Loaded();
    EXPECT_FALSE(reader.isOpen());
    EXPECT_TRUE(reader.Open(QStringLiteral("map.rsc")));
    EXPECT_TRUE(reader.isOpen());
    EXPECT_EQ(reader.hRsc, reinterpret_cast<void*>(0x111111111));
    EXPECT_EQ(Calls(), "mapOpenRsc(\"map.rsc\")\n");
}

TEST_F(PanoramaRscClsReader, OpenIsFalseWithoutHandle)
{
    CReader& reader = Loaded();
    standin::Current().rsc = 0;
    EXPECT_FALSE(reader.Open(QStringLiteral("map.rsc")));
    EXPECT_FALSE(reader.isOpen());
    EXPECT_EQ(reader.hRsc, nullptr);
}

TEST_F(PanoramaRscClsReader, OpenClosesWhatIsOpen)
{
    CReader& reader = Opened();
    standin::Current().rsc = 0x444;
    EXPECT_TRUE(reader.Open(QStringLiteral("other.rsc")));
    EXPECT_EQ(reader.hRsc, reinterpret_cast<void*>(0x444));
    EXPECT_EQ(Calls(), "mapCloseRsc(0x111111111)\nmapOpenRsc(\"other.rsc\")\n");
}

TEST_F(PanoramaRscClsReader, OpenThatFailsLeavesNothingOpen)
{
    CReader& reader = Opened();
    standin::Current().rsc = 0;
    EXPECT_FALSE(reader.Open(QStringLiteral("other.rsc")));
    EXPECT_FALSE(reader.isOpen());
    EXPECT_EQ(reader.hRsc, nullptr);
}

TEST_F(PanoramaRscClsReader, OpenPassesTheNameInLocalText)
{
    CReader& reader = Loaded();
    const CLocalCodec codec("Windows-1251");
    reader.Open(QStringLiteral("карта.rsc"));
    EXPECT_EQ(Calls(), "mapOpenRsc(\"\xEA\xE0\xF0\xF2\xE0.rsc\")\n");
}

TEST_F(PanoramaRscClsReader, CloseClosesOnce)
{
    CReader& reader = Opened();
    reader.Close();
    EXPECT_FALSE(reader.isOpen());
    EXPECT_EQ(reader.hRsc, nullptr);
    reader.Close();
    EXPECT_EQ(Calls(), "mapCloseRsc(0x111111111)\n");
}

} // namespace VelorExchange::pnr
