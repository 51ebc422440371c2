// SPDX-License-Identifier: MIT
// Files that can't be opened or written: FileError with the file's code and name, no crash, and a
// writer that can be started anew or destroyed.
#include "tests/support/DxfDrawing.h"
#include "tests/support/DxfSample.h"
#include "VelorExchange/foundation/FileError.h"

#include <QDir>

#include <csignal>
#include <functional>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace VelorExchange;
using namespace VelorExchange::dxf;
using namespace VelorExchange::test;

namespace {

struct CFault
{
    bool isThrown = false;
    QFile::FileError error = QFile::NoError;
    QString fileName;
};

CFault FaultOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const FileError& error) {
        return {true, error.error, error.fileName};
    }
    return {};
}

// No file of this process grows beyond `size` bytes while this lives.
class CFileSizeLimit
{
public:
    explicit CFileSizeLimit(rlim_t size)
    {
        before = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &limit);
        const rlimit lower{size, limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &lower);
    }
    ~CFileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, before);
    }
    CFileSizeLimit(const CFileSizeLimit&) = delete;
    CFileSizeLimit& operator=(const CFileSizeLimit&) = delete;

private:
    rlimit limit{};
    void (*before)(int) = nullptr;
};

// New temporary files can't be opened while this lives.
class CNoTemporaryFolder
{
public:
    CNoTemporaryFolder() : before(qgetenv("TMPDIR"))
    {
        qputenv("TMPDIR", "/proc"); // takes no files, not even from root
    }
    ~CNoTemporaryFolder()
    {
        if (before.isNull()) {
            qunsetenv("TMPDIR");
        } else {
            qputenv("TMPDIR", before);
        }
    }
    CNoTemporaryFolder(const CNoTemporaryFolder&) = delete;
    CNoTemporaryFolder& operator=(const CNoTemporaryFolder&) = delete;

private:
    QByteArray before;
};

QByteArray EverythingFresh()
{
    CDrawing drawing;
    DrawEverything(*drawing);
    return drawing.Bytes();
}

// A writer that failed takes Init and is as good as new.
void ExpectStartsAnew(CDrawing& drawing)
{
    drawing->Init(1018, nullptr);
    EXPECT_FALSE(drawing->IsInBlock());
    DrawEverything(*drawing);
    EXPECT_TRUE(drawing.Bytes() == EverythingFresh());
}

CPointDXF Point()
{
    CPointDXF point;
    point.layer = QStringLiteral("points");
    return point;
}

} // namespace

TEST(Fault, TargetInAMissingFolder)
{
    CDrawing drawing;
    DrawEverything(*drawing);
    const QString path = QStringLiteral("/no/such/folder/a.dxf");
    const CFault fault = FaultOf([&] { drawing->Rewrite(path); });
    EXPECT_TRUE(fault.isThrown);
    EXPECT_EQ(fault.error, QFile::OpenError);
    EXPECT_EQ(fault.fileName, path);
    ExpectStartsAnew(drawing);
}

TEST(Fault, TargetWithAnEmptyName)
{
    CDrawing drawing;
    EXPECT_TRUE(FaultOf([&] { drawing->Rewrite(QString()); }).isThrown);
    ExpectStartsAnew(drawing);
}

TEST(Fault, TargetThatIsAFolder)
{
    CDrawing drawing;
    const CFault fault = FaultOf([&] { drawing->Rewrite(QDir::tempPath()); });
    EXPECT_TRUE(fault.isThrown);
    EXPECT_NE(fault.error, QFile::NoError);
    EXPECT_EQ(fault.fileName, QDir::tempPath());
}

TEST(Fault, TargetInAReadOnlyFolder)
{
    const QTemporaryDir folder;
    ASSERT_EQ(chmod(folder.path().toLocal8Bit().constData(), 0555), 0);
    CDrawing drawing;
    const bool isRoot = geteuid() == 0;
    if (isRoot) {
        ASSERT_EQ(seteuid(65534), 0); // root may write anywhere
    }
    const CFault fault =
        FaultOf([&] { drawing->Rewrite(folder.filePath(QStringLiteral("a.dxf"))); });
    if (isRoot) {
        ASSERT_EQ(seteuid(0), 0);
    }
    chmod(folder.path().toLocal8Bit().constData(), 0755);
    EXPECT_TRUE(fault.isThrown);
    EXPECT_EQ(fault.error, QFile::OpenError);
    EXPECT_EQ(fault.fileName, folder.filePath(QStringLiteral("a.dxf")));
    ExpectStartsAnew(drawing);
}

TEST(Fault, FullDiskUnderTheTarget)
{
    if (!QFile::exists(QStringLiteral("/dev/full"))) {
        GTEST_SKIP() << "no /dev/full here";
    }
    CDrawing drawing;
    DrawEverything(*drawing);
    const CFault fault = FaultOf([&] { drawing->Rewrite(QStringLiteral("/dev/full")); });
    EXPECT_TRUE(fault.isThrown);
    EXPECT_EQ(fault.error, QFile::ResourceError);
    EXPECT_EQ(fault.fileName, QStringLiteral("/dev/full"));
    ExpectStartsAnew(drawing);
}

TEST(Fault, FullDiskUnderAnEmptyDrawing)
{
    if (!QFile::exists(QStringLiteral("/dev/full"))) {
        GTEST_SKIP() << "no /dev/full here";
    }
    const CDrawing drawing;
    EXPECT_TRUE(FaultOf([&] { drawing->Rewrite(QStringLiteral("/dev/full")); }).isThrown);
}

TEST(Fault, FileThatStopsGrowingAtAnyByte)
{
    const auto whole = static_cast<rlim_t>(EverythingFresh().size());
    for (rlim_t size = 0; size < whole; size += 997) {
        CDrawing drawing;
        DrawEverything(*drawing);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a.dxf"));
        const CFault fault = FaultOf([&] {
            const CFileSizeLimit limit(size);
            drawing->Rewrite(path);
        });
        EXPECT_TRUE(fault.isThrown) << size;
        EXPECT_NE(fault.error, QFile::NoError) << size;
        EXPECT_FALSE(fault.fileName.isEmpty()) << size;
        drawing->Init(1018, nullptr);
        DrawEverything(*drawing);
        EXPECT_TRUE(drawing.Bytes() == EverythingFresh()) << size;
    }
}

TEST(Fault, PartOfTheFileStaysOnTheDisk)
{
    const CDrawing drawing;
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.dxf"));
    {
        const CFileSizeLimit limit(3000);
        EXPECT_TRUE(FaultOf([&] { drawing->Rewrite(path); }).isThrown);
    }
    EXPECT_EQ(QFile(path).size(), 3000);
}

TEST(Fault, TemporaryFileThatStopsGrowingEndsTheElement)
{
    CDrawing drawing;
    CFault fault;
    {
        const CFileSizeLimit limit(300000);
        fault = FaultOf([&] {
            for (int i = 0; i < 100000; ++i) {
                drawing->AddPoint(Point());
            }
        });
    }
    EXPECT_TRUE(fault.isThrown);
    EXPECT_NE(fault.error, QFile::NoError);
    EXPECT_TRUE(fault.fileName.startsWith(QDir::tempPath())) << fault.fileName.toStdString();
    ExpectStartsAnew(drawing);
}

TEST(Fault, TemporaryFileOfABlockThatStopsGrowing)
{
    CDrawing drawing;
    CFault fault;
    {
        const CFileSizeLimit limit(300000);
        fault = FaultOf([&] {
            drawing->BeginBlock(QStringLiteral("a"), true, QString());
            drawing->BeginBlock(QStringLiteral("b"), true, QString());
            for (int i = 0; i < 100000; ++i) {
                drawing->AddPoint(Point());
            }
        });
    }
    EXPECT_TRUE(fault.isThrown);
    ExpectStartsAnew(drawing); // the blocks are gone with the failure
}

TEST(Fault, InitWhileTheDiskIsStillFull)
{
    CDrawing drawing;
    {
        const CFileSizeLimit limit(0);
        EXPECT_TRUE(FaultOf([&] {
                        for (int i = 0; i < 100000; ++i) {
                            drawing->AddPoint(Point());
                        }
                    }).isThrown);
        // Nothing has to be written yet: what is gathered is dropped, the files are cut.
        EXPECT_FALSE(FaultOf([&] { drawing->Init(1018, nullptr); }).isThrown);
    }
    ExpectStartsAnew(drawing);
}

TEST(Fault, FailedWriterCanBeDestroyedAtOnce)
{
    CDrawing drawing;
    const CFileSizeLimit limit(1000);
    EXPECT_TRUE(FaultOf([&] {
                    for (int i = 0; i < 100000; ++i) {
                        drawing->AddPoint(Point());
                    }
                }).isThrown);
}

TEST(Fault, TemporaryFolderThatTakesNoFiles)
{
    const CNoTemporaryFolder none;
    const CFault fault = FaultOf([] { DeleteDXFWriter(CreateDXFWriter(nullptr)); });
    EXPECT_TRUE(fault.isThrown);
    EXPECT_NE(fault.error, QFile::NoError);
}

TEST(Fault, ContextForgetsAWriterThatCouldNotBeMade)
{
    const CNoTemporaryFolder none;
    CTestContext context;
    EXPECT_TRUE(FaultOf([&] { CreateDXFWriter(&context); }).isThrown);
    EXPECT_EQ(context.writer, nullptr);
}

TEST(Fault, BlockWithoutATemporaryFileChangesNothing)
{
    CDrawing drawing;
    drawing->AddPoint(Point());
    const QByteArray before = drawing.Bytes();
    {
        const CNoTemporaryFolder none;
        EXPECT_TRUE(
            FaultOf([&] { drawing->BeginBlock(QStringLiteral("a"), true, QString()); }).isThrown);
    }
    EXPECT_FALSE(drawing->IsInBlock());
    EXPECT_FALSE(drawing->HasBlock(QStringLiteral("a")));
    EXPECT_TRUE(drawing.Bytes() == before);
}

TEST(Fault, ExceptionOutOfACallbackPassesThroughAndWritesNothing)
{
    class CThrowingContext final : public IDXFWriter::IContext
    {
    public:
        CPoint2D TransformPoint(const CPoint2D& in) override
        {
            if (--left == 0) {
                throw std::runtime_error("host");
            }
            return in;
        }
        bool GetLineStyle(const QString&, CLineStyleDXF&) override { return false; }
        void CompleteTextStyle(CTextStyleDXF&) override { }
        double GetScale() override { return 1; }

        int left = 0;
    };
    CThrowingContext context;
    CDrawing drawing(1018, &context);
    CLWPolylineDXF polyline;
    polyline.layer = QStringLiteral("a");
    polyline.vertices.resize(3);
    context.left = 2;
    EXPECT_THROW(drawing->AddPolyline(polyline), std::runtime_error);
    EXPECT_EQ(drawing->GetNextHandle(), 0xD0);
    EXPECT_TRUE(drawing->AddPolyline(polyline));
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 0), std::vector<std::string>{"LWPOLYLINE"});
}
