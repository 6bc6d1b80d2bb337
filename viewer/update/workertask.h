#pragma once

#include <QByteArray>
#include <QCborMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace Viewer::Update {

/// What a worker is asked to do: one update of one camera. The only thing that it is told.
struct CWorkerTask
{
    /// Of tasks and events; both sides refuse every other one.
    static constexpr int PROTOCOL = 1;

    QString kind; ///< of the camera, by ICameraKind::getName()
    QCborMap camera; ///< by ICameraKind::describeCamera()
    QString filePath; ///< absolute
    QByteArray manifestDigest; ///< SHA-256 of the update.json that the user was shown, 32 bytes
    int entry = 0; ///< of the manifest's updates, from 0
    QString journalFolder; ///< absolute; empty: no journal is kept
    QByteArray record; ///< what the journal begins with, by toJson(CUpdateRecord)
    QString language; ///< code of the texts for the user
    bool requiresSignature = false; ///< by a maker whose certificate is in one of...
    QStringList trustFolders; ///< absolute

    [[nodiscard]] QCborMap toCbor() const;

    /// Nothing, with the reason in @p fault: @p map is no task of this protocol.
    [[nodiscard]] static std::optional<CWorkerTask> fromCbor(const QCborMap &map, QString &fault);
};

} // namespace Viewer::Update
