#include <QByteArray>
#include <QDir>
#include <QFile>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <random>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

static void play(const QByteArray &input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.constData()),
                           static_cast<std::size_t>(input.size()));
}

/// The seed cut off everywhere, and with single bytes changed, doubled and taken out.
static int playChanged(const QByteArray &seed)
{
    constexpr int CHANGES = 2000;
    int count = 0;
    for (int size = 0; size < seed.size(); size += 7, ++count)
        play(seed.left(size));

    std::mt19937 random(static_cast<unsigned>(seed.size()));
    const QByteArray interesting = QByteArrayLiteral("{}[]\",:\\0\x80\xff\n-e.u");
    for (int change = 0; change < CHANGES && !seed.isEmpty(); ++change, ++count) {
        QByteArray changed = seed;
        const int position = static_cast<int>(random() % static_cast<unsigned>(seed.size()));
        const char byte = interesting.at(
            static_cast<int>(random() % static_cast<unsigned>(interesting.size())));
        switch (random() % 3) {
        case 0:
            changed[position] = byte;
            break;
        case 1:
            changed.insert(position, byte);
            break;
        default:
            changed.remove(position, 1);
            break;
        }
        play(changed);
    }
    return count;
}

/// Plays the files of the seed folder, or those named on the command line, to the fuzz target,
/// which aborts when it finds a fault.
int main(int argc, char *argv[])
{
    QStringList paths;
    for (int index = 1; index < argc; ++index)
        paths.append(QFile::decodeName(argv[index]));
    if (paths.isEmpty()) {
        const QDir folder(QStringLiteral(SEEDS_PATH));
        const QStringList names = folder.entryList(QDir::Files, QDir::Name);
        for (const QString &name : names)
            paths.append(folder.filePath(name));
    }
    if (paths.isEmpty()) {
        std::fputs("There are no seeds.\n", stderr);
        return 1;
    }

    int count = 0;
    for (const QString &path : paths) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "%s cannot be read.\n", qPrintable(path));
            return 1;
        }
        const QByteArray seed = file.readAll();
        play(seed);
        count += 1 + playChanged(seed);
    }
    std::printf("Played %d inputs.\n", count);
    return 0;
}
