// SPDX-License-Identifier: MIT
#include "VelorExchange/Pnr.h"

#include "SxfBuilder.h"

#include <QTemporaryFile>

using namespace VelorExchange::pnr;
using SxfBuilder::I32;

namespace {

// -1 if the file could not be opened, else whether it is a text.
int Ask(const QByteArray& bytes)
{
    QTemporaryFile file;
    if (!file.open() || file.write(bytes) != bytes.size() || !file.flush()) {
        return -2;
    }
    bool text = bytes.size() % 2 == 0; // either value has to be overwritten
    return IsTxtFile(file.fileName(), text) ? int{text} : -1;
}

} // namespace

TEST(IsTxtFile, KnowsABinaryFileOfVersion4)
{
    EXPECT_EQ(Ask(I32(0x465853) + I32(400) + I32(0x40000)), 0);
    EXPECT_EQ(Ask(I32(0x465853) + I32(0) + I32(0x40000) + "x"), 0);
}

TEST(IsTxtFile, CountsAnotherVersionAsText)
{
    EXPECT_EQ(Ask(I32(0x465853) + I32(400) + I32(0x30000)), 1);
}

TEST(IsTxtFile, CountsAnotherMagicAsText)
{
    EXPECT_EQ(Ask(I32(0x465854) + I32(400) + I32(0x40000)), 1);
    EXPECT_EQ(Ask(".SXF 4.0\nP000"), 1);
}

TEST(IsTxtFile, CountsAFileShorterThanTwelveBytesAsText)
{
    const QByteArray head = I32(0x465853) + I32(400) + I32(0x40000);
    for (int size = 0; size < 12; ++size) {
        EXPECT_EQ(Ask(head.left(size)), 1) << size;
    }
}

TEST(IsTxtFile, LeavesTheAnswerAloneWhereTheFileCannotBeOpened)
{
    for (const bool before : {false, true}) {
        bool text = before;
        EXPECT_FALSE(IsTxtFile(QStringLiteral("/nonexistent/map.sxf"), text));
        EXPECT_EQ(text, before);
    }
}

TEST(Factory, DeletingNullDoesNothing)
{
    DeleteReader(nullptr);
    DeletePnrWriter(nullptr);
}
