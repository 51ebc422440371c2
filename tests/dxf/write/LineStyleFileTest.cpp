// SPDX-License-Identifier: MIT
#include "tests/support/TextFile.h"
#include "VelorExchange/dxf/write/StyleFiles.h"

#include <QElapsedTimer>

using namespace VelorExchange::dxf;
using VelorExchange::test::CTextFile;

namespace {

std::list<CLineStyleDXF> Read(const QByteArray& bytes, const QString& shapePath = QString())
{
    const CTextFile file(bytes);
    std::list<CLineStyleDXF> styles;
    const bool result = GetLineStylesFromFile(file.Path(), styles, shapePath);
    EXPECT_EQ(result, !styles.empty());
    return styles;
}

std::string Number(double value)
{
    return QString::number(value, 'g', 6).toStdString();
}

template <class Element>
std::string Placing(const Element& element)
{
    return std::string(element.absolute ? " abs" : " rel") + " r" + Number(element.rotation) + " s"
        + Number(element.scale) + " x" + Number(element.offsetX) + " y" + Number(element.offsetY);
}

// The elements of a pattern line, e.g. "0.5 | text GAS in ST rel r0 s1 x0 y0". A dash in front keeps
// the style where the line has none.
std::string Pattern(const QByteArray& line, const QString& shapePath = QString())
{
    const auto styles = Read("*a,b\n" + line, shapePath);
    std::string text;
    if (styles.empty()) {
        return "none";
    }
    for (const CLineElementDXF& element : styles.front().pattern) {
        text += text.empty() ? "" : " | ";
        if (const auto* dash = boost::variant2::get_if<double>(&element)) {
            text += Number(*dash);
        } else if (const auto* letters = boost::variant2::get_if<CLineTextDXF>(&element)) {
            text += "text " + letters->text.toStdString() + " in " + letters->style.toStdString()
                + Placing(*letters);
        } else if (const auto* shape = boost::variant2::get_if<CLineShapeDXF>(&element)) {
            text += "shape " + std::to_string(shape->number) + " in " + shape->style.toStdString()
                + Placing(*shape);
        }
    }
    return text;
}

// A text element with one more part.
std::string Part(const QByteArray& part)
{
    return Pattern("[\"T\",ST," + part + "]");
}

} // namespace

TEST(LineStyleFile, EmptyPathAndMissingFileGiveFalse)
{
    std::list<CLineStyleDXF> styles(1);
    EXPECT_FALSE(GetLineStylesFromFile(QString(), styles, QString()));
    EXPECT_FALSE(GetLineStylesFromFile(QStringLiteral("/no/such/file.lin"), styles, QString()));
}

TEST(LineStyleFile, EarlierElementsCountForTheResult)
{
    const CTextFile file("");
    std::list<CLineStyleDXF> styles(1);
    EXPECT_TRUE(GetLineStylesFromFile(file.Path(), styles, QString()));
}

TEST(LineStyleFile, HeadIsNameAndDescription)
{
    const auto styles = Read(" * DASH , Dash __ , __ \r\nA,.5\n");
    ASSERT_EQ(styles.size(), 1U);
    EXPECT_EQ(styles.front().name, QStringLiteral("DASH"));
    EXPECT_EQ(styles.front().description, QStringLiteral("Dash __ , __"));
}

TEST(LineStyleFile, HeadWithoutACommaIsNameAndDescription)
{
    const auto styles = Read("*DASH\r\nA,.5\n");
    EXPECT_EQ(styles.front().name, QStringLiteral("DASH"));
    EXPECT_EQ(styles.front().description, QStringLiteral("DASH"));
}

TEST(LineStyleFile, EmptyDescriptionTakesTheName)
{
    EXPECT_EQ(Read("*DASH,\nA,.5\n").front().description, QStringLiteral("DASH"));
}

TEST(LineStyleFile, EmptyNameDropsTheStyle)
{
    EXPECT_TRUE(Read("*,b\nA,.5\n").empty());
    EXPECT_TRUE(Read("*\nA,.5\n").empty());
}

TEST(LineStyleFile, DashesAreTheNumbers)
{
    EXPECT_EQ(Pattern("A,.5,-.25"), "0.5 | -0.25");
    EXPECT_EQ(Pattern("A, .5 , - .25 , 0\r\n"), "0.5 | -0.25 | 0");
    EXPECT_EQ(Pattern(",,1,,2,"), "1 | 2");
    EXPECT_EQ(Pattern("x1,2y,3"), "3");
}

TEST(LineStyleFile, PatternWithoutElementsDropsTheStyle)
{
    EXPECT_EQ(Pattern("A"), "none");
    EXPECT_EQ(Pattern("A,x"), "none");
    EXPECT_TRUE(Read("*a,b\n").empty());
    EXPECT_TRUE(Read("*a,b").empty());
}

TEST(LineStyleFile, EmptyLineOrCommentInsteadOfThePatternDropsTheStyle)
{
    EXPECT_TRUE(Read("*a,b\n  \nA,1\n").empty());
    EXPECT_TRUE(Read("*a,b\n;A,1\nA,1\n").empty());
    EXPECT_EQ(Read("*a,b\n;\n*c,d\nA,1\n").size(), 1U);
}

TEST(LineStyleFile, LineBehindAHeadIsItsPatternWhateverItIs)
{
    // The second head is taken for a pattern, and its own pattern for nothing.
    EXPECT_TRUE(Read("*a,b\n*c,d\nA,1\n").empty());
}

TEST(LineStyleFile, OtherLinesArePassedOver)
{
    EXPECT_EQ(Read(";; comment\nA,1\n\n*a,b\nA,1\nrubbish\n*c,d\nA,2\n").size(), 2U);
}

TEST(LineStyleFile, TextElementHasItsParts)
{
    EXPECT_EQ(Pattern("A,.5,[\"GAS\",STANDARD,S=.1,R=30,X=-0.1,Y=-.05],-.25"),
              "0.5 | text GAS in STANDARD rel r30 s0.1 x-0.1 y-0.05 | -0.25");
}

TEST(LineStyleFile, TextLosesItsBlanks)
{
    EXPECT_EQ(Pattern("[\"GAS LINE\",ST]"), "text GASLINE in ST rel r0 s1 x0 y0");
}

TEST(LineStyleFile, TextWithoutLettersIsNotAppended)
{
    EXPECT_EQ(Pattern("1,[\"\",ST]"), "1");
    EXPECT_EQ(Pattern("1,[\"ABC,ST]"), "1"); // the quote is never closed
}

TEST(LineStyleFile, TextStandsBetweenTheFirstTwoQuotes)
{
    EXPECT_EQ(Pattern("[x\"AB\"yz\"C\",ST]"), "text AB in ST rel r0 s1 x0 y0");
}

TEST(LineStyleFile, LaterTextStandsAlsoWhereItIsEmpty)
{
    EXPECT_EQ(Pattern("1,[\"A\",\"B\",ST]"), "1 | text B in ST rel r0 s1 x0 y0");
    EXPECT_EQ(Pattern("1,[\"A\",\"\",ST]"), "1");
    EXPECT_EQ(Pattern("1,[\"A\",\"B,ST]"), "1 | text A in ST rel r0 s1 x0 y0");
}

TEST(LineStyleFile, TextWithACommaIsCutByIt)
{
    EXPECT_EQ(Pattern("1,[\"A,B\",ST]"), "1");
}

TEST(LineStyleFile, RotationKnowsItsKinds)
{
    EXPECT_EQ(Part("A=30"), "text T in ST abs r30 s1 x0 y0");
    EXPECT_EQ(Part("a=30"), "text T in ST rel r30 s1 x0 y0");
    EXPECT_EQ(Part("R=30"), "text T in ST rel r30 s1 x0 y0");
    EXPECT_EQ(Part("r=30"), "text T in ST rel r30 s1 x0 y0");
}

TEST(LineStyleFile, LaterRotationResetsTheKind)
{
    EXPECT_EQ(Part("A=30,R=40"), "text T in ST rel r40 s1 x0 y0");
}

TEST(LineStyleFile, RotationKnowsItsUnits)
{
    EXPECT_EQ(Part("R=30D"), "text T in ST rel r30 s1 x0 y0");
    EXPECT_EQ(Part("R=30d"), "text T in ST rel r30 s1 x0 y0");
    EXPECT_EQ(Part("r=1.5r"), "text T in ST rel r85.9437 s1 x0 y0");
    EXPECT_EQ(Part("r=1.5R"), "text T in ST rel r85.9437 s1 x0 y0");
    EXPECT_EQ(Part("R=100g"), "text T in ST rel r90 s1 x0 y0");
    EXPECT_EQ(Part("R=100G"), "text T in ST rel r90 s1 x0 y0");
}

TEST(LineStyleFile, UnitOfDegreesIsLookedForFirst)
{
    EXPECT_EQ(Part("R=5rd"), "text T in ST rel r0 s1 x0 y0"); // "5r" is no number
    EXPECT_EQ(Part("R=5dr"), "text T in ST rel r5 s1 x0 y0");
}

TEST(LineStyleFile, RotationThatIsNoNumberStays)
{
    EXPECT_EQ(Part("R=30,R=x"), "text T in ST rel r30 s1 x0 y0");
    EXPECT_EQ(Part("R=30,A="), "text T in ST abs r30 s1 x0 y0");
}

TEST(LineStyleFile, KeysAreFoundInEitherCase)
{
    EXPECT_EQ(Part("s=2,x=3,y=4"), "text T in ST rel r0 s2 x3 y4");
    EXPECT_EQ(Part("S=2,X=3,Y=4"), "text T in ST rel r0 s2 x3 y4");
    EXPECT_EQ(Part("S=2,S=z"), "text T in ST rel r0 s2 x0 y0");
}

TEST(LineStyleFile, KeyBehindOtherLettersHasNoValue)
{
    // With the key at 1 the value is one character too long and begins within the key.
    EXPECT_EQ(Part("qS=2"), "text T in ST rel r0 s1 x0 y0");
    EXPECT_EQ(Part("qA=2"), "text T in ST abs r0 s1 x0 y0");
}

TEST(LineStyleFile, ScaleIsLookedForBeforeTheOtherKeys)
{
    EXPECT_EQ(Part("S=2X=3"), "text T in ST rel r0 s1 x0 y0"); // one part, no number
    EXPECT_EQ(Part("X=3S=2"), "text T in ST rel r0 s1 x0 y0");
}

TEST(LineStyleFile, RotationIsLookedForBeforeTheOffsets)
{
    EXPECT_EQ(Part("X=3R=2"), "text T in ST rel r0 s1 x0 y0");
    EXPECT_EQ(Part("R=2,Y=3X=4"), "text T in ST rel r2 s1 x0 y0");
    EXPECT_EQ(Part("A=X=4"), "text T in ST abs r0 s1 x0 y0");
}

TEST(LineStyleFile, CapitalAIsLookedForBeforeTheOtherRotations)
{
    EXPECT_EQ(Part("R=3A=4"), "text T in ST abs r0 s1 x0 y0");
}

TEST(LineStyleFile, ShapeIsLookedUpByItsExactName)
{
    const CTextFile shapes("*130,6,BOX\n");
    const QString style =
        shapes.Path().section(QChar(u'\\'), -1).chopped(3) + QStringLiteral("shx");
    const std::string box = "1 | shape 130 in " + style.toStdString() + " rel r0 s2 x0 y0";
    EXPECT_EQ(Pattern("1,[BOX,ltypeshp.shx,S=2]", shapes.Path()), box);
    EXPECT_EQ(Pattern("1,[box,ltypeshp.shx,S=2]", shapes.Path()), "1");
    EXPECT_EQ(Pattern("1,[BOX,LTYPESHP.SHX,S=2]", shapes.Path()), box);
    EXPECT_EQ(Pattern("1,[a.shxBOX]", shapes.Path()), "1");
}

TEST(LineStyleFile, PartWithAKeyOrAFileNamesNoShape)
{
    const CTextFile shapes("*130,6,S=2\n*131,6,my.shx\n");
    EXPECT_EQ(Pattern("1,[S=2,my.shx]", shapes.Path()), "1");
}

TEST(LineStyleFile, ShapeWithoutASourceIsLeftOut)
{
    EXPECT_EQ(Pattern("1,[BOX,ltypeshp.shx],-2"), "1 | -2");
    EXPECT_EQ(Pattern("1,[BOX,ltypeshp.shx],-2", QStringLiteral("/no/such/file.shp")), "1 | -2");
}

TEST(LineStyleFile, ShapeStyleIsTheCompiledFileOfTheSource)
{
    // Only a backslash parts folders here.
    const CTextFile shapes("*130,6,BOX\n");
    const QString path = shapes.Path() + QStringLiteral("\\..\\my.shp");
    QFile copy(path);
    ASSERT_TRUE(copy.open(QIODevice::WriteOnly));
    copy.write("*7,6,BOX\n");
    copy.close();
    EXPECT_EQ(Pattern("[BOX]", path), "shape 7 in my.shx rel r0 s1 x0 y0");
    copy.remove();
}

TEST(LineStyleFile, BracketThatIsNeverClosedDropsTheRestOfItsLine)
{
    EXPECT_EQ(Pattern("1,[\"A\",ST,2,3"), "1");
    EXPECT_EQ(Pattern("[a,b"), "none");
    EXPECT_EQ(Read("*a,b\n1,[,\n*c,d\nA,2\n").size(), 2U);
}

TEST(LineStyleFile, BracketIsFoundAtTheStartOfATokenAlone)
{
    EXPECT_EQ(Pattern("1[\"A\",2,3]"), "2"); // neither "1[..." nor "3]" is a number
}

TEST(LineStyleFile, WhatFollowsABracketDirectlyIsATokenOfItsOwn)
{
    EXPECT_EQ(Pattern("[\"A\",ST]5,6"), "text A in ST rel r0 s1 x0 y0 | 5 | 6");
}

TEST(LineStyleFile, FileCutAnywhereIsRead)
{
    const QByteArray whole = "*a,b\nA,.5,[\"GAS\",ST,S=.1,A=30,X=-0.1],-.25,[BOX,a.shx]\n*c\n1\n";
    for (int size = 0; size <= whole.size(); ++size) {
        EXPECT_LE(Read(whole.left(size)).size(), 2U);
    }
}

TEST(LineStyleFile, ManyStylesAndOneEndlessLineTakeLinearTime)
{
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(Read(QByteArray("*a,b\nA,1\n").repeated(100000)).size(), 100000U);
    EXPECT_EQ(Read("*a,b\nA," + QByteArray("1,").repeated(1000000)).front().pattern.size(),
              1000000U);
    EXPECT_EQ(Pattern("1," + QByteArray("x ").repeated(1000000)), "1");
    EXPECT_EQ(Pattern(QByteArray("[").repeated(1000000)), "none");
    EXPECT_EQ(Pattern("1," + QByteArray("[a],").repeated(300000)), "1");
    EXPECT_EQ(Pattern("1,[" + QByteArray("a,").repeated(300000) + "]"), "1");
    EXPECT_LT(timer.elapsed(), 30000);
}
