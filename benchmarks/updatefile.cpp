// What the first look at an update file costs, which the user waits for: the payload is unpacked
// and its SHA-256 computed. The anchor are the two programs of the system that do the same, piped
// into each other. Processor time counts on both sides: our one thread's and that of both programs.

#include "comparison.h"
#include "viewer/updatefile/updatefilecache.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>

using Viewer::UpdateFile::CUpdateFileCache;

static constexpr int MEBI_BYTE = 1024 * 1024;

[[noreturn]] static void fail(const QString &text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
    std::exit(EXIT_FAILURE);
}

static QByteArray run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0)
        fail(program + ": " + process.errorString() + ' ' + process.readAllStandardError());
    return process.readAllStandardOutput();
}

// Nothing in it repeats, so it packs to its own size.
static QByteArray makeIncompressible(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    std::mt19937 random(1);
    std::generate(bytes.begin(), bytes.end(), [&random] { return static_cast<char>(random()); });
    return bytes;
}

// Like machine code: words from a store, some of them often, some rarely, with numbers between
// them. Packs to about half its size.
static QByteArray makeCompressible(int size)
{
    constexpr int WORD_SIZE = 12;
    constexpr int WORD_COUNT = 4096;
    const QByteArray store = makeIncompressible(WORD_COUNT * WORD_SIZE);
    QByteArray bytes;
    bytes.reserve(size + WORD_SIZE + 4);
    std::mt19937 random(2);
    std::geometric_distribution<int> pick(0.01);
    while (bytes.size() < size) {
        const int word = std::min(pick(random), WORD_COUNT - 1);
        bytes.append(store.constData() + word * WORD_SIZE, WORD_SIZE);
        const auto number = static_cast<quint32>(random());
        bytes.append(reinterpret_cast<const char *>(&number), sizeof number);
    }
    bytes.truncate(size);
    return bytes;
}

static void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        fail(path + " cannot be written.");
}

// Packs an update file whose one payload is @p payload; the path.
static QString pack(const QTemporaryDir &folder, const QByteArray &payload)
{
    writeFile(folder.filePath("firmware.img"), payload);
    writeFile(folder.filePath("update.json"), R"({
      "formatVersion": 1,
      "updates": [{
        "version": "2.0.0",
        "models": ["VX-1"],
        "steps": [{ "kind": "FileUpload", "payload": "firmware.img", "targetFile": "Firmware" }]
      }]
    })");
    const QString path = folder.filePath("update.guf");
    run(GUFTOOL_PATH, {"pack", folder.path(), path});
    return path;
}

static double readFirst(const QString &path, QByteArray &sha256)
{
    return Benchmark::measureThreadMs([&] {
        CUpdateFileCache cache;
        sha256 = cache.read(path)->updates.first().steps.first().payload.sha256;
    });
}

static double runPrograms(const QString &path, const QByteArray &sha256)
{
    return Benchmark::measureChildrenMs([&] {
        const QByteArray line
            = run("sh", {"-c", "unzip -p \"$1\" firmware.img | sha256sum", "sh", path});
        if (!line.startsWith(sha256.toHex()))
            fail("unzip and sha256sum come to another result; is unzip installed?");
    });
}

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const struct
    {
        const char *name;
        QByteArray (*make)(int size);
        int size;
    } payloads[] = {
        {"100 MiB, compressible", makeCompressible, 100},
        {"256 MiB, compressible", makeCompressible, 256},
        {"100 MiB, incompressible", makeIncompressible, 100},
        // The archive, too, has to stay below 256 MiB.
        {"255 MiB, incompressible", makeIncompressible, 255},
    };
    Benchmark::printHeader();
    for (const auto &payload : payloads) {
        const QTemporaryDir folder;
        const QString path = pack(folder, payload.make(payload.size * MEBI_BYTE));
        QByteArray sha256;
        Benchmark::compare(
            qPrintable(QString("first look at a file, %1, ms").arg(payload.name)),
            Benchmark::atMost(0.5), [&] { return readFirst(path, sha256); },
            [&] { return runPrograms(path, sha256); }, 3);
    }
    return EXIT_SUCCESS;
}
