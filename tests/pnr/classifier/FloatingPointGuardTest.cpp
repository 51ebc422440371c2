// SPDX-License-Identifier: MIT
#include "tests/pnr/classifier/ClassifierTest.h"

#include <map>

namespace VelorExchange::pnr {

using FloatingPointGuard = CClassifierTest;

// ---- The guard alone ----------------------------------------------------------------------------

TEST_F(FloatingPointGuard, FirstEntryChangesNothing)
{
    std::feraiseexcept(FE_INEXACT);
    feenableexcept(FE_OVERFLOW);
    const CFloatingPointGuard guard;
    EXPECT_EQ(fegetexcept(), FE_OVERFLOW);
    EXPECT_EQ(std::fetestexcept(FE_ALL_EXCEPT), FE_INEXACT);
    EXPECT_FALSE(isControlWordSaved);
}

TEST_F(FloatingPointGuard, ExitSavesTheWordLeftBehind)
{
    {
        const CFloatingPointGuard guard;
        feenableexcept(FE_DIVBYZERO);
    }
    EXPECT_TRUE(isControlWordSaved);
    EXPECT_EQ(savedControlWord, static_cast<unsigned>(FE_DIVBYZERO));
}

TEST_F(FloatingPointGuard, ExitGivesTheCallerItsWordBack)
{
    feenableexcept(FE_OVERFLOW);
    {
        const CFloatingPointGuard guard;
        fedisableexcept(FE_ALL_EXCEPT);
        feenableexcept(FE_DIVBYZERO);
    }
    EXPECT_EQ(fegetexcept(), FE_OVERFLOW);
}

TEST_F(FloatingPointGuard, ExitClearsWhatIsPending)
{
    {
        const CFloatingPointGuard guard;
        std::feraiseexcept(FE_DIVBYZERO);
    }
    EXPECT_EQ(std::fetestexcept(FE_ALL_EXCEPT), 0);
}

TEST_F(FloatingPointGuard, PendingExceptionOfTheLibraryDoesNotTrapInTheCaller)
{
    feenableexcept(FE_DIVBYZERO);
    {
        const CFloatingPointGuard guard;
        fedisableexcept(FE_ALL_EXCEPT);
        std::feraiseexcept(FE_DIVBYZERO);
    }
    volatile long double one = 1.0L; // the x87 unit traps on what is pending at its next step
    one = one + one;
    EXPECT_EQ(fegetexcept(), FE_DIVBYZERO);
}

TEST_F(FloatingPointGuard, SecondEntryInstallsTheSavedWord)
{
    savedControlWord = FE_DIVBYZERO;
    isControlWordSaved = true;
    feenableexcept(FE_OVERFLOW);
    const CFloatingPointGuard guard;
    EXPECT_EQ(fegetexcept(), FE_DIVBYZERO);
}

TEST_F(FloatingPointGuard, SecondEntryClearsWhatIsPending)
{
    isControlWordSaved = true;
    std::feraiseexcept(FE_INEXACT);
    const CFloatingPointGuard guard;
    EXPECT_EQ(std::fetestexcept(FE_ALL_EXCEPT), 0);
}

TEST_F(FloatingPointGuard, RoundingIsNotGuarded)
{
    {
        const CFloatingPointGuard guard;
        std::fesetround(FE_UPWARD);
    }
    EXPECT_EQ(std::fegetround(), FE_UPWARD);
}

// ---- The guard around the operations --------------------------------------------------------------

namespace {

struct CGuardedOperation
{
    const char* name;
    void (*call)(CPanoramaRscClsReader& reader);
};

void ListAll(CPanoramaRscClsReader& reader)
{
    std::map<unsigned, CPanoramaRscClsReader::CObject> objects;
    reader.GetAllObjects(objects);
}

void ListAllByKey(CPanoramaRscClsReader& reader)
{
    std::map<QString, CPanoramaRscClsReader::CObject> objects;
    reader.GetAllObjects(objects);
}

void ListLayers(CPanoramaRscClsReader& reader)
{
    std::vector<CPanoramaRscClsReader::CLayer> layers;
    reader.GetLayers(layers);
}

void ListLayer(CPanoramaRscClsReader& reader)
{
    std::vector<CPanoramaRscClsReader::CObject> objects;
    reader.GetObjectsInLayer(CPanoramaRscClsReader::EObjectType(1), 0, objects);
}

void MapSemantics(CPanoramaRscClsReader& reader)
{
    std::map<unsigned, std::pair<QString, CPanoramaRscClsReader::ESemanticsType>> semantics;
    reader.GetSemantics(semantics);
}

void ListSemantics(CPanoramaRscClsReader& reader)
{
    std::vector<CPanoramaRscClsReader::CSemanticObject> semantics;
    reader.GetSemantics(semantics, CPanoramaRscClsReader::ESemanticsType(1));
}

using R = CPanoramaRscClsReader;
const CGuardedOperation kOperations[] = {
    {"Open", [](R& reader) { reader.Open(QStringLiteral("map.rsc")); }},
    {"Close", [](R& reader) { reader.Close(); }},
    {"OpenToDrawPreview", [](R& reader) { reader.OpenToDrawPreview(QStringLiteral("map.rsc")); }},
    {"CloseToDrawPriview", [](R& reader) { reader.CloseToDrawPriview(); }},
    {"CreatePnrBitmap", [](R& reader) { reader.CreatePnrBitmap(1, 1); }},
    {"ClosePnrBitMap", [](R& reader) { reader.ClosePnrBitMap(nullptr); }},
    {"DrawPreview", [](R& reader) { reader.DrawPreview(nullptr, 1, 1, 1); }},
    {"GetLayers", ListLayers},
    {"GetObjectsInLayer", ListLayer},
    {"GetAllObjectsByCode", ListAll},
    {"GetAllObjectsByKey", ListAllByKey},
    {"GetSemanticsMap", MapSemantics},
    {"GetSemanticsVector", ListSemantics},
    {"GetTCodeSemanticValue", [](R& reader) { reader.GetTCodeSemanticValue(1, 1); }},
};

} // namespace

class GuardedOperation : public CClassifierTest,
                         public ::testing::WithParamInterface<CGuardedOperation>
{
protected:
    GuardedOperation()
    {
        standin::Current().layers = {"roads"};
        standin::Current().objects = {{10, 1, 0, "path", "P1"}};
        standin::Current().semantics = {{1, 1, "width", 0, {{1, "wide"}}}, {2, 1, "length"}};
    }
};

TEST_P(GuardedOperation, RunsTheLibraryUnderItsOwnWord)
{
    CReader& reader = Opened();
    savedControlWord = FE_DIVBYZERO;
    isControlWordSaved = true;
    feenableexcept(FE_OVERFLOW);
    int calls = 0;
    standin::Current().onCall = [&](const std::string& function) {
        ++calls;
        EXPECT_EQ(fegetexcept(), FE_DIVBYZERO) << function;
    };
    GetParam().call(reader);
    EXPECT_GT(calls, 0);
    EXPECT_EQ(fegetexcept(), FE_OVERFLOW);
}

TEST_P(GuardedOperation, KeepsTheWordThatTheLibraryLeaves)
{
    CReader& reader = Opened();
    savedControlWord = 0;
    standin::Current().onCall = [](const std::string&) { feenableexcept(FE_UNDERFLOW); };
    GetParam().call(reader);
    EXPECT_EQ(savedControlWord, static_cast<unsigned>(FE_UNDERFLOW));
    EXPECT_EQ(fegetexcept(), 0);
}

INSTANTIATE_TEST_SUITE_P(Each, GuardedOperation, ::testing::ValuesIn(kOperations),
                         [](const auto& test) { return std::string(test.param.name); });

} // namespace VelorExchange::pnr
