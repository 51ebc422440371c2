// SPDX-License-Identifier: MIT
// `velorx info` over RSC classifiers, through the stand-in for the closed library.
#include "tests/tools/RunVelorx.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

/// A folder with one classifier in it, whose content comes from the stand-in alone.
class InfoRsc : public testing::Test
{
protected:
    const CTemporaryFolder folder;
    const std::string file = folder.Write("map.rsc", "RSC");
};

} // namespace

TEST_F(InfoRsc, TellsAClassifierToPeople)
{
    const SRun run = RunVelorx({"info", file, "--library", VELORX_RSC_LIBRARY});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out,
              file
                  + ": RSC classifier\n"
                    "\n"
                    "Layers (3)\n"
                    "  Name    Objects\n"
                    "  SYSTEM        0\n"
                    "  Лес           1\n"
                    "  Water         2\n"
                    "\n"
                    "Objects (3)\n"
                    "      Code  Kind  Key   Layer  Name\n"
                    "  71111110     1  S001  Лес    Ель\n"
                    "  31120000     0  L002  Water  River\n"
                    "  31120000     1  A003  Water  Lake\n"
                    "\n"
                    "Semantics (2)\n"
                    "  Code  Kind  Name\n"
                    "     4     1  Height\n"
                    "     9     0  Имя\n");
}

TEST_F(InfoRsc, TellsAClassifierToPrograms)
{
    const SRun run = RunVelorx({"info", "--json", "--library", VELORX_RSC_LIBRARY, file});
    EXPECT_EQ(run.exitCode, 0);
    QJsonObject json = QJsonDocument::fromJson(QByteArray::fromStdString(run.out)).object();
    json.remove("file");
    EXPECT_EQ(
        QJsonDocument(json).toJson(QJsonDocument::Compact).toStdString(),
        R"({"family":"RSC","layers":[{"name":"SYSTEM","objects":0},)"
        R"({"name":"Лес","objects":1},{"name":"Water","objects":2}],"objects":[)"
        R"({"code":71111110,"key":"S001","kind":1,"layer":"Лес","name":"Ель","number":1},)"
        R"({"code":31120000,"key":"L002","kind":0,"layer":"Water","name":"River","number":2},)"
        R"({"code":31120000,"key":"A003","kind":1,"layer":"Water","name":"Lake","number":3}],)"
        R"("result":true,"semantics":[{"code":4,"kind":1,"name":"Height"},)"
        R"({"code":9,"kind":0,"name":"Имя"}]})");
}

TEST_F(InfoRsc, NeedsTheLibrary)
{
    const SRun run = RunVelorx({"info", file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err,
              "velorx: " + file
                  + ": a classifier is read through Panorama's own library, "
                    "which --library PATH names\n");
}

TEST_F(InfoRsc, MissingLibraryIsAFailure)
{
    const SRun run = RunVelorx({"info", file, "--library", folder.path + "/нет.so"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "velorx: " + file + ": there is no library where --library says\n");
}

TEST_F(InfoRsc, LibraryThatIsNoneIsAFailure)
{
    const std::string message = "velorx: " + file
        + ": the file that --library names is no library that reads classifiers\n";
    for (const std::string& library : {file, std::string(VELORX_RSC_LIBRARY_LACKING_ONE)}) {
        const SRun run = RunVelorx({"info", file, "--library", library});
        EXPECT_EQ(run.exitCode, 1) << library;
        EXPECT_EQ(run.err, message) << library;
    }
}

TEST_F(InfoRsc, ClassifierThatTheLibraryCannotOpenIsAFailure)
{
    const std::string broken = folder.Write("broken.rsc", "");
    const SRun run = RunVelorx({"info", broken, "--library", VELORX_RSC_LIBRARY});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, broken + ": RSC classifier\n");
    EXPECT_EQ(run.err, "velorx: " + broken + ": the library cannot open the classifier\n");
}

TEST_F(InfoRsc, HelpNamesTheOption)
{
    const SRun run = RunVelorx({"info", "--help"});
    EXPECT_NE(run.out.find("--library PATH"), std::string::npos) << run.out;
    EXPECT_EQ(RunVelorx({"info", file, "--library"}).exitCode, 2);
}

} // namespace velorx::test
