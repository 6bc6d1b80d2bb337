#include "fuzztarget.h"
#include "viewer/camera/simulation/firmwarestatefile.h"

#include <QFile>
#include <QTemporaryDir>

using Viewer::Camera::Simulation::CFirmwareStateFile;

static int warnings = 0;

static void checkWarning(QtMsgType, const QMessageLogContext &, const QString &text)
{
    ++warnings;
    Fuzz::require(Fuzz::isReadable(text));
}

/// Whatever the bytes of a state file are, it remembers what is written to it from then on. What
/// keeps it from remembering the rest is told on one line, and the rest is put aside.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // In memory: each write waits until the disk has it.
    static const QTemporaryDir folder("/dev/shm/statefile-XXXXXX");
    static const QString path = folder.filePath("cameras.json");
    static const QString aside = path + ".damaged";
    qInstallMessageHandler(checkWarning);

    QFile file(path);
    Fuzz::require(file.open(QIODevice::WriteOnly));
    file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size));
    file.close();
    QFile::remove(aside);

    warnings = 0;
    CFirmwareStateFile(path).setVersion("camera", "2.0.0");
    Fuzz::require(warnings == (QFile::exists(aside) ? 1 : 0));
    Fuzz::require(CFirmwareStateFile(path).getVersion("camera") == "2.0.0");
    Fuzz::require(warnings <= 1);
    return 0;
}
