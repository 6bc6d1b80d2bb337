#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace Test {

/// Makes archives for tests, also such as no packing program would make. Failures of the archive
/// library end the test program with a message.
class CUpdateFileBuilder
{
public:
    enum class EPacking { Stored, Deflated, Encrypted };

    /// Adds a file.
    CUpdateFileBuilder &add(const QString &name, const QByteArray &content,
                            EPacking packing = EPacking::Deflated);

    [[nodiscard]] QByteArray getBytes() const;

    /// Writes the archive, over what is there.
    void write(const QString &path) const;

    /// A manifest of one update with every kind of step, whose upload names @p payloadName.
    static QByteArray makeManifest(const QString &payloadName, const QByteArray &payload);

    /// A faultless update file: the manifest and the payload "firmware.img".
    static CUpdateFileBuilder makeValid(const QByteArray &payload,
                                        EPacking packing = EPacking::Deflated);

private:
    struct CEntry
    {
        QString name;
        QByteArray content;
        EPacking packing;
    };

    QVector<CEntry> m_entries;
};

/// Replaces bytes of a finished archive wherever they stand, which must be somewhere. Both have the
/// same length, so that the archive's own offsets stay right.
QByteArray patch(QByteArray archive, const QByteArray &before, const QByteArray &after);

/// Replaces a size or another 32-bit number.
QByteArray patch(const QByteArray &archive, quint32 before, quint32 after);

/// Writes @p bytes into a file, over what is there.
void writeFile(const QString &path, const QByteArray &bytes);

} // namespace Test
