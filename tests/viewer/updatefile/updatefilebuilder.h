#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace TestSupport {

enum class EPacking { Stored, Deflated, Encrypted };

/// A file of an archive.
struct CEntry
{
    QString name;
    QByteArray content;
    EPacking packing = EPacking::Deflated;
};

/// Makes archives for tests, also such as no packing program would make. Failures of the archive
/// library end the test program with a message, as all failures here.
QByteArray makeArchive(const QVector<CEntry> &entries);

/// A manifest of one update with every kind of step, whose upload names @p payloadName.
QByteArray makeManifest(const QString &payloadName, const QByteArray &payload);

/// A faultless update file, the manifest and the payload "firmware.img", and then @p others.
QByteArray makeValid(const QByteArray &payload, EPacking packing = EPacking::Deflated,
                     const QVector<CEntry> &others = {});

/// Replaces bytes of a finished archive wherever they stand, which must be somewhere. Both have the
/// same length, so that the archive's own offsets stay right.
QByteArray patch(QByteArray archive, const QByteArray &before, const QByteArray &after);

/// Replaces a size or another 32-bit number.
QByteArray patch(const QByteArray &archive, quint32 before, quint32 after);

/// Writes @p bytes into a file, over what is there.
void writeFile(const QString &path, const QByteArray &bytes);

} // namespace TestSupport
