// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfTextHabits.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

QString Piece(char letter, int size = 250)
{
    return QString(size, QLatin1Char(letter));
}

// Takes a text of the kind with its two points.
void TakeText(CDxfTextHabits& habits, const std::string& kind, const char* alignment, const char* x,
              const char* anchor)
{
    CDxfGroups groups;
    groups.Add(72, alignment);
    groups.Add(10, x);
    groups.Add(11, anchor);
    habits.Take({kind, groups, QStringLiteral("A"), QString(), false});
}

} // namespace

TEST(DxfTextHabits, PositionIsTheLeftEndUnlessTextsTellOtherwise)
{
    CDxfTextHabits habits;
    EXPECT_FALSE(habits.IsPositionTheAnchor());
    TakeText(habits, "TEXT", "1", "5", "5");
    EXPECT_TRUE(habits.IsPositionTheAnchor());
    TakeText(habits, "ATTRIB", "1", "5", "6");
    EXPECT_FALSE(habits.IsPositionTheAnchor());
}

TEST(DxfTextHabits, TextsSetByTheirLeftEndTellNothing)
{
    CDxfTextHabits habits;
    TakeText(habits, "TEXT", "0", "5", "5");
    TakeText(habits, "INSERT", "1", "5", "5");
    EXPECT_FALSE(habits.IsPositionTheAnchor());
}

TEST(DxfTextHabits, SemicolonsBetweenUsualPiecesGo)
{
    const CDxfTextHabits habits;
    EXPECT_EQ(habits.WithoutSeams(Piece('a') + ';' + Piece('b') + "c;d"),
              Piece('a') + Piece('b') + "c;d");
    EXPECT_EQ(habits.WithoutSeams(Piece('a') + ';' + Piece('b') + ';' + Piece('c')),
              Piece('a') + Piece('b') + Piece('c'));
}

TEST(DxfTextHabits, TextOfOnePieceKeepsItsSemicolons)
{
    const CDxfTextHabits habits;
    const QString text = Piece('a') + ";" + Piece('b', 249);
    EXPECT_EQ(habits.WithoutSeams(text), text);
    EXPECT_EQ(habits.WithoutSeams(QStringLiteral("a;b")), "a;b");
}

TEST(DxfTextHabits, EveryCountOfPiecesIsToldByTheLength)
{
    const CDxfTextHabits habits;
    for (int pieces = 1; pieces <= 4; ++pieces) {
        for (int rest = 0; rest <= 250; ++rest) {
            QStringList all;
            for (int i = 0; i < pieces; ++i) {
                all.append(Piece(static_cast<char>('a' + i)));
            }
            const QString tail = Piece('z', rest);
            ASSERT_EQ(habits.WithoutSeams(all.join(QLatin1Char(';')) + tail), all.join("") + tail)
                << pieces << ' ' << rest;
        }
    }
}

TEST(DxfTextHabits, TextThatHasNoSemicolonAtASeamIsLeftAlone)
{
    const CDxfTextHabits habits;
    const QString text = Piece('a', 600);
    EXPECT_EQ(habits.WithoutSeams(text), text);
}

TEST(DxfTextHabits, OneUnusualPieceLeavesAllTextsAlone)
{
    CDxfTextHabits habits;
    habits.TakePiece(3, Piece('a', 249));
    const QString text = Piece('a') + ';' + Piece('b') + "c";
    EXPECT_EQ(habits.WithoutSeams(text), text);
}

TEST(DxfTextHabits, LastPieceMayBeShort)
{
    CDxfTextHabits habits;
    habits.TakePiece(3, Piece('a'));
    habits.TakePiece(1, "end");
    EXPECT_EQ(habits.WithoutSeams(Piece('a') + ';' + Piece('b')), Piece('a') + Piece('b'));
}

} // namespace velorx::test
