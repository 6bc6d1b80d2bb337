#include "fuzztarget.h"

#include <QDir>
#include <QFile>

#include <random>

/// Plays the seed, also cut off everywhere, and with single bytes changed, doubled and taken out.
static void play(const QByteArray &seed)
{
    const auto playOne = [](const QByteArray &input) {
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.constData()),
                               static_cast<std::size_t>(input.size()));
    };
    for (int size = seed.size(); size > 0; size -= 7)
        playOne(seed.left(size));

    std::mt19937 random(static_cast<unsigned>(seed.size()));
    const auto pick = [&random](const QByteArray &bytes) {
        return static_cast<int>(random() % static_cast<unsigned>(bytes.size()));
    };
    const QByteArray interesting = QByteArrayLiteral("{}[]\",:\\0\x80\xff\n-e.u");
    constexpr int CHANGES = 2000;
    for (int change = 0; change < CHANGES && !seed.isEmpty(); ++change) {
        const QByteArray byte(1, interesting.at(pick(interesting)));
        const int replacedLength = change % 3 == 0 ? 0 : 1;
        playOne(QByteArray(seed).replace(pick(seed), replacedLength,
                                         change % 3 == 1 ? QByteArray() : byte));
    }
}

/// Plays the files of the seed folder to the fuzz target, which aborts when it finds a fault.
int main()
{
    const QFileInfoList seeds = QDir(SEEDS_PATH).entryInfoList(QDir::Files);
    for (const QFileInfo &seed : seeds) {
        QFile file(seed.filePath());
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        play(file.readAll());
    }
    return seeds.isEmpty() ? 1 : 0;
}
