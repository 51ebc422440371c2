// SPDX-License-Identifier: MIT
// Style files from other people's projects, where a collection of them stands beside this tree.
#include "tests/support/Corpus.h"
#include "VelorExchange/dxf/write/StyleFiles.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <list>
#include <map>

using namespace VelorExchange::dxf;
using VelorExchange::test::CorpusFolder;

namespace {

// What is expected of each file of a family, by its path; empty without the collection.
std::map<QString, QJsonObject> FilesOf(const QString& family)
{
    std::map<QString, QJsonObject> files;
    QFile file(CorpusFolder() + QStringLiteral("/expected.json"));
    if (!file.open(QIODevice::ReadOnly)) {
        return files;
    }
    const QJsonObject all = QJsonDocument::fromJson(file.readAll()).object()[u"files"].toObject();
    for (const QString& name : all.keys()) {
        if (all[name].toObject()[u"family"].toString() == family) {
            files[CorpusFolder() + QLatin1Char('/') + name] = all[name].toObject();
        }
    }
    return files;
}

// The names of styles and the number of things in each.
template <class Styles, class SizeOf>
QJsonObject Summary(const Styles& styles, const char* sizes, SizeOf sizeOf)
{
    QJsonArray names;
    QJsonArray counts;
    for (const auto& style : styles) {
        names.append(style.name);
        counts.append(static_cast<int>(sizeOf(style)));
    }
    return {{QStringLiteral("names"), names}, {QString::fromLatin1(sizes), counts}};
}

void ExpectAll(const QJsonObject& actual, const QJsonObject& expected, const QString& name)
{
    for (const QString& key : actual.keys()) {
        EXPECT_EQ(actual[key], expected[key]) << name.toStdString() << ' ' << key.toStdString();
    }
}

} // namespace

#define SKIP_WITHOUT(files)                                                                        \
    if ((files).empty()) {                                                                         \
        GTEST_SKIP() << "no collection of real files here";                                        \
    }

TEST(StyleCorpus, HatchPatternsAreAllFound)
{
    const auto files = FilesOf(QStringLiteral("pat"));
    SKIP_WITHOUT(files);
    for (const auto& [path, facts] : files) {
        std::list<CHatchStyleDXF> styles;
        EXPECT_TRUE(GetHatchStylesFromFile(path, styles));
        ExpectAll(Summary(styles, "lines_per_pattern",
                          [](const CHatchStyleDXF& style) { return style.lines.size(); }),
                  facts[u"reader"].toObject(), path);
    }
}

TEST(StyleCorpus, LineTypesAreAllFound)
{
    const auto files = FilesOf(QStringLiteral("lin"));
    SKIP_WITHOUT(files);
    for (const auto& [path, facts] : files) {
        std::list<CLineStyleDXF> styles;
        EXPECT_TRUE(GetLineStylesFromFile(path, styles, QString()));
        const auto size = [](const CLineStyleDXF& style) { return style.pattern.size(); };
        ExpectAll(Summary(styles, "elements_per_style", size), facts[u"reader"].toObject(), path);
    }
}

TEST(StyleCorpus, LineTypesWithAShapeSourceAreAllFound)
{
    const auto files = FilesOf(QStringLiteral("lin"));
    SKIP_WITHOUT(files);
    for (const auto& [path, facts] : files) {
        const QJsonObject runs = facts[u"reader_with_shapes"].toObject();
        for (const QString& shapes : runs.keys()) {
            std::list<CLineStyleDXF> styles;
            GetLineStylesFromFile(path, styles, CorpusFolder() + QLatin1Char('/') + shapes);
            QJsonArray counts;
            for (const CLineStyleDXF& style : styles) {
                counts.append(static_cast<int>(style.pattern.size()));
            }
            EXPECT_EQ(counts, runs[shapes].toObject()[u"elements_per_style"].toArray());
        }
    }
}

TEST(StyleCorpus, ShapesAreAllFound)
{
    const auto files = FilesOf(QStringLiteral("shp"));
    SKIP_WITHOUT(files);
    for (const auto& [path, facts] : files) {
        std::map<QString, int> shapes;
        EXPECT_TRUE(GetShapesFromFile(path, shapes));
        QJsonObject found;
        for (const auto& [name, number] : shapes) {
            found[name] = number;
        }
        EXPECT_EQ(found, facts[u"reader"].toObject()[u"shapes"].toObject());
    }
}
