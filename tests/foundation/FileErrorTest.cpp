// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/FileError.h"

#include <cstring>

using VelorExchange::FileError;

TEST(FileError, SaysUnknownException)
{
    const QFile file(QStringLiteral("any"));
    EXPECT_STREQ(FileError(file).what(), "Unknown exception");
}

TEST(FileError, TakesCodeAndNameOfFailedOpen)
{
    QFile file(QStringLiteral("/no/such/folder/file"));
    ASSERT_FALSE(file.open(QIODevice::ReadOnly));
    const FileError error(file);
    EXPECT_EQ(error.error, QFile::OpenError);
    EXPECT_EQ(error.fileName, QStringLiteral("/no/such/folder/file"));
}

TEST(FileError, KeepsCodeOfFailedWriteWhateverHappensLater)
{
    QFile file(QStringLiteral("/dev/full"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    ASSERT_EQ(file.write("x", 1), -1);
    const QFile::FileError code = file.error();
    ASSERT_NE(code, QFile::NoError);
    const FileError error(file);
    file.unsetError();
    EXPECT_EQ(error.error, code);
}

TEST(FileError, IsThrownByValueAndCaughtAsStandardException)
{
    const QFile file(QStringLiteral("name"));
    try {
        throw FileError(file);
    } catch (const std::exception& caught) {
        const auto* error = dynamic_cast<const FileError*>(&caught);
        ASSERT_NE(error, nullptr);
        EXPECT_EQ(error->fileName, QStringLiteral("name"));
    }
}
