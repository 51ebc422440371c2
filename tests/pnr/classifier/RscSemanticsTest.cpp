// SPDX-License-Identifier: MIT
#include "tests/pnr/classifier/ClassifierTest.h"

namespace VelorExchange::pnr {

namespace {

using R = CPanoramaRscClsReader;
using CSemanticsMap = std::map<unsigned, std::pair<QString, R::ESemanticsType>>;

std::string Text(const CSemanticsMap& semantics)
{
    std::string text;
    for (const auto& [code, semantic] : semantics) {
        text += std::to_string(code) + ": " + semantic.first.toStdString() + " kind "
            + std::to_string(semantic.second) + "\n";
    }
    return text;
}

std::string Text(const std::vector<R::CSemanticObject>& semantics)
{
    std::string text;
    for (const R::CSemanticObject& semantic : semantics) {
        text += semantic.name.toStdString() + " code " + std::to_string(semantic.code) + "\n";
    }
    return text;
}

// One semantic of each kind from 0 to 20, with code 100 more than the kind, between two of kind 1.
std::vector<standin::Semantic> SemanticsOfAllKinds()
{
    std::vector<standin::Semantic> semantics{{1, 1, "first"}};
    for (int kind = 0; kind <= 20; ++kind) {
        semantics.push_back({100 + kind, kind, "of kind " + std::to_string(kind)});
    }
    semantics.push_back({999, 1, "last"});
    return semantics;
}

class RscSemantics : public CClassifierTest
{
protected:
    static std::string Semantics(int type)
    {
        std::vector<R::CSemanticObject> semantics;
        Opened().GetSemantics(semantics, R::ESemanticsType(type));
        return Text(semantics);
    }
};

} // namespace

// ---- The two forms of GetSemantics ------------------------------------------------------------------

TEST_F(RscSemantics, MapFormTakesSixKinds)
{
    standin::Current().semantics = SemanticsOfAllKinds();
    CSemanticsMap semantics;
    Opened().GetSemantics(semantics);
    EXPECT_EQ(Text(semantics),
              "100: of kind 0 kind 0\n"
              "101: of kind 1 kind 1\n"
              "116: of kind 16 kind 16\n"
              "117: of kind 17 kind 17\n"
              "118: of kind 18 kind 18\n"
              "119: of kind 19 kind 19\n"
              "999: last kind 1\n");
}

TEST_F(RscSemantics, MapFormReachesTheLastSemanticButNotTheFirst)
{
    standin::Current().semantics = {{1, 1, "first"}, {2, 1, "middle"}, {3, 1, "last"}};
    CSemanticsMap semantics;
    Opened().GetSemantics(semantics);
    EXPECT_EQ(Text(semantics), "2: middle kind 1\n3: last kind 1\n");
    EXPECT_EQ(Calls(),
              "mapGetRscSemanticCount(0x111111111)\n"
              "mapGetRscSemanticCodeByNumber(0x111111111, 2)\n"
              "mapGetRscSemanticExByCode(0x111111111, 2)\n"
              "mapGetRscSemanticCodeByNumber(0x111111111, 3)\n"
              "mapGetRscSemanticExByCode(0x111111111, 3)\n");
}

TEST_F(RscSemantics, MapFormReplacesAndKeepsWhatTheMapHolds)
{
    standin::Current().semantics = {{1, 1, "first"}, {2, 1, "new"}};
    CSemanticsMap semantics;
    semantics[2] = {QStringLiteral("old"), R::ESemanticsType(0)};
    semantics[7] = {QStringLiteral("other"), R::ESemanticsType(0)};
    Opened().GetSemantics(semantics);
    EXPECT_EQ(Text(semantics), "2: new kind 1\n7: other kind 0\n");
}

TEST_F(RscSemantics, VectorFormNeverReachesTheLastSemantic)
{
    standin::Current().semantics = {{1, 1, "first"}, {2, 1, "middle"}, {3, 1, "last"}};
    EXPECT_EQ(Semantics(1), "first code 1\nmiddle code 2\n");
    EXPECT_EQ(Calls(),
              "mapGetRscSemanticCount(0x111111111)\n"
              "mapGetRscSemanticCodeByNumber(0x111111111, 1)\n"
              "mapGetRscSemanticExByCode(0x111111111, 1)\n"
              "mapGetRscSemanticCodeByNumber(0x111111111, 2)\n"
              "mapGetRscSemanticExByCode(0x111111111, 2)\n");
}

TEST_F(RscSemantics, TypeZeroPassesOverTheFirstSemantic)
{
    standin::Current().semantics = {{1, 0, "first"}, {2, 0, "middle"}, {3, 0, "last"}};
    EXPECT_EQ(Semantics(0), "middle code 2\n");
}

TEST_F(RscSemantics, OtherTypesStartAtTheFirstSemantic)
{
    standin::Current().semantics = {{1, 17, "kind 17"}, {2, 1, "kind 1", 1}, {3, 0, "last"}};
    EXPECT_EQ(Semantics(17), "kind 17 code 1\n");
    standin::Current().semantics = {{1, 1, "kind 1", 1}, {2, 17, "kind 17"}, {3, 0, "last"}};
    EXPECT_EQ(Semantics(2), "kind 1 code 1\n");
}

TEST_F(RscSemantics, TypeZeroKeepsKindZero)
{
    standin::Current().semantics = SemanticsOfAllKinds();
    EXPECT_EQ(Semantics(0), "of kind 0 code 100\n");
}

TEST_F(RscSemantics, TypeOneKeepsKindOneWithAndWithoutAList)
{
    standin::Current().semantics = {{1, 1, "plain"}, {2, 1, "listed", 5}, {3, 0, "last"}};
    EXPECT_EQ(Semantics(1), "plain code 1\nlisted code 2\n");
}

TEST_F(RscSemantics, TypeTwoKeepsKindOneWithAListOnly)
{
    standin::Current().semantics = {{1, 1, "plain"},
                                    {2, 1, "listed", -1},
                                    {3, 2, "kind 2", 1},
                                    {4, 0, "kind 0", 1},
                                    {5, 0, "last"}};
    EXPECT_EQ(Semantics(2), "listed code 2\n");
}

TEST_F(RscSemantics, TypeSeventeenKeepsKindSeventeen)
{
    standin::Current().semantics = SemanticsOfAllKinds();
    EXPECT_EQ(Semantics(17), "of kind 17 code 117\n");
}

TEST_F(RscSemantics, AnyOtherTypeKeepsNothing)
{
    standin::Current().semantics = SemanticsOfAllKinds();
    for (const int type : {-1, 3, 9, 16, 18, 19, 20, 127}) {
        EXPECT_EQ(Semantics(type), "") << type;
    }
}

TEST_F(RscSemantics, ListsNoSemanticsOfAnEmptyClassifier)
{
    CSemanticsMap semantics;
    Opened().GetSemantics(semantics);
    EXPECT_EQ(Text(semantics), "");
    EXPECT_EQ(Semantics(1), "");
}

TEST_F(RscSemantics, AppendsToTheVectorOfSemantics)
{
    standin::Current().semantics = {{1, 1, "first"}, {2, 1, "last"}};
    std::vector<R::CSemanticObject> semantics{{QStringLiteral("before"), 7}};
    Opened().GetSemantics(semantics, R::ESemanticsType(1));
    EXPECT_EQ(Text(semantics), "before code 7\nfirst code 1\n");
}

TEST_F(RscSemantics, ANameThatFillsItsFieldEndsWithIt)
{
    standin::Current().semantics = {{1, 1, std::string(68, 'x'), 0x2020202}, {2, 1, "last"}};
    EXPECT_EQ(Semantics(1), std::string(68, 'x') + " code 1\n");
}

// ---- Values ---------------------------------------------------------------------------------------

TEST_F(RscSemantics, GivesTheNameOfAValue)
{
    standin::Current().semantics = {{5, 1, "kind", 1, {{1, "a"}, {7, "b"}, {7, "c"}, {9, "d"}}}};
    EXPECT_EQ(Opened().GetTCodeSemanticValue(5, 7), QStringLiteral("b"));
    EXPECT_EQ(Calls(),
              "mapGetRscSemanticClassificatorCount(0x111111111, 5)\n"
              "mapGetRscSemanticClassificatorCode(0x111111111, 5, 0)\n"
              "mapGetRscSemanticClassificatorCode(0x111111111, 5, 1)\n"
              "mapGetRscSemanticClassificatorName(0x111111111, 5, 1, -1)\n");
}

TEST_F(RscSemantics, AValueThatIsNotListedIsEmpty)
{
    standin::Current().semantics = {{5, 1, "kind", 1, {{1, "a"}, {7, "b"}}}};
    EXPECT_EQ(Opened().GetTCodeSemanticValue(5, 8), QString());
    EXPECT_EQ(Opened().GetTCodeSemanticValue(6, 1), QString());
}

TEST_F(RscSemantics, TakesCodesOfSixteenBits)
{
    standin::Current().semantics = {{65535, 1, "kind", 1, {{-3, "a"}}}};
    EXPECT_EQ(Opened().GetTCodeSemanticValue(65535, -3), QStringLiteral("a"));
}

TEST_F(RscSemantics, AsksForNoValueWhileNothingIsOpen)
{
    standin::Current().semantics = {{5, 1, "kind", 1, {{1, "a"}}}};
    EXPECT_EQ(Loaded().GetTCodeSemanticValue(5, 1), QString());
    EXPECT_EQ(Calls(), "");
}

// ---- Both -----------------------------------------------------------------------------------------

TEST_F(RscSemantics, NamesComeInLocalText)
{
    const CLocalCodec codec("Windows-1251");
    standin::Current().semantics = {{4, 1, ""}, {5, 1, "\xF2\xE8\xEF", 0, {{1, "\xE4\xE0"}}}};
    CSemanticsMap semantics;
    Opened().GetSemantics(semantics);
    EXPECT_EQ(Text(semantics), "5: тип kind 1\n");
    EXPECT_EQ(Opened().GetTCodeSemanticValue(5, 1), QStringLiteral("да"));
}

TEST_F(RscSemantics, AddsNothingWithoutLibrary)
{
    R& reader = R::m_instance;
    CSemanticsMap semanticsMap;
    std::vector<R::CSemanticObject> semantics;
    reader.GetSemantics(semanticsMap);
    reader.GetSemantics(semantics, R::ESemanticsType(1));
    EXPECT_TRUE(semanticsMap.empty() && semantics.empty());
    EXPECT_EQ(reader.GetTCodeSemanticValue(5, 1), QString());
    EXPECT_FALSE(isControlWordSaved);
}

} // namespace VelorExchange::pnr
