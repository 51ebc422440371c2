// SPDX-License-Identifier: MIT
#include "tests/pnr/classifier/ClassifierTest.h"

namespace VelorExchange::pnr {

namespace {

using R = CPanoramaRscClsReader;

std::string Text(const R::CObject& object)
{
    return object.name.toStdString() + " in " + object.layerName.toStdString() + " code "
        + std::to_string(object.code) + " number " + std::to_string(object.number) + " type "
        + std::to_string(object.type) + "\n";
}

std::string Text(const std::vector<R::CLayer>& layers)
{
    std::string text;
    for (const R::CLayer& layer : layers) {
        text += layer.name.toStdString() + "\n";
    }
    return text;
}

std::string Text(const std::vector<R::CObject>& objects)
{
    std::string text;
    for (const R::CObject& object : objects) {
        text += Text(object);
    }
    return text;
}

std::string Text(const std::map<unsigned, R::CObject>& objects)
{
    std::string text;
    for (const auto& [code, object] : objects) {
        text += std::to_string(code) + ": " + Text(object);
    }
    return text;
}

std::string Text(const std::map<QString, R::CObject>& objects)
{
    std::string text;
    for (const auto& [key, object] : objects) {
        text += key.toStdString() + ": " + Text(object);
    }
    return text;
}

} // namespace

using RscContents = CClassifierTest;

// ---- Layers ---------------------------------------------------------------------------------------

TEST_F(RscContents, ListsAllLayers)
{
    standin::Current().layers = {"system", "roads", "water"};
    std::vector<R::CLayer> layers;
    Opened().GetLayers(layers);
    EXPECT_EQ(Text(layers), "system\nroads\nwater\n");
    EXPECT_EQ(Calls(),
              "mapGetRscSegmentCount(0x111111111)\n"
              "mapGetRscSegmentName(0x111111111, 0, -1)\n"
              "mapGetRscSegmentName(0x111111111, 1, -1)\n"
              "mapGetRscSegmentName(0x111111111, 2, -1)\n");
}

TEST_F(RscContents, ListsNoLayersOfAnEmptyClassifier)
{
    std::vector<R::CLayer> layers;
    Opened().GetLayers(layers);
    EXPECT_EQ(Text(layers), "");
}

TEST_F(RscContents, AppendsToTheVectorOfLayers)
{
    standin::Current().layers = {"system"};
    std::vector<R::CLayer> layers{{QStringLiteral("before")}};
    Opened().GetLayers(layers);
    EXPECT_EQ(Text(layers), "before\nsystem\n");
}

TEST_F(RscContents, NamesComeInLocalText)
{
    const CLocalCodec codec("Windows-1251");
    standin::Current().layers = {"\xE4\xEE\xF0\xEE\xE3\xE8"};
    standin::Current().objects = {{10, 1, 0, "\xF8\xEE\xF1\xF1\xE5", "\xCA\x31"}};
    std::vector<R::CLayer> layers;
    std::map<QString, R::CObject> objects;
    Opened().GetLayers(layers);
    Opened().GetAllObjects(objects);
    EXPECT_EQ(Text(layers), "дороги\n");
    EXPECT_EQ(Text(objects), "К1: шоссе in дороги code 10 number 1 type 1\n");
}

TEST_F(RscContents, ANullNameIsEmpty)
{
    standin::Current().namesAreNull = true;
    standin::Current().layers = {"roads"};
    std::vector<R::CLayer> layers;
    Opened().GetLayers(layers);
    EXPECT_EQ(Text(layers), "\n");
}

// ---- Objects --------------------------------------------------------------------------------------

TEST_F(RscContents, ListsTheObjectsOfOneKindInALayer)
{
    standin::Current().layers = {"system", "roads"};
    standin::Current().objects = {{10, 1, 0, "frame", "A"},
                                  {20, 2, 1, "bridge", "B"},
                                  {30, 1, 1, "path", "C"},
                                  {40, 1, 1, "street", "D"}};
    std::vector<R::CObject> objects;
    Opened().GetObjectsInLayer(R::EObjectType(1), 1, objects);
    EXPECT_EQ(Text(objects),
              "path in roads code 30 number 2 type 1\n"
              "street in roads code 40 number 3 type 1\n");
}

TEST_F(RscContents, AsksForNameAndCodeOfTheObjectsOfTheKindOnly)
{
    standin::Current().layers = {"roads"};
    standin::Current().objects = {{20, 2, 0, "bridge", "B"}, {30, 1, 0, "path", "C"}};
    std::vector<R::CObject> objects;
    Opened().GetObjectsInLayer(R::EObjectType(1), 0, objects);
    EXPECT_EQ(Calls(),
              "mapGetRscSegmentName(0x111111111, 0, -1)\n"
              "mapGetRscObjectCountInLayer(0x111111111, 0)\n"
              "mapGetRscObjectLocalInLayer(0x111111111, 0, 1)\n"
              "mapGetRscObjectLocalInLayer(0x111111111, 0, 2)\n"
              "mapGetRscObjectNameInLayer(0x111111111, 0, 2, -1)\n"
              "mapGetRscObjectExcodeInLayer(0x111111111, 0, 2)\n");
}

TEST_F(RscContents, AppendsToTheVectorOfObjects)
{
    standin::Current().layers = {"roads"};
    standin::Current().objects = {{30, 1, 0, "path", "C"}};
    std::vector<R::CObject> objects(1);
    Opened().GetObjectsInLayer(R::EObjectType(1), 0, objects);
    EXPECT_EQ(Text(objects),
              " in  code 0 number 0 type 0\npath in roads code 30 number 1 type 1\n");
}

TEST_F(RscContents, TakesAnyIntegerAsAKindOfObjects)
{
    standin::Current().layers = {"roads"};
    standin::Current().objects = {{30, -77, 0, "path", "C"}, {40, 1 << 30, 0, "street", "D"}};
    std::vector<R::CObject> objects;
    Opened().GetObjectsInLayer(R::EObjectType(-77), 0, objects);
    Opened().GetObjectsInLayer(R::EObjectType(1 << 30), 0, objects);
    EXPECT_EQ(Text(objects),
              "path in roads code 30 number 1 type -77\n"
              "street in roads code 40 number 2 type 1073741824\n");
}

TEST_F(RscContents, ListsAllObjectsByCode)
{
    standin::Current().layers = {"system", "roads"};
    standin::Current().objects = {{20, 2, 1, "bridge", "B"}, {10, 1, 0, "frame", "A"}};
    std::map<unsigned, R::CObject> objects;
    Opened().GetAllObjects(objects);
    EXPECT_EQ(Text(objects),
              "10: frame in system code 10 number 2 type 1\n"
              "20: bridge in roads code 20 number 1 type 2\n");
    EXPECT_EQ(Calls(),
              "mapGetRscObjectCount(0x111111111)\n"
              "mapGetRscObject(0x111111111, 1)\n"
              "mapGetRscSegmentName(0x111111111, 1, -1)\n"
              "mapGetRscObject(0x111111111, 2)\n"
              "mapGetRscSegmentName(0x111111111, 0, -1)\n");
}

TEST_F(RscContents, ListsAllObjectsByKey)
{
    standin::Current().layers = {"system", "roads"};
    standin::Current().objects = {{20, 2, 1, "bridge", "L20"}, {10, 1, 0, "frame", "A10"}};
    std::map<QString, R::CObject> objects;
    Opened().GetAllObjects(objects);
    EXPECT_EQ(Text(objects),
              "A10: frame in system code 10 number 2 type 1\n"
              "L20: bridge in roads code 20 number 1 type 2\n");
    EXPECT_NE(Calls().find("mapGetRscObjectKey(0x111111111, 2, -1)\n"), std::string::npos);
}

TEST_F(RscContents, TheLastObjectOfACodeStands)
{
    standin::Current().layers = {"roads"};
    standin::Current().objects = {{10, 1, 0, "old", "A"}, {10, 2, 0, "new", "B"}};
    std::map<unsigned, R::CObject> objects;
    Opened().GetAllObjects(objects);
    EXPECT_EQ(Text(objects), "10: new in roads code 10 number 2 type 2\n");
}

TEST_F(RscContents, TheLastObjectOfAKeyStands)
{
    standin::Current().layers = {"roads"};
    standin::Current().objects = {{10, 1, 0, "old", "A"}, {20, 2, 0, "new", "A"}};
    std::map<QString, R::CObject> objects;
    Opened().GetAllObjects(objects);
    EXPECT_EQ(Text(objects), "A: new in roads code 20 number 2 type 2\n");
}

TEST_F(RscContents, ReplacesAndKeepsWhatTheMapOfObjectsHolds)
{
    standin::Current().layers = {"roads"};
    standin::Current().objects = {{10, 1, 0, "new", "A"}};
    std::map<unsigned, R::CObject> objects;
    objects[10].name = QStringLiteral("old");
    objects[11].name = QStringLiteral("other");
    Opened().GetAllObjects(objects);
    EXPECT_EQ(Text(objects),
              "10: new in roads code 10 number 1 type 1\n"
              "11: other in  code 0 number 0 type 0\n");
}

TEST_F(RscContents, ANegativeCodeIsKeyedByItsBits)
{
    standin::Current().layers = {"roads"};
    standin::Current().objects = {{-1, 1, 0, "path", "A"}};
    std::map<unsigned, R::CObject> objects;
    Opened().GetAllObjects(objects);
    EXPECT_EQ(Text(objects), "4294967295: path in roads code -1 number 1 type 1\n");
}

TEST_F(RscContents, ALongNameDoesNotReachIntoTheNextObject)
{
    standin::Current().layers = {"roads"};
    standin::Current().objects = {{10, 1, 0, std::string(2000, 'x'), "A"}, {20, 1, 0, "y", "B"}};
    std::map<unsigned, R::CObject> objects;
    Opened().GetAllObjects(objects);
    EXPECT_EQ(objects[10].name, QString(2000, QLatin1Char('x')));
    EXPECT_EQ(objects[20].name, QStringLiteral("y"));
}

// ---- Without a library or a classifier --------------------------------------------------------------

TEST_F(RscContents, AddsNothingWithoutLibrary)
{
    R& reader = R::m_instance;
    std::vector<R::CLayer> layers;
    std::vector<R::CObject> objects;
    std::map<unsigned, R::CObject> byCode;
    std::map<QString, R::CObject> byKey;
    reader.GetLayers(layers);
    reader.GetObjectsInLayer(R::EObjectType(0), 0, objects);
    reader.GetAllObjects(byCode);
    reader.GetAllObjects(byKey);
    EXPECT_TRUE(layers.empty() && objects.empty() && byCode.empty() && byKey.empty());
    EXPECT_FALSE(isControlWordSaved);
}

TEST_F(RscContents, AsksTheLibraryEvenWhileNothingIsOpen)
{
    std::vector<R::CLayer> layers;
    Loaded().GetLayers(layers);
    EXPECT_EQ(Calls(), "mapGetRscSegmentCount(0x0)\n");
}

TEST_F(RscContents, AddsNothingAfterKillInstanceForAnOpenClassifier)
{
    standin::Current().layers = {"roads"};
    R& reader = Opened();
    R::KillInstance();
    std::vector<R::CLayer> layers;
    std::map<QString, R::CObject> byKey;
    reader.GetLayers(layers);
    reader.GetAllObjects(byKey);
    EXPECT_TRUE(layers.empty() && byKey.empty());
    EXPECT_EQ(Calls(), "freed\n");
}

} // namespace VelorExchange::pnr
